#include "BiC.h"
#include "Config.h"
#include "Globals.h"
#include "MeaFields.h"
#include "RRx/RRFile.h"
#include "RRx/RRKeyValue.h"
#include "RRx/RRKeyValueReader.h"
#include "Settings.h"

#include <string_view>
#include <type_traits>

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
class Signature {
public:
    void Add(std::string_view value) { UpdateCRC32(value.data(), static_cast<SInt32>(value.size()), crc); }

    UInt32 Close() const
    {
        UInt32 closed = crc;
        for (const UInt08 salt : signatureSalt) {
            UpdateCRC32(static_cast<UInt08>(salt + signatureSaltStep), closed);
        }
        return closed;
    }

private:
    UInt32 crc = 0xFFFFFFFF;
};

UInt32 CalcSignature(const KeyValue& keyVal)
{
    Signature signature;
    for (KeyValue::Entry entry = keyVal.First(); entry.IsValid(); entry.Next()) {
        if (entry.GetKey() != signatureKey) {
            signature.Add(entry.GetValue().Adr());
        }
    }
    return signature.Close();
}

/// Tells the state of `file` and reads it into `keyVal`, which is of no use if rejected.
Mea::LoadState LoadStore(const String& file, KeyValue& keyVal)
{
    if (!keyVal.Load(PATH_Merge(CFG::MeaFilesFolder, file)) || keyVal(identKey) != CFG::MeaEntryIdent) {
        return Mea::REJECTED;
    }
    UInt32 signature = 0;
    const bool fits = String::Parse(keyVal(signatureKey), signature) && signature == CalcSignature(keyVal);
    return fits ? Mea::ACCEPTED : Mea::MODIFIED;
}

String ToString(std::string_view text)
{
    return String(text.data(), static_cast<SInt32>(text.size()));
}

/// Hands each entry of a file to `visit` without building a store. False, maybe after some entries, if that won't
/// do: the file can't be read, is large, breaks the format, or isn't in the order in which the instrument writes.
template <class Visit> bool VisitSorted(const String& pathFile, Visit visit)
{
    UInt08 block[8192];
    SInt32 num;
    if (!FILE_Read(pathFile, block, sizeof block - 1, num)) {
        return false;
    }
    block[num] = 0;
    KeyValueReader reader(std::string_view(reinterpret_cast<const char*>(block), static_cast<std::size_t>(num)));
    for (std::string_view latest; !reader.IsAtEnd(); reader.TakeLineEnds()) {
        std::string_view key;
        std::string_view value;
        if (!reader.TakeLine(key, value)) {
            return false;
        }
        if (value.empty()) {
            continue;
        }
        // Keys are ASCII, whose collation is that of the bytes.
        if (key <= latest) {
            return false;
        }
        latest = key;
        visit(key, value);
    }
    return true;
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

template <class Field, class... Others> constexpr bool IsOneOf(Field field, Others... others)
{
    const auto isSame = [field](auto other) {
        if constexpr (std::is_same_v<Field, decltype(other)>) {
            return field == other;
        } else {
            return false;
        }
    };
    return (isSame(others) || ...);
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
    const LoadState state = LoadStore(file, keyVal);
    if (state != REJECTED) {
        // Tells a file without a proper job letter from an empty record.
        type = '-';
        VisitFields([&](const char* key, auto field) { ReadField(keyVal(key), this->*field); });
        empty = state != ACCEPTED;
    }
    return state;
}

Mea::LoadState Mea::LoadBrief(const String& file)
{
    SetEmpty();
    Signature calculated;
    UInt32 signature = 0;
    bool isSigned = false;
    bool isMeasurement = false;
    const bool read = VisitSorted(PATH_Merge(CFG::MeaFilesFolder, file), [&](std::string_view key, std::string_view value) {
        if (key == signatureKey) {
            isSigned = String::Parse(ToString(value), signature);
            return;
        }
        calculated.Add(value);
        isMeasurement |= key == identKey && value == CFG::MeaEntryIdent;
        VisitFields([&](const char* fieldKey, auto field) {
            if (IsOneOf(field, &Mea::dateTime, &Mea::name, &Mea::amountSF6, &Mea::result) && key == fieldKey) {
                ReadField(ToString(value), this->*field);
            }
        });
    });
    if (read && isMeasurement) {
        const LoadState state = isSigned && signature == calculated.Close() ? ACCEPTED : MODIFIED;
        empty = state != ACCEPTED;
        return state;
    }
    // Rejected, or in an order that asks for a store.
    Mea whole;
    const LoadState state = whole.Load(file);
    SetEmpty();
    VisitFields([&](const char*, auto field) {
        if (IsOneOf(field, &Mea::dateTime, &Mea::name, &Mea::amountSF6, &Mea::result)) {
            this->*field = whole.*field;
        }
    });
    empty = whole.empty;
    return state;
}
