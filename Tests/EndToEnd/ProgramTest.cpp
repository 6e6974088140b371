#include "Board/Board.h"
#include "Config.h"
#include "Fakes/UnitControl.h"
#include "JobStateMachine.h"
#include "RRx/RRFile.h"
#include "RRx/RRList.h"
#include "Robot.h"
#include "Settings.h"
#include "TavorDev.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <QCoreApplication>

// The whole program, from its main function to its end, pressed by the robot. Times are those of the sped-up clock.

using Jobs = JobStateMachine;
namespace fs = std::filesystem;

namespace {

constexpr int secondMs = 1000;

struct Program : testing::Test {
    static void Tell(const std::string& command)
    {
        const std::string answer = TellUnit(Board::Root() + "/unit.ctl", command);
        ASSERT_TRUE(answer.ends_with("ok\n")) << command << ": " << answer;
    }

    static bool WaitForReady()
    {
        return Robot::WaitFor([] { return tavorDev.GetMode() == TavorDev::MODE_APPL && jobSTM.GetType() == Jobs::TYPE_H; }, 30 * secondMs)
            && WaitForRest();
    }
    static bool WaitForRest()
    {
        return Robot::WaitForShown("startMea", 900 * secondMs) && Robot::WaitFor([] { return !jobSTM.IsRunning(); }, 900 * secondMs);
    }

    /// Presses the start button and waits until the gas flows through the sensors.
    static bool StartMeasurement(int passageSecs)
    {
        Robot::OnGui([=] { settings.sensPassageTime = passageSecs; });
        return Robot::Click("startMea")
            && Robot::WaitFor([] { return jobSTM.GetType() == Jobs::TYPE_B && jobSTM.GetPhase() == 4; }, 60 * secondMs);
    }

    static std::vector<RR::String> StoredFiles()
    {
        RR::List<RR::FileInfo> list;
        RR::DIR_List(RR::PATH_Merge(CFG::MeaFilesFolder, "*.mea"), list, RR::DIR_FILES);
        std::vector<RR::String> names;
        for (auto file = list.First(); !file.IsNil(); file.Next()) {
            names.push_back(RR::PATH_GetFile(file.Entry().pathFile));
        }
        return names;
    }
};

const Robot::Scenario scenario([] {
    QStringList words = QCoreApplication::arguments();
    std::vector<std::string> texts;
    for (const QString& word : words) {
        texts.push_back(word.toStdString());
    }
    std::vector<char*> args;
    for (std::string& text : texts) {
        args.push_back(text.data());
    }
    int count = static_cast<int>(args.size());
    args.push_back(nullptr);
    testing::InitGoogleTest(&count, args.data());
    return RUN_ALL_TESTS();
});

}

TEST_F(Program, AMeasurementIsTakenJudgedStoredAndReadBack)
{
    ASSERT_TRUE(WaitForReady());
    ASSERT_TRUE(StartMeasurement(60));
    ASSERT_TRUE(WaitForRest());
    const auto files = StoredFiles();
    ASSERT_EQ(files.size(), 1u);
    Mea mea;
    EXPECT_EQ(mea.Load(files[0]), Mea::ACCEPTED);
    EXPECT_EQ(mea.result, Mea::PASSED);
    EXPECT_EQ(mea.type, 'B');
    EXPECT_EQ(mea.sensPassageTime, 60);
    EXPECT_TRUE(Robot::Click("shutdown"));
    EXPECT_TRUE(Robot::Click("buttonSkip"));
}

