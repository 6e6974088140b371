#include "JobCourse.h"
#include "PrintIt.h"

// What the readings of a sound instrument do in each self-test; a row adds what goes wrong.
static const char soundP[] = "p4 P1=9 p7 P1=5 p9 P1=8.5 p11 P1=4.5 p14 P1=1 @0 ";
static const char soundQ[] = "p3 P1=9 p5 P2=0.2 p6 P5=0.22 p11 P1=9 p12 P2=0.2 p20 P5=0.22 p23 P1=7.4 p24 P1=1 @0 ";
static const char soundR[] = "p4 P3=0.5 p9 P1=8.5 p11 P1=1 @0 ";

static std::string Sound(char letter)
{
    return letter == 'P' ? soundP : letter == 'Q' ? soundQ : letter == 'R' ? soundR : "";
}

TEST_F(JobCourse, ServiceCommandsByTicks)
{
    const struct {
        char letter;
        const char *scenario, *trace;
    } rows[] = {
        {'H', "", "0:home 1:V2+ V3+ 2:C+ 7:C- 8:V2- 18:V3- 19:home"},
        {'J', "p3 P1=9.1 p4 P1=1.1", "0:home 1:VL+ 2:V2+ V3+ 3:C+ 4:C- 6:V2- VL- 16:V3- 17:home"},
        {'P', "", "0:home 1:V1+ V5+ 2:V2+ V3+ V4+ VL+ 3:V1- V2- V3- V5- VL- 4:C+ 5:C- V4- 66:V1+ 106:V4+ V1- C+"
                  " 107:C- V4- pumpbacks=8 108:V5+ 148:V1+ V5+ 149:V2+ V3+ V4+ 150:V2- 155:home"},
        // the pressure needs a second attempt, with the valves and the time anew
        {'P', "p4 P1=1 @27 P1=9 @28 P1=9 p5 P1=9 @35 stop", "0:home 1:V1+ V5+ 2:V2+ V3+ V4+ VL+"
                  " 3:V1- V2- V3- V5- VL- 4:C+ 14:C-"
                  " 15:V2+ V3+ V4+ VL+ 16:V1- V2- V3- V5- VL- 17:C+ 27:C- V4- 35:home"},
        {'Q', "", "0:home 1:V1+ V2+ V3+ V4+ V5+ VL+ 2:V1- V2- V3- VL- 3:C+ 4:C- V4- 5:V2+ VL+ 19:VL- 20:V3+ V4+"
                  " 70:C+ V3- 71:C- V4- 82:V2- 143:VL+ 149:pumpbacks=8 154:V4- V2- 214:home"},
        // one top-up, then one pulse of drying
        {'Q', "p16 P2=0.1 p18 P2=0.2 p21 Hum=-15 p25 Hum=-31", "0:home 1:V1+ V2+ V3+ V4+ V5+ VL+ 2:V1- V2- V3- VL-"
                  " 3:C+ 4:C- V4- 5:V2+ VL+ 19:VL- 20:V3+ V4+ 70:C+ V3- 71:C- V4- 82:V2- 143:VL+ 149:V4+ V2+ C+ 155:C-"
                  " 156:pumpbacks=8 161:V4- V2-"
                  " 221:V1+ V2+ V3+ V5+ 222:V4- C+ 223:C- V4+ 229:V1- V2- V4- V5- VL- 239:V3- 240:home"},
        {'R', "", "0:home 1:V1+ V2+ V3+ V4+ V5+ VL+ 2:V1- V2- V3- V4- V5- VL- 3:V1+ V2+ V5+ VL+ C+ 13:C- 47:V3+ V4+"
                  " 62:V1- V2- V3- V4- VL- 64:C+ 69:C- V2+ V3+ 74:V2- 79:home"},
        {'R', "Air=850", "0:home 1:V1+ V2+ V3+ V4+ V5+ VL+ 2:V1- V2- V3- V4- V5- VL- 4:V3+ V4+"
                         " 19:V1- V2- V3- V4- VL- 21:C+ 26:C- V2+ V3+ 31:V2- 36:home"}};
    for (const auto& row : rows) {
        Run(row.letter, Sound(row.letter) + row.scenario);
        EXPECT_EQ(trace, row.trace) << row.scenario;
    }
}

