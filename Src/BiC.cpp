#include "BiC.h"

#include "RRx/RRList.h"

#include <charconv>
#include <cstring>
#include <QVarLengthArray>
#include <iterator>
#include <string>

using RR::FixPnt;
using RR::FixPnt1;
using RR::FixPnt2;
using RR::FixPnt3;
using RR::SInt32;
using RR::String;

namespace {

const char* const noValue = "---";

/// The stored names of an enumeration's values, in the order of the values from 0 on.
template <int COUNT>
using Names = const char* const[COUNT];

constexpr Names<Pressure::NUM> pressureUnits = {"bar", "kPa", "psi", "MPa"};
constexpr Names<Humidity::NUM> humidityUnits = {"cels", "fahr", "ppmv", "ppmw", "celsPr", "fahrPr"};
constexpr Names<Temperature::NUM> temperatureUnits = {"cels", "fahr"};
// "CVS" isn't a slip to mend: this is how the files have always named the CSV form.
constexpr Names<2> transFormats = {"NAT", "CVS"};

template <int COUNT>
String WriteName(const Names<COUNT>& names, SInt32 value)
{
    return value >= 0 && value < COUNT ? names[value] : noValue;
}

template <typename Enum, int COUNT>
void ReadName(const Names<COUNT>& names, const String& text, Enum& value, Enum fallback)
{
    value = fallback;
    for (SInt32 i = 0; i < COUNT; ++i) {
        if (text == names[i]) {
            value = static_cast<Enum>(i);
        }
    }
}

String WriteFixPnt(const FixPnt& value)
{
    return value.Eject() == RR::INVALID ? String(noValue) : String::Print(value);
}

template <typename Type>
void ReadFixPnt(const String& text, Type& value, Type fallback)
{
    if (!String::Parse(text, value)) {
        value = fallback;
    }
}

/// All elements of a `Pressure` or a `Humidity`, in the order of their units.
template <typename Quantity>
String WriteElements(const Quantity& value)
{
    FixPnt3 elements[Quantity::NUM];
    for (SInt32 i = 0; i < Quantity::NUM; ++i) {
        elements[i] = value[static_cast<typename Quantity::Unit>(i)];
    }
    return BiC(elements, Quantity::NUM);
}

template <typename Quantity>
void SetElements(Quantity& value, const FixPnt3* elements, SInt32 num)
{
    for (SInt32 i = 0; i < num; ++i) {
        value[static_cast<typename Quantity::Unit>(i)] = elements[i];
    }
}

/// One code unit, 0 if unreadable. Lists of names are full of them, hence the short way for plain digits.
RR::UInt16 ReadUnit(const char* text, const char* end)
{
    constexpr int plainDigits = 4;
    SInt32 unit = 0;
    const char* at = text;
    while (at != end && String::IsDigit(*at) && at - text < plainDigits) {
        unit = 10 * unit + (*at++ - '0');
    }
    if ((at != end || at == text) && !String::Parse(String(text, static_cast<SInt32>(end - text)), unit)) {
        unit = 0;
    }
    return static_cast<RR::UInt16>(unit);
}

}

String BiC(bool value)
{
    return value ? "yes" : "no";
}

void BiC(const String& text, bool& value, bool fallback)
{
    const String lower = text.Lower();
    value = lower == "yes" || (lower != "no" && fallback);
}

String BiC(SInt32 value)
{
    return value == RR::INVALID ? String(noValue) : String::Print(value);
}

void BiC(const String& text, SInt32& value, SInt32 fallback)
{
    if (!String::Parse(text, value)) {
        value = fallback;
    }
}

String BiC(char value)
{
    return String(value);
}

void BiC(const String& text, char& value, char fallback)
{
    value = text.GetLen() == 1 ? text[0] : fallback;
}

String BiC(const String& value)
{
    return String(value).Trim();
}

void BiC(const String& text, String& value, const String& fallback)
{
    const String trimmed = String(text).Trim();
    value = trimmed.IsEmpty() ? fallback : trimmed;
}

String BiC(FixPnt1 value)
{
    return WriteFixPnt(value);
}

String BiC(FixPnt2 value)
{
    return WriteFixPnt(value);
}

String BiC(FixPnt3 value)
{
    return WriteFixPnt(value);
}

void BiC(const String& text, FixPnt1& value, FixPnt1 fallback)
{
    ReadFixPnt(text, value, fallback);
}

void BiC(const String& text, FixPnt2& value, FixPnt2 fallback)
{
    ReadFixPnt(text, value, fallback);
}

void BiC(const String& text, FixPnt3& value, FixPnt3 fallback)
{
    ReadFixPnt(text, value, fallback);
}

String BiC(const FixPnt3* values, SInt32 num)
{
    String text;
    for (SInt32 i = 0; i < num; ++i) {
        text += (i > 0 ? "," : "") + WriteFixPnt(values[i]);
    }
    return text;
}

