#include "Board/Board.h"
#include "Fakes/UnitControl.h"
#include "Globals.h"
#include "JobStateMachine.h"
#include "Settings.h"
#include "TavorDev.h"

#include <gtest/gtest.h>
#include <QTest>
#include <utility>

using Jobs = JobStateMachine;

void StatusMsg(const QString&) {}

namespace {

constexpr int jobLimitMs = 1500 * 1000;

struct JobsOnUnit : testing::Test {
    void SetUp() override
    {
        settings = Settings::def;
        settings.sensPassageTime = 60;
        Tell("flush");
        ASSERT_TRUE(tavorDev.Connect(TavorDev::MODE_APPL));
    }

    /// Tells the unit `commands` when the job has run for so many seconds.
    Jobs::StopCause Run(Jobs::Type type, RR::UInt32 second = 0, std::string commands = "")
    {
        // What was told to the unit before is in the cache after a sweep of the poll sequence.
        QTest::qWait(4000);
        jobSTM.Start(type);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            RR::UInt32 elapsed = 0;
            jobSTM.GetElapsed().Export(elapsed);
            if (jobSTM.IsRunning() && elapsed >= second) {
                Tell(std::exchange(commands, ""));
            }
            return !jobSTM.IsRunning();
        }, jobLimitMs));
        return jobSTM.GetSnapshot().stopCause;
    }
};

}

TEST_F(JobsOnUnit, DeepTransfersEndProperlyOnAHealthyUnit)
{
    EXPECT_EQ(Run(Jobs::TYPE_K), Jobs::H00);
    Tell("set depot 30; set port2 bottle 2");
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
        Tell("set sf6 99.2; set so2 0; set humidity -42; set depot 10");
        Tell(row.gas);
        EXPECT_EQ(Run(Jobs::TYPE_B), Jobs::H00) << row.gas;
        EXPECT_EQ(jobSTM.GetMea().*row.report, row.verdict) << row.gas;
        EXPECT_EQ(jobSTM.GetMea().result, Mea::FAILED) << row.gas;
        EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    }
}

TEST_F(JobsOnUnit, AFullDepotShortensAMeasurementLate)
{
    EXPECT_EQ(Run(Jobs::TYPE_B, 58, "fault pressure 4 0.03"), Jobs::H00);
    EXPECT_FALSE(jobSTM.GetMea().IsEmpty());
}

TEST_F(JobsOnUnit, SelfPurificationTellsWetGasFromContaminatedGas)
{
    Tell("set filter 0; fault wet -15");
    EXPECT_EQ(Run(Jobs::TYPE_J), Jobs::E20);
    Tell("clear; set so2 20; flush");
    EXPECT_EQ(Run(Jobs::TYPE_J), Jobs::E25);
}

TEST_F(JobsOnUnit, TransfersStopAtPressuresTheyMustNotMeet)
{
    Tell("set port2 bottle 2");
    for (Jobs::Type type : {Jobs::TYPE_D, Jobs::TYPE_E, Jobs::TYPE_K, Jobs::TYPE_L}) {
        Tell("set depot 30");
        EXPECT_EQ(Run(type, 8, "fault pressure 1 12"), Jobs::E09) << static_cast<char>(type);
        EXPECT_EQ(jobSTM.GetSnapshot().lastPhase, 3) << static_cast<char>(type);
        EXPECT_EQ(Run(type), Jobs::E09) << static_cast<char>(type) << " before the start";
        Tell("clear");
        EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    }
    Tell("set port2 bottle 1.05; set depot 30");
    EXPECT_EQ(Run(Jobs::TYPE_E), Jobs::E07);
}

TEST_F(JobsOnUnit, GasAtTheCompressorsSuctionIsOperationOverpressure)
{
    Tell("fault pressure 3 0.6");
    for (Jobs::Type type : {Jobs::TYPE_C, Jobs::TYPE_D, Jobs::TYPE_E, Jobs::TYPE_K, Jobs::TYPE_L}) {
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
    ASSERT_TRUE(tavorDev.SetValve(TavorDev::VALVE_V1, true) && tavorDev.SetValve(TavorDev::VALVE_V2, true));
    QTest::qWait(15 * 1000);
    Tell("fault valve 3 stuck-shut");
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::E17);
}

TEST_F(JobsOnUnit, FailingComponentsEndAnyJobInTheTickInWhichTheyShow)
{
    Tell("fault pressure 5");
    EXPECT_EQ(Run(Jobs::TYPE_H), Jobs::E04);
    Tell("clear; fault service compressor");
    EXPECT_EQ(Run(Jobs::TYPE_D), Jobs::E03);
    Tell("clear");
    EXPECT_EQ(Run(Jobs::TYPE_F), Jobs::H00);
    EXPECT_EQ(Run(Jobs::TYPE_H, 10, "fault valve 2 failing"), Jobs::E02);
}
