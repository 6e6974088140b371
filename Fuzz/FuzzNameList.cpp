#include "Dialogs/DlgNameList.h"
#include "RRx/RRFile.h"

#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace {

char folder[] = "/dev/shm/zarn-names-XXXXXX";

void RemoveBoard()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

/// A board of its own in memory, told before the program asks for it.
__attribute__((constructor(101))) void PlugBoard()
{
    if (mkdtemp(folder)) {
        setenv("ZARN_BOARD", folder, 1);
        std::atexit(RemoveBoard);
    }
}

void Require(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

}

/// A file of any bytes gives names that are written and read without a change.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    RR::Array<RR::UInt08> bytes(static_cast<RR::SInt32>(size));
    if (size > 0) {
        std::memcpy(bytes.Adr(), data, size);
    }
    QStringList names;
    const bool complete = DlgNameList::DecodeNameList(bytes, names);
    Require(complete ? names.size() <= DlgNameList::maxNames : names.size() == DlgNameList::maxNames);
    for (const QString& name : names) {
        Require(!name.isEmpty() && !name.startsWith('"') && !name.endsWith('"') && names.count(name) == 1);
    }
    if (!complete) {
        // Reading the file would tell the user.
        return 0;
    }

    const char* const file = "/Names.csv";
    QStringList loaded;
    Require(RR::FILE_Write(file, bytes));
    Require(DlgNameList::LoadNameList(file, loaded) && loaded == names);
    Require(DlgNameList::SaveNameList(file, names));
    Require(DlgNameList::LoadNameList(file, loaded) && loaded == names);
    return 0;
}