bool BiC(const String& text, FixPnt3* values, SInt32 num)
{
    RR::List<String> pieces;
    text.Split(",", pieces, false);
    if (pieces.GetCount() != num) {
        return false;
    }
    bool readable = false;
    for (auto piece = pieces.First(); !piece.IsNil(); piece.Next()) {
        // An unreadable piece leaves the invalid value.
        readable |= String::Parse(piece(), *values++);
    }
    return readable;
}

String BiC(const Pressure& value)
{
    return WriteElements(value);
}

void BiC(const String& text, Pressure& value, const Pressure& fallback)
{
    FixPnt3 elements[Pressure::NUM];
    if (BiC(text, elements, Pressure::NUM)) {
        SetElements(value, elements, Pressure::NUM);
        return;
    }
    if (BiC(text, elements, Pressure::MPA)) {
        SetElements(value, elements, Pressure::MPA);
    } else {
        value = fallback;
    }
    value[Pressure::MPA] = RR::INVALID;
}

String BiC(const Humidity& value)
{
    return WriteElements(value);
}

void BiC(const String& text, Humidity& value, const Humidity& fallback)
{
    FixPnt3 elements[Humidity::NUM];
    if (BiC(text, elements, Humidity::NUM)) {
        SetElements(value, elements, Humidity::NUM);
    } else {
        value = fallback;
    }
}

String BiC(const Temperature& value)
{
    return BiC(value[Temperature::CELS]) + "," + BiC(value[Temperature::FAHR]);
}

void BiC(const String& text, Temperature& value, const Temperature& fallback)
{
    RR::List<String> pieces;
    text.Split(",", pieces, false);
    SInt32 cels = RR::INVALID;
    SInt32 fahr = RR::INVALID;
    if (pieces.GetCount() == 2) {
        const bool hasCels = String::Parse(pieces.First()(), cels);
        const bool hasFahr = String::Parse(pieces.Last()(), fahr);
        if (hasCels || hasFahr) {
            value = Temperature(cels, fahr);
            return;
        }
    }
    value = fallback;
}

String BiC(Pressure::Unit value)
{
    return WriteName(pressureUnits, value);
}

void BiC(const String& text, Pressure::Unit& value, Pressure::Unit fallback)
{
    ReadName(pressureUnits, text, value, fallback);
}

String BiC(Humidity::Unit value)
{
    return WriteName(humidityUnits, value);
}

void BiC(const String& text, Humidity::Unit& value, Humidity::Unit fallback)
{
    ReadName(humidityUnits, text, value, fallback);
}

String BiC(Temperature::Unit value)
{
    return WriteName(temperatureUnits, value);
}

void BiC(const String& text, Temperature::Unit& value, Temperature::Unit fallback)
{
    ReadName(temperatureUnits, text, value, fallback);
}

String BiC(MeaTransFormat value)
{
    return WriteName(transFormats, value);
}

void BiC(const String& text, MeaTransFormat& value, MeaTransFormat fallback)
{
    ReadName(transFormats, text, value, fallback);
}

String BiC(const LangCC& value)
{
    return value.ToStr();
}

void BiC(const String& text, LangCC& value, const LangCC& fallback)
{
    LangCC read;
    value = text.GetLen() == 2 && read.Set(text) ? read : fallback;
}

String BiC(const SVersion& value)
{
    return value.ToStr();
}

void BiC(const String& text, SVersion& value)
{
    value = SVersion(text);
}

String BiC(const LVersion& value)
{
    return value.ToStr();
}

void BiC(const String& text, LVersion& value)
{
    value = LVersion(text);
}

String BiC(const RR::Date& value)
{
    char text[] = "YYYY-MM-DD";
    value.Export(text);
    return text;
}

void BiC(const String& text, RR::Date& value, const RR::Date& fallback)
{
    RR::Date read;
    read.Import(text);
    value = read.IsValid() ? read : fallback;
}

String BiC(const RR::DateTime& value)
{
    char text[] = "YYYY-MM-DDThh:mm:ss";
    value.Export(text);
    return text;
}

void BiC(const String& text, RR::DateTime& value, const RR::DateTime& fallback)
{
    RR::DateTime read;
    read.Import(text);
    value = read.IsValid() ? read : fallback;
}

String BiC(const QString& value)
{
    std::string text;
    for (const QChar unit : value) {
        char digits[8];
        text.append(digits, std::to_chars(digits, std::end(digits), unsigned{unit.unicode()}).ptr) += ',';
    }
    return (text += '0').c_str();
}

void BiC(const String& text, QString& value, const QString& fallback)
{
    if (text.IsEmpty()) {
        value = fallback;
        return;
    }
    QVarLengthArray<QChar, 128> read;
    const char* piece = text;
    while (const char* const end = std::strchr(piece, ',')) {
        read.append(QChar(ReadUnit(piece, end)));
        piece = end + 1;
    }
    value = QString(read.constData(), read.size());
}
