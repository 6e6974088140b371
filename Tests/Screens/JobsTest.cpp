#include "WindowTesting.h"

#include <QElapsedTimer>
#include <QTabWidget>
#include <QTimer>

// Which job follows on the end of another, and what the user is told, on a scripted unit whose gas goes where a job wants it.

namespace {

constexpr double noGas = -0.1; // bar in the depot

struct JobControl : WindowTest {
    QString course; ///< letters of the jobs started since the last look
    double depot = noGas; ///< bar that a measurement leaves in the depot
    bool dries = true;    ///< self-purification dries the sensors
    QString told;         ///< last text of the status bar
    QString error;        ///< tag and text of the last error, which is closed as soon as it comes up

    JobControl()
    {
        QObject::connect(&jobSTM, &Jobs::Started, &gas, [this] { course += QLatin1Char(static_cast<char>(jobSTM.GetType())); });
        QObject::connect(&gas, &QTimer::timeout, [this] {
            MoveGas();
            CloseError();
            told = Status().isEmpty() ? told : Status();
        });
    }
    void SetUp() override
    {
        WindowTest::SetUp();
        settings.sensPassageTime = 30;
        OpenReady();
        scripted.pressure[TavorDev::PRESSENS_DEPOT] = noGas;
        gas.start(100);
        course.clear();
    }

    void Start(Jobs::Type type)
    {
        scripted.pressure[TavorDev::PRESSENS_DEPOT] = type == Jobs::TYPE_B ? noGas : 0.0;
        scripted.pressure[TavorDev::PRESSENS_BACK] = type == Jobs::TYPE_F ? 5.0 : 0.0;
        jobSTM.Start(type);
        QCoreApplication::processEvents();
    }
    static bool IsAtRest()
    {
        return !jobSTM.IsRunning() && !QApplication::activeModalWidget() && Find<>("startMea").isVisible()
            && Find<QTabWidget>("mainTabWidget").isTabEnabled(1) && Find<QTabWidget>("mainTabWidget").isTabEnabled(2)
            && Find<>("shutdown").isEnabled() && Find<>("chartView").styleSheet().isEmpty();
    }
    /// The jobs that have followed by the time that the window is at rest and stays so.
    std::string CourseToRest()
    {
        QElapsedTimer rest; // from when it was first seen: dialogs may have taken long before
        EXPECT_TRUE(WaitFor([&] {
            if (!IsAtRest()) {
                rest.invalidate();
            } else if (!rest.isValid()) {
                rest.start();
            }
            return rest.isValid() && rest.elapsed() > 10 * 1000;
        })) << course.toStdString();
        return std::exchange(course, {}).toStdString();
    }
    /// Presses the button of a dialog that shows `part` as soon as it comes up. Gives whether it has.
    static std::shared_ptr<bool> Press(const char* button, const char* part = nullptr)
    {
        auto done = std::make_shared<bool>(false);
        Robot::When([=] { return Robot::IsShown(button) && (!part || Robot::IsShown(part)); }, [=] {
            *done = true;
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>(button), Qt::LeftButton);
        });
        return done;
    }
    static void CloseVerdict() { Press("buttonClose", "resultText"); }
    /// From the start button to the job, with the name that is offered.
    static void PressStart()
    {
        Press("buttonStartB");
        Press("buttonOk", "lineEdit");
        Click("startMea");
        QCoreApplication::processEvents();
    }

private:
    void CloseError()
    {
        if (Robot::IsShown("errNoText")) {
            error = Robot::TextOf("errNoText") + ' ' + Robot::TextOf("body");
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>("buttonClose"), Qt::LeftButton);
        }
    }
    void MoveGas() const
    {
        const bool flows = jobSTM.GetPhase() >= 2;
        double& inlet = scripted.pressure[TavorDev::PRESSENS_INLET];
        switch (jobSTM.GetType()) {
        case Jobs::TYPE_B:
            inlet = flows ? 5.0 : 1.0;
            if (jobSTM.GetPhase() == 5) {
                scripted.pressure[TavorDev::PRESSENS_DEPOT] = depot;
            }
            break;
        case Jobs::TYPE_D:
        case Jobs::TYPE_E:
            inlet = 1.3;
            if (jobSTM.GetElapsed() > RR::Time(0, 0, 10)) {
                scripted.pressure[TavorDev::PRESSENS_DEPOT] = noGas;
            }
            break;
        case Jobs::TYPE_J:
            if (dries && jobSTM.GetElapsed() > RR::Time(0, 0, 10)) {
                scripted.SetDewPoint(-40);
            }
            [[fallthrough]];
        default:
            inlet = 1.0;
        }
    }

    QTimer gas;
};

