#include "JobCourse.h"
#include "Settings.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QStringList>

TEST_F(JobCourse, LogOfAPumpBackToTheLetter)
{
    EXPECT_EQ(Run('D', "P4=0.1 @7 P4=-0.06"), "D04-00@10");
    EXPECT_EQ(log,
        "[ZARN] Job D initiated\n"
        "[ZARN] 00:01 --- P00 ----------\n"
        "[ZARN]       Check P4 (depot): 0.100 bar < -0.060 bar [no]\n"
        "[ZARN]       Check P1 (inlet): 1.000 bar > 11.000 bar [no]\n"
        "[ZARN]       Check P3 (oper.): 1.000 bar > 1.200 bar [no]\n"
        "[ZARN] 00:02 --- P01 ----------\n"
        "[ZARN]       Start Compressor [ok]\n"
        "[ZARN] 00:03 --- P02 ----------\n"
        "[ZARN]       Open valve V1 (main) [ok]\n"
        "[ZARN]       Open valve V4 (depot) [ok]\n"
        "[ZARN]       Set timeout to 300 s\n"
        "[ZARN]       Pause: 3\n"
        "[ZARN]       Pause: 2\n"
        "[ZARN]       Pause: 1\n"
        "[ZARN] 00:06 --- P03 ----------\n"
        "[ZARN]       Check P1 (inlet): 1.000 bar > 11.000 bar [no]\n"
        "[ZARN]       Check P4 (depot): 0.100 bar > -0.060 bar [yes]\n"
        "[ZARN]       Timeout: 299\n"
        "[ZARN] 00:07 --- P03 ----------\n"
        "[ZARN]       Check P1 (inlet): 1.000 bar > 11.000 bar [no]\n"
        "[ZARN]       Check P4 (depot): -0.060 bar > -0.060 bar [no]\n"
        "[ZARN]       Close value V1 (main) [ok]\n"
        "[ZARN]       Close value V4 (depot) [ok]\n"
        "[ZARN]       Stop Compressor [ok]\n"
        "[ZARN]       Pause: 3\n"
        "[ZARN]       Pause: 2\n"
        "[ZARN]       Pause: 1\n"
        "[ZARN] 00:10 --- P04 ----------\n"
        "[ZARN] Job D terminated (H00)\n");
}

TEST_F(JobCourse, LogLinesOfTheOtherChecks)
{
    const struct {
        char letter;
        const char *scenario, *lines;
    } rows[] = {
        {'B', "Depot=76", "Check depot filling level 76 % > 75 % [yes]\n[ZARN] Job B terminated (E06)\n"},
        {'B', "Depot=-", "Check depot filling level --- % > 75 % [error]\n[ZARN] Job B terminated (E05)\n"},
        {'B', "p2 P1=3 @0 !V1+", "Open valve V1 (main) [failed]\n[ZARN] Job B terminated (E02)\n"},
        {'B', "p2 P1=3 @0 T=4000 @20 stop", "      Set timeout to EXPIRED\n"},
        {'B', "p2 P1=3 @0 T=4000 @20 stop", "[ZARN]       Timeout: ---\n"},
        {'B', "p2 P1=3 ", "      Check SO2: 0.000 > 95.000 [no]\n"},
        {'B', "p2 P1=3 @0 SO2=-", "      Check SO2: [not available]\n"},
        {'B', "p2 P1=3 @0 insp", "      Check SO2: [disabled (Inspec.Mode)]\n"},
        {'B', "p2 P1=3 @0 Range=-", "Check SO2: 0.000 > --- [error]\n[ZARN] Job B terminated (E04)\n"},
        {'B', "p2 P1=3 ", "Timeout: 0\n[ZARN]       Record Measurement\n"},
        {'J', "!VL+", "[ZARN]       Open valve VL [failed]\n"},
        {'J', "Hum=-30", " -30.000 °C > -35.000 °C [yes]\n[ZARN]       Counter: 9\n[ZARN]       Goto phase 2\n"},
        {'J', "Hum=-", "Check humidity --- °C > -35.000 °C [error]\n[ZARN] Job J terminated (E19)\n"},
        {'R', "@100 stop", "Check PU (air pressure): 1.000 bar > 0.850 bar [yes]\n"},
        {'R', "Air=-", "      Check PU (air pressure): [error]\n[ZARN] Job R terminated (E04)\n"},
        {'R', "p4 P3=0.5 @20 stop", "[ZARN]       P3 (oper.)  = 1.000 bar, value stored\n"},
        {'R', "p4 P3=0.5 @20 stop", "[ZARN]       Check deviation  d(1.000,0.500),  10% < 50% < 92%:  [yes]\n"},
        {'R', "p2 P3=0", "Check deviation failed (value out of bounds)\n[ZARN] Job R terminated (H-1)\n"},
        {'Q', "p3 P1=9 P2=0.2 P5=0.3 p8 P1=8.9", " d(9.000,8.900),  -0.150 < 0.100 < 0.050 [Bar]:  [no]\n"}};
    for (const auto& row : rows) {
        Run(row.letter, row.scenario);
        EXPECT_NE(log.find(row.lines), std::string::npos) << row.letter << " " << row.scenario << "\n" << log;
    }
}

