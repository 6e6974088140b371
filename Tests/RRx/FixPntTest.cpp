#include "RRx/RRFixPnt.h"
#include "RRx/RRService.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <utility>

using namespace RR;

namespace {

using Wide = __int128;

const SInt32 EDGES[] = {
    INT32_MIN, INT32_MIN + 1, INT32_MIN + 999, -2147483000, -1000001, -1500, -1001, -15, -11, -5, -1, 0, 1, 4, 5, 10,
    1499, 1500, 1000000, 2147483, 214748364, 214748365, 2147483000, INT32_MAX - 500, INT32_MAX};

Wide Power(int exponent)
{
    Wide power = 1;
    for (; exponent > 0; --exponent) {
        power *= 10;
    }
    return power;
}

/// v / m, rounded in the direction of `bias`; halves away from zero. `m` is a power of ten.
Wide Quotient(Wide v, Wide m, Bias bias)
{
    if (v < 0) {
        return -Quotient(-v, m, Bias(-bias));
    }
    return (v + (bias == CEIL ? m - 1 : bias == ROUND ? m / 2 : 0)) / m;
}

/// `v` with `s` decimal places as a number with `d` places. Beyond the range of the raw integers where it doesn't fit.
Wide Scaled(int s, SInt32 v, int d, Bias bias)
{
    if (s <= d) {
        return v * Power(d - s);
    }
    // Where the rounding term has no room, one digit is cut off first.
    const Wide m = Power(s - d);
    const bool cut = v > INT32_MAX - m || v < INT32_MIN + m;
    return Quotient(cut ? v / 10 : v, cut ? m / 10 : m, bias);
}

}

TEST(FixPntConvert, EveryPairOfTypesRoundsToTheExactQuotientOrRefuses)
{
    for (int types = 0; types < 49; ++types) {
        const int s = types / 7;
        const int d = types % 7;
        for (const SInt32 v : EDGES) {
            for (const Bias bias : {FLOOR, ROUND, CEIL}) {
                const Wide exact = v == INVALID ? INVALID : Scaled(s, v, d, bias);
                const bool shouldFit = v == INVALID || (exact >= -INT32_MAX && exact <= INT32_MAX);
                SInt32 got = 77;
                EXPECT_EQ(FixPnt::Convert(FixPnt::Type(s), v, FixPnt::Type(d), got, bias), shouldFit);
                EXPECT_EQ(got, shouldFit ? SInt32(exact) : INVALID) << s << ' ' << d << ' ' << v << ' ' << bias;
            }
        }
    }
}

TEST(FixPntConvert, ADoubleIsRoundedOrBecomesInvalid)
{
    const struct { double value; Bias bias; bool fits; SInt32 raw; } rows[] = {
        {1.2345, ROUND, true, 1235}, {-1.2345, ROUND, true, -1235}, {1.0004, CEIL, true, 1001},
        {1.0009, FLOOR, true, 1000}, {-1.0001, FLOOR, true, -1001}, {-1.0009, CEIL, true, -1000},
        {-0.0004, ROUND, true, 0}, {INVALID_DOUBLE, FLOOR, true, INVALID}, {2147483.648, ROUND, false, INVALID},
        {-2147483.6485, CEIL, false, INVALID}, {3e9, ROUND, false, INVALID}, {-HUGE_VAL, FLOOR, false, INVALID},
        {std::nan(""), CEIL, false, INVALID}};
    for (const auto& row : rows) {
        FixPnt3 value(1);
        EXPECT_EQ(FixPnt::Convert(row.value, value, row.bias), row.fits) << row.value;
        EXPECT_EQ(value.Eject(), row.raw) << row.value << ' ' << row.bias;
    }
    EXPECT_EQ(FixPnt3(2147483).Eject(), 2147483000);
    EXPECT_EQ(FixPnt3(2147484).Eject(), INVALID);

    FixPnt3 assigned;
    assigned = FixPnt1(1.5);
    EXPECT_EQ(assigned.Eject(), 1500) << "assigning another type must scale, not copy the raw integer";
}

TEST(FixPntCompare, AgreesWithExactArithmeticAcrossTypes)
{
    FixPnt0 p0;
    FixPnt1 p1;
    FixPnt3 p3;
    FixPnt6 p6;
    for (const auto& [a, b] : {std::pair<FixPnt*, FixPnt*>{&p0, &p3}, {&p6, &p0}, {&p1, &p3}, {&p6, &p1}, {&p3, &p6}}) {
        for (const SInt32 x : EDGES) {
            for (const SInt32 y : EDGES) {
                if (x == INVALID || y == INVALID) {
                    continue;
                }
                const Wide exactA = x * Power(6 - a->Inject(x).GetType());
                const Wide exactB = y * Power(6 - b->Inject(y).GetType());
                EXPECT_EQ(FixPnt::Compare(*a, *b), (exactA > exactB) - (exactA < exactB)) << x << ' ' << y;
                EXPECT_EQ(*a <= *b, exactA <= exactB) << x << ' ' << y;
            }
        }
    }
}

