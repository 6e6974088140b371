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
    const CourseRow rows[] = {
        // at rest
        {"P1=1.501 P3=1.501", "B00-08@1"}, {"P3=1.501", "B00-13@1"}, {"P4=0.021", "B00-15@1"},
        {"P1=1.501 P3=1.501", "C00-08@1"}, {"P3=1.501", "C00-13@1"}, {"P4=1 Depot=100", "C07-00@80 recorded"},
        {"Depot=75 P1=1.5 P3=1.5 @1 P4=0.02 @2 P4=0", "B07-00@80 recorded"},
        // the inlet before the flow
        {"p2 P1=1.199", "B02-07@5"}, {"p2 P1=33.001", "B02-08@5"}, {"p2 P1=33", "B07-00@80 recorded"},
        {"p2 P1=1.199", "C02-07@5"}, {"p2 P1=33.001", "C02-08@5"},
        // the flow: strict limits, and the order of the causes
        {"p4 P1=1.15 P2=0.015 P4=0.015 SO2=95", "B07-00@80 recorded"}, {"p4 P1=1.149 P2=0.016", "B04-07@9"},
        {"p4 P1=1.15 P2=0.015 P4=1 SO2=95", "C07-00@80 recorded"}, {"p4 P1=34 P2=0.016", "C04-11@9"},
        {"p4 P2=0.016 P4=0.016", "B04-11@9"}, {"p4 P4=0.016 SO2=95.001", "B04-15@9"},
        {"p4 SO2=95.001", "B04-25@9"}, {"p4 P1=34 SO2=96", "B04-08@9"}, {"p4 P1=34 SO2=96", "C04-25@9"},
        {"p4 P1=34", "C04-08@9"}, {"p4 P1=1.149", "C04-07@9"},
        {"insp p4 SO2=96", "B07-00@80 recorded"}, {"p4 SO2=-", "B07-00@80 recorded"},
        // from three quarters of the passage time on, a violation still records
        {"@53 P1=1", "B04-07@53"}, {"@54 P1=1", "B04-07@54 recorded"},
        {"@53 P1=1", "C04-07@53"}, {"@54 P1=1", "C04-07@54 recorded"},
        {"T=61 @54 P2=1", "B04-11@54"}, {"T=61 @55 P2=1", "B04-11@55 recorded"},
        {"@53 P4=0.1", "B04-15@53"}, {"@54 P4=0.1", "B07-00@66 recorded"},
        // the user's stop needs more than half, and the flow
        {"T=180 @99 stop", "B04-01@99"}, {"T=180 @100 stop", "B04-01@100 recorded"},
        {"@5 stop", "C02-01@5"}, {"T=180 @100 stop", "C04-01@100 recorded"},
        // a failure is no measurement, but leaves one that was taken
        {"@60 P2=-", "B04-04@60"}, {"SO2=- Range=- @60 P1=1 SO2=5", "C04-04@60"}, {"!V1-", "B05-02@69 recorded"},
        // odd passage times: 0 has run out at once, from 3600 on it never does
        {"T=0", "B07-00@21 recorded"}, {"T=3599", "B07-00@3619 recorded"},
        {"T=3600", "B runs on@4999"}, {"T=-1", "B runs on@4999"}};
    for (const CourseRow& row : rows) {
        const std::string end = Run(row.end[0], std::string(sample) + row.scenario);
        EXPECT_EQ(end + (machine.GetMea().IsEmpty() ? "" : " recorded"), row.end) << row.scenario;
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
