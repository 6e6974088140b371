#include "Board/Board.h"
#include "Fakes/ScriptedTavorDev.h"
#include "Gallery.h"
#include "Globals.h"
#include "JobStateMachine.h"
#include "Robot.h"
#include "Settings.h"
#include "WndMain.h"

#include <filesystem>
#include <fstream>
#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QTabWidget>

// The main window in the states that a user can see, and its tabs.

namespace Gallery {

namespace {

namespace fs = std::filesystem;
using Jobs = JobStateMachine;

const fs::path stickNode = fs::path("dev") / "sda1";

fs::path OnBoard(const fs::path& path)
{
    return fs::path(Board::Root()) / path;
}

/// What takes longer than the second that the window waits before its second stage leaves that to it.
enum Start { AT_ONCE, BY_ITSELF };

/// Runs the window like a dialog until it is closed, on a healthy unit that `set` has changed.
std::function<void()> Window(std::function<void()> set = [] {}, Start start = AT_ONCE)
{
    return [set, start] {
        scripted.Reset();
        scripted.profile[TavorDev::SENSOR_SF6].tag = 0;
        scripted.profile[TavorDev::SENSOR_P6].rangeMax = 10;
        scripted.depotLevel = 40;
        const LangCC language = settings.applLanguage;
        settings = Settings::def;
        settings.applLanguage = language;
        settings.flowChartView = true;
        settings.showSensorValuesAfter = 25;
        set();
        wndMain = new WndMain(nullptr, Qt::FramelessWindowHint);
        wndMain->setWindowModality(Qt::ApplicationModal);
        wndMain->show();
        QEvent languageChange(QEvent::LanguageChange);
        QApplication::sendEvent(wndMain, &languageChange);
        if (start == AT_ONCE) {
            QMetaObject::invokeMethod(wndMain, "On2ndStage", Qt::QueuedConnection);
        }
        while (wndMain->isVisible()) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        }
        jobSTM.Stop();
        delete wndMain;
        wndMain = nullptr;
        std::error_code ignored;
        fs::remove(OnBoard(stickNode), ignored);
    };
}

void Tick(int seconds)
{
    Robot::OnGui([=] {
        for (int i = 0; i < seconds; ++i) {
            QMetaObject::invokeMethod(&jobSTM, "OnSecTimeout");
        }
        emit tavorDev.Changed();
    });
    // What is queued behind it.
    Robot::OnGui([] { QApplication::processEvents(); });
    Robot::OnGui([] { QMetaObject::invokeMethod(wndMain, "OnSecTimeout"); });
}

/// The tabs are filled a moment after the window has come up; what that changes is laid out in the pass behind it.
bool Settle()
{
    const bool filled = Robot::WaitFor([] { return !wndMain->findChild<QLabel*>("statusTime")->text().isEmpty(); });
    for (int pass = 0; pass < 3; ++pass) {
        Robot::OnGui([] { QApplication::processEvents(); });
    }
    return filled;
}

void AwaitPreparation()
{
    Robot::WaitFor([] { return jobSTM.IsRunning(); });
}

void GetReady()
{
    AwaitPreparation();
    Tick(60);
}

void Measure()
{
    GetReady();
    Robot::OnGui([] {
        settings.sensPassageTime = 60;
        jobSTM.Start(Jobs::TYPE_B);
    });
    Tick(3);
    Robot::OnGui([] { scripted.pressure[TavorDev::PRESSENS_INLET] = 5.0; });
    Tick(45);
}

/// What the sensors of the path tell from now on.
void SetPressure(TavorDev::PressureSensor sensor, double bar)
{
    Robot::OnGui([=] { scripted.pressure[sensor] = bar; });
}

/// Through the first measurement of a series and the pump back behind it.
void MeasureInSeries()
{
    GetReady();
    Robot::OnGui([] {
        settings.sensPassageTime = 30;
        settings.autoPumpBack = settings.autoMeaBEnabled = true;
        settings.autoMeaBCount = 3;
        settings.autoMeaBInterval = 90;
    });
    Robot::Click("startMea");
    Robot::Click("buttonStartB");
    Robot::Click("buttonOk");
    Robot::WaitFor([] { return jobSTM.IsRunning(); });
    Tick(3);
    SetPressure(TavorDev::PRESSENS_INLET, 5.0);
    Tick(60);
    SetPressure(TavorDev::PRESSENS_INLET, 1.0);
    Tick(1);
    Robot::WaitFor([] { return jobSTM.GetType() == Jobs::TYPE_D; });
    Tick(10);
    SetPressure(TavorDev::PRESSENS_DEPOT, -0.1);
    Tick(10);
    Robot::WaitFor([] { return !wndMain->findChild<QLabel*>("statusAutoMeaTimer")->text().isEmpty(); });
    Robot::OnGui([] {
        QMetaObject::invokeMethod(wndMain, "OnStatusMessageTimeout");
        emit tavorDev.Changed();
    });
}

void PurifyInVain()
{
    GetReady();
    Robot::OnGui([] { jobSTM.Start(Jobs::TYPE_J); });
    Tick(5);
    Robot::OnGui([] { scripted.valve[TavorDev::VALVE_PR_OUTLET] = TavorDev::VALVE_FAILURE; });
    Tick(1);
    Robot::Click("buttonClose");
    Robot::OnGui([] { scripted.valve[TavorDev::VALVE_PR_OUTLET] = TavorDev::VALVE_CLOSE; });
    Tick(1);
}

void ShowPage(const char* tabs, int page)
{
    Robot::OnGui([=] { wndMain->findChild<QTabWidget*>(tabs)->setCurrentIndex(page); });
}

std::function<void()> SettingsPage(int page)
{
    return [page] {
        GetReady();
        ShowPage("mainTabWidget", 2);
        ShowPage("settingsTab", page);
    };
}

void PlugServiceKey()
{
    fs::create_directories(OnBoard("usb-stick"));
    fs::copy_file(ZARN_SERVICE_KEY, OnBoard("usb-stick/ZARNInspMode.key"), fs::copy_options::overwrite_existing);
    std::ofstream plugged(OnBoard(stickNode));
}

}

