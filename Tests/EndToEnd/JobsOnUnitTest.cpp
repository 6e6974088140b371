#include "Board/Board.h"
#include "Fakes/UnitControl.h"
#include "Globals.h"
#include "JobStateMachine.h"
#include "Settings.h"
#include "TavorDev.h"

#include <gtest/gtest.h>
#include <QTest>
#include <vector>

using Jobs = JobStateMachine;

void StatusMsg(const QString&) {}

namespace {

constexpr int jobLimitMs = 1500 * 1000;

/// What happens to the sensor unit when a job has run for so many seconds.
struct Event {
    int second;
    const char* command;
};

struct JobsOnUnit : testing::Test {
    void SetUp() override
    {
        settings = Settings::def;
        settings.sensPassageTime = 60;
        Tell("flush");
        ASSERT_TRUE(tavorDev.Connect(TavorDev::MODE_APPL));
    }

    void Tell(const std::string& command)
    {
        const std::string answer = TellUnit(Board::Root() + "/unit.ctl", command);
        ASSERT_TRUE(answer.ends_with("ok\n")) << command << ": " << answer;
    }

    /// Sees to it that the cache has taken in what was told to the unit: a sweep of the poll sequence and more.
    void LetPollingCatchUp() { QTest::qWait(4000); }

    Jobs::StopCause Run(Jobs::Type type, std::vector<Event> events = {})
    {
        LetPollingCatchUp();
        jobSTM.Start(type);
        size_t next = 0;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            RR::UInt32 elapsed = 0;
            jobSTM.GetElapsed().Export(elapsed);
            while (jobSTM.IsRunning() && next < events.size() && elapsed >= static_cast<RR::UInt32>(events[next].second)) {
                Tell(events[next++].command);
            }
            return !jobSTM.IsRunning();
        }, jobLimitMs));
        return jobSTM.GetSnapshot().stopCause;
    }

    /// What the last record holds, for the reader of a failure.
    static std::string Readings()
    {
        const Mea& mea = jobSTM.GetMea();
        return "SF6 " + std::to_string(mea.amountSF6.ToDouble()) + " SO2 " + std::to_string(mea.amountSO2.ToDouble())
            + " dew point " + std::to_string(mea.humidity[Humidity::CELS].ToDouble()) + " HF "
            + std::to_string(mea.amountHF.ToDouble());
    }

    /// Opens the way from the compartment to `last`, and shuts it again after `seconds`.
    void LetGasIn(std::vector<TavorDev::Valve> valves, int seconds)
    {
        for (TavorDev::Valve valve : valves) {
            ASSERT_TRUE(tavorDev.SetValve(valve, true));
        }
        QTest::qWait(seconds * 1000);
        ASSERT_TRUE(tavorDev.HomePositions());
    }
};

}

TEST_F(JobsOnUnit, MeasurementsAndTransfersEndProperlyOnAHealthyUnit)
{
    EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::H00);
    EXPECT_EQ(jobSTM.GetMea().result, Mea::PASSED) << Readings();
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_D), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    Tell("set port3 container 0");
    EXPECT_EQ(Run(Jobs::TYPE_C), Jobs::H00);
    EXPECT_EQ(jobSTM.GetMea().result, Mea::PASSED) << Readings();
}

TEST_F(JobsOnUnit, EmptyingAndPreparationEndProperlyOnAHealthyUnit)
{
    EXPECT_EQ(Run(Jobs::TYPE_H), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_J), Jobs::H00);
    Tell("set port2 bottle 2");
    EXPECT_EQ(Run(Jobs::TYPE_E), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
}

TEST_F(JobsOnUnit, DeepTransfersEndProperlyOnAHealthyUnit)
{
    EXPECT_EQ(Run(Jobs::TYPE_K), Jobs::H00);
    Tell("set depot 30");
    Tell("set port2 bottle 2");
    EXPECT_EQ(Run(Jobs::TYPE_L), Jobs::H00);
}

TEST_F(JobsOnUnit, BadGasFailsTheMeasurementAndIsNoFailureOfTheJob)
{
    const struct {
        const char* gas;
        Mea::Report Mea::*report;
        Mea::Report verdict;
    } rows[] = {
        {"set humidity -20", &Mea::reportHum, Mea::ABOVE_MAX},
        {"set sf6 92", &Mea::reportSF6, Mea::BELOW_MIN},
        {"set so2 30", &Mea::reportSO2, Mea::ABOVE_MAX},
    };
    for (const auto& row : rows) {
        Tell("set sf6 99.2");
        Tell("set so2 0");
        Tell("set humidity -42");
        Tell(row.gas);
        Tell("set depot 10");
        EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::H00) << row.gas;
        EXPECT_EQ(jobSTM.GetMea().*row.report, row.verdict) << row.gas;
        EXPECT_EQ(jobSTM.GetMea().result, Mea::FAILED) << row.gas;
        EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    }
}

TEST_F(JobsOnUnit, PressuresOutOfBoundsKeepAMeasurementFromStarting)
{
    Tell("set depot 80");
    EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::E06);
    Tell("set depot 30");
    Tell("set compartment 1.1");
    EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::E07);
    EXPECT_EQ(Run(Jobs::TYPE_C), Jobs::E07);
    Tell("set compartment 8");
    settings.limitMaxInletPress[Pressure::BAR] = 6.0;
    EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::E08);
    EXPECT_EQ(jobSTM.GetSnapshot().lastPhase, 2);
    EXPECT_EQ(Run(Jobs::TYPE_C), Jobs::E08);
    EXPECT_EQ(jobSTM.GetSnapshot().lastPhase, 0) << "the inlet block still holds the pressure";
}

