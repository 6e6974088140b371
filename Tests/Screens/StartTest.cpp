#include "WindowTesting.h"

#include "InspectionMode.h"

#include <QTabWidget>

namespace fs = std::filesystem;

TEST_F(WindowTest, TheWindowComesUpWithNothingToStartAndGetsReadyByItself)
{
    Open();
    EXPECT_FALSE(Find<>("startMea").isEnabled());
    EXPECT_FALSE(Find<>("emptyDepot").isEnabled());
    EXPECT_EQ(scripted.Count("connect0"), 0) << "the unit was asked before the window was on the screen";
    EXPECT_TRUE(WaitFor([] { return TextOf("setDelOldestMea").contains("500"); })) << "settings tab not filled";
    ASSERT_TRUE(WaitFor([] { return jobSTM.IsRunning(); }));
    EXPECT_EQ(jobSTM.GetType(), Jobs::TYPE_H);
    QCoreApplication::processEvents();
    EXPECT_FALSE(Find<>("startMea").isVisible());
    EXPECT_FALSE(Find<>("stopJob").isVisible()) << "the preparation can't be stopped";
    EXPECT_TRUE(Find<>("shutdown").isEnabled());
    EXPECT_FALSE(Find<QTabWidget>("mainTabWidget").isTabEnabled(1));
    ASSERT_TRUE(WaitFor([] { return !jobSTM.IsRunning(); }));
    Update();
    EXPECT_TRUE(Find<>("startMea").isVisible() && Find<>("startMea").isEnabled());
    EXPECT_TRUE(Find<>("emptyDepot").isEnabled());
    EXPECT_TRUE(Find<QTabWidget>("mainTabWidget").isTabEnabled(1));
    EXPECT_EQ(Status(), "Gerät betriebsbereit");
}

TEST_F(WindowTest, AUnitThatIsFoundLateMakesTheWindowReadyWithoutPreparation)
{
    scripted.connects = false;
    const auto told = Answer("body", "Keine Sensoreinheit gefunden", "buttonClose");
    Open();
    ASSERT_TRUE(WaitFor([&] { return *told; }));
    EXPECT_TRUE(Find<>("statusInoperableSymb").isVisible());
    Wait(7);
    EXPECT_GE(scripted.Count("connect0"), 3) << "not tried again";
    EXPECT_EQ(Status(), "Gerät nicht betriebsbereit");
    scripted.connects = true;
    ASSERT_TRUE(WaitFor([] { return Find<>("startMea").isEnabled(); }));
    EXPECT_FALSE(Find<>("statusInoperableSymb").isVisible());
    EXPECT_EQ(TextOf("inletPressure"), "1.000 bar");
    Wait(3);
    EXPECT_FALSE(jobSTM.IsRunning());
    Wait(11);
    emit tavorDev.Lost();
    Wait(60);
    EXPECT_EQ(Status(), "Sensoreinheit ausgefallen") << "it stands as long as the unit is lost";
    emit tavorDev.Recovered();
    Wait(1);
    EXPECT_EQ(Status(), "Sensoreinheit wieder in Betrieb");
    Wait(6);
    EXPECT_EQ(Status(), "");
}

TEST_F(WindowTest, AUnitWithOtherFirmwareIsUpgradedAndThenPrepared)
{
    scripted.info.applVers = SVersion("V5.9");
    scripted.clock = RR::DateTime(31, 12, 2000, 23, 59, 59);
    const auto told = Answer("body", "Aktualisierung erfolgreich", "buttonClose");
    OpenReady();
    EXPECT_TRUE(*told);
    EXPECT_EQ(scripted.memory.size(), 341u);
    EXPECT_EQ(scripted.Count("clock"), 1);
}

TEST_F(WindowTest, AUnitThatStaysInItsLoaderGetsNeitherClockNorPreparation)
{
    scripted.failing = {"connect0", "write0"};
    scripted.clock = RR::DateTime(31, 12, 2000, 23, 59, 59);
    const auto told = Answer("body", "Fehler bei Programmierung", "buttonClose");
    Open();
    ASSERT_TRUE(WaitFor([&] { return *told; }));
    Wait(7);
    EXPECT_EQ(tavorDev.GetMode(), TavorDev::MODE_PGMLDR);
    EXPECT_EQ(scripted.Count("clock") + scripted.Count("connect0"), 1) << "there is nothing to connect to";
    EXPECT_FALSE(jobSTM.IsRunning() || Find<>("startMea").isEnabled());
}

