// Bringing the list of 500 measurements up to date, beside the least that has to be done for it, in turns in one run, so
// that a busy machine slows both. The time shown is that of the update; the counter `least` is the time of the
// other, `ratio` how many times longer the update is.

#include "Board/Board.h"
#include "Config.h"
#include "Mea.h"
#include "MeaTable.h"
#include "RRx/RRFile.h"
#include "RRx/RRKeyValue.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

using namespace RR;

namespace {

/// As many as the instrument keeps.
constexpr int fileCount = 500;

/// The board of this process alone, put up before the global objects of the program look for theirs. In memory where
/// possible.
__attribute__((constructor(101))) void MakeBoard()
{
    static char inMemory[] = "/dev/shm/zarn-bench-XXXXXX";
    static char onDisk[] = "/tmp/zarn-bench-XXXXXX";
    static const char* const folder = mkdtemp(inMemory) ? inMemory : mkdtemp(onDisk);
    if (folder) {
        setenv("ZARN_BOARD", folder, 1);
        std::atexit([] {
            std::error_code ignored;
            std::filesystem::remove_all(folder, ignored);
        });
    }
}

/// The log of an update isn't part of the report.
class Silence {
public:
    Silence()
    {
        std::fflush(stdout);
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDOUT_FILENO);
        close(nowhere);
    }
    ~Silence()
    {
        std::fflush(stdout);
        dup2(report, STDOUT_FILENO);
        close(report);
    }

private:
    const int report = dup(STDOUT_FILENO);
};

const String cache = PATH_Merge(CFG::MeaHdrPath, CFG::MeaHdrFile);

String FileOf(int number)
{
    char name[] = "D240131T000000A.mea";
    std::snprintf(name, sizeof name, "D240131T%02d%02d%02dA.mea", number / 60, number % 60, number % 7);
    return name;
}

/// One measurement every minute, each of the size that the instrument writes.
void FillFolder()
{
    Mea mea;
    mea.Snapshot('B');
    mea.name = "Station 12, Feld 3";
    for (int number = 0; number < fileCount; ++number) {
        mea.dateTime = DateTime(31, 1, 2024, number / 60, number % 60, number % 7);
        mea.Save(FileOf(number));
    }
}

template <class Work>
double SecondsOf(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

template <class Before, class Least>
void UpdateBeside(benchmark::State& state, Before before, Least least)
{
    const Silence silence;
    MeaTable table(nullptr);
    table.Update();
    if (table.GetSize() != fileCount) {
        state.SkipWithError("files are missing");
    }
    double updateSecs = 0;
    double leastSecs = 0;
    for (auto _ : state) {
        before();
        const double seconds = SecondsOf([&] { table.Update(); });
        state.SetIterationTime(seconds);
        updateSecs += seconds;
        leastSecs += SecondsOf(least);
    }
    state.counters["least"] = benchmark::Counter(leastSecs, benchmark::Counter::kAvgIterations);
    state.counters["ratio"] = updateSecs / leastSecs;
}

/// Without any change, beside a listing of the folder and a read of the cache file.
void Unchanged(benchmark::State& state)
{
    UpdateBeside(
        state, [] {},
        [&] {
            List<FileInfo> files;
            String bytes;
            if (!DIR_List(PATH_Merge(CFG::MeaFilesFolder, "*"), files, DIR_FILES) || !FILE_Read(cache, bytes)
                || files.GetCount() != fileCount + 1) {
                state.SkipWithError("not listed");
            }
        });
}

/// Without a cache, beside a load of each measurement file as a plain store.
void FromNothing(benchmark::State& state)
{
    UpdateBeside(
        state, [] { FILE_Delete(cache); },
        [&] {
            for (int number = 0; number < fileCount; ++number) {
                KeyValue store;
                if (!store.Load(PATH_Merge(CFG::MeaFilesFolder, FileOf(number)))) {
                    state.SkipWithError("not loaded");
                }
            }
        });
}

void Repeat(benchmark::internal::Benchmark* benchmark, int iterations)
{
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(iterations)->Repetitions(5)->ReportAggregatesOnly();
}

BENCHMARK(Unchanged)->Apply([](auto* benchmark) { Repeat(benchmark, 200); });
BENCHMARK(FromNothing)->Apply([](auto* benchmark) { Repeat(benchmark, 20); });

}

int main(int argc, char** argv)
{
    FillFolder();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
