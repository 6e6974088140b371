#include "MeaHeader.h"

#include "BiC.h"
#include "Config.h"
#include "RRx/RRFile.h"

#include <algorithm>
#include <cstring>
#include <string>

using namespace RR;

namespace {

constexpr SInt32 fieldNum = 7;
constexpr char separator[] = "|";

}

void MeaHeader::SetEmpty()
{
    fileName.SetEmpty();
    fileSize = INVALID;
    fileTime = DateTime();
    meaTime = DateTime();
    meaName.clear();
    meaAmountSF6 = FixPnt1(INVALID);
    status = DEVOID;
}

bool MeaHeader::Setup(const String& file)
{
    Log("[ZARN] Header updated for \"%s\"\n", file.Adr());
    const String name = file; // `file` may be this header's own
    SetEmpty();
    FileInfo info;
    if (!FILE_ReadInfo(PATH_Merge(CFG::MeaFilesFolder, name), info)) {
        return false;
    }
    fileName = name;
    if (info.type != FT_REGULAR) {
        return false;
    }
    fileSize = info.size;
    fileTime = info.modTime;

    Mea mea;
    status = static_cast<Status>(mea.LoadBrief(name));
    meaTime = mea.dateTime;
    meaName = mea.name;
    meaAmountSF6 = mea.amountSF6;
    meaResult = mea.result;
    return true;
}

void MeaHeader::Export(String& key, String& value) const
{
    key = fileName;
    const String fields[fieldNum] = {BiC(fileSize),     BiC(fileTime),  BiC(meaTime), BiC(meaName),
                                     BiC(meaAmountSF6), BiC(meaResult), BiC(status)};
    std::string line;
    for (const String& field : fields) {
        line += field;
        line += separator;
    }
    line.pop_back();
    value = line.c_str();
}

bool MeaHeader::Import(const String& key, const String& value)
{
    SetEmpty();
    const char* at = value;
    if (std::count(at, at + value.GetLen(), *separator) != fieldNum - 1) {
        return false;
    }
    // Most fields are as long as those of the header before, so that their memory serves again.
    thread_local String fields[fieldNum];
    String* field = fields;
    const auto next = [&at, &field]() -> const String& {
        const SInt32 length = static_cast<SInt32>(std::strcspn(at, separator));
        field->SetLen(length);
        std::memcpy(field->Adr(), at, static_cast<size_t>(length));
        at += length + 1;
        return *field++;
    };
    fileName = key;
    BiC(next(), fileSize, INVALID);
    BiC(next(), fileTime, DateTime());
    BiC(next(), meaTime, DateTime());
    BiC(next(), meaName, QString());
    BiC(next(), meaAmountSF6, FixPnt1(INVALID));
    BiC(next(), meaResult);
    BiC(next(), status);
    return true;
}

String BiC(MeaHeader::Status status)
{
    switch (status) {
    case MeaHeader::ACCEPTED: return "A";
    case MeaHeader::REJECTED: return "R";
    case MeaHeader::MODIFIED: return "M";
    default: return "---";
    }
}

void BiC(const String& text, MeaHeader::Status& status)
{
    status = text == "A" ? MeaHeader::ACCEPTED
        : text == "R"    ? MeaHeader::REJECTED
        : text == "M"    ? MeaHeader::MODIFIED
                         : MeaHeader::DEVOID;
}