TEST_F(JobCourse, ServiceEnds)
{
    const CourseRow rows[] = {
        // flushing: no failure by time
        {"P1=1.2", "H05-00@43"}, {"p2 P1=7.001 p3 P1=1.199", "H05-00@15"},
        // self-purification: every pulse takes 4 ticks here
        {"P1=1.2 Hum=-35 SO2=10", "J07-00@65"}, {"p3 P1=10 p4 P1=1 Hum=-25 SO2=5", "J07-00@53"},
        {"p3 P1=10 p4 P1=1 Hum=-20", "J07-00@53"}, {"p3 P1=10 p4 P1=1 Hum=-15 SO2=10", "J05-20@42"},
        {"p3 P1=10 p4 P1=1 Hum=-40 SO2=11", "J05-25@42"}, {"p3 P1=10 p4 P1=1 Hum=-15 SO2=11", "J05-25@42"},
        {"p3 P1=10 p4 P1=1 SO2=11 insp", "J07-00@17"}, {"p3 P1=10 p4 P1=1 SO2=11 @13 SO2=10", "J07-00@25"},
        {"Hum=-", "J05-19@30"},
        // the self-tests, phase by phase; a deviation has two sides
        {"P1=1.2", "P02-50@52"}, {"p2 P1=1 p4 P1=8", "P04-51@27"}, {"p5 P1=0", "P06@66"},
        {"p6 P1=8.73", "P06-52@66"}, {"p6 P1=9.18", "P06-52@66"},
        {"p7 P1=3.6", "P07-53@76"}, {"p7 P1=8.1", "P07-53@76"},
        {"p8 P1=4.85", "P08-54@106"}, {"p8 P1=5.1", "P08-54@106"}, {"p9 P1=8", "P09-55@116"},
        {"p11 P1=3.4", "P11-56@118"}, {"p11 P1=5.95", "P11-56@118"},
        {"p12 P1=4.365", "P12-57@148"}, {"p12 P1=4.59", "P12-57@148"}, {"p14 P1=1.2", "P14-58@209"},
        {"P1=1.2", "Q01-50@51"}, {"p3 P1=8", "Q03-51@13"}, {"p11 P1=8", "Q11-51@80"},
        {"p5 P2=0.19", "Q05-52@65"}, {"p12 P2=0.19", "Q12-52@131"},
        {"p6 P5=0.21", "Q06-53@16"}, {"p13 P5=0.21", "Q13-53@82"},
        {"p7 P1=9 p8 P1=8.95", "Q08-61@106"}, {"p7 P1=9 p8 P1=9.15", "Q08-61@106"},
        {"p14 P1=8.55", "Q14-54@142"}, {"p14 P1=9.18", "Q14-54@142"},
        {"p16 P2=0.1 p18 P2=0.2 p20 P5=0.21", "Q17-55@188"}, {"p16 P2=0.1 p18 P2=0.19", "Q18-56@199"},
        {"p16 P2=0.19", "Q21-00@214"}, {"p21 P5=0.209", "Q21-57@214"}, {"p21 P5=0.225", "Q21-57@214"},
        {"p21 Hum=-20", "Q21-00@214"}, {"p21 Hum=-", "Q21-19@214"}, {"p21 Hum=-19 p23 P1=7.3", "Q23-58@240"},
        {"p21 Hum=-19 p24 P1=1.2", "Q24-59@266"}, {"p21 Hum=-19 p25 Hum=-30", "Q25-60@294"},
        {"P1=1.2", "R01-50@51"}, {"Air=-", "R02-04@3"},
        {"p4 P3=0.1", "R04-62@16"}, {"p4 P3=0.92", "R04-62@16"},
        {"p5 P3=0.475", "R05-63@46"}, {"p5 P3=0.525", "R05-63@46"},
        {"p9 P1=8 p10 P4=-0.02", "R10-52@69"}, {"p10 P1=8.67 @100 P4=-0.02", "R10-52@102"},
        {"p11 P1=1.2", "R11-54@123"}};
    for (const CourseRow& row : rows) {
        EXPECT_EQ(Run(row.end[0], Sound(row.end[0]) + row.scenario), row.end) << row.scenario;
    }
}

TEST_F(JobCourse, EndPressureOfTheCompressorIsNotedUntilTheNextJob)
{
    Run('R', soundR);
    EXPECT_EQ(machine.GetJobOutputNote(), "8.500 bar");
    EXPECT_EQ(Run('R', std::string(soundR) + "p10 P1=8 P4=-1"), "R10-52@69");
    EXPECT_EQ(machine.GetJobOutputNote(), "");
}