const std::function<void()> valveFails = [] { scripted.valve[TavorDev::VALVE_V6] = TavorDev::VALVE_FAILURE; };
const std::function<void()> stop = [] { jobSTM.Stop(); };

}

TEST_F(JobControl, TheEndOfAJobDecidesWhatFollowsAndWhatIsTold)
{
    const char* restricted = "Gerät nur eingeschränkt betriebsbereit";
    const struct {
        Jobs::Type type;
        std::function<void()> event; ///< in the fifth second
        const char* error;
        const char* course;
        const char* status;
    } rows[] = {
        {Jobs::TYPE_D, [] {}, "", "DF", "Gerät Betriebsbereit"},
        {Jobs::TYPE_D, stop, "", "DF", "Gerät Betriebsbereit"},
        {Jobs::TYPE_D, valveFails, "D03-02 Rückpumpvorgang abgebrochen!<p><p>Ventil-Fehler", "D", "Rückpumpvorgang abgebrochen"},
        {Jobs::TYPE_E, stop, "", "EF", "Gerät Betriebsbereit"},
        {Jobs::TYPE_E, valveFails, "E03-02 Depotleerung abgebrochen!<p><p>Ventil-Fehler", "E", "Depotleerung abgebrochen"},
        {Jobs::TYPE_F, stop, "", "F", "Vorgang abgebrochen"},
        {Jobs::TYPE_F, valveFails, "F02-02 Bereitstellung abgebrochen!<p><p>Ventil-Fehler", "F", "Vorgang abgebrochen"},
        {Jobs::TYPE_H, valveFails, "H02-02 Vorgang abgebrochen!<p><p>Ventil-Fehler", "H", "Bereitschaft herstellen"},
        {Jobs::TYPE_H, [] { scripted.SetDewPoint(-9.9); }, "", "HJ", "Gerät betriebsbereit"},
        {Jobs::TYPE_H, [] { scripted.SetDewPoint(-10); }, "", "H", "Gerät betriebsbereit"},
        {Jobs::TYPE_J, stop, "", "J", "Gerät betriebsbereit"},
        {Jobs::TYPE_J, valveFails, "J03-02 Vorgang abgebrochen!<p><p>Ventil-Fehler", "J", restricted},
        {Jobs::TYPE_J, [this] { dries = false; scripted.SetDewPoint(-19); }, "J05-20 Warnung!<p><p>Bereitstellung ist fehlgeschlagen", "J", restricted},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(1, static_cast<char>(row.type)) + " " + row.error + row.status);
        scripted.Reset();
        Start(row.type);
        ASSERT_TRUE(WaitFor([] { return jobSTM.GetElapsed() >= RR::Time(0, 0, 5); }));
        row.event();
        EXPECT_EQ(CourseToRest(), row.course);
        EXPECT_EQ(std::exchange(error, {}).toStdString(), row.error);
        EXPECT_EQ(told.toStdString(), row.status);
    }
}