TEST_F(JobsOnUnit, TheWatchEndsAMeasurementInBounds)
{
    EXPECT_EQ(Run(Jobs::TYPE_B, {{20, "set compartment 1.12"}}), Jobs::E07);
    EXPECT_TRUE(jobSTM.GetMea().IsEmpty());
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    Tell("set compartment 5");
    Tell("fault valve 3 stuck-shut");
    EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::E11);
    Tell("clear");
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_C, {{20, "fault valve 3 stuck-shut"}}), Jobs::E11);
}

TEST_F(JobsOnUnit, AFullDepotEndsAMeasurementEarlyAndShortensItLate)
{
    EXPECT_EQ(Run(Jobs::TYPE_B, {{20, "fault pressure 4 0.03"}}), Jobs::E15);
    EXPECT_TRUE(jobSTM.GetMea().IsEmpty());
    EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::E08) << "the inlet block still holds the pressure";
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::E15) << "before the start";
    Tell("clear");
    EXPECT_EQ(Run(Jobs::TYPE_B, {{58, "fault pressure 4 0.03"}}), Jobs::H00);
    EXPECT_FALSE(jobSTM.GetMea().IsEmpty());
}

TEST_F(JobsOnUnit, SO2NearTheEndOfTheSensorsRangeIsContamination)
{
    Tell("set so2 99");
    EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::E25);
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_C), Jobs::E25);
}

TEST_F(JobsOnUnit, SelfPurificationTellsWetGasFromContaminatedGas)
{
    Tell("set filter 0");
    Tell("fault wet -15");
    EXPECT_EQ(Run(Jobs::TYPE_J), Jobs::E20);
    Tell("clear");
    Tell("set so2 20");
    Tell("flush");
    EXPECT_EQ(Run(Jobs::TYPE_J), Jobs::E25);
}

TEST_F(JobsOnUnit, TransfersStopAtPressuresTheyMustNotMeet)
{
    Tell("set port2 bottle 2");
    for (Jobs::Type type : {Jobs::TYPE_D, Jobs::TYPE_E, Jobs::TYPE_K, Jobs::TYPE_L}) {
        Tell("set depot 30");
        EXPECT_EQ(Run(type, {{8, "fault pressure 1 12"}}), Jobs::E09) << static_cast<char>(type);
        EXPECT_EQ(jobSTM.GetSnapshot().lastPhase, 3) << static_cast<char>(type);
        EXPECT_EQ(Run(type), Jobs::E09) << static_cast<char>(type) << " before the start";
        Tell("clear");
        EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    }
    Tell("set port2 bottle 1.05");
    Tell("set depot 30");
    EXPECT_EQ(Run(Jobs::TYPE_E), Jobs::E07);
}

TEST_F(JobsOnUnit, GasAtTheCompressorsSuctionIsOperationOverpressure)
{
    Tell("fault pressure 3 0.6");
    for (Jobs::Type type : {Jobs::TYPE_B, Jobs::TYPE_C, Jobs::TYPE_D, Jobs::TYPE_E, Jobs::TYPE_K, Jobs::TYPE_L}) {
        EXPECT_EQ(Run(type), Jobs::E13) << static_cast<char>(type);
    }
}

TEST_F(JobsOnUnit, ADeadCompressorRunsTransfersIntoTheirTimeLimit)
{
    Tell("fault compressor dead");
    EXPECT_EQ(Run(Jobs::TYPE_D), Jobs::E16);
    Tell("set port2 bottle 2");
    EXPECT_EQ(Run(Jobs::TYPE_E), Jobs::E16);
}

TEST_F(JobsOnUnit, ABlockedPathRunsThePressureBalanceIntoItsTimeLimit)
{
    LetGasIn({TavorDev::VALVE_V1, TavorDev::VALVE_V2}, 15);
    Tell("fault valve 3 stuck-shut");
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::E17);
}

TEST_F(JobsOnUnit, FailingComponentsEndAnyJobInTheTickInWhichTheyShow)
{
    const struct {
        Jobs::Type type;
        const char* fault;
        Jobs::StopCause cause;
    } rows[] = {
        {Jobs::TYPE_B, "fault valve 6 failing", Jobs::E02},
        {Jobs::TYPE_C, "fault compressor failing", Jobs::E03},
        {Jobs::TYPE_H, "fault pressure 5", Jobs::E04},
        {Jobs::TYPE_B, "fault depot", Jobs::E05},
        {Jobs::TYPE_J, "fault sensor hum unplugged", Jobs::E19},
        {Jobs::TYPE_D, "fault service compressor", Jobs::E03},
    };
    for (const auto& row : rows) {
        Tell(row.fault);
        EXPECT_EQ(Run(row.type), row.cause) << row.fault;
        Tell("clear");
    }
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_H, {{10, "fault valve 2 failing"}}), Jobs::E02);
}

TEST_F(JobsOnUnit, AResetOfTheUnitInTheMiddleOfAPumpBackIsNoProperEnd)
{
    // Valves and compressor go home: the time limit tells, or a component whose poll fell into the reset.
    EXPECT_NE(Run(Jobs::TYPE_D, {{10, "reset"}}), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
}
