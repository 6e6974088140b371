#include "RRx/RRFile.h"
#include "RRx/RRKeyValue.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

using namespace RR;

namespace {

const char* const givenFile = "/mnt/given";
const char* const savedFile = "/mnt/saved";

/// A board of its own in memory, gone with the process.
struct BoardFolder {
    BoardFolder()
    {
        const bool inMemory = std::filesystem::is_directory("/dev/shm");
        folder = (inMemory ? "/dev/shm" : std::filesystem::temp_directory_path().string()) + "/zarn-fuzz-XXXXXX";
        RR_ASSERT(mkdtemp(folder.data()) != nullptr);
        setenv("ZARN_BOARD", folder.c_str(), 1);
    }
    ~BoardFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string folder;
};

void CheckEntries(const KeyValue& store)
{
    KeyValue built;
    SInt32 number = 0;
    for (KeyValue::Entry entry = store.Last(); entry.IsValid(); entry.Prev(), ++number) {
        RR_ASSERT(built(entry.GetKey(), entry.GetValue()));
        RR_ASSERT(&store(entry.GetKey()) == &entry.GetValue());
    }
    RR_ASSERT(number == store.GetCount());
    RR_ASSERT(built == store);
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const BoardFolder board;
    RR_ASSERT(FILE_Write(givenFile, data, static_cast<SInt32>(size)));

    KeyValue store;
    SInt32 sytaxErr;
    SInt32 dblEntry;
    const bool loaded = store.Load(givenFile, sytaxErr, dblEntry);
    RR_ASSERT(loaded == (sytaxErr == INVALID && dblEntry == INVALID));
    RR_ASSERT(sytaxErr == INVALID || (sytaxErr > 0 && dblEntry == INVALID && store.IsEmpty()));
    RR_ASSERT(dblEntry == INVALID || (dblEntry > 1 && store.GetCount() == 1));
    CheckEntries(store);

    store.headline.SetLen(static_cast<SInt32>(size % 64));
    for (SInt32 i = 0; i < store.headline.GetLen(); ++i) {
        store.headline[i] = static_cast<char>(data[i]);
    }
    RR_ASSERT(store.Save(savedFile));
    KeyValue again;
    RR_ASSERT(again.Load(savedFile, sytaxErr, dblEntry));
    RR_ASSERT(again == store);

    again.headline = store.headline;
    Array<UInt08> first;
    Array<UInt08> second;
    RR_ASSERT(FILE_Read(savedFile, first) && again.Save(savedFile) && FILE_Read(savedFile, second));
    RR_ASSERT(first == second);
    return 0;
}