TEST_F(JobControl, TheUserChoosesWhatBecomesOfTheGas)
{
    depot = 0.01;
    const auto emptied = Answer("body", "Depotleerung abgeschlossen", "buttonClose");
    const std::pair<const char*, const char*> rows[] = {{"buttonStartD", "BFDF"}, {"buttonStartE", "BFEF"}, {"buttonQuit", "BF"}};
    for (const auto& [button, jobs] : rows) {
        CloseVerdict();
        Press(button);
        Start(Jobs::TYPE_B);
        EXPECT_EQ(CourseToRest(), jobs);
    }
    EXPECT_TRUE(*emptied);
    // The next measurement asks for itself; F has ended long before the question was answered.
    CloseVerdict();
    Robot::When([this] { return Robot::IsShown("buttonStartMea") && course == "BF" && !jobSTM.IsRunning(); },
                [] { Press("buttonStartMea"); });
    const auto asked = Press("buttonCancel");
    Start(Jobs::TYPE_B);
    EXPECT_EQ(CourseToRest(), "BF");
    EXPECT_TRUE(*asked);
}

TEST_F(JobControl, TheVerdictOfAnAutomaticPumpBackStandsWhileTheGasGoesBack)
{
    depot = 0.01;
    settings.autoPumpBack = true;
    bool stood = false;
    Robot::When([this] { return course == "BFDF" && !jobSTM.IsRunning(); }, [&] {
        stood = Robot::IsShown("resultText");
        CloseVerdict();
    });
    PressStart();
    EXPECT_EQ(CourseToRest(), "BFDF");
    EXPECT_TRUE(stood);
}

TEST_F(JobControl, WhoGivesUpBeforeTheStartStartsNothing)
{
    settings.meaRecentName = "FELD 7";
    settings.meaSaveNumber = 4;
    Press("buttonCancel");
    Click("startMea");
    Press("buttonStartB");
    Press("buttonCancel", "lineEdit");
    Click("startMea");
    EXPECT_EQ(CourseToRest(), "");
    PressStart();
    stop();
    EXPECT_EQ(CourseToRest(), "BF");
    EXPECT_EQ(settings.meaSaveNumber, 4);
    Press("button202", "lineEdit");
    PressStart();
    stop();
    EXPECT_EQ(CourseToRest(), "BF");
    EXPECT_EQ(settings.meaSaveNumber, 1) << "another name counts anew";
}

TEST_F(JobControl, ASeriesCountsItsPauseDownAndCanBeStoppedInIt)
{
    settings.autoPumpBack = settings.autoMeaBEnabled = true;
    settings.autoMeaBCount = 3;
    settings.autoMeaBInterval = 60;
    depot = 0.01;
    PressStart();
    EXPECT_EQ(Status(), "Messung 1 von 3 gestartet");
    ASSERT_TRUE(WaitFor([this] { return course == "BFDF" && !jobSTM.IsRunning() && PageOf("statusMsgStack") == 1; }));
    EXPECT_TRUE(TextOf("statusAutoMeaTimer").startsWith("0h 59:")) << TextOf("statusAutoMeaTimer").toStdString();
    EXPECT_EQ(TextOf("statusAutoMeaCount"), "2/3");
    EXPECT_TRUE(Find<>("stopJob").isVisible());
    EXPECT_FALSE(Find<QTabWidget>("mainTabWidget").isTabEnabled(1));
    Press("buttonReject");
    Click("stopJob");
    EXPECT_FALSE(Find<>("startMea").isVisible());
    Press("buttonAccept");
    Click("stopJob");
    EXPECT_EQ(Status(), "Mehrfachmessung abgebrochen");
    EXPECT_TRUE(Find<>("startMea").isVisible() && Find<>("shutdown").isEnabled());
    EXPECT_EQ(Find<>("chartView").styleSheet().isEmpty(), false) << "the tint goes with the end of the next job";
    Wait(30);
    EXPECT_EQ(course.toStdString(), "BFDF");
}

