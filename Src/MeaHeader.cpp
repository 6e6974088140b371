#include "MeaHeader.h"

#include "BiC.h"
#include "Config.h"
#include "RRx/RRFile.h"
#include "RRx/RRList.h"

using namespace RR;

namespace {

constexpr SInt32 fieldNum = 7;

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
    status = static_cast<Status>(mea.Load(name));
    meaTime = mea.dateTime;
    meaName = mea.name;
    meaAmountSF6 = mea.amountSF6;
    meaResult = mea.result;
    return true;
}

void MeaHeader::Export(String& key, String& value) const
{
    key = fileName;
    value = BiC(fileSize) + "|" + BiC(fileTime) + "|" + BiC(meaTime) + "|" + BiC(meaName) + "|" + BiC(meaAmountSF6) + "|"
        + BiC(meaResult) + "|" + BiC(status);
}

bool MeaHeader::Import(const String& key, const String& value)
{
    SetEmpty();
    List<String> fields;
    value.Split("|", fields, false);
    if (fields.GetCount() != fieldNum) {
        return false;
    }
    fileName = key;
    List<String>::Handle field = fields.First();
    BiC(field(), fileSize, INVALID);
    BiC(field.Next()(), fileTime, DateTime());
    BiC(field.Next()(), meaTime, DateTime());
    BiC(field.Next()(), meaName, QString());
    BiC(field.Next()(), meaAmountSF6, FixPnt1(INVALID));
    BiC(field.Next()(), meaResult);
    BiC(field.Next()(), status);
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
    status = MeaHeader::DEVOID;
    for (const MeaHeader::Status known : {MeaHeader::ACCEPTED, MeaHeader::REJECTED, MeaHeader::MODIFIED}) {
        if (text == BiC(known)) {
            status = known;
        }
    }
}
