#include "WindowTesting.h"

#include "PrintIt.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QProgressBar>

namespace {

const QColor yellow(255, 230, 0);
const QColor gray(230, 230, 230);

}

TEST_F(WindowTest, TheSupplySymbolFollowsSourceAndVoltage)
{
    OpenReady();
    const struct {
        TavorDev::SupplySource source;
        RR::FixPnt1 voltage;
        std::set<int> pages;
    } rows[] = {
        {TavorDev::SUPSRC_BATTERY, 20.5, {5}},
        {TavorDev::SUPSRC_BATTERY, 20.4, {5, 6}},
        {TavorDev::SUPSRC_LINE_AND_CHARGING, 19.9, {0, 1, 2, 3}},
        {TavorDev::SUPSRC_BATTERY, 20.0, {5, 6}},
        {TavorDev::SUPSRC_LINE_AND_CHARGING_COMPLETE, 24.0, {4}},
        {TavorDev::SUPSRC_BATTERY, RR::FixPnt1(RR::INVALID), {5}},
        {TavorDev::SUPSRC_UNKNOWN, 24.0, {7}},
    };
    for (const auto& row : rows) {
        scripted.supply.source = row.source;
        scripted.supply.voltage = row.voltage;
        Wait(2);
        std::set<int> pages;
        for (int i = 0; i < 40; ++i) {
            QTest::qWait(250);
            pages.insert(PageOf("statusSupplyInfo"));
        }
        EXPECT_EQ(pages, row.pages) << row.source << " at " << row.voltage.Eject();
        EXPECT_TRUE(wndMain->isVisible());
    }
}

TEST_F(WindowTest, AnEmptyBatteryEndsTheJobAndTheProgramUnlessAChargerComes)
{
    OpenReady();
    jobSTM.Start(Jobs::TYPE_H);
    scripted.supply = {TavorDev::SUPSRC_BATTERY, RR::FixPnt1(19.9), false};
    bool stopped = false;
    Robot::When([] { return Robot::TextOf("body") == "Bitte Akku laden"; }, [&] {
        stopped = !jobSTM.IsRunning();
        scripted.supply.source = TavorDev::SUPSRC_LINE_AND_CHARGING;
        QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>("buttonClose"), Qt::LeftButton);
    });
    Wait(10);
    EXPECT_TRUE(stopped);
    EXPECT_TRUE(wndMain->isVisible()) << "the charger came in time";
    scripted.supply.source = TavorDev::SUPSRC_BATTERY;
    Answer("body", "Bitte Akku laden", "buttonClose");
    EXPECT_TRUE(WaitFor([] { return !wndMain->isVisible(); }));
}

TEST_F(WindowTest, HeatEndsTheProgramAboveSixtyDegrees)
{
    OpenReady();
    for (const Temperature& endured : {Temperature(60, 140), Temperature()}) {
        scripted.temperature = endured;
        Update();
        EXPECT_TRUE(wndMain->isVisible());
    }
    EXPECT_EQ(TextOf("statusTemp"), PrintTemperature(Temperature()));
    scripted.temperature = Temperature(61, 142);
    const auto told = Answer("body", PrintTemperature(Temperature(60, 140)), "buttonClose");
    jobSTM.Start(Jobs::TYPE_H);
    Update();
    EXPECT_TRUE(WaitFor([] { return !wndMain->isVisible(); }));
    EXPECT_TRUE(*told);
    EXPECT_FALSE(jobSTM.IsRunning());
}

TEST_F(WindowTest, ServiceStaffMayGoOnUntilSeventyFiveDegrees)
{
    OpenReady();
    inspectionMode = true;
    settings.unitTemperature = Temperature::FAHR;
    scripted.temperature = Temperature(75, 167);
    Update();
    EXPECT_TRUE(wndMain->isVisible());
    scripted.temperature = Temperature(76, 169);
    Answer("body", "Grenze", "buttonClose");
    Update();
    EXPECT_TRUE(WaitFor([] { return !wndMain->isVisible(); }));
}