TEST(FixPntCompare, InvalidIsSmallestAndDoublesOutOfRangeAreBeyondIt)
{
    const FixPnt3 invalid(0x80000000);
    EXPECT_TRUE(invalid == FixPnt1(0x80000000) && invalid == INVALID_DOUBLE);
    EXPECT_TRUE(invalid < FixPnt3::Min() && FixPnt3::Min() > -2147483649.0);
    EXPECT_TRUE(FixPnt3::Max() < 2147483.648 && FixPnt3::Max() < 2147483648.0);
    EXPECT_TRUE(FixPnt3(1.25) < 1.2501) << "the double must not be rounded to the grid";
}

TEST(FixPntArithmetic, WrapsLikeTheProcessorOnAnyOperands)
{
    const auto wrapped = [](SInt64 exact) { return static_cast<SInt32>(static_cast<UInt32>(exact)); };
    for (const SInt32 x : EDGES) {
        for (const SInt32 y : EDGES) {
            const FixPnt3 a = FixPnt3::Inlay(x);
            EXPECT_EQ((a + FixPnt3::Inlay(y)).Eject(), wrapped(SInt64{x} + y));
            EXPECT_EQ((a - FixPnt3::Inlay(y)).Eject(), wrapped(SInt64{x} - y));
            EXPECT_EQ((a * y).Eject(), wrapped(SInt64{x} * y));
            EXPECT_EQ((a / y).Eject(), y == 0 ? INVALID : wrapped(SInt64{x} / (y == 0 ? 1 : y)));
            EXPECT_EQ(SInt64{Dist(x, y)}, std::abs(SInt64{x} - y));
        }
    }
    EXPECT_EQ((1.5 - FixPnt3(0.25)).Eject(), 1250);
    EXPECT_EQ(Abs(INVALID), INVALID);
}

TEST(NumericHelpers, RoundAndRasterFollowTheirBias)
{
    EXPECT_EQ(Round(-2.5), -3);
    EXPECT_EQ(Round(std::nan("")), INVALID);
    EXPECT_EQ(Round(FixPnt3(-1.001), FLOOR), -2);
    EXPECT_EQ(Raster(FixPnt3(1.26), FixPnt3(0.05), ROUND), 1.25);
    EXPECT_EQ(Raster(7, -5, CEIL), 7);
    for (SInt32 v = -40; v <= 40; ++v) {
        for (const SInt32 raster : {1, 4, 7, 10}) {
            EXPECT_EQ(Raster(v, raster, FLOOR), SInt32(std::floor(double(v) / raster)) * raster) << v << ' ' << raster;
            EXPECT_EQ(Raster(v, raster, ROUND), SInt32(std::round(double(v) / raster)) * raster) << v << ' ' << raster;
            EXPECT_EQ(Raster(v, raster, CEIL), SInt32(std::ceil(double(v) / raster)) * raster) << v << ' ' << raster;
        }
    }
}

TEST(NumericHelpers, TransLinearStaysInsideAndKeepsTheOrder)
{
    EXPECT_EQ(TransLinear(5, 10, 0, 100, 0), 50) << "the ends may stand in either order";
    EXPECT_EQ(TransLinear(5, 0, 100, 0, 10), 1) << "rounds halves up";
    EXPECT_EQ(TransLinear(3, 3, 3, 10, 21), 15);
    EXPECT_EQ(TransLinear(0, -9, 9, 4, 4), 4);
    EXPECT_EQ(TransLinear(INT32_MAX - 1, INT32_MIN, INT32_MAX, 0, 1), 1) << "the rounding term wraps";

    std::mt19937 random(5);
    const auto any = [&] { return EDGES[random() % std::size(EDGES)]; };
    for (int i = 0; i < 20000; ++i) {
        const SInt32 srcA = any(), srcB = any(), dstA = any(), dstB = any();
        const SInt32 x = static_cast<SInt32>(random()), y = any();
        const SInt32 low = TransLinear(Min(x, y), srcA, srcB, dstA, dstB);
        const SInt32 high = TransLinear(Max(x, y), srcA, srcB, dstA, dstB);
        ASSERT_TRUE(Min(dstA, dstB) <= low && low <= high && high <= Max(dstA, dstB)) << x << ' ' << y << ' ' << i;
    }
}
