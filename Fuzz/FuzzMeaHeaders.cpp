#include "MeaTable.h"
#include "Records/MeaFiles.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace {

const char* const files[] = {"A.mea", "B.mea", "D240131T235959A.mea"};

void Require(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

/// A board of this process alone, put up before the global objects of the program look for theirs. In memory if
/// possible: the cache is written synchronously.
__attribute__((constructor(101))) void MakeBoard()
{
    static char inMemory[] = "/dev/shm/zarn-fuzz-XXXXXX";
    static char onDisk[] = "/tmp/zarn-fuzz-XXXXXX";
    static const char* const folder = mkdtemp(inMemory) ? inMemory : mkdtemp(onDisk);
    if (folder) {
        setenv("ZARN_BOARD", folder, 1);
        std::atexit([] {
            std::error_code ignored;
            std::filesystem::remove_all(folder, ignored);
        });
    }
}

/// An accepted, a rejected and a modified measurement, all of one time, which the seeds name. The log would be as
/// long as the run.
void FillFolder()
{
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    close(nowhere);
    const std::string full = ReadFile(MEA_CORPUS "/Full.mea");
    Require(full.find("96.5") != std::string::npos, "no measurement");
    const std::string contents[] = {full, "", std::string(full).replace(full.find("96.5"), 1, "8")};
    const std::chrono::sys_seconds when(std::chrono::seconds(1706745599));
    for (std::size_t i = 0; i < std::size(files); ++i) {
        PutFile(files[i], contents[i]);
        std::filesystem::last_write_time(Board::Locate(CFG::MeaFilesFolder) + "/" + files[i],
                                         std::filesystem::file_time_type::clock::from_sys(when));
    }
}

struct Row {
    RR::String key;
    RR::String value;

    bool operator==(const Row&) const = default;
};

/// Each file stands in one row, in order, and every cell can be shown.
std::vector<Row> RowsOf(const MeaTable& table)
{
    std::vector<Row> rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        Require(row == 0 || !(*table[row - 1] > *table[row]), "rows out of order");
        for (int column = 0; column < table.columnCount(); ++column) {
            table.data(table.index(row, column), Qt::DisplayRole);
            table.data(table.index(row, column), Qt::ForegroundRole);
        }
        rows.emplace_back();
        table[row]->Export(rows.back().key, rows.back().value);
        MeaHeader again;
        Row second;
        Require(again.Import(rows.back().key, rows.back().value), "a line that isn't read back");
        again.Export(second.key, second.value);
        Require(second == rows.back(), "changed by the cache");
    }
    for (const char* file : files) {
        Require(std::ranges::count(rows, RR::String(file), &Row::key) == 1, "not one row for each file");
    }
    Require(rows.size() == std::size(files), "more rows than files");
    return rows;
}

}

/// Whatever the cache holds: the table has one row for each file, and the next update finds nothing to do and the same table.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool filled = (FillFolder(), true);
    static_cast<void>(filled);
    const std::string cache = Board::Locate(CFG::MeaHdrPath) + "/" + CFG::MeaHdrFile;
    PutFile(CFG::MeaHdrFile, {data, data + size});
    MeaTable table(nullptr);
    table.Update();
    const std::vector<Row> rows = RowsOf(table);
    const std::string written = ReadFile(cache);
    table.Update();
    Require(RowsOf(table) == rows, "another table from its own cache");
    Require(ReadFile(cache) == written, "written without a change");
    return 0;
}