TEST_F(WindowTest, UnbalancedInnerPressureLocksTheStartUntilItIsBalanced)
{
    OpenReady();
    scripted.pressure[TavorDev::PRESSENS_OPERATION] = 0.7;
    jobSTM.Start(Jobs::TYPE_H);
    Update();
    EXPECT_FALSE(Find<>("statusInoperableSymb").isVisible()) << "jobs have their own limits";
    jobSTM.Stop();
    Wait(1);
    QStringList seen;
    Robot::When([] { return Robot::TextOf("pressDiagnosis").contains("niedrig"); }, [&] {
        seen = QStringList({Status(), Find<>("startMea").isEnabled() ? "start" : "-", Find<>("statusInoperableSymb").isVisible() ? "symbol" : "-"});
        Update();
        scripted.pressure[TavorDev::PRESSENS_OPERATION] = 1.0;
    });
    Update();
    EXPECT_EQ(seen, QStringList({"Gerät nicht betriebsbereit", "-", "symbol"}));
    EXPECT_TRUE(Find<>("startMea").isEnabled() && Find<>("emptyDepot").isEnabled());
    EXPECT_FALSE(Find<>("statusInoperableSymb").isVisible());
    EXPECT_EQ(Status(), "Gerät wieder betriebsbereit");
    scripted.pressure[TavorDev::PRESSENS_OPERATION] = 1.5;
    inspectionMode = true;
    Update();
    EXPECT_TRUE(Find<>("startMea").isEnabled()) << "service staff is left alone";
}

TEST_F(WindowTest, APressureThatEndedAJobStaysInYellowUntilTheNextJobEnds)
{
    OpenReady();
    const auto color = [](const char* field) { return Find<>(field).palette().color(QPalette::Window); };
    EXPECT_EQ(color("inletPressure"), gray);
    scripted.pressure[TavorDev::PRESSENS_INLET] = 0.9;
    scripted.pressure[TavorDev::PRESSENS_DEPOT] = -0.1; // no gas to ask about
    QString shown;
    QColor inlet, depot;
    Robot::When([] { return Robot::TextOf("errNoText").contains("07"); }, [&] {
        scripted.pressure[TavorDev::PRESSENS_INLET] = 1.2;
        Update();
        shown = TextOf("inletPressure");
        inlet = color("inletPressure");
        depot = color("depotPressure");
        QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>("buttonClose"), Qt::LeftButton);
    });
    jobSTM.Start(Jobs::TYPE_B);
    ASSERT_TRUE(WaitFor([&] { return !shown.isEmpty(); }));
    EXPECT_EQ(shown, "0.900 bar");
    EXPECT_EQ(inlet, yellow);
    EXPECT_EQ(depot, gray);
    ASSERT_TRUE(WaitFor([] { return jobSTM.GetSnapshot().type == Jobs::TYPE_F && !jobSTM.IsRunning(); }));
    Update();
    EXPECT_EQ(TextOf("inletPressure"), "1.200 bar");
    EXPECT_EQ(color("inletPressure"), gray);
}

TEST_F(WindowTest, ValuesAreLiveBehindTheThresholdAndStayAfterwards)
{
    OpenReady();
    const auto field = [] { return Find<QWidget>("chartViewOutputPanel").findChildren<QLabel*>()[1]->text(); };
    EXPECT_EQ(field(), "\u2015 Vol.-%") << "the preparation shows no values";
    settings.sensPassageTime = 60;
    scripted.pressure[TavorDev::PRESSENS_DEPOT] = -0.1;
    scripted.amount[TavorDev::SENSOR_SF6] = 98.7;
    Robot::When([] { return Robot::IsShown("resultText"); }, [] {
        QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>("buttonClose"), Qt::LeftButton);
    });
    jobSTM.Start(Jobs::TYPE_B);
    ASSERT_TRUE(WaitFor([] { return jobSTM.GetPhase() > 1; }));
    scripted.pressure[TavorDev::PRESSENS_INLET] = 5.0;
    ASSERT_TRUE(WaitFor([] { return jobSTM.GetProgress() > 20; }));
    settings.showSensorValuesAfter = jobSTM.GetProgress();
    Update();
    EXPECT_EQ(field(), "\u2015 Vol.-%");
    --settings.showSensorValuesAfter;
    Update();
    EXPECT_EQ(field(), "98.7 Vol.-%");
    EXPECT_TRUE(Find<>("meaRemainingTime").isVisible());
    ASSERT_TRUE(WaitFor([] { return !jobSTM.GetMea().IsEmpty() && !jobSTM.IsRunning(); }));
    scripted.amount[TavorDev::SENSOR_SF6] = 12.3;
    Update();
    EXPECT_EQ(field(), "98.7 Vol.-%") << "the field lost the result";
    inspectionMode = true;
    Update();
    EXPECT_EQ(field(), "12.3 Vol.-%");
}

