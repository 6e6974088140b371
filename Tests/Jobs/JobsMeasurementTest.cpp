#include "JobCourse.h"
#include "Mea.h"

// A compartment of 3 bar, at rest before the main valve opens.
static const char sample[] = "p2 P1=3 @0 ";

TEST_F(JobCourse, FullMeasurementByTicks)
{
    EXPECT_EQ(Run('B', sample), "B07-00@80");
    EXPECT_EQ(trace, "0:home 2:V1+ 6:V2+ V3+ V4+ 68:[Messwertaufnahme] 69:V1- 79:V2- V3- V4- 80:home");
    EXPECT_FALSE(machine.GetMea().IsEmpty());
    EXPECT_EQ(Run('C', sample), "C07-00@80");
    EXPECT_EQ(trace, "0:home 2:V1+ 6:V2+ V3+ 68:[Messwertaufnahme] 69:V1- 79:V2- V3- 80:home");
}

TEST_F(JobCourse, MeasurementEndsAndRecords)
{
    const struct {
        char letter;
        const char* scenario;
        const char* end;
        bool recorded;
    } rows[] = {
        // at rest
        {'B', "P1=1.501 P3=1.501", "B00-08@1", false},
        {'B', "P3=1.501", "B00-13@1", false},
        {'B', "P4=0.021", "B00-15@1", false},
        {'B', "Depot=75 P1=1.5 P3=1.5 @1 P4=0.02 @2 P4=0", "B07-00@80", true},
        {'C', "P1=1.501 P3=1.501", "C00-08@1", false},
        {'C', "P3=1.501", "C00-13@1", false},
        {'C', "P4=1 Depot=100", "C07-00@80", true},
        // the inlet before the flow
        {'B', "p2 P1=1.199", "B02-07@5", false},
        {'B', "p2 P1=33.001", "B02-08@5", false},
        {'B', "p2 P1=33", "B07-00@80", true},
        {'C', "p2 P1=1.199", "C02-07@5", false},
        {'C', "p2 P1=33.001", "C02-08@5", false},
        // the flow: strict limits, and the order of the causes
        {'B', "p4 P1=1.15 P2=0.015 P4=0.015 SO2=95", "B07-00@80", true},
        {'C', "p4 P1=1.15 P2=0.015 P4=1 SO2=95", "C07-00@80", true},
        {'B', "p4 P1=1.149 P2=0.016", "B04-07@9", false},
        {'B', "p4 P2=0.016 P4=0.016", "B04-11@9", false},
        {'B', "p4 P4=0.016 SO2=95.001", "B04-15@9", false},
        {'B', "p4 SO2=95.001", "B04-25@9", false},
        {'B', "p4 P1=34 SO2=96", "B04-08@9", false},
        {'C', "p4 P1=34 SO2=96", "C04-25@9", false},
        {'C', "p4 P1=34 P2=0.016", "C04-11@9", false},
        {'C', "p4 P1=34", "C04-08@9", false},
        {'C', "p4 P1=1.149", "C04-07@9", false},
        {'B', "insp p4 SO2=96", "B07-00@80", true},
        {'B', "p4 SO2=-", "B07-00@80", true},
        // from three quarters of the passage time on, a violation still records
        {'B', "@53 P1=1", "B04-07@53", false},
        {'B', "@54 P1=1", "B04-07@54", true},
        {'C', "@53 P1=1", "C04-07@53", false},
        {'C', "@54 P1=1", "C04-07@54", true},
        {'B', "T=61 @54 P2=1", "B04-11@54", false},
        {'B', "T=61 @55 P2=1", "B04-11@55", true},
        {'B', "@53 P4=0.1", "B04-15@53", false},
        {'B', "@54 P4=0.1", "B07-00@66", true},
        // the user's stop needs more than half, and the flow
        {'B', "T=180 @89 stop", "B04-01@89", false},
        {'B', "T=180 @99 stop", "B04-01@99", false},
        {'B', "T=180 @100 stop", "B04-01@100", true},
        {'C', "T=180 @100 stop", "C04-01@100", true},
        {'C', "@5 stop", "C02-01@5", false},
        // a failure is no measurement, but leaves one that was taken
        {'B', "@60 P2=-", "B04-04@60", false},
        {'C', "SO2=- Range=- @60 P1=1 SO2=5", "C04-04@60", false},
        {'B', "!V1-", "B05-02@69", true},
        // odd passage times: 0 has run out at once, from 3600 on it never does
        {'B', "T=0", "B07-00@21", true},
        {'B', "T=3599", "B07-00@3619", true},
        {'B', "T=3600", "running@4999", false},
        {'B', "T=-1", "running@4999", false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Run(row.letter, std::string(sample) + row.scenario), row.end) << row.scenario;
        EXPECT_EQ(!machine.GetMea().IsEmpty(), row.recorded) << row.letter << " " << row.scenario;
    }
}

TEST_F(JobCourse, RecordSurvivesOtherJobsAndNotTheNextMeasurement)
{
    Run('B', sample);
    Run('F');
    EXPECT_FALSE(machine.GetMea().IsEmpty());
    Run('C', "P1=2");
    EXPECT_TRUE(machine.GetMea().IsEmpty());
}