TEST_F(JobControl, AStoppedPumpBackEndsTheSeries)
{
    settings.autoPumpBack = settings.autoMeaBEnabled = true;
    settings.autoMeaBCount = 2;
    settings.autoMeaBInterval = 1;
    depot = 0.01;
    Robot::When([] { return jobSTM.GetType() == Jobs::TYPE_D && jobSTM.GetPhase() == 3; }, stop);
    PressStart();
    EXPECT_EQ(CourseToRest(), "BFDF");
}

struct Sequences : JobControl {
    void StartSequence(InspJobType type, int passes)
    {
        inspectionMode = true;
        settings.inspJobNo = type;
        settings.inspJobPasses = passes;
        settings.inspJobPassTime = 40;
        Press("buttonStart");
        QMetaObject::invokeMethod(wndMain, "OnStartInspJob");
        QCoreApplication::processEvents();
    }
};

TEST_F(Sequences, ABreakInAnyJobIsTheEndAndTheUsersPassageTimeStays)
{
    depot = 0.01;
    Robot::When([this] { return course == "BDFBD" && jobSTM.GetPhase() == 3; }, stop);
    StartSequence(IJ_BD, 9);
    EXPECT_EQ(TextOf("statusInspJobText"), "Test 1/9");
    EXPECT_EQ(settings.sensPassageTime, 30);
    EXPECT_EQ(CourseToRest(), "BDFBDF");
    Robot::When([this] { return course == "BE" && jobSTM.GetPhase() == 3; }, valveFails);
    StartSequence(IJ_BE, 2);
    EXPECT_EQ(CourseToRest(), "BE");
    EXPECT_EQ(error.left(6).toStdString(), "E03-02");
}

TEST_F(Sequences, WetSensorsAreLeftAloneByAFlushingOnItsOwn)
{
    scripted.SetDewPoint(0);
    StartSequence(IJ_H, 1);
    EXPECT_EQ(CourseToRest(), "H");
}

TEST_F(JobControl, TheCountdownOfTheShutdownHoldsTheWatchOnTheBatteryAndGivesWayToAWarning)
{
    const auto countdown = [](const char* seconds, std::function<void()> action) {
        Robot::When([=] { return Robot::TextOf("labelTime") == seconds; }, action);
    };
    bool quiet = false;
    countdown("9", [] { scripted.supply = {TavorDev::SUPSRC_BATTERY, RR::FixPnt1(19.9), false}; });
    countdown("5", [&] {
        quiet = Robot::IsShown("labelTime");
        scripted.supply = {TavorDev::SUPSRC_LINE_AND_CHARGING, RR::FixPnt1(24.0), false};
        scripted.pressure[TavorDev::PRESSENS_OPERATION] = 1.5;
        Robot::When([] { return Robot::IsShown("pressDiagnosis"); }, [&] {
            scripted.pressure[TavorDev::PRESSENS_OPERATION] = 1.0;
            countdown("8", [] { QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>("buttonCancel"), Qt::LeftButton); });
        });
        Update();
    });
    Click("shutdown");
    EXPECT_TRUE(quiet);
    EXPECT_TRUE(wndMain->isVisible()) << "the countdown went on under the warning";
    EXPECT_EQ(CourseToRest(), "");
}

TEST_F(JobControl, AnEvacuationIsNoReasonToWarnOfThePressure)
{
    bool alone = false;
    Press("buttonAccept");
    Robot::When([] { return Robot::IsShown("exitButtonStack"); }, [&] {
        scripted.pressure[TavorDev::PRESSENS_OPERATION] = 0.02;
        Update();
        alone = Robot::IsShown("exitButtonStack") && Find<>("startMea").isEnabled();
        scripted.pressure[TavorDev::PRESSENS_OPERATION] = 1.0;
        Press("closeButton");
    });
    QMetaObject::invokeMethod(wndMain, "OnSysEvacuation");
    EXPECT_TRUE(alone);
    EXPECT_EQ(Status(), "Evakuierung beendet");
}
