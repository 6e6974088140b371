// Key-value files beside QSettings in INI format: the same keys and values, on the same medium, in turns in one run, so
// that a busy machine slows both. The time shown is that of the key-value file; the counter `qsettings` is
// the time of QSettings for the same work, `ratio` how many times longer that is.

#include "Board/Board.h"
#include "RRx/RRFile.h"
#include "RRx/RRKeyValue.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <QSettings>
#include <string>
#include <vector>

namespace {

/// More files than QSettings remembers the content of, so that each one is really read.
constexpr int fileCount = 48;

/// Lines like those of a measurement file, with values of three sorts of length.
struct Content {
    explicit Content(int variant)
    {
        const char* const things[] = {"AmountSF6", "AmountSO2", "Humidity", "PressInlet", "PressDepot", "LimitMaxInletPress",
                                      "SensorPressComp", "UnitTemperature", "DateTime", "ReportHF", "InTemperature"};
        for (const char group : {'A', 'D', 'K', 'M', 'R'}) {
            int sort = variant;
            for (const char* thing : things) {
                const std::string values[] = {"99." + std::to_string(variant) + "05", "2024-01-31T23:59:5" + std::to_string(variant),
                                              "1.013,101.300,14.692,0.101,---,2023-11-0" + std::to_string(variant)};
                const std::string key = std::string(1, group) + "-" + thing;
                const std::string& value = values[sort++ % 3];
                keys.emplace_back(key.c_str());
                this->values.emplace_back(value.c_str());
                qKeys.push_back(QString::fromStdString(key));
                qValues.push_back(QString::fromStdString(value));
                valueBytes += value.size();
            }
        }
    }

    std::vector<RR::String> keys;
    std::vector<RR::String> values;
    std::vector<QString> qKeys;
    std::vector<QString> qValues;
    std::size_t valueBytes = 0;
};

/// A board folder in memory where there is one, otherwise where temporary files go.
struct BoardFolder {
    BoardFolder()
    {
        const bool inMemory = std::filesystem::is_directory("/dev/shm");
        folder = (inMemory ? "/dev/shm" : std::filesystem::temp_directory_path().string()) + "/zarn-bench-XXXXXX";
        if (!mkdtemp(folder.data())) {
            std::abort();
        }
        setenv("ZARN_BOARD", folder.c_str(), 1);
    }
    ~BoardFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string folder;
};

const BoardFolder board;

RR::String KeyValueFile(int number)
{
    return RR::String("/mnt/") + RR::String::Print(number) + ".mea";
}

QString SettingsFile(int number)
{
    return QString::fromStdString(Board::Root()) + QStringLiteral("/mnt/%1.ini").arg(number);
}

/// Rounds in one go, long enough that neither finds the heap as the other left it.
constexpr int roundsPerTurn = 500;

template <class Work>
double SecondsOf(int firstRound, Work work)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < roundsPerTurn; ++i) {
        work(firstRound + i);
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() / roundsPerTurn;
}

template <class First, class Second>
void RunBoth(benchmark::State& state, const RR::String& file, First keyValue, Second settings)
{
    double keyValueSecs = 0;
    double settingsSecs = 0;
    int round = 0;
    for (auto _ : state) {
        const double seconds = SecondsOf(round, keyValue);
        state.SetIterationTime(seconds);
        keyValueSecs += seconds;
        settingsSecs += SecondsOf(round, settings);
        round += roundsPerTurn;
    }
    state.SetBytesProcessed(state.iterations() * RR::FILE_ReadSize(file));
    state.counters["qsettings"] = benchmark::Counter(settingsSecs, benchmark::Counter::kAvgIterations);
    state.counters["ratio"] = settingsSecs / keyValueSecs;
}

/// The key-value file is read into a store, QSettings opened on its file; then every value is taken out, of the store
/// one entry after the other or, if `byKey`, by looking its key up, as QSettings has to in any case.
void Load(benchmark::State& state, bool byKey)
{
    const Content content(0);
    std::vector<RR::String> files;
    std::vector<QString> settingsFiles;
    for (int number = 0; number < fileCount; ++number) {
        files.push_back(KeyValueFile(number));
        settingsFiles.push_back(SettingsFile(number));
        RR::KeyValue store;
        QSettings settings(settingsFiles.back(), QSettings::IniFormat);
        for (std::size_t i = 0; i < content.keys.size(); ++i) {
            store(content.keys[i], content.values[i]);
            settings.setValue(content.qKeys[i], content.qValues[i]);
        }
        store.Save(files.back());
    }
    RunBoth(
        state, files[0],
        [&](int round) {
            RR::KeyValue store;
            if (!store.Load(files[static_cast<std::size_t>(round % fileCount)])) {
                state.SkipWithError("not loaded");
            }
            std::size_t bytes = 0;
            if (byKey) {
                for (const RR::String& key : content.keys) {
                    bytes += static_cast<std::size_t>(store(key).GetLen());
                }
            } else {
                for (RR::KeyValue::Entry entry = store.First(); entry.IsValid(); entry.Next()) {
                    bytes += static_cast<std::size_t>(entry.GetValue().GetLen());
                }
            }
            if (bytes != content.valueBytes) {
                state.SkipWithError("wrong values");
            }
        },
        [&](int round) {
            const QSettings settings(settingsFiles[static_cast<std::size_t>(round % fileCount)], QSettings::IniFormat);
            std::size_t bytes = 0;
            for (const QString& key : content.qKeys) {
                bytes += static_cast<std::size_t>(settings.value(key).toString().size());
            }
            if (bytes != content.valueBytes) {
                state.SkipWithError("wrong values in the settings");
            }
        });
}

/// Each changes all values of an open object and writes its file, the key-value file by synchronous writing in
/// place, QSettings by a lock file, a new file and a rename.
void Save(benchmark::State& state)
{
    const Content contents[2] = {Content(0), Content(1)};
    const RR::String file = KeyValueFile(fileCount);
    RR::KeyValue store;
    QSettings settings(SettingsFile(fileCount), QSettings::IniFormat);
    RunBoth(
        state, file,
        [&](int round) {
            const Content& content = contents[round % 2];
            for (std::size_t i = 0; i < content.keys.size(); ++i) {
                store(content.keys[i], content.values[i]);
            }
            if (!store.Save(file)) {
                state.SkipWithError("not saved");
            }
        },
        [&](int round) {
            const Content& content = contents[round % 2];
            for (std::size_t i = 0; i < content.qKeys.size(); ++i) {
                settings.setValue(content.qKeys[i], content.qValues[i]);
            }
            settings.sync();
            if (settings.status() != QSettings::NoError) {
                state.SkipWithError("settings not saved");
            }
        });
}

void Repeat(benchmark::internal::Benchmark* benchmark)
{
    benchmark->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(10)->Repetitions(5)->ReportAggregatesOnly();
}

BENCHMARK_CAPTURE(Load, entries, false)->Apply(Repeat);
BENCHMARK_CAPTURE(Load, by_key, true)->Apply(Repeat);
BENCHMARK(Save)->Apply(Repeat);

}

BENCHMARK_MAIN();
