#pragma once

#include "RRx/RRFixPnt.h"

namespace RR {

/// The fixed-point number of `PLACES` decimal places.
template <FixPnt::Type PLACES>
class FixPntOf final : public FixPnt {
public:
    static constexpr SInt32 BASE = FixPntRaw::TABLES.mult[FixP0][PLACES];

    /// Leaves the value unset.
    constexpr FixPntOf() = default;
    /// A whole number; invalid if it doesn't fit.
    constexpr FixPntOf(SInt32 v) { Convert(FixP0, v, PLACES, f, ROUND); }
    constexpr FixPntOf(SInt16 v) : FixPntOf(SInt32{v}) { }
    /// For literals such as 0x80000000: what no `SInt32` holds is invalid.
    constexpr FixPntOf(UInt32 v) : FixPntOf(v <= INT32_MAX ? static_cast<SInt32>(v) : INVALID) { }
    constexpr FixPntOf(double v, Bias bias = ROUND) { Convert(v, *this, bias); }
    constexpr FixPntOf(const FixPnt& v, Bias bias = ROUND) { Convert(v, *this, bias); }

    constexpr FixPntOf(const FixPntOf&) = default;
    constexpr FixPntOf& operator=(const FixPntOf&) = default;
    // Written out: GCC 12 doesn't define the implied one in time for constant expressions.
    constexpr ~FixPntOf() override { }

    /// Holds exactly `raw`, unscaled.
    static constexpr FixPntOf Inlay(SInt32 raw)
    {
        FixPntOf value(0);
        value.f = raw;
        return value;
    }
    /// The smallest step, and the ends of the valid range.
    static constexpr FixPntOf Tic() { return Inlay(1); }
    static constexpr FixPntOf Min() { return Inlay(-INT32_MAX); }
    static constexpr FixPntOf Max() { return Inlay(INT32_MAX); }

    constexpr void operator=(double v) { Convert(v, *this, ROUND); }

    constexpr Type GetType() const override { return PLACES; }
    constexpr SInt32 GetBase() const override { return BASE; }
    constexpr bool IsInteger() const override { return f % BASE == 0; }
    /// With the sign of the value.
    constexpr FixPntOf GetFractPart() const { return Inlay(f % BASE); }

    constexpr SInt32& ToInteger() requires(PLACES == FixP0) { return f; }
    constexpr SInt32 ToInteger() const requires(PLACES == FixP0) { return f; }

    constexpr FixPntOf operator+(FixPntOf b) const { return Inlay(WrapAdd(f, b.f)); }
    constexpr FixPntOf operator-(FixPntOf b) const { return Inlay(WrapSub(f, b.f)); }
    constexpr FixPntOf operator*(SInt32 n) const { return Inlay(WrapMul(f, n)); }
    /// Truncates towards zero. A division by zero gives an invalid value.
    constexpr FixPntOf operator/(SInt32 n) const { return Inlay(WrapDiv(f, n)); }
    constexpr void operator/=(SInt32 n) { f = WrapDiv(f, n); }
};

using FixPnt0 = FixPntOf<FixPnt::FixP0>;
using FixPnt1 = FixPntOf<FixPnt::FixP1>;
using FixPnt2 = FixPntOf<FixPnt::FixP2>;
using FixPnt3 = FixPntOf<FixPnt::FixP3>;
using FixPnt4 = FixPntOf<FixPnt::FixP4>;
using FixPnt5 = FixPntOf<FixPnt::FixP5>;
using FixPnt6 = FixPntOf<FixPnt::FixP6>;

constexpr FixPnt3 operator-(double a, FixPnt3 b) { return FixPnt3(a) - b; }

/// The nearest whole number in the direction of `bias`.
inline SInt32 Round(const FixPnt& value, Bias bias) { return FixPnt0(value, bias).Eject(); }

/// As for integers, on the raw values.
inline FixPnt3 Raster(FixPnt3 value, FixPnt3 raster, Bias bias)
{
    return FixPnt3::Inlay(Raster(value.Eject(), raster.Eject(), bias));
}

}