TEST_F(JobCourse, SignalsAndWhatTheirReceiversFind)
{
    QStringList seen;
    const auto note = [&](const QString& what) {
        const bool hasProgress = machine.GetProgress() != RR::INVALID;
        const char* const state = machine.IsRunning() ? "runs" : "idle";
        seen << QString("%1 %2%3 %4").arg(what, state, hasProgress ? "+" : "").arg(scripted.Count("home"));
    };
    QObject::connect(&machine, &JobStateMachine::Started, [&] { note("started"); });
    QObject::connect(&machine, &JobStateMachine::Stopped, [&] { note("stopped"); });
    QObject::connect(&machine, &JobStateMachine::Progress, [&](int percent) { note(QString::number(percent)); });

    machine.Stop();
    for (const char noJob : {'0', 'G', 'I', 'M', 'N', 'O'}) {
        machine.Start(static_cast<JobStateMachine::Type>(noJob));
    }
    EXPECT_TRUE(seen.isEmpty() && !machine.IsRunning() && scripted.commands.empty());

    Run('F'); // already balanced: ends in its first step
    EXPECT_EQ(seen, QStringList({"0 runs+ 1", "started runs+ 1", "100 runs+ 1", "stopped idle 2", "100 idle+ 2"}));
    seen.clear();
    Run('D', "P4=0.1 V6=- @1 V6=-"); // stopped by the watch, before the step
    EXPECT_EQ(seen, QStringList({"0 runs+ 1", "started runs+ 1", "100 runs+ 1", "stopped idle 2"}));
    EXPECT_EQ(machine.GetRemaining(), RR::Time(0, 0, 0));
}

TEST_F(JobCourse, PlannedDurationProgressAndSecondStart)
{
    settings = Settings::def;
    settings.sensPassageTime = 60;
    const std::pair<char, int> rows[] = {{'B', 80}, {'C', 80}, {'D', 308}, {'E', 308}, {'F', 307}, {'H', 44},
        {'J', 630}, {'K', 3598}, {'L', 3598}, {'P', 304}, {'Q', 1459}, {'R', 178}};
    for (const auto& [letter, seconds] : rows) {
        machine.Start(static_cast<JobStateMachine::Type>(letter));
        EXPECT_EQ(machine.GetRemaining(), RR::Time(0, seconds / 60, seconds % 60)) << letter;
        machine.Stop();
    }
    scripted.pressure[TavorDev::PRESSENS_P4] = 0.1;
    machine.Start(JobStateMachine::TYPE_D);
    for (const int percent : {0, 0, 1}) {
        Tick();
        EXPECT_EQ(machine.GetProgress(), percent);
    }
    machine.Start(JobStateMachine::TYPE_B);
    EXPECT_EQ(machine.GetType(), JobStateMachine::TYPE_D);
    EXPECT_EQ(machine.GetElapsed(), RR::Time(0, 0, 3));
    machine.Stop();
}

