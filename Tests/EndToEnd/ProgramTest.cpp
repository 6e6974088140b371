#include "Board/Board.h"
#include "Config.h"
#include "Dialogs/DlgNameList.h"
#include "Fakes/UnitControl.h"
#include "JobStateMachine.h"
#include "RRx/RRFile.h"
#include "RRx/RRList.h"
#include "Robot.h"
#include "Settings.h"
#include "TavorDev.h"

#include <filesystem>
#include <fstream>
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

    /// Presses the start button, takes the internal depot and the name offered, and waits until the gas flows.
    static bool StartMeasurement(int passageSecs, const char* startButton = "buttonStartB")
    {
        Robot::OnGui([=] { settings.sensPassageTime = passageSecs; });
        return Robot::Click("startMea") && Robot::Click(startButton) && Robot::WaitForShown("lineEdit") && Robot::Click("buttonOk")
            && Robot::WaitFor([] { return IsMeasuring() && jobSTM.GetPhase() == 4; }, 60 * secondMs);
    }
    static bool IsMeasuring() { return jobSTM.GetType() == Jobs::TYPE_B || jobSTM.GetType() == Jobs::TYPE_C; }

    /// Waits for the verdict, closes it and presses `followUp` in the question what is to become of the gas.
    static bool CloseMeasurement(const char* followUp = "buttonQuit")
    {
        return Robot::WaitForShown("resultText", 900 * secondMs) && Robot::Click("buttonClose") && Robot::Click(followUp)
            && Robot::WaitForGone(followUp);
    }

    static bool StopJob() { return Robot::Click("stopJob") && Robot::Click("buttonAccept"); }

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
    ASSERT_TRUE(CloseMeasurement());
    ASSERT_TRUE(WaitForRest());
    const auto files = StoredFiles();
    ASSERT_EQ(files.size(), 1u);
    Mea mea;
    EXPECT_EQ(mea.Load(files[0]), Mea::ACCEPTED);
    EXPECT_EQ(mea.result, Mea::PASSED);
    EXPECT_EQ(mea.type, 'B');
    EXPECT_EQ(mea.sensPassageTime, 60);
    EXPECT_EQ(mea.name, "UNBENANNT");
}

TEST_F(Program, TheNameTypedStandsInTheRecordAndAtTheHeadOfTheList)
{
    ASSERT_TRUE(WaitForReady());
    Robot::OnGui([] { settings.sensPassageTime = 30; });
    Tell("set port3 container 0");
    ASSERT_TRUE(Robot::Click("startMea") && Robot::Click("buttonStartC"));
    ASSERT_TRUE(Robot::WaitForShown("lineEdit") && Robot::Click("buttonClr") && Robot::TypeOnScreen("FELD 7") && Robot::Click("buttonOk"));
    ASSERT_TRUE(Robot::WaitFor([] { return jobSTM.GetType() == Jobs::TYPE_C; }, 60 * secondMs));
    ASSERT_TRUE(CloseMeasurement());
    ASSERT_TRUE(WaitForRest());
    Mea mea;
    ASSERT_EQ(StoredFiles().size(), 1u);
    EXPECT_EQ(mea.Load(StoredFiles()[0]), Mea::ACCEPTED);
    EXPECT_EQ(mea.name, "FELD 7");
    QStringList names;
    ASSERT_TRUE(DlgNameList::LoadNameList(RR::PATH_Merge(CFG::MeaNameListPath, CFG::MeaNameListFile), names));
    EXPECT_EQ(names.value(0), "FELD 7");
}

TEST_F(Program, AMeasurementWithPumpBackEndsWithTheGasBackInTheCompartment)
{
    Robot::OnGui([] { settings.autoPumpBack = true; });
    ASSERT_TRUE(WaitForReady());
    ASSERT_TRUE(StartMeasurement(30));
    ASSERT_TRUE(Robot::WaitFor([] { return jobSTM.GetType() == Jobs::TYPE_F; }, 200 * secondMs));
    ASSERT_TRUE(Robot::WaitForShown("resultText", 200 * secondMs) && Robot::Click("buttonClose"));
    ASSERT_TRUE(Robot::WaitFor([] { return jobSTM.GetType() == Jobs::TYPE_D; }, 60 * secondMs));
    ASSERT_TRUE(Robot::WaitFor([] { return jobSTM.GetType() == Jobs::TYPE_F; }, 400 * secondMs));
    ASSERT_TRUE(WaitForRest());
    EXPECT_LT(tavorDev.GetDepotFillingLevel(), 5);
}

