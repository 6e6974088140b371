#pragma once

#include "RRx/RRFixPntRaw.h"

namespace RR {

/// A decimal fixed-point number: the value times the type's base, in one integer. The raw integer `INVALID`
/// means no value in every type. Arithmetic wraps and doesn't test for it; a caller tests first.
class FixPnt {
public:
    /// The number of decimal places.
    enum Type { FixP0, FixP1, FixP2, FixP3, FixP4, FixP5, FixP6 };

    constexpr virtual ~FixPnt() = default;

    /// The raw integer, unscaled.
    constexpr virtual const FixPnt& Inject(SInt32 v)
    {
        f = v;
        return *this;
    }
    constexpr virtual SInt32 Eject() const { return f; }

    constexpr virtual Type GetType() const = 0;
    constexpr virtual SInt32 GetBase() const = 0;
    constexpr virtual bool IsInteger() const = 0;

    constexpr virtual bool operator==(const FixPnt& b) const { return Compare(*this, b) == 0; }
    constexpr virtual bool operator==(double b) const { return Compare(*this, b) == 0; }
    constexpr virtual bool operator!=(const FixPnt& b) const { return Compare(*this, b) != 0; }
    constexpr virtual bool operator!=(double b) const { return Compare(*this, b) != 0; }
    constexpr virtual bool operator<(const FixPnt& b) const { return Compare(*this, b) == -1; }
    constexpr virtual bool operator<(double b) const { return Compare(*this, b) == -1; }
    constexpr virtual bool operator>(const FixPnt& b) const { return Compare(*this, b) == 1; }
    constexpr virtual bool operator>(double b) const { return Compare(*this, b) == 1; }
    constexpr virtual bool operator<=(const FixPnt& b) const { return Compare(*this, b) != 1; }
    constexpr virtual bool operator<=(double b) const { return Compare(*this, b) != 1; }
    constexpr virtual bool operator>=(const FixPnt& b) const { return Compare(*this, b) != -1; }
    constexpr virtual bool operator>=(double b) const { return Compare(*this, b) != -1; }

    /// Doesn't test for `INVALID`: an invalid `FixPnt3` gives -2147483.648.
    constexpr virtual double ToDouble() const { return static_cast<double>(f) / GetBase(); }

    /// Rounds; what doesn't fit becomes invalid.
    constexpr void operator=(double v) { Convert(v, *this, ROUND); }

    /// These return false, with an invalid result, only if the value doesn't fit. Invalid stays invalid and is true.
    static constexpr bool Convert(Type srcType, SInt32 srcVal, Type dstType, SInt32& dstVal, Bias bias)
    {
        return FixPntRaw::Scale(srcType, srcVal, dstType, dstVal, bias);
    }
    static constexpr bool Convert(const FixPnt& src, FixPnt& dst, Bias bias)
    {
        return Convert(src.GetType(), src.Eject(), dst.GetType(), dst.f, bias);
    }
    static constexpr bool Convert(double src, FixPnt& dst, Bias bias)
    {
        return FixPntRaw::FromDouble(src, dst.GetBase(), dst.f, bias);
    }

    /// -1, 0 or 1. Scales to the type of more places, so that no digit is lost. Invalid is below all valid values that
    /// the type of more places can hold; one beyond its range counts by its sign alone.
    static constexpr int Compare(const FixPnt& cmp1, const FixPnt& cmp2);
    /// Exact in double arithmetic: `cmp2` isn't rounded to the places of `cmp1`.
    static constexpr int Compare(const FixPnt& cmp1, double cmp2);

protected:
    // Copies of the raw integer make sense between equal types alone, so only those have them.
    constexpr FixPnt() = default;
    constexpr FixPnt(const FixPnt&) = default;
    constexpr FixPnt& operator=(const FixPnt&) = default;

    SInt32 f;
};

constexpr int FixPnt::Compare(const FixPnt& cmp1, const FixPnt& cmp2)
{
    SInt32 a = cmp1.f;
    SInt32 b = cmp2.f;
    if (a == INVALID && b == INVALID) {
        return 0;
    }
    const Type type1 = cmp1.GetType();
    const Type type2 = cmp2.GetType();
    // An operand that can't be scaled up lies beyond the other's range, on the side of its sign.
    if (type1 < type2 && !Convert(type1, a, type2, a, ROUND)) {
        return cmp1.f > 0 ? 1 : -1;
    }
    if (type2 < type1 && !Convert(type2, b, type1, b, ROUND)) {
        return cmp2.f > 0 ? -1 : 1;
    }
    return (a > b) - (a < b);
}

constexpr int FixPnt::Compare(const FixPnt& cmp1, double cmp2)
{
    if (cmp1.f == INVALID && cmp2 == INVALID_DOUBLE) {
        return 0;
    }
    if (cmp2 < -2147483648.0) {
        return 1;
    }
    if (cmp2 > 2147483647.0) {
        return -1;
    }
    const double d = cmp2 * cmp1.GetBase();
    if (d < -2147483648.0) {
        return 1;
    }
    if (d > 2147483647.0) {
        return -1;
    }
    return (cmp1.f > d) - (cmp1.f < d);
}

}

#include "RRx/RRFixPntTypes.h"
