#include "BiC.h"
#include "Config.h"
#include "Globals.h"
#include "MeaFields.h"
#include "RRx/RRFile.h"
#include "RRx/RRKeyValue.h"
#include "Settings.h"

using namespace RR;

namespace {

const char* const identKey = "A-Ident";
const char* const signatureKey = "A-Signature";

constexpr SInt32 lastSaveNumber = 9999;

/// Closes the signature of every file of the product; a change here turns all stored files to `MODIFIED`.
constexpr UInt08 signatureSalt[4] = {0x3C, 0xA9, 0x17, 0xE4};
constexpr UInt08 signatureSaltStep = 0x2B;

/// CRC-32 without the final inversion over the values in key order, then over the salt. Keys and the
/// borders between values don't enter.
UInt32 CalcSignature(const KeyValue& keyVal)
{
    UInt32 crc = 0xFFFFFFFF;
    for (KeyValue::Entry entry = keyVal.First(); entry.IsValid(); entry.Next()) {
        if (entry.GetKey() == signatureKey) {
            continue;
        }
        const String& value = entry.GetValue();
        for (SInt32 i = 0; i < value.GetLen(); ++i) {
            UpdateCRC32(static_cast<UInt08>(value[i]), crc);
        }
    }
    for (const UInt08 salt : signatureSalt) {
        UpdateCRC32(static_cast<UInt08>(salt + signatureSaltStep), crc);
    }
    return crc;
}

/// Reads one field. The text forms that have no default of their own fall back on the field's present value.
template <class Field> void ReadField(const String& text, Field& field)
{
    if constexpr (requires { BiC(text, field, field); }) {
        const Field fallback = field;
        BiC(text, field, fallback);
    } else {
        BiC(text, field);
    }
}

}

bool Mea::Save(const String& file) const
{
    KeyValue keyVal;
    keyVal(identKey, CFG::MeaEntryIdent);
    VisitFields([&](const char* key, auto field) { keyVal(key, BiC(this->*field)); });
    keyVal(signatureKey, String("0X") + String::PrintHex(CalcSignature(keyVal)));

    settings.meaSaveNumber = (settings.meaSaveNumber < lastSaveNumber ? settings.meaSaveNumber : 0) + 1;
    return keyVal.Save(PATH_Merge(CFG::MeaFilesFolder, file));
}

Mea::LoadState Mea::Load(const String& file)
{
    SetEmpty();
    KeyValue keyVal;
    if (!keyVal.Load(PATH_Merge(CFG::MeaFilesFolder, file)) || keyVal(identKey) != CFG::MeaEntryIdent) {
        return REJECTED;
    }
    // Tells a file without a proper job letter from an empty record.
    type = '-';
    VisitFields([&](const char* key, auto field) { ReadField(keyVal(key), this->*field); });

    UInt32 signature = 0;
    if (!String::Parse(keyVal(signatureKey), signature) || signature != CalcSignature(keyVal)) {
        return MODIFIED;
    }
    empty = false;
    return ACCEPTED;
}
