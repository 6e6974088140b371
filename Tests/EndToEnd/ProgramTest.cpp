#include "Board/Board.h"
#include "Config.h"
#include "Dialogs/DlgNameList.h"
#include "Fakes/PrintQt.h"
#include "Fakes/UnitControl.h"
#include "JobStateMachine.h"
#include "RRx/RRFile.h"
#include "RRx/RRList.h"
#include "Robot.h"
#include "Settings.h"
#include "TDFirmware.h"
#include "TavorDev.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>
#include <QApplication>
#include <QFile>
#include <QRegularExpression>

// The whole program, from its main function to its end, pressed by the robot. Times are those of the sped-up clock.

using Jobs = JobStateMachine;
namespace fs = std::filesystem;

namespace {

constexpr int secondMs = 1000;
const QRegularExpression digit("\\d");

/// A program that has just started, on a board that may be in any state.
struct Started : testing::Test {
    struct Record : Mea {
        QString file;
    };

    /// Tells the unit, and sees to it that the cache has taken in what that changes: a sweep of the poll sequence and more.
    static void TellAndPoll(const std::string& commands)
    {
        Tell(commands);
        usleep(4 * secondMs * 1000);
    }

    static bool WaitForReady()
    {
        return Robot::WaitFor([] { return tavorDev.GetMode() == TavorDev::MODE_APPL && jobSTM.GetType() == Jobs::TYPE_H; }, 30 * secondMs)
            && WaitForRest();
    }
    static bool IsAtRest() { return Robot::IsShown("startMea") && !jobSTM.IsRunning(); }
    static bool WaitForRest(int limitMs = 900 * secondMs) { return Robot::WaitFor(IsAtRest, limitMs); }
    static bool WaitForPhase(Jobs::Type type, int phase)
    {
        return Robot::WaitFor([=] { return jobSTM.GetType() == type && jobSTM.GetPhase() >= phase; }, 200 * secondMs);
    }
    static bool WaitForProgress(Jobs::Type type, int percent)
    {
        return Robot::WaitFor([=] { return jobSTM.GetType() == type && jobSTM.GetProgress() >= percent; }, 100 * secondMs);
    }

    /// Presses the start button and takes the name offered.
    static bool StartMeasurement(Jobs::Type type, int passageSecs)
    {
        Robot::OnGui([=] { settings.sensPassageTime = passageSecs; });
        return Robot::Click("startMea") && Robot::Click(type == Jobs::TYPE_B ? "buttonStartB" : "buttonStartC")
            && Robot::WaitForShown("lineEdit") && Robot::Click("buttonOk");
    }
    /// Waits for the verdict and closes it, leaves the gas where it is, and waits for the end of it all.
    static bool CloseMeasurement()
    {
        return Robot::WaitForShown("resultText", 900 * secondMs) && Robot::Click("buttonClose") && Robot::Click("buttonQuit") && WaitForRest();
    }
    static bool Measure() { return StartMeasurement(Jobs::TYPE_B, 30) && CloseMeasurement(); }

    /// Presses stop and answers the question.
    static bool StopJob(const QString& question, const char* answer = "buttonAccept")
    {
        return Robot::Click("stopJob") && Robot::WaitForShown(answer) && Robot::TextOf("body") == question && Robot::Click(answer)
            && Robot::WaitForGone(answer);
    }

    /// All of them in the status bar.
    static void ExpectTold(const QStringList& messages)
    {
        for (const QString& message : messages) {
            EXPECT_TRUE(Robot::WasShown("statusMessageText", message)) << message.toStdString();
        }
    }
    static void ExpectStatement(const QString& text)
    {
        ASSERT_TRUE(Robot::WaitForShown("body", 1500 * secondMs)) << text.toStdString();
        EXPECT_EQ(Robot::TextOf("body"), text);
        ASSERT_TRUE(Robot::Click("buttonClose"));
    }
    static void ExpectError(const char* tag, const QString& heading, const QString& text)
    {
        ASSERT_TRUE(Robot::WaitForShown("errNoText", 600 * secondMs));
        EXPECT_EQ(Robot::TextOf("errNoText"), tag);
        EXPECT_EQ(Robot::TextOf("body"), heading + "<p><p>" + text);
    }