TEST_F(Program, APulledUnitEndsTheJobAndIsFoundAgain)
{
    ASSERT_TRUE(WaitForReady());
    ASSERT_TRUE(StartMeasurement(300));
    Tell("unplug");
    ASSERT_TRUE(Robot::WaitFor([] { return tavorDev.GetValve(TavorDev::VALVE_V1) == TavorDev::VALVE_FAILURE
        || tavorDev.GetCompressor() == TavorDev::COMPRESSOR_FAILURE
        || tavorDev.GetPressure(TavorDev::PRESSENS_P1)[Pressure::BAR] == RR::INVALID_DOUBLE; }, 200 * secondMs));
    // Three seconds, and a few exchanges that run into the serial driver's silence, which no clock speeds up.
    EXPECT_TRUE(Robot::WaitFor([] { return jobSTM.GetSnapshot().stopCategory == Jobs::COMPONENT_FAILURE; }, 15 * secondMs));
    EXPECT_TRUE(StoredFiles().empty());
    ASSERT_TRUE(Robot::WaitForShown("errNoText", 15 * secondMs)) << "nobody was told";
    Tell("plug");
    ASSERT_TRUE(Robot::Click("buttonClose"));
    ASSERT_TRUE(Robot::WaitFor([] { return tavorDev.GetValve(TavorDev::VALVE_V1) != TavorDev::VALVE_FAILURE
        && tavorDev.GetCompressor() != TavorDev::COMPRESSOR_FAILURE && tavorDev.GetPressure(TavorDev::PRESSENS_P1)[Pressure::BAR] != RR::INVALID_DOUBLE; }, 200 * secondMs));
    ASSERT_TRUE(Robot::WaitForShown("startMea"));
    // The inlet block still holds the pressure of the job that broke off; the first start finds and balances it.
    ASSERT_TRUE(Robot::Click("startMea"));
    ASSERT_TRUE(Robot::Click("buttonClose", 60 * secondMs));
    ASSERT_TRUE(Robot::WaitFor([] { return jobSTM.GetType() == Jobs::TYPE_F; }, 60 * secondMs));
    ASSERT_TRUE(WaitForRest());
    ASSERT_TRUE(StartMeasurement(30));
    ASSERT_TRUE(WaitForRest());
    EXPECT_EQ(StoredFiles().size(), 1u);
}

TEST_F(Program, AUnitThatIsPluggedLateIsConnectedLate)
{
    Tell("unplug");
    ASSERT_TRUE(Robot::Click("buttonClose", 60 * secondMs)) << "nobody was told";
    ASSERT_TRUE(Robot::WaitForShown("statusInoperableSymb"));
    EXPECT_FALSE(Robot::IsEnabled("startMea"));
    Tell("plug");
    ASSERT_TRUE(Robot::WaitForGone("statusInoperableSymb", 60 * secondMs));
    EXPECT_TRUE(Robot::WaitFor([] { return Robot::IsEnabled("startMea"); }, 30 * secondMs));
    EXPECT_FALSE(jobSTM.IsRunning()) << "no preparation for a unit found late";
}

TEST_F(Program, AMeasurementThatCantBeStoredIsToldAndNothingHangs)
{
    ASSERT_TRUE(WaitForReady());
    fs::remove_all(Board::Locate(CFG::MeaFilesFolder));
    ASSERT_TRUE(StartMeasurement(30));
    ASSERT_TRUE(Robot::WaitFor([] { return Robot::TextOf("body").contains("konnte nicht gespeichert werden"); }, 900 * secondMs));
    ASSERT_TRUE(Robot::Click("buttonClose"));
    ASSERT_TRUE(WaitForRest());
    EXPECT_TRUE(Robot::WaitFor([] { return Robot::IsEnabled("startMea"); }));
}

TEST_F(Program, AStoppedMeasurementKeepsItsRecordFromHalfThePassageTimeOn)
{
    ASSERT_TRUE(WaitForReady());
    ASSERT_TRUE(StartMeasurement(60));
    ASSERT_TRUE(Robot::Click("stopJob"));
    ASSERT_TRUE(WaitForRest());
    EXPECT_TRUE(StoredFiles().empty());
    ASSERT_TRUE(StartMeasurement(60));
    ASSERT_TRUE(Robot::WaitFor([] { return jobSTM.GetProgress() >= 70; }, 60 * secondMs));
    ASSERT_TRUE(Robot::Click("stopJob"));
    ASSERT_TRUE(WaitForRest());
    EXPECT_EQ(StoredFiles().size(), 1u);
}
