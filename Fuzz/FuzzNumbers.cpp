#include "RRx/RRFixPnt.h"
#include "RRx/RRList.h"
#include "RRx/RRString.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>

using namespace RR;

namespace {

/// A number that is printed must be read again as itself; whatever else is read must print as a text that is.
template <class T>
void CheckInteger(const char* text)
{
    T value;
    if (!String::Parse(text, value)) {
        RR_ASSERT(value == 0 || value == static_cast<T>(INVALID));
        return;
    }
    T again;
    RR_ASSERT(String::Parse(String::Print(value), again) && again == value);
}

template <class Number>
void CheckFixPnt(SInt32 raw, const char* text)
{
    Number value = Number::Inlay(raw);
    Number again;
    // A zero without decimals isn't accepted as a decimal fraction, and what prints for the invalid value is out of range.
    const bool readable = raw != INVALID && (raw != 0 || Number::BASE > 1);
    RR_ASSERT(!readable || (String::Parse(String::Print(value), again) && again.Eject() == raw));

    RR_ASSERT(String::Parse(text, value) || value.Eject() == INVALID);
}

template <class A, class B>
void CheckPair(SInt32 x, SInt32 y, Bias bias)
{
    const A a = A::Inlay(x);
    const B b = B::Inlay(y);
    RR_ASSERT(FixPnt::Compare(a, b) == -FixPnt::Compare(b, a));
    RR_ASSERT((a == b) == !(a != b) && (a < b) == !(a >= b) && (a > b) == !(a <= b));
    B scaled;
    const bool fits = FixPnt::Convert(a, scaled, bias);
    RR_ASSERT(fits || scaled.Eject() == INVALID);
    if (fits && A::BASE <= B::BASE) {
        RR_ASSERT(a == scaled && A(scaled).Eject() == x);
    } else if (fits && x != INVALID) {
        RR_ASSERT(bias == ROUND || (bias == FLOOR ? a >= scaled : a <= scaled) || std::abs(SInt64{x}) > INT32_MAX - A::BASE);
    }
    a + A(b);
    a - A(b);
    a * y;
    RR_ASSERT(y == 0 || (a / y).Eject() == static_cast<SInt32>(SInt64{x} / y));
    Raster(x, y, bias);
    Round(a, bias);
}

void CheckDouble(double d, Bias bias)
{
    FixPnt3 value;
    RR_ASSERT(FixPnt::Convert(d, value, bias) || value.Eject() == INVALID);
    RR_ASSERT(value.Eject() == INVALID || std::fabs(value.Eject() - d * FixPnt3::BASE) <= 1.0);
    RR_ASSERT(std::isnan(d) || (value < d) + (value == d) + (value > d) == 1);
    Round(d);
}

void CheckText(const String& text, const String& pattern)
{
    // Backtracking takes time that grows with each star.
    const SInt32 stars = static_cast<SInt32>(std::count(pattern.Adr(), pattern.Adr() + pattern.GetLen(), '*'));
    if (stars <= 4 && text.GetLen() <= 64) {
        RR_ASSERT(!text.Matches(pattern, true) || text.Matches(pattern, false));
        RR_ASSERT(!text.Matches(pattern, true) || text.Matches('*' + pattern + '*', true));
    }
    RR_ASSERT(Compare(text, pattern) == -Compare(pattern, text));
    RR_ASSERT(text.Upper().Lower() == text.Lower() && text.Upper().GetLen() == text.GetLen());
    RR_ASSERT(String(text).Simplify() == String(text).Simplify().Simplify());

    List<String> pieces;
    text.Split(pattern, pieces, false);
    SInt32 sum = pieces.GetCount() - 1;
    for (auto h = pieces.First(); !h.IsNil(); h.Next()) {
        RR_ASSERT(h().IsEmpty() || !h().Contains(pattern));
        sum += h().GetLen();
    }
    RR_ASSERT(sum == text.GetLen());
    SInt32 at = 0;
    RR_ASSERT(!text.Find(pattern, at) || text.Mid(at, at + pattern.GetLen()) == pattern);
}

}

/// One byte for the options, two raw integers, a raw double, then a pattern, a NUL and a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    struct {
        SInt32 x;
        SInt32 y;
        double d;
    } raw;
    if (size < 1 + sizeof raw) {
        return 0;
    }
    const Bias bias = Bias(data[0] % 3 - 1);
    std::memcpy(&raw, data + 1, sizeof raw);
    const std::string rest(reinterpret_cast<const char*>(data) + 1 + sizeof raw, size - 1 - sizeof raw);
    const std::size_t cut = std::min(rest.find('\0'), rest.size());
    const String pattern(rest.substr(0, cut).c_str());
    const String text(rest.substr(std::min(cut + 1, rest.size())).c_str());

    CheckInteger<UInt32>(text);
    CheckInteger<SInt32>(text);
    UInt16 u16;
    SInt16 s16;
    UInt08 u08;
    SInt08 s08;
    RR_ASSERT(String::Parse(text, u16) || u16 == 0);
    RR_ASSERT(String::Parse(text, s16) || s16 == 0);
    RR_ASSERT(String::Parse(text, u08) || u08 == 0);
    RR_ASSERT(String::Parse(text, s08) || s08 == 0);
    double d;
    RR_ASSERT(String::Parse(text, d) ? !std::isnan(d) : d == 0.0);

    CheckFixPnt<FixPnt0>(raw.x, text);
    CheckFixPnt<FixPnt1>(raw.x, text);
    CheckFixPnt<FixPnt3>(raw.x, text);
    CheckFixPnt<FixPnt6>(raw.x, text);
    CheckPair<FixPnt0, FixPnt3>(raw.x, raw.y, bias);
    CheckPair<FixPnt3, FixPnt1>(raw.x, raw.y, bias);
    CheckPair<FixPnt6, FixPnt0>(raw.x, raw.y, bias);
    CheckPair<FixPnt1, FixPnt6>(raw.x, raw.y, bias);
    CheckDouble(raw.d, bias);
    CheckDouble(d, bias);
    const SInt32 mapped = TransLinear(raw.x, raw.y, SInt32(size) * 1000, raw.y / 3, raw.x / 7);
    RR_ASSERT(mapped >= Min(raw.y / 3, raw.x / 7) && mapped <= Max(raw.y / 3, raw.x / 7));
    CheckText(text, pattern);
    return 0;
}
