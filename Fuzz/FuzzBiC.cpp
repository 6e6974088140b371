#include "BiC.h"
#include "TavorDev.h"

#include <algorithm>
#include <cstdint>

using RR::INVALID;
using RR::String;

namespace {

/// What was read must come back from its own text, so that a value never drifts from file to file.
template <typename Type, typename... Fallback>
void ReadTwice(const String& text, const Fallback&... none)
{
    Type value;
    BiC(text, value, none...);
    Type again;
    BiC(BiC(value), again, none...);
    RR_ASSERT(BiC(again) == BiC(value));
}

/// A text is either readable, and then the fallback doesn't matter, or gives the fallback as it stands.
template <typename Type>
void Read(const String& text, const Type& none, const Type& some)
{
    ReadTwice<Type>(text, none);
    Type withNone;
    BiC(text, withNone, none);
    Type withSome;
    BiC(text, withSome, some);
    RR_ASSERT(BiC(withNone) == BiC(withSome)
              || (BiC(withNone) == BiC(none) && BiC(withSome) == BiC(some)));
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const String text(reinterpret_cast<const char*>(data), static_cast<RR::SInt32>(std::min<std::size_t>(size, 4096)));
    Read(text, false, true);
    Read(text, INVALID, 7);
    Read(text, '-', 'x');
    Read(text, String(), String("x"));
    Read<RR::FixPnt1>(text, INVALID, 7);
    Read<RR::FixPnt2>(text, INVALID, 7);
    Read<RR::FixPnt3>(text, INVALID, 7);
    Read(text, Pressure(), Pressure(1, 100, 14.5, INVALID));
    Read(text, Humidity(), Humidity(-40, -40, 127, 15.7));
    Read(text, Temperature(), Temperature(23, 73));
    Read(text, Pressure::BAR, Pressure::MPA);
    Read(text, Humidity::CELS, Humidity::FAHRPR);
    Read(text, Temperature::CELS, Temperature::FAHR);
    Read(text, MTF_SAVE_NATIVE, MTF_EXPORT_CSV);
    Read(text, LangCC(), LangCC("DE"));
    Read(text, RR::Date(), RR::Date(31, 1, 2024));
    Read(text, RR::DateTime(), RR::DateTime(31, 1, 2024, 23, 59, 59));
    Read(text, QString(), QStringLiteral("x"));
    ReadTwice<SVersion>(text);
    ReadTwice<LVersion>(text);
    ReadTwice<TavorDev::SensorProfile>(text);
    return 0;
}
