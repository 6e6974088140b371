#include "RRx/RRString.h"

namespace RR {

namespace {

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

const char* SkipBlanks(const char* p)
{
    while (IsBlank(*p)) {
        ++p;
    }
    return p;
}

bool StartsHex(const char* p)
{
    return p[0] == '0' && (p[1] == 'x' || p[1] == 'X');
}

/// The value of a digit, or -1.
int DigitOf(char c, bool hex)
{
    if (String::IsDigit(c)) {
        return c - '0';
    }
    const char lower = String::LowerOf(c);
    return hex && lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

String PrintUnsigned(UInt64 val, bool negative)
{
    char text[21];
    SInt32 at = sizeof text;
    do {
        text[--at] = static_cast<char>('0' + val % 10);
        val /= 10;
    } while (val != 0);
    if (negative) {
        text[--at] = '-';
    }
    return String(text + at, static_cast<SInt32>(sizeof text) - at);
}

String PrintHexDigits(UInt64 val, SInt32 digits)
{
    String text;
    text.SetLen(digits);
    for (SInt32 i = digits - 1; i >= 0; --i) {
        text[i] = "0123456789ABCDEF"[val & 0xF];
        val >>= 4;
    }
    return text;
}

template <class T, class Wide>
bool ParseNarrow(const char* str, T& val)
{
    Wide wide;
    val = 0;
    if (!String::Parse(str, wide) || wide != static_cast<T>(wide)) {
        return false;
    }
    val = static_cast<T>(wide);
    return true;
}

constexpr int MAX_DIGITS = 18;
constexpr int GROUP_DIGITS = 9;
constexpr SInt64 MAX_EXPONENT = 511;

/// The first digits of a mantissa as a whole number; `exponent` is the power of ten that it lacks.
struct Mantissa {
    double value = 0.0;
    SInt64 exponent = 0;
    bool hasDigits = false;
};

/// Reads digits with at most one point among them and moves `p` behind them.
Mantissa ReadMantissa(const char*& p)
{
    SInt32 groups[2] = {0, 0};
    char digits[MAX_DIGITS];
    SInt64 count = 0;
    SInt64 whole = -1;
    for (; String::IsDigit(*p) || (*p == '.' && whole < 0); ++p) {
        if (*p == '.') {
            whole = count;
        } else {
            if (count < MAX_DIGITS) {
                digits[count] = *p;
            }
            ++count;
        }
    }

    Mantissa mantissa;
    const SInt32 taken = static_cast<SInt32>(Min<SInt64>(count, MAX_DIGITS));
    const SInt32 inFirst = Max(taken - GROUP_DIGITS, 0);
    for (SInt32 i = 0; i < taken; ++i) {
        SInt32& group = groups[i >= inFirst];
        group = 10 * group + (digits[i] - '0');
    }
    mantissa.value = groups[0] * 1.0e9 + groups[1];
    mantissa.exponent = (whole < 0 ? count : whole) - taken;
    mantissa.hasDigits = count > 0;
    return mantissa;
}

/// Reads what may follow an 'e' and moves `p` behind it; false without digits.
bool ReadExponent(const char*& p, SInt64& exponent)
{
    const bool negative = *p == '-';
    if (negative || *p == '+') {
        ++p;
    }
    if (!String::IsDigit(*p)) {
        return false;
    }
    // Held below a billion, beyond which no mantissa in memory makes up for it.
    SInt64 read = 0;
    for (; String::IsDigit(*p); ++p) {
        read = Min<SInt64>(10 * read + (*p - '0'), 4000000000);
    }
    exponent += negative ? -read : read;
    return true;
}

double TimesPowerOfTen(double mantissa, SInt64 exponent)
{
    static constexpr double POWERS[] = {1.0e1, 1.0e2, 1.0e4, 1.0e8, 1.0e16, 1.0e32, 1.0e64, 1.0e128, 1.0e256};
    double power = 1.0;
    SInt64 rest = Min(Abs(exponent), MAX_EXPONENT);
    for (int i = 0; rest != 0; ++i, rest >>= 1) {
        if (rest & 1) {
            power *= POWERS[i];
        }
    }
    // The power may be infinite, which would make a zero no number.
    if (mantissa == 0.0) {
        return 0.0;
    }
    return exponent < 0 ? mantissa / power : mantissa * power;
}

}

String String::Print(UInt32 val)
{
    return PrintUnsigned(val, false);
}

String String::Print(SInt32 val)
{
    return Print(SInt64{val});
}

String String::Print(UInt64 val)
{
    return PrintUnsigned(val, false);
}

String String::Print(SInt64 val)
{
    return PrintUnsigned(val < 0 ? 0 - static_cast<UInt64>(val) : static_cast<UInt64>(val), val < 0);
}

String String::Print(const FixPnt& val)
{
    const SInt32 places = val.GetType();
    if (places == 0) {
        return Print(val.Eject());
    }
    String text = PrintUnsigned(static_cast<UInt64>(Abs(SInt64{val.Eject()})), false);
    const SInt32 missing = 1 - text.GetLen() + places;
    if (missing > 0) {
        String zeros;
        zeros.SetLen(missing, '0');
        text = zeros + text;
    }
    if (val < 0.0) {
        text = '-' + text;
    }
    const SInt32 point = text.GetLen() - places;
    return text.Left(point) + '.' + text.Right(point);
}

String String::PrintHex(UInt08 val)
{
    return PrintHexDigits(val, 2);
}

String String::PrintHex(UInt16 val)
{
    return PrintHexDigits(val, 4);
}

String String::PrintHex(UInt32 val)
{
    return PrintHexDigits(val, 8);
}

String String::PrintHex(UInt64 val)
{
    return PrintHexDigits(val, 16);
}

bool String::Parse(const char* str, UInt32& val)
{
    val = 0;
    if (str == nullptr) {
        return false;
    }
    const char* p = SkipBlanks(str);
    const bool hex = StartsHex(p);
    const UInt32 base = hex ? 16 : 10;
    p += hex ? 2 : 0;
    if (DigitOf(*p, hex) < 0) {
        return false;
    }
    UInt32 result = 0;
    for (; *p != '\0' && !IsBlank(*p); ++p) {
        const int digit = DigitOf(*p, hex);
        const UInt32 before = result;
        result = result * base + static_cast<UInt32>(digit);
        if (digit < 0 || result < before) {
            return false;
        }
    }
    if (*SkipBlanks(p) != '\0') {
        return false;
    }
    val = result;
    return true;
}

bool String::Parse(const char* str, SInt32& val)
{
    val = INVALID;
    if (str == nullptr) {
        return false;
    }
    const char* p = SkipBlanks(str);
    const bool negative = *p == '-';
    if (negative || *p == '+') {
        ++p;
        if (!IsDigit(*p) || StartsHex(p)) {
            return false;
        }
    }
    UInt32 magnitude;
    if (!Parse(p, magnitude) || magnitude > (negative ? 0x80000000u : 0x7FFFFFFFu)) {
        return false;
    }
    val = static_cast<SInt32>(negative ? 0 - magnitude : magnitude);
    return true;
}

bool String::Parse(const char* str, UInt16& val)
{
    return ParseNarrow<UInt16, UInt32>(str, val);
}

bool String::Parse(const char* str, SInt16& val)
{
    return ParseNarrow<SInt16, SInt32>(str, val);
}

bool String::Parse(const char* str, UInt08& val)
{
    return ParseNarrow<UInt08, UInt32>(str, val);
}

bool String::Parse(const char* str, SInt08& val)
{
    return ParseNarrow<SInt08, SInt32>(str, val);
}

bool String::Parse(const char* str, double& val)
{
    val = 0.0;
    if (str == nullptr) {
        return false;
    }
    const char* p = SkipBlanks(str);
    if (StartsHex(p)) {
        UInt32 whole;
        const bool valid = Parse(p, whole);
        val = whole;
        return valid;
    }

    const bool negative = *p == '-';
    if (negative || *p == '+') {
        ++p;
    }
    while (*p == '0') {
        ++p;
    }
    Mantissa mantissa = ReadMantissa(p);
    if (!mantissa.hasDigits) {
        return false;
    }
    if (*p == 'e' || *p == 'E') {
        ++p;
        if (!ReadExponent(p, mantissa.exponent)) {
            return false;
        }
    }
    if (*SkipBlanks(p) != '\0') {
        return false;
    }
    const double result = TimesPowerOfTen(mantissa.value, mantissa.exponent);
    val = negative ? -result : result;
    return true;
}

bool String::Parse(const char* str, FixPnt& val)
{
    val.Inject(INVALID);
    double d;
    return Parse(str, d) && FixPnt::Convert(d, val, ROUND);
}

}
