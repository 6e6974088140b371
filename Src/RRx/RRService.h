#pragma once

#include "RRx/RRTypeDefs.h"

#include <type_traits>

namespace RR {

/// The direction of a rounding.
enum Bias {
    FLOOR = -1,
    ROUND = 0,
    CEIL = 1
};

/// Arithmetic that wraps like the processor's: two's complement, without undefined behaviour.
constexpr SInt32 WrapAdd(SInt32 a, SInt32 b)
{
    return static_cast<SInt32>(static_cast<UInt32>(a) + static_cast<UInt32>(b));
}

constexpr SInt32 WrapSub(SInt32 a, SInt32 b)
{
    return static_cast<SInt32>(static_cast<UInt32>(a) - static_cast<UInt32>(b));
}

constexpr SInt32 WrapMul(SInt32 a, SInt32 b)
{
    return static_cast<SInt32>(static_cast<UInt32>(a) * static_cast<UInt32>(b));
}

/// Truncates towards zero. The one quotient that doesn't fit wraps; a division by zero gives `INVALID`.
constexpr SInt32 WrapDiv(SInt32 a, SInt32 b)
{
    if (b == 0) {
        return INVALID;
    }
    return b == -1 ? WrapSub(0, a) : a / b;
}

/// Truncates towards zero; `INVALID` for what no `SInt32` holds.
constexpr SInt32 Truncate(double v)
{
    return v > -2147483649.0 && v < 2147483648.0 ? static_cast<SInt32>(v) : INVALID;
}

/// To the nearest integer, halves away from zero; `INVALID` for what no `SInt32` holds.
constexpr SInt32 Round(double v)
{
    return Truncate(v < 0 ? v - 0.5 : v + 0.5);
}

/// Brings `value` to a multiple of `raster`; unchanged for a raster of 0 or less. Wraps near the ends of the range.
constexpr SInt32 Raster(SInt32 value, SInt32 raster, Bias bias)
{
    if (raster <= 0) {
        return value;
    }
    if (bias == FLOOR && value <= 0) {
        value = WrapSub(WrapAdd(value, 1), raster);
    } else if (bias == CEIL && value > 0) {
        value = WrapSub(WrapAdd(value, raster), 1);
    } else if (bias == ROUND) {
        value = value > 0 ? WrapAdd(value, raster / 2) : WrapSub(value, raster / 2);
    }
    return value / raster * raster;
}

/// Maps `value` from the interval of `srcA` and `srcB` to that of `dstA` and `dstB`, smaller end to smaller
/// end, and clamps it there. The ends of an interval may stand in either order.
SInt32 TransLinear(SInt32 value, SInt32 srcA, SInt32 srcB, SInt32 dstA, SInt32 dstB);

/// The larger minus the smaller, unsigned so that every distance fits.
template <class T>
constexpr std::make_unsigned_t<T> Dist(T a, T b)
{
    using U = std::make_unsigned_t<T>;
    return static_cast<U>(a > b ? static_cast<U>(a) - static_cast<U>(b) : static_cast<U>(b) - static_cast<U>(a));
}

template <class T>
constexpr void Swap(T& a, T& b)
{
    const T kept = a;
    a = b;
    b = kept;
}

template <class T>
constexpr T Min(T a, T b)
{
    return b < a ? b : a;
}

template <class T>
constexpr T Max(T a, T b)
{
    return a < b ? b : a;
}

/// The smallest integer has no counterpart and stays as it is.
template <class T>
constexpr T Abs(T v)
{
    if constexpr (std::is_integral_v<T>) {
        return v < 0 ? static_cast<T>(0 - static_cast<std::make_unsigned_t<T>>(v)) : v;
    } else {
        return v < 0 ? -v : v;
    }
}

constexpr UInt08 LoNibble(UInt08 v) { return v & 0x0F; }
constexpr UInt08 HiNibble(UInt08 v) { return v >> 4; }
constexpr UInt08 LoByte(UInt16 v) { return v & 0xFF; }
constexpr UInt08 HiByte(UInt16 v) { return v >> 8; }
constexpr UInt16 LoWord(UInt32 v) { return v & 0xFFFF; }
constexpr UInt16 HiWord(UInt32 v) { return v >> 16; }
constexpr UInt16 MakeWord(UInt08 hi, UInt08 lo) { return static_cast<UInt16>(hi << 8 | lo); }
constexpr UInt32 MakeLong(UInt16 hi, UInt16 lo) { return static_cast<UInt32>(hi) << 16 | lo; }

}
