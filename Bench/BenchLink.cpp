#include "Board/Board.h"
#include "Fakes/UnitControl.h"
#include "TavorDev.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>
#include <QCoreApplication>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

// The link against a sensor unit in software that paces its line like 57600 baud.

extern char** environ;
using Clock = std::chrono::steady_clock;

namespace {

constexpr double byteMs = 10 * 1000.0 / 57600;
constexpr double passPauseMs = 100;
// One sweep of the poll sequence: 19 requests of 14 bytes, their responses of 14 bytes and 3 for each data byte.
constexpr int sweepPasses = 19;
constexpr double sweepBytes = sweepPasses * (14 + 14) + 3 * 347;
constexpr double passMs = passPauseMs + sweepBytes * byteMs / sweepPasses;
// The longest pass reads 32 bytes; a command of one byte takes a request of 17 bytes and a response of 14.
constexpr double commandLimitMs = passPauseMs + (14 + 14 + 3 * 32) * byteMs + (17 + 14) * byteMs;

double Since(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// A paced sensor unit and the program's link to it.
class Desk {
public:
    Desk()
    {
        const std::string line = Board::Locate("/dev/ttySAC0");
        control = Board::Root() + "/unit.ctl";
        const char* args[] = {ZARN_UNIT_PROGRAM, "--link", line.c_str(), "--control", control.c_str(), nullptr};
        posix_spawn(&unit, args[0], nullptr, nullptr, const_cast<char**>(args), environ);
        while (!std::filesystem::exists(line) || !std::filesystem::exists(control)) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        dev = std::make_unique<TavorDev>();
        dev->Connect(TavorDev::MODE_APPL);
    }
    ~Desk()
    {
        dev.reset();
        kill(unit, SIGTERM);
        waitpid(unit, nullptr, 0);
    }

    /// Requests that the unit has answered so far.
    long Answered() const
    {
        const std::string stats = TellUnit(control, "stats");
        return std::stol(stats.substr(stats.find("answered ") + 9));
    }

    std::unique_ptr<TavorDev> dev;

private:
    std::string control;
    pid_t unit = 0;
};

void LinkPass(benchmark::State& state)
{
    Desk desk;
    for (auto _ : state) {
        const long before = desk.Answered();
        const auto start = Clock::now();
        while (desk.Answered() < before + 5 * sweepPasses) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        const double pass = Since(start) / (5 * sweepPasses);
        state.SetIterationTime(pass);
        state.counters["pass_ms"] = pass * 1000;
        state.counters["expected_ms"] = passMs;
        state.counters["ratio"] = pass * 1000 / passMs;
    }
}
BENCHMARK(LinkPass)->UseManualTime()->Iterations(2)->Unit(benchmark::kMillisecond);

void ForegroundCommand(benchmark::State& state)
{
    Desk desk;
    std::vector<double> all; ///< ms
    bool open = false;
    for (auto _ : state) {
        const auto start = Clock::now();
        desk.dev->SetValve(TavorDev::VALVE_V6, open = !open);
        const double took = Since(start);
        all.push_back(took * 1000);
        state.SetIterationTime(took);
    }
    std::sort(all.begin(), all.end());
    // What the limit leaves out is the time that the scheduler takes to wake either side; it shows at the very end.
    state.counters["p99_ms"] = all[all.size() * 99 / 100];
    state.counters["longest_ms"] = all.back();
    state.counters["limit_ms"] = commandLimitMs;
    state.counters["ratio"] = all.back() / commandLimitMs;
    state.counters["over_limit"] = static_cast<double>(all.end() - std::upper_bound(all.begin(), all.end(), commandLimitMs));
}
BENCHMARK(ForegroundCommand)->UseManualTime()->Iterations(1000)->Unit(benchmark::kMillisecond);

}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