TEST_F(WindowTest, FieldsFollowTheFittedSensors)
{
    OpenReady();
    const auto fit = [](std::initializer_list<TavorDev::Sensor> fitted) {
        for (TavorDev::SensorProfile& profile : scripted.profile) {
            profile = {};
        }
        for (const TavorDev::Sensor sensor : fitted) {
            scripted.profile[sensor].type = sensor;
            scripted.profile[sensor].tag = 1;
            scripted.profile[sensor].rangeMax = 10;
        }
        Wait(9);
    };
    const auto count = [](const char* panel, bool enabledOnly) {
        int num = 0;
        for (const QLabel* label : Find<>(panel).findChildren<QLabel*>()) {
            num += !enabledOnly || label->isEnabled();
        }
        return num;
    };
    settings.showAvailSensOnly = false;
    fit({TavorDev::SENSOR_SF6, TavorDev::SENSOR_HUM, TavorDev::SENSOR_H2S});
    EXPECT_EQ(count("chartViewOutputPanel", false), 12);
    EXPECT_EQ(count("chartViewOutputPanel", true), 6) << "fields of missing sensors are to be gray";
    EXPECT_EQ(count("sensorView", false), 6);
    EXPECT_EQ(Find<>("chartViewOutputPanel").geometry(), QRect(210, 57, 220, 175));
    EXPECT_EQ(Find<>("chartViewOutputPanel").findChildren<QLabel*>()[0]->text(), "SF<sub>6</sub><sup> [CF4]</sup>");
    Click("toggleSensors");
    EXPECT_EQ(Status(), "Nur bestückte Sensoren anzeigen");
    EXPECT_EQ(count("chartViewOutputPanel", false), 6);
    EXPECT_EQ(Find<>("toggleSensors").geometry(), QRect(210, 30, 220, 230));
    jobSTM.Start(Jobs::TYPE_H);
    fit({});
    EXPECT_EQ(count("sensorView", false), 6) << "nothing is rebuilt under a job";
    jobSTM.Stop();
    Wait(9);
    EXPECT_EQ(Find<>("sensorView").findChild<QLabel*>()->text(), "Keine Sensoren");
    EXPECT_EQ(Find<>("chartViewOutputPanel").height(), 110);
    EXPECT_FALSE(Find<>("toggleSensors").isEnabled());
    Click("switchToSensorView");
    EXPECT_EQ(PageOf("deviceView"), 1);
    EXPECT_FALSE(settings.flowChartView);
    EXPECT_FALSE(Find<>("compPressWidget").isVisible());
    fit({TavorDev::SENSOR_P6});
    Update();
    EXPECT_TRUE(Find<>("compPressWidget").isVisible());
    EXPECT_EQ(TextOf("compPressure2"), "6.000 bar");
}

TEST_F(WindowTest, ActuatorsObeyServiceStaffAlone)
{
    OpenReady();
    const struct {
        const char* button;
        const char* command;
        const char* message;
    } rows[] = {
        {"mainValve", "V1+", "Hauptventil geöffnet"}, {"inletValve", "V2+", "Einlassventil geöffnet"},
        {"outletValve", "V3+", "Auslassventil geöffnet"}, {"depotValve", "V4+", "Depot Ventil geöffnet"},
        {"prOutletValve", "V5+", "Druckausgangsventil geöffnet"}, {"freerunValve", "V6+", "Freilauf Ventil geöffnet"},
        {"compressor", "C+", "Kompressor ein"},
    };
    scripted.TakeCommands();
    for (const auto& row : rows) {
        Click(row.button);
        EXPECT_FALSE(Find<QAbstractButton>(row.button).isChecked()) << row.button;
        EXPECT_EQ(scripted.TakeCommands(), "") << row.button;
        inspectionMode = true;
        Click(row.button);
        EXPECT_EQ(scripted.TakeCommands(), row.command);
        EXPECT_EQ(Status(), row.message);
        inspectionMode = false;
    }
    scripted.valve[TavorDev::VALVE_DEPOT] = TavorDev::VALVE_FAILURE;
    scripted.depotLevel = RR::INVALID;
    Update();
    EXPECT_FALSE(Find<>("depotValve").isEnabled());
    EXPECT_TRUE(Find<QProgressBar>("depotFillingLevel").isTextVisible());
    EXPECT_EQ(Find<QProgressBar>("depotFillingLevel").text(), "?") << "the last level is not to look like one that is known";
    EXPECT_TRUE(Find<QAbstractButton>("mainValve").isChecked());
    scripted.valve[TavorDev::VALVE_DEPOT] = TavorDev::VALVE_CLOSE;
    scripted.depotLevel = 70;
    Update();
    EXPECT_TRUE(Find<>("depotValve").isEnabled());
    EXPECT_EQ(Find<QProgressBar>("depotFillingLevel").value(), 70);
}