TEST_F(Program, ASeriesPausesBetweenItsMeasurementsAndTellsItsEnd)
{
    Robot::OnGui([] {
        settings.autoPumpBack = settings.autoMeaBEnabled = true;
        settings.autoMeaBCount = 3;
        settings.autoMeaBInterval = 1;
    });
    ASSERT_TRUE(WaitForReady());
    ASSERT_TRUE(StartMeasurement(20));
    ASSERT_TRUE(Robot::WaitForShown("body", 1500 * secondMs)) << "the closing statement";
    EXPECT_TRUE(Robot::TextOf("body").startsWith("3 "));
    ASSERT_TRUE(Robot::Click("buttonClose"));
    ASSERT_TRUE(WaitForRest());
    EXPECT_EQ(StoredFiles().size(), 3u);
}

TEST_F(Program, ContaminatedGasIsToldAndPurged)
{
    ASSERT_TRUE(WaitForReady());
    Tell("set so2 99");
    ASSERT_TRUE(StartMeasurement(60));
    ASSERT_TRUE(Robot::WaitForShown("errNoText", 100 * secondMs));
    EXPECT_EQ(Robot::TextOf("errNoText"), "B04-25");
    EXPECT_EQ(jobSTM.GetType(), Jobs::TYPE_J);
    ASSERT_TRUE(Robot::Click("buttonClose"));
    EXPECT_TRUE(Robot::WaitForShown("startMea"));
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
    EXPECT_TRUE(Robot::WaitForShown("errNoText", 60 * secondMs));
    EXPECT_TRUE(Robot::Click("buttonClose"));
    EXPECT_TRUE(StoredFiles().empty());
    Tell("plug");
    ASSERT_TRUE(Robot::WaitFor([] { return tavorDev.GetValve(TavorDev::VALVE_V1) != TavorDev::VALVE_FAILURE
        && tavorDev.GetCompressor() != TavorDev::COMPRESSOR_FAILURE && tavorDev.GetPressure(TavorDev::PRESSENS_P1)[Pressure::BAR] != RR::INVALID_DOUBLE; }, 200 * secondMs));
    // What the job that broke off left in the path is let down by hand, as a user would between two gases.
    Tell("set compartment 5");
    Tell("flush");
    ASSERT_TRUE(Robot::WaitForShown("startMea", 200 * secondMs));
}

TEST_F(Program, AUnitThatIsPluggedLateIsConnectedLate)
{
    Tell("unplug");
    ASSERT_TRUE(Robot::WaitForShown("buttonClose", 60 * secondMs)) << "the statement that there is no unit";
    ASSERT_TRUE(Robot::Click("buttonClose"));
    ASSERT_TRUE(Robot::WaitForShown("statusInoperableSymb", 60 * secondMs));
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
    std::ofstream(Board::Locate(CFG::MeaFilesFolder)).close();
    ASSERT_TRUE(StartMeasurement(30));
    ASSERT_TRUE(Robot::WaitForShown("body", 100 * secondMs));
    EXPECT_TRUE(Robot::TextOf("body").contains("Fehler"));
    ASSERT_TRUE(Robot::Click("buttonClose"));
    ASSERT_TRUE(CloseMeasurement());
    ASSERT_TRUE(WaitForRest());
    EXPECT_TRUE(Robot::IsEnabled("startMea"));
}

TEST_F(Program, AStoppedMeasurementKeepsItsRecordFromHalfThePassageTimeOn)
{
    ASSERT_TRUE(WaitForReady());
    ASSERT_TRUE(StartMeasurement(60));
    ASSERT_TRUE(StopJob());
    ASSERT_TRUE(Robot::Click("buttonQuit", 60 * secondMs)) << "no verdict, but gas in the depot";
    ASSERT_TRUE(WaitForRest());
    EXPECT_TRUE(StoredFiles().empty());
    ASSERT_TRUE(StartMeasurement(60));
    ASSERT_TRUE(Robot::WaitFor([] { return jobSTM.GetProgress() >= 70; }, 60 * secondMs));
    ASSERT_TRUE(StopJob());
    ASSERT_TRUE(CloseMeasurement());
    ASSERT_TRUE(WaitForRest());
    EXPECT_EQ(StoredFiles().size(), 1u);
}