TEST_F(JobCourse, ComponentsStopAJobAndTheirCategory)
{
    const struct {
        const char *scenario, *end, *commands;
    } rows[] = {
        {"@1 V6=- P1=-", "B00-02@1", "0:home 1:home"},
        {"@4 V1=- @6 stop", "B02-02@5", "0:home 2:V1+ 5:home"},  // not looked at during the pause
        {"@9 C=-", "B04-03@9", "0:home 2:V1+ 6:V2+ V3+ V4+ 9:home"},
        {"@9 C=- P5=-", "B04-04@9", "0:home 2:V1+ 6:V2+ V3+ V4+ 9:home"},
        {"!V3+", "B03-02@6", "0:home 2:V1+ 6:V2+ V3+ home"}};
    for (const auto& row : rows) {
        EXPECT_EQ(Run('B', std::string("P1=1.3 p1 P1=3 ") + row.scenario), row.end);
        EXPECT_EQ(trace, row.commands);
        EXPECT_EQ(machine.GetSnapshot().stopCategory, JobStateMachine::COMPONENT_FAILURE);
        EXPECT_TRUE(machine.GetMea().IsEmpty());
    }
    Run('B', "P1=- P4=0.01");
    EXPECT_EQ(machine.GetSnapshot().pressure[TavorDev::PRESSENS_P4][Pressure::BAR], RR::FixPnt3(0.01));
    EXPECT_EQ(Run('D', "P4=0 !C+"), "D01-03@2");
    EXPECT_EQ(Run('R', "p2 P3=0"), "R04@16");
    EXPECT_EQ(machine.GetSnapshot().stopCategory, JobStateMachine::BOUNDARY_VIOLATION);
    Run('D', "@1 stop");
    EXPECT_EQ(machine.GetSnapshot().stopCategory, JobStateMachine::PROPER_TERMINATION);
}

TEST_F(JobCourse, PumpBackCountSaturates)
{
    for (const auto& [before, after] : {std::pair("7", "8"), {"29999", "30000"}, {"30000", "30000"}, {"-", "0"}}) {
        Run('D', std::string("P4=-0.06 Count=") + before);
        EXPECT_NE(trace.find(std::string(" 3:V1+ V4+ pumpbacks=") + after + " 6:"), std::string::npos) << trace;
    }
}

TEST_F(JobCourse, TextsForTheScreen)
{
    const std::pair<JobStateMachine::StopCause, const char*> rows[] = {
        {JobStateMachine::UNDEFINED, "UNDEFINED"}, {JobStateMachine::E50, "UNDEFINED"}, {JobStateMachine::EXPLICIT, ""},
        {JobStateMachine::PUMP_BACK_TIMEOUT, "Zeitüberschreitung bei Rückpumpvorgang"},
        {JobStateMachine::DEPOT_EMPTY, "---"}, {JobStateMachine::UNUSED, "k.a."},
        {JobStateMachine::SO2_CONTAMINATION, "Gas stark kontaminiert\nSelbstreinigung wurde eingeleitet"}};
    for (const auto& [cause, text] : rows) {
        EXPECT_EQ(JobStateMachine::PrintStopCause(cause), QString::fromUtf8(text));
    }
}

TEST_F(JobCourse, FirstStepRunsASecondAfterTheStart)
{
    QSignalSpy stopped(&machine, &JobStateMachine::Stopped);
    QElapsedTimer watch;
    watch.start();
    machine.Start(JobStateMachine::TYPE_F);
    ASSERT_TRUE(stopped.wait(3000));
    EXPECT_GE(watch.elapsed(), 990);
}
