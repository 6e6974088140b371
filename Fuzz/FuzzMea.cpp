#include "Records/MeaFiles.h"

#include <cstdio>
#include <cstdlib>

namespace {

/// A board of this process alone, put up before the global objects of the program look for theirs. In memory
/// if possible: each record is written synchronously.
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

void Require(bool holds, const char* what, const std::string& detail = "")
{
    if (!holds) {
        std::printf("%s: %s\n", what, detail.c_str());
        std::abort();
    }
}

}

/// Whatever a measurement file holds: it is read or refused, what was read can be shown, and once the
/// instrument has saved it, it is accepted with the values that were read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    PutFile("Input.mea", {data, data + size});
    Mea read, again;
    const Mea::LoadState state = read.Load("Input.mea");
    Require(read.IsEmpty() == (state != Mea::ACCEPTED), "only an accepted record is filled");
    Require(state != Mea::REJECTED || DifferentFields(read, Mea()).empty(), "refused, yet with values");

    Mea brief, expected;
    Require(brief.LoadBrief("Input.mea") == state && brief.IsEmpty() == read.IsEmpty(), "another state in brief");
    expected.dateTime = read.dateTime;
    expected.name = read.name;
    expected.amountSF6 = read.amountSF6;
    expected.result = read.result;
    Require(DifferentFields(brief, expected).empty(), "other values in brief", DifferentFields(brief, expected));

    RR::List<Mea::Item> items;
    read.Export(items, true);
    read.Export(items, false);
    read.ExportUTF8(items);
    Require(Mea::PrintCSV(items).count("\"\r\n") >= items.GetCount(), "a line for each item");

    Require(read.Save("Output.mea"), "not saved");
    Require(again.Load("Output.mea") == Mea::ACCEPTED, "saved, yet not accepted");
    Require(DifferentFields(read, again).empty(), "changed by a save", DifferentFields(read, again));
    return 0;
}