TEST_F(WindowTest, SensorsWhoseCalibrationRunsOutWithinThirtyDaysAreNamed)
{
    RR::Date now = RR::Date::Today();
    const auto calibrated = [&](TavorDev::Sensor sensor, RR::SInt32 validity) {
        scripted.profile[sensor].calDate = now;
        scripted.profile[sensor].calValidity = validity;
    };
    calibrated(TavorDev::SENSOR_SF6, 30);
    calibrated(TavorDev::SENSOR_SO2, 31);
    calibrated(TavorDev::SENSOR_HUM, -5);
    scripted.profile[TavorDev::SENSOR_HF].calValidity = 10;
    const QString text = "Wartung empfohlen für folgende Sensoren:<br><ul><li>SF<sub>6</sub> (läuft in 30 Tagen ab)</li>"
                         "<li>Feuchte (5 Tage überfällig)</li></ul>";
    const auto told = Answer("body", text, "buttonClose");
    OpenReady();
    EXPECT_TRUE(*told);
}

TEST_F(WindowTest, AnUnbalancedUnitIsToldAtTheStartAndARefusalEndsTheProgram)
{
    scripted.pressure[TavorDev::PRESSENS_OPERATION] = 1.3;
    bool locked = false;
    Robot::When([] { return Robot::TextOf("pressDiagnosis").contains("(zu hoch)"); }, [&] {
        Update();
        locked = Find<>("statusInoperableSymb").isVisible();
        QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>("buttonShutDown"), Qt::LeftButton);
    });
    Open();
    ASSERT_TRUE(WaitFor([] { return !wndMain->isVisible(); }));
    EXPECT_TRUE(locked);
    Update();
    EXPECT_FALSE(jobSTM.IsRunning());
    EXPECT_EQ(scripted.Count("home"), 2) << "once refused is enough";
}

TEST_F(WindowTest, ClocksFollowTheOneThatIsRight)
{
    scripted.clock = RR::DateTime(31, 12, 2000, 23, 59, 59);
    OpenReady();
    EXPECT_EQ(scripted.Count("clock"), 1);
    EXPECT_GT(scripted.clock.GetYear(), 2000);
}

TEST_F(WindowTest, AMissingCardIsToldAndTheWindowComesUp)
{
    Pull("dev/mmcblk0p1");
    const auto told = Answer("body", "Interne Speicherkarte fehlt", "buttonClose");
    OpenReady();
    EXPECT_TRUE(*told);
    EXPECT_TRUE(Find<>("startMea").isEnabled());
}

struct ServiceKeyTest : WindowTest {
    const fs::path stick = fs::path(Board::Root()) / "usb-stick";
    const fs::path mounted = fs::path(Board::Root()) / "mnt/usb-storage";

    void PlugStickWith(const std::string& key)
    {
        std::ofstream(stick / "ZARNInspMode.key", std::ios::binary) << key;
        Plug("dev/sda1");
    }
};

TEST_F(ServiceKeyTest, AStickWithTheKeyOpensTheServiceModeWithoutPreparation)
{
    std::ifstream key(ZARN_SERVICE_KEY, std::ios::binary);
    PlugStickWith(std::string(std::istreambuf_iterator<char>(key), {}));
    Open();
    EXPECT_TRUE(inspectionMode);
    EXPECT_FALSE(fs::is_symlink(mounted)) << "the stick stays mounted";
    Wait(2);
    EXPECT_FALSE(jobSTM.IsRunning());
    EXPECT_TRUE(Find<>("startMea").isEnabled());
    for (const char* name : {"statusInspModeSymb", "operPressure", "depotPressure", "backPressure", "pressureP5", "fanValve", "startInspJob"}) {
        EXPECT_TRUE(Find<>(name).isVisible()) << name;
    }
    EXPECT_TRUE(Find<>("chartFrame").styleSheet().contains("Device_Chart_B"));
}

TEST_F(ServiceKeyTest, OnlyTheCheckValueOpensIt)
{
    std::ifstream file(ZARN_SERVICE_KEY, std::ios::binary);
    std::string key(std::istreambuf_iterator<char>(file), {});
    ++key[0];
    for (const std::string& wrong : {key, std::string()}) {
        PlugStickWith(wrong);
        CheckForInspectionMode();
        EXPECT_FALSE(inspectionMode) << wrong;
        EXPECT_TRUE(fs::is_symlink(mounted));
    }
    Open();
    EXPECT_FALSE(Find<>("fanValve").isVisible());
    EXPECT_FALSE(Find<>("startInspJob").isVisible());
}