std::vector<Exhibit> WindowExhibits()
{
    const struct {
        const char* name;
        std::function<void()> show;
        std::function<void()> prepare = nullptr;
        std::function<void()> leave = nullptr;
    } states[] = {
        {"WndMain-starting", Window([] {}, BY_ITSELF)},
        {"WndMain-no-unit", Window([] {
             scripted.connects = false;
             for (TavorDev::SensorProfile& profile : scripted.profile) {
                 profile = {};
             }
         }), [] { Robot::Click("buttonClose"); }},
        {"WndMain-firmware", Window([] { scripted.info.applVers = SVersion("V5.9"); }, BY_ITSELF), [] {
             Robot::WaitFor([] {
                 const auto* bar = QApplication::activeModalWidget()->findChild<QProgressBar*>("progress");
                 return bar && bar->value() > 120;
             });
         }, [] { Robot::Click("buttonClose"); }},
        {"WndMain-preparing", Window(), [] { AwaitPreparation(); Tick(3); }},
        {"WndMain-ready", Window(), GetReady},
        {"WndMain-ready-values", Window([] { settings.flowChartView = false; }), GetReady},
        {"WndMain-three-sensors", Window([] {
             settings.showAvailSensOnly = true;
             for (const auto missing : {TavorDev::SENSOR_HF, TavorDev::SENSOR_CO, TavorDev::SENSOR_H2S}) {
                 scripted.profile[missing] = {};
             }
         }), GetReady},
        {"WndMain-lost", Window(), [] {
             GetReady();
             Robot::OnGui([] { emit tavorDev.Lost(); });
         }},
        {"WndMain-restricted", Window([] {}, BY_ITSELF), PurifyInVain},
        {"WndMain-inner-pressure", Window([] {}, BY_ITSELF), [] {
             GetReady();
             SetPressure(TavorDev::PRESSENS_OPERATION, 1.5);
             Tick(1);
             Robot::WaitFor([] { return !Robot::TextOf("pressValue").isEmpty(); });
         }, [] {
             SetPressure(TavorDev::PRESSENS_OPERATION, 1.0);
             Robot::WaitForGone("pressValue", 20 * 1000);
         }},
        {"WndMain-pause", Window([] {}, BY_ITSELF), MeasureInSeries},
        {"WndMain-shutdown", Window(), [] {
             GetReady();
             Robot::Click("shutdown");
             Robot::WaitForShown("labelTime");
         }},
        {"WndMain-battery-low", Window([] { scripted.supply = {TavorDev::SUPSRC_BATTERY, RR::FixPnt1(20.4), false}; }), GetReady},
        {"WndMain-measuring", Window(), Measure},
        {"WndMain-measuring-values", Window([] { settings.flowChartView = false; }), Measure},
        {"WndMain-valve-failed", Window(), [] {
             GetReady();
             Robot::OnGui([] {
                 scripted.valve[TavorDev::VALVE_DEPOT] = TavorDev::VALVE_FAILURE;
                 scripted.compressor = TavorDev::COMPRESSOR_FAILURE;
                 scripted.depotLevel = RR::INVALID;
             });
             Tick(1);
         }},
        {"WndMain-service", Window(PlugServiceKey), [] {
             Robot::WaitFor([] { return Robot::IsEnabled("startMea"); });
             Tick(1);
             Robot::Click("mainValve");
             Tick(1);
         }},
        {"WndMain-measurements", Window(), [] {
             GetReady();
             ShowPage("mainTabWidget", 1);
         }},
        {"WndMain-settings-1", Window(), SettingsPage(0)},
        {"WndMain-settings-2", Window(), SettingsPage(1)},
        {"WndMain-settings-3", Window(), SettingsPage(2)},
    };
    std::vector<Exhibit> exhibits;
    for (const auto& state : states) {
        exhibits.push_back({state.name, TYPICAL, state.show, [prepare = state.prepare] {
                                if (prepare) {
                                    prepare();
                                }
                                return Settle();
                            }, state.leave});
    }
    return exhibits;
}

}