    static QString Log()
    {
        QFile file(QString::fromStdString(Board::Root() + "/program.log"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    static bool Logged(const QString& line)
    {
        return Robot::WaitFor([&] { return Log().contains(line + '\n'); }, Robot::patienceMs);
    }
    /// These jobs, each as "B-H00 ", have ended since this was asked last, and no others.
    void ExpectJobs(const QString& expected)
    {
        QString ended;
        Robot::WaitFor([&] {
            ended.clear();
            for (auto lines = QRegularExpression("Job (.) terminated \\((...)\\)").globalMatch(Log()); lines.hasNext(); lines.next()) {
                ended += lines.peekNext().captured(1) + '-' + lines.peekNext().captured(2) + ' ';
            }
            ended.remove(0, jobsSeen);
            return ended.size() >= expected.size();
        }, Robot::patienceMs);
        EXPECT_EQ(ended, expected);
        jobsSeen += ended.size();
    }

    /// All that is stored, oldest first. Each is as the program signed it.
    static std::vector<Record> Stored()
    {
        RR::List<RR::FileInfo> list;
        RR::DIR_List(RR::PATH_Merge(CFG::MeaFilesFolder, "*.mea"), list, RR::DIR_FILES);
        list.Sort();
        std::vector<Record> records;
        for (auto file = list.First(); !file.IsNil(); file.Next()) {
            Record& record = records.emplace_back();
            record.file = QString::fromLatin1(RR::PATH_GetFile(file.Entry().pathFile).Adr());
            EXPECT_EQ(record.Load(record.file.toLatin1().data()), Mea::ACCEPTED) << record.file.toStdString();
        }
        return records;
    }

    qsizetype jobsSeen = 0;
};

/// A program that is ready for use.
struct Program : Started {
    void SetUp() override
    {
        ASSERT_TRUE(WaitForReady());
        ExpectJobs("H-H00 ");
    }
};

/// A measurement that something ends before its time.
struct Stop {
    const char* tag;        ///< what the error dialog shows; its letter is the job
    const char* text;
    int atPercent;          ///< of the job's progress; 0: before the start
    const char* fault;
    const char* remedy;     ///< while the error is still on the screen
    const char* jobs;
    bool isStored = false;
};

struct StopCauses : Program {
    void ExpectStops(std::initializer_list<Stop> stops)
    {
        for (const Stop& stop : stops) {
            SCOPED_TRACE(stop.tag + std::string(" ") + stop.fault);
            const auto type = static_cast<Jobs::Type>(stop.tag[0]);
            const size_t storedBefore = Stored().size();
            if (stop.atPercent == 0) {
                TellAndPoll(stop.fault);
            }
            ASSERT_TRUE(StartMeasurement(type, 40));
            if (stop.atPercent > 0) {
                ASSERT_TRUE(WaitForProgress(type, stop.atPercent));
                Tell(stop.fault);
            }
            ExpectError(stop.tag, "Messung abgebrochen!", stop.text);
            TellAndPoll(stop.remedy);
            ASSERT_TRUE(Robot::Click("buttonClose"));
            if (stop.isStored) {
                ASSERT_TRUE(Robot::WaitForShown("resultText") && Robot::Click("buttonClose"));
            }
            if (QString(stop.jobs).endsWith("F-H00 ")) {
                ASSERT_TRUE(Robot::Click("buttonQuit")) << "the question what is to become of the gas";
            }
            ASSERT_TRUE(WaitForRest());
            ExpectJobs(stop.jobs);
            EXPECT_EQ(Stored().size(), storedBefore + stop.isStored);
        }
    }
};

struct Outages : Program {
    /// Does `interrupt` in the middle of each kind of job, started as the window does; at last a measurement must succeed.
    void InEachJob(const std::function<void()>& interrupt)
    {
        // Percent, in the plan of a job that mostly ends well before that.
        constexpr std::pair<Jobs::Type, int> middles[] = {{Jobs::TYPE_B, 40}, {Jobs::TYPE_C, 40}, {Jobs::TYPE_D, 5}, {Jobs::TYPE_E, 5},
                                                          {Jobs::TYPE_F, 1}, {Jobs::TYPE_H, 9}, {Jobs::TYPE_J, 2}};
        Robot::OnGui([] { settings.sensPassageTime = 60; });
        for (const auto& [type, percent] : middles) {
            SCOPED_TRACE(static_cast<char>(type));
            Tell(type == Jobs::TYPE_C ? "set port3 container 0" : "set port3 none");
            TellAndPoll("set port2 bottle 2; set depot 30");
            if (type == Jobs::TYPE_F) { // which has nothing to do in a path at rest
                Robot::OnGui([] { tavorDev.SetValve(TavorDev::VALVE_V1, true); });
                ASSERT_TRUE(Robot::WaitFor([] { return tavorDev.GetPressure(TavorDev::PRESSENS_P1)[Pressure::BAR] > 4; }));
            }
            Robot::OnGui([job = type] { jobSTM.Start(job); });
            ASSERT_TRUE(WaitForProgress(type, percent));
            interrupt();
            ASSERT_FALSE(HasFatalFailure());
            Robot::OnGui([] { jobSTM.Start(Jobs::TYPE_F); });
            ASSERT_TRUE(WaitForRest());
        }
        ASSERT_TRUE(Measure());
        EXPECT_EQ(Stored().back().result, Mea::PASSED);
    }

    /// How many of four readings of different services are on the screen with a value; an actuator without one is locked.
    static int ReadingsShown()
    {
        return Robot::IsEnabled("mainValve") + Robot::IsEnabled("compressor") + Robot::TextOf("inletPressure").contains(digit)
            + Robot::TextOf("statusTemp").contains(digit);
    }
};

/// Leaves the board for the test of the same name in the suite Restarted, where the program runs again in a process of
/// its own.
struct Before : Started {};
struct Restarted : Started {};

const Robot::Scenario scenario([] {
    testing::InitGoogleTest();
    return RUN_ALL_TESTS();
});

const char* const stopQuestion = "Laufende Messung abbrechen?";

}

TEST_F(Program, AMeasurementIsTakenJudgedToldStoredAndLogged)
{
    ASSERT_TRUE(StartMeasurement(Jobs::TYPE_B, 60));
    ASSERT_TRUE(WaitForPhase(Jobs::TYPE_B, 4) && StopJob(stopQuestion, "buttonReject"));
    ASSERT_TRUE(Robot::WaitForShown("resultText", 200 * secondMs));
    EXPECT_EQ(Robot::TextOf("resultText"), "Bestanden");
    ASSERT_TRUE(CloseMeasurement());
    ExpectJobs("B-H00 F-H00 ");
    ExpectTold({"Bereitschaft herstellen", "Gerät betriebsbereit", "Messung gestartet", "Messwertaufnahme", "Messung gespeichert", "Gerät Betriebsbereit"});
    const auto records = Stored();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].result, Mea::PASSED);
    EXPECT_EQ(records[0].type, 'B');
    EXPECT_EQ(records[0].sensPassageTime, 60);
    EXPECT_EQ(records[0].name, "UNBENANNT");
    EXPECT_TRUE(Logged("[ZARN] Measurement saved as \"" + records[0].file + "\""));
}

TEST_F(Program, AStoppedMeasurementKeepsItsRecordFromHalfThePassageTimeOn)
{
    ASSERT_TRUE(StartMeasurement(Jobs::TYPE_B, 60) && WaitForPhase(Jobs::TYPE_B, 4) && StopJob(stopQuestion));
    ASSERT_TRUE(Robot::Click("buttonQuit", 60 * secondMs)) << "no verdict, but gas in the depot";
    ASSERT_TRUE(WaitForRest());
    EXPECT_TRUE(Stored().empty());
    ASSERT_TRUE(StartMeasurement(Jobs::TYPE_B, 60) && WaitForProgress(Jobs::TYPE_B, 70) && StopJob(stopQuestion));
    ASSERT_TRUE(CloseMeasurement());
    EXPECT_EQ(Stored().size(), 1u);
    ExpectJobs("B-H01 F-H00 B-H01 F-H00 ");
    ExpectTold({"Messung abgebrochen"});
}

TEST_F(Before, TheNameTypedStandsInTheRecordAndAtTheHeadOfTheList)
{
    ASSERT_TRUE(WaitForReady());
    RR::DIR_Create(CFG::MeaNameListPath);
    ASSERT_TRUE(DlgNameList::SaveNameList(RR::PATH_Merge(CFG::MeaNameListPath, CFG::MeaNameListFile), {"FELD 6"}));
    Tell("set port3 container 0");
    Robot::OnGui([] { settings.sensPassageTime = 30; });
    ASSERT_TRUE(Robot::Click("startMea") && Robot::Click("buttonStartC"));
    ASSERT_TRUE(Robot::WaitForShown("lineEdit") && Robot::Click("buttonClr") && Robot::TypeOnScreen("FELD 7") && Robot::Click("buttonOk"));
    ASSERT_TRUE(CloseMeasurement());
    ExpectJobs("H-H00 C-H00 F-H00 ");
    ASSERT_EQ(Stored().size(), 1u);
    EXPECT_EQ(Stored()[0].type, 'C');
    EXPECT_EQ(Stored()[0].name, "FELD 7");
}

TEST_F(Restarted, TheNameTypedStandsInTheRecordAndAtTheHeadOfTheList)
{
    ASSERT_TRUE(WaitForReady());
    ASSERT_TRUE(Robot::Click("startMea") && Robot::Click("buttonStartB") && Robot::WaitForShown("lineEdit"));
    EXPECT_EQ(Robot::TextOf("lineEdit"), "FELD 7");
    ASSERT_TRUE(Robot::Click("buttonList") && Robot::WaitForShown("nameList"));
    EXPECT_EQ(Robot::RowsOf("nameList"), (QStringList{"FELD 7", "FELD 6"}));
}

TEST_F(Before, AUnitWhoseProgramWasSpoiltGetsTheDeliveredOne)
{
    ASSERT_TRUE(WaitForReady());
    Tell("image damage");
}

TEST_F(Restarted, AUnitWhoseProgramWasSpoiltGetsTheDeliveredOne)
{
    ASSERT_TRUE(Robot::WaitForShown("infoText"));
    ExpectStatement("\nAktualisierung erfolgreich\n");
    ASSERT_TRUE(WaitForReady());
    EXPECT_TRUE(Logged("[ZARN] Tavor device: Programming ... done"));
    EXPECT_TRUE(Logged("[ZARN] Tavor device: Verifying   ... done"));
    TavorDev::Info info;
    EXPECT_TRUE(tavorDev.GetDevInfo(info) && info.applVers == TDFW_INFO.applVers);
    ASSERT_TRUE(Measure());
    EXPECT_EQ(Stored().size(), 1u);
}

TEST_F(Program, AMeasurementWithPumpBackEndsWithTheGasBackInTheCompartment)
{
    Robot::OnGui([] { settings.autoPumpBack = true; });
    ASSERT_TRUE(StartMeasurement(Jobs::TYPE_B, 30));
    ASSERT_TRUE(Robot::WaitForShown("resultText", 200 * secondMs) && Robot::Click("buttonClose"));
    ASSERT_TRUE(WaitForPhase(Jobs::TYPE_D, 0) && WaitForRest());
    ExpectJobs("B-H00 F-H00 D-H00 F-H00 ");
    ExpectTold({"Rückpumpvorgang gestartet", "Gerät Betriebsbereit"});
    EXPECT_LT(tavorDev.GetDepotFillingLevel(), 5);
}

static void PlanSeries(int count)
{
    Robot::OnGui([=] {
        settings.autoPumpBack = settings.autoMeaBEnabled = count > 0;
        settings.autoMeaBCount = count;
        settings.autoMeaBInterval = 1;
    });
}

TEST_F(Program, ASeriesPausesBetweenItsMeasurementsAndTellsItsEnd)
{
    PlanSeries(3);
    ASSERT_TRUE(StartMeasurement(Jobs::TYPE_B, 20));
    ExpectStatement("3 Messungen durchgeführt.\n");
    ASSERT_TRUE(WaitForRest());
    ExpectJobs("B-H00 F-H00 D-H00 F-H00 B-H00 F-H00 D-H00 F-H00 B-H00 F-H00 D-H00 F-H00 ");
    ExpectTold({"Messung 1 von 3 gestartet", "Rückpumpvorgang 1 von 3 gestartet", "Nächste Messung in ...",
                "Messung 2 von 3 gestartet", "Messung 3 von 3 gestartet", "Rückpumpvorgang 3 von 3 gestartet"});
    EXPECT_TRUE(Robot::WasShown("statusAutoMeaCount", "2/3"));
    EXPECT_GT(Robot::TextsShownBy("statusAutoMeaTimer").filter(QRegularExpression("^00:[0-4]\\d$")).size(), 50);
    ASSERT_EQ(Stored().size(), 3u);
    EXPECT_EQ(Stored()[0].name, "UNBENANNT 1");
    EXPECT_EQ(Stored()[2].name, "UNBENANNT 3");
}

/// Stores so many more measurements of a day long past.
static void Fill(int count)
{
    Robot::OnGui([=] {
        Mea mea;
        mea.Snapshot('B');
        for (int i = 0; i < count; ++i) {
            ASSERT_TRUE(mea.Save(Mea::CreateFilename(RR::DateTime(1, 6, 2020, 10, i / 60, i % 60))));
        }
    });
}

TEST_F(Before, FiveHundredMeasurementsAreTheLimit)
{
    Fill(495);
}

TEST_F(Restarted, FiveHundredMeasurementsAreTheLimit)
{
    ASSERT_TRUE(WaitForReady());
    PlanSeries(5);
    ASSERT_TRUE(StartMeasurement(Jobs::TYPE_B, 60));
    ExpectStatement("Die Speicherkapazität von 500 Messungen wird bei Durchführung der geplanten 5 Messungen überschritten.<p><i>"
                    "Bitte Messungen löschen oder Option<br><b>Automatischen Löschung</b><br>aktivieren.</i>");
    EXPECT_TRUE(IsAtRest() && Robot::IsEnabled("shutdown"));
    PlanSeries(4);
    ASSERT_TRUE(StartMeasurement(Jobs::TYPE_B, 60));
    Fill(3);
    ASSERT_TRUE(WaitForProgress(Jobs::TYPE_B, 70) && StopJob(stopQuestion) && CloseMeasurement());
    PlanSeries(0);
    ASSERT_EQ(Robot::RowsOf("meaTable").size(), 499);
    ASSERT_TRUE(Measure());
    ASSERT_EQ(Robot::RowsOf("meaTable").size(), 500);
    ASSERT_TRUE(Robot::Click("startMea"));
    ExpectStatement("Die Speicherkapazität von 500 Messungen ist erreicht.<p><i>Bitte Messungen löschen oder Option<br><b>Automatischen "
                    "Löschung</b><br>aktivieren.</i>");
    Robot::OnGui([] { settings.delOldestMea = true; });
    const auto before = Stored();
    ASSERT_TRUE(Measure());
    EXPECT_TRUE(Logged("[ZARN] Measurement limit exceeded: Delete file \"" + before[0].file + "\" ... ok"));
    ASSERT_EQ(Stored().size(), 500u);
    EXPECT_EQ(Stored()[0].file, before[1].file);
}

TEST_F(Started, AUnitThatIsPluggedLateIsConnectedLate)
{
    Tell("unplug");
    ASSERT_TRUE(Robot::Click("buttonClose", 60 * secondMs)) << "the statement that there is no unit";
    ASSERT_TRUE(Robot::WaitForShown("statusInoperableSymb", 60 * secondMs));
    EXPECT_FALSE(Robot::IsEnabled("startMea"));
    Tell("plug");
    ASSERT_TRUE(Robot::WaitForGone("statusInoperableSymb", 60 * secondMs));
    EXPECT_TRUE(Robot::WaitFor([] { return Robot::IsEnabled("startMea"); }, 30 * secondMs));
    EXPECT_FALSE(jobSTM.IsRunning()) << "no preparation for a unit found late";
}

TEST_F(StopCauses, FailingComponentsEndAMeasurementAndNoJobFollows)
{
    Tell("set port3 container 0");
    ExpectStops({
        {"B00-02", "Ventil-Fehler", 0, "fault valve 6 failing", "clear", "B-E02 "},
        {"C00-03", "Kompressor-Fehler", 0, "fault compressor failing", "clear", "C-E03 "},
        {"C00-04", "Drucksensor fehlerhaft", 0, "fault pressure 5", "clear", "C-E04 "},
        {"B00-05", "Fehler in Depot-Einheit", 0, "fault depot", "clear", "B-E05 "},
        {"B04-03", "Kompressor-Fehler", 30, "fault compressor failing", "clear", "B-E03 "},
        {"B00-08", "Eingangsdruck zu hoch", 0, "", "", "B-E08 F-H00 "}, // what was broken off is still in the path
        {"C04-02", "Ventil-Fehler", 70, "fault valve 1 failing", "clear", "C-E02 "},
    });
}

TEST_F(StopCauses, PressuresOutOfBoundsEndAMeasurementAndTheGasPathIsBalanced)
{
    Tell("set port3 container 0");
    ExpectStops({
        {"B00-06", "Gasdepot zu voll", 0, "set depot 80", "set depot 30", "B-E06 F-H00 "},
        {"B02-07", "Eingangsdruck zu niedrig", 0, "set compartment 1.1", "set compartment 5", "B-E07 F-H00 "},
        {"C04-07", "Eingangsdruck zu niedrig", 30, "set compartment 1.12", "set compartment 5", "C-E07 F-H00 "},
        {"B04-07", "Eingangsdruck zu niedrig", 70, "set compartment 1.12", "set compartment 5", "B-E07 F-H00 ", true},
        {"C00-08", "Eingangsdruck zu hoch", 0, "fault pressure 1 0.6", "clear", "C-E08 F-H00 "},
        {"C04-11", "Gegendruck zu hoch", 30, "fault valve 3 stuck-shut", "clear", "C-E11 F-H00 "},
        {"B04-11", "Gegendruck zu hoch", 30, "fault valve 3 stuck-shut", "clear", "B-E11 F-H00 "},
        {"B00-15", "Depotdruck zu hoch", 0, "fault pressure 4 0.03", "clear", "B-E15 F-H00 "},
        {"B04-15", "Depotdruck zu hoch", 30, "fault pressure 4 0.03", "clear", "B-E15 F-H00 "},
    });
}

TEST_F(StopCauses, ContaminatedGasIsPurgedAndAPurificationThatFailsIsTold)
{
    const char* const text = "Gas stark kontaminiert<p>Selbstreinigung wurde eingeleitet";
    ExpectStops({{"B04-25", text, 0, "set so2 99", "set so2 0; flush", "B-E25 J-H00 "}});
    Tell("set so2 99");
    ASSERT_TRUE(StartMeasurement(Jobs::TYPE_B, 40));
    ExpectError("B04-25", "Messung abgebrochen!", text);
    ASSERT_TRUE(Robot::Click("buttonClose"));
    Tell("fault sensor hum unplugged");
    ExpectError("J05-19", "Vorgang abgebrochen!", "Feuchtesensor fehlerhaft");
    ASSERT_TRUE(Robot::Click("buttonClose") && WaitForRest());
    ExpectJobs("B-E25 J-E19 ");
    ExpectTold({"Gerät nur eingeschränkt betriebsbereit"});
}

TEST_F(Outages, ASilentUnitEndsEachJobAndShowsNoReading)
{
    ASSERT_TRUE(Robot::Click("switchToChartView"));
    InEachJob([] {
        Tell("fault silent");
        ASSERT_TRUE(Robot::WaitForShown("errNoText", 200 * secondMs));
        EXPECT_EQ(jobSTM.GetSnapshot().stopCategory, Jobs::COMPONENT_FAILURE) << Robot::TextOf("errNoText").toStdString();
        ASSERT_TRUE(Robot::Click("buttonClose") && WaitForRest());
        EXPECT_TRUE(Robot::WaitFor([] { return ReadingsShown() == 0; }, 200 * secondMs));
        EXPECT_TRUE(Stored().empty());
        // The container balances what the compressor, unstoppable for a while, has sucked empty.
        Tell("clear; set port3 container 50");
        EXPECT_TRUE(Robot::WaitFor([] { return ReadingsShown() == 4; }, 60 * secondMs));
    });
}

TEST_F(Outages, AResetOfTheUnitEndsInRestWhateverJobItMeets)
{
    InEachJob([] {
        Tell("reset");
        for (int closed = 0; closed < 20 && !WaitForRest(3 * secondMs); ++closed) {
            for (const char* button : {"stopJob", "buttonAccept", "buttonClose", "buttonQuit"}) {
                Robot::Click(button, 0);
            }
        }
        ASSERT_TRUE(IsAtRest());
    });
}

TEST_F(Outages, ASensorThatFallsSilentIsNotRecordedWithItsLastReading)
{
    ASSERT_TRUE(StartMeasurement(Jobs::TYPE_B, 60) && WaitForPhase(Jobs::TYPE_B, 4));
    Tell("fault service hum");
    ASSERT_TRUE(Robot::WaitForShown("resultText", 200 * secondMs));
    EXPECT_EQ(Robot::TextOf("reportHumText"), "n.v.");
    EXPECT_FALSE(Robot::TextOf("reportHumValue").contains(digit));
    EXPECT_EQ(Robot::TextOf("reportSF6Text"), "Normal");
    ASSERT_EQ(Stored().size(), 1u);
    EXPECT_EQ(Stored()[0].humidity[Humidity::CELS], RR::INVALID_DOUBLE);
}

/// Starts a test sequence of two passes in inspection mode.
static bool OpenSequence(const char* choice)
{
    Robot::OnGui([] {
        settings.meaRecentName = "HALLE 3";
        settings.sensPassageTime = 77;
        settings.inspJobPasses = 2;
        settings.inspJobPassTime = 30;
    });
    return Robot::Click("startInspJob") && Robot::Click(choice) && Robot::Click("buttonStart")
        && Robot::WaitFor([] { return jobSTM.IsRunning(); });
}

TEST_F(Before, InspectionSequencesRunToTheirEndWithoutAsking)
{
    fs::copy(ZARN_SERVICE_KEY, Board::Root() + "/usb-stick");
    std::ofstream(Board::Root() + "/dev/sda1").close();
}

TEST_F(Restarted, InspectionSequencesRunToTheirEndWithoutAsking)
{
    const struct {
        const char* choice;
        const char* jobs;
        const char* name;   ///< in the log and in the record of each pass; null: none is stored
    } sequences[] = {
        {"chooseInspJobBD", "B-H00 D-H00 F-H00 B-H00 D-H00 F-H00 ", "BD"},
        {"chooseInspJobBE", "B-H00 E-H00 F-H00 B-H00 E-H00 F-H00 ", "BE"},
        {"chooseInspJobH", "H-H00 ", nullptr},
        {"chooseInspJobI", "J-H00 ", nullptr},
    };
    EXPECT_TRUE(Logged("[ZARN] Inspection mode enabled") && Logged("[ZARN] Preparation skipped (inspection mode)"));
    Tell("set port2 bottle 2");
    size_t stored = 0;
    for (const auto& sequence : sequences) {
        SCOPED_TRACE(sequence.choice);
        ASSERT_TRUE(OpenSequence(sequence.choice));
        bool asked = false;
        ASSERT_TRUE(Robot::WaitFor([&] {
            asked = asked || QApplication::activeModalWidget();
            return IsAtRest();
        }, 900 * secondMs));
        EXPECT_FALSE(asked);
        ExpectJobs(sequence.jobs);
        for (int pass = 1; sequence.name && pass <= 2; ++pass) {
            ASSERT_GT(Stored().size(), stored);
            EXPECT_EQ(Stored()[stored++].name, QString("Test %1 %2 2HALLE 3").arg(sequence.name).arg(pass));
            EXPECT_TRUE(Robot::WasShown("statusInspJobText", QString("Test %1/2").arg(pass)));
            EXPECT_TRUE(Logged(QString("[ZARN] Testsequence %1  (%2 of 2) started").arg(sequence.name).arg(pass)));
        }
    }
    EXPECT_EQ(settings.sensPassageTime, 77) << "the user's own";
    EXPECT_TRUE(Logged("[ZARN]       Set timeout to 30 s"));

    ASSERT_TRUE(OpenSequence("chooseInspJobBD") && StopJob("Inspektions-Testsequenz abbrechen?") && WaitForRest());
    ExpectJobs("B-H01 F-H00 ");
    ASSERT_TRUE(OpenSequence("chooseInspJobBD") && WaitForPhase(Jobs::TYPE_D, 3));
    Tell("fault pressure 3 0.6");
    ExpectError("B00-13", "Messung abgebrochen!", "Betriebsdruck zu hoch");
    ASSERT_TRUE(Robot::Click("buttonClose") && WaitForRest());
    ExpectJobs("B-H00 D-H00 F-H00 B-E13 F-H00 ");
    EXPECT_EQ(Stored().size(), stored + 1) << "the pass that came to its end";
}

/// A measurement that comes to its end but not onto the card.
static void ExpectNotStored()
{
    ASSERT_TRUE(Started::StartMeasurement(Jobs::TYPE_B, 30));
    Started::ExpectStatement("<b>Fehler ...</b><br>Messung konnte nicht gespeichert werden.");
    EXPECT_TRUE(Started::Logged("[ZARN] Error saving measurement file"));
    ASSERT_TRUE(Started::CloseMeasurement());
}

TEST_F(Before, ACardThatIsMissingIsToldAndNothingHangs)
{
    fs::remove(Board::Root() + "/dev/mmcblk0p1");
    fs::remove_all(Board::Root() + "/mnt/sdcard-i");
    std::ofstream(Board::Root() + "/mnt/sdcard-i").close();
}

TEST_F(Restarted, ACardThatIsMissingIsToldAndNothingHangs)
{
    ExpectStatement("Interne Speicherkarte fehlt oder ist fehlerhaft");
    EXPECT_TRUE(Logged("[ZARN] Internal memory card missing or failure"));
    ASSERT_TRUE(WaitForReady());
    ExpectNotStored();
}

TEST_F(Before, ACardThatIsReadOnlyIsToldAndNothingHangs)
{
    // Refuses the superuser too, whom permissions don't stop.
    fs::remove_all(Board::Locate(CFG::MeaFilesFolder));
    fs::create_symlink("nowhere", Board::Locate(CFG::MeaFilesFolder));
}

TEST_F(Restarted, ACardThatIsReadOnlyIsToldAndNothingHangs)
{
    ExpectStatement("Interne Speicherkarte: Zugriffsfehler<p><i>(System bitte neu starten)</i>");
    EXPECT_TRUE(Logged("[ZARN] Internal memory card is read-only"));
    ASSERT_TRUE(WaitForReady());
    ExpectNotStored();
}

TEST_F(Program, ACardThatIsFullIsToldAndTheNextMeasurementIsStored)
{
    // To the program a file that may not grow is a medium that has no room for it.
    rlimit limit{100, RLIM_INFINITY};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
    ExpectNotStored();
    limit.rlim_cur = RLIM_INFINITY;
    setrlimit(RLIMIT_FSIZE, &limit);
    fs::remove_all(Board::Locate(CFG::MeaFilesFolder)); // with the piece that was written
    RR::DIR_Create(CFG::MeaFilesFolder);
    ASSERT_TRUE(Measure());
    ASSERT_EQ(Stored().size(), 1u);
    EXPECT_TRUE(Logged("[ZARN] Measurement saved as \"" + Stored()[0].file + "\""));
}
