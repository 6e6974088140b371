#include "Board/Board.h"
#include "Fakes/ScriptedTavorDev.h"
#include "Globals.h"
#include "Panel.h"
#include "Settings.h"
#include "WndMain.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>

// The live picture on the first tab, in service mode, where every field is on it.

namespace {

/// Every reading that the flow chart shows takes another value, on every call.
void ChangeAllReadings()
{
    static bool odd = false;
    odd = !odd;
    scripted.temperature = odd ? Temperature(25, 77) : Temperature(26, 79);
    for (double& bar : scripted.pressure) {
        bar = odd ? 0.995 : 1.005;
    }
    for (double& amount : scripted.amount) {
        amount = odd ? 1.2 : 2.4;
    }
    scripted.SetDewPoint(odd ? -40 : -38);
    for (TavorDev::ValveState& valve : scripted.valve) {
        valve = odd ? TavorDev::VALVE_OPEN : TavorDev::VALVE_CLOSE;
    }
    scripted.fan[0] = odd ? TavorDev::FAN_ON : TavorDev::FAN_OFF;
    scripted.compressor = odd ? TavorDev::COMPRESSOR_ON : TavorDev::COMPRESSOR_OFF;
    scripted.depotLevel = odd ? 40 : 60;
}

void UpdateSensors(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        ChangeAllReadings();
        state.ResumeTiming();
        QMetaObject::invokeMethod(wndMain, "OnTavorDevChanged");
        state.PauseTiming();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(UpdateSensors)->Unit(benchmark::kMicrosecond);

/// The same with the painting that follows on it.
void UpdateSensorsAndPaint(benchmark::State& state)
{
    for (auto _ : state) {
        ChangeAllReadings();
        QMetaObject::invokeMethod(wndMain, "OnTavorDevChanged");
        wndMain->repaint();
    }
}
BENCHMARK(UpdateSensorsAndPaint)->Unit(benchmark::kMicrosecond);

}

int main(int argc, char** argv)
{
    char board[] = "/tmp/zarn-bench-XXXXXX";
    if (!mkdtemp(board)) {
        return 1;
    }
    setenv("ZARN_BOARD", board, 1);
    Panel::ChooseScreen();
    QApplication application(argc, argv);
    Panel::Dress();
    scripted.Reset();
    inspectionMode = true;
    settings = Settings::def;
    settings.flowChartView = true;
    wndMain = new WndMain(nullptr, Qt::FramelessWindowHint);
    wndMain->show();
    SelectLanguage("DE");
    QCoreApplication::processEvents();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    delete wndMain;
    wndMain = nullptr;
    std::filesystem::remove_all(board);
}
