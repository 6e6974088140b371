#include "JobCourse.h"

TEST_F(JobCourse, TransferCommandsByTicks)
{
    const struct {
        const char *end, *trace;
    } rows[] = {
        {"D04-00@308", "0:home 2:C+ 3:V1+ V4+ pumpbacks=8 305:V1- V4- C- 308:home"},
        {"E04-00@308", "0:home 2:V4+ 3:C+ V5+ pumpbacks=8 305:V4- V5- C- 308:home"},
        {"K04-00@308", "0:home 2:C+ 3:V1+ V4+ pumpbacks=8 305:V1- V4- C- 308:home"},
        {"L04-00@308", "0:home 2:C+ 3:V4+ V5+ pumpbacks=8 305:V4- V5- C- 308:home"},
        {"F03-00@307", "0:home 2:[Druckausgleich] V2+ V3+ V4+ 302:V2- 307:home"}};
    for (const auto& row : rows) {
        const char letter = row.end[0];
        EXPECT_EQ(Run(letter, letter == 'F' ? "P1=2 @302 P1=1.5 P2=0.015" : "P1=1.2 P4=0.1 @305 P4=-0.16"), row.end);
        EXPECT_EQ(trace, row.trace);
    }
}

TEST_F(JobCourse, TransferEnds)
{
    const CourseRow rows[] = {
        // before the start: nothing to pump, or no leave to pump
        {"P4=-0.061 P1=12", "D00-00@1"}, {"P4=-0.161", "K00-00@1"}, {"P4=-0.06 P1=11 P3=1.2", "D04-00@9"},
        {"P4=-0.06 P1=1.2", "E04-00@9"}, {"P4=-0.16", "L04-00@9"}, {"P1=11.001 P3=2", "D00-09@1"},
        {"P1=11.001", "L00-09@1"}, {"P3=1.201", "E00-13@1"}, {"P3=1.201", "K00-13@1"},
        // while pumping
        {"p3 P1=11.001 P4=-1", "D03-09@6"}, {"P1=2 P4=-0.05 @8 P1=11.001", "E03-09@8"},
        {"p3 P1=11.001", "K03-09@6"}, {"p3 P1=11.001", "L03-09@6"}, {"p3 P1=1.199 P4=-1", "E03-07@6"},
        {"p3 P1=1.199 P4=-1", "L04-00@9"}, {"P1=0.1 P4=-0.059", "D03-16@305"}, {"P1=2 P4=0", "E03-16@305"},
        {"P4=-0.159", "K03-16@3595"}, {"P4=-0.1", "L03-16@3595"},
        // the balance: strict against resting, not strict against running
        {"P1=1.499 P2=0.014", "F00-00@1"}, {"P1=1.5", "F03-00@8"}, {"P2=0.015", "F03-00@8"},
        {"P1=1.501", "F02-17@302"}, {"P2=0.016", "F02-17@302"}};
    for (const CourseRow& row : rows) {
        EXPECT_EQ(Run(row.end[0], row.scenario), row.end) << row.scenario;
        const bool pumped = row.end[0] != 'F' && row.end[2] != '0';
        EXPECT_EQ(scripted.Count("pumpbacks=8"), pumped) << row.end << " " << row.scenario;
    }
}
