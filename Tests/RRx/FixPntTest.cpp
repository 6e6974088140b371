#include "RRx/RRFixPnt.h"
#include "RRx/RRService.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace RR;

namespace {

using Wide = __int128;

const SInt32 EDGES[] = {INT32_MIN, INT32_MIN + 1, INT32_MIN + 999, -2147483000, -1000001, -1500, -1001, -999, -15, -11, -5, -1, 0,
                        1, 4, 5, 10, 1499, 1500, 1000000, 2147483, 214748364, 214748365, 2147483000, INT32_MAX - 500, INT32_MAX};

Wide Power(int exponent)
{
    Wide power = 1;
    for (; exponent > 0; --exponent) {
        power *= 10;
    }
    return power;
}

/// v / m, rounded in the direction of `bias`.
Wide Quotient(Wide v, Wide m, Bias bias)
{
    const Wide floor = v >= 0 ? v / m : -((-v + m - 1) / m);
    const Wide rest = v - floor * m;
    switch (bias) {
    case FLOOR: return floor;
    case CEIL: return floor + (rest > 0);
    default: return floor + (2 * rest > m || (2 * rest == m && v > 0));
    }
}

}

TEST(FixPntConvert, EveryPairOfTypesRoundsToTheExactQuotientOrRefuses)
{
    for (int s = 0; s <= FixPnt::FixP6; ++s) {
        for (int d = 0; d <= FixPnt::FixP6; ++d) {
            for (const SInt32 v : EDGES) {
                for (const Bias bias : {FLOOR, ROUND, CEIL}) {
                    SInt32 got = 77;
                    const bool fits = FixPnt::Convert(FixPnt::Type(s), v, FixPnt::Type(d), got, bias);
                    if (v == INVALID) {
                        EXPECT_TRUE(fits && got == INVALID) << s << ' ' << d;
                        continue;
                    }
                    if (s <= d) {
                        const Wide exact = v * Power(d - s);
                        const bool shouldFit = exact >= -INT32_MAX && exact <= INT32_MAX;
                        EXPECT_EQ(fits, shouldFit) << s << ' ' << d << ' ' << v;
                        EXPECT_EQ(got, shouldFit ? SInt32(exact) : INVALID) << s << ' ' << d << ' ' << v;
                        continue;
                    }
                    // Where the rounding term has no room, one digit is cut off first.
                    const Wide m = Power(s - d);
                    const bool cut = v > INT32_MAX - m || v < INT32_MIN + m;
                    EXPECT_TRUE(fits);
                    EXPECT_EQ(got, SInt32(Quotient(cut ? v / 10 : v, cut ? m / 10 : m, bias))) << s << ' ' << d << ' ' << v << ' ' << bias;
                }
            }
        }
    }
}

TEST(FixPntConvert, ADoubleIsRoundedOrBecomesInvalid)
{
    constexpr double inf = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        Bias bias;
        bool fits;
        SInt32 raw;
    } rows[] = {
        {1.2345, ROUND, true, 1235}, {-1.2345, ROUND, true, -1235}, {1.0004, CEIL, true, 1001}, {1.0009, FLOOR, true, 1000},
        {-1.0001, FLOOR, true, -1001}, {-1.0009, CEIL, true, -1000}, {-0.0004, ROUND, true, 0}, {INVALID_DOUBLE, FLOOR, true, INVALID},
        {2147483.647, ROUND, true, INT32_MAX}, {2147483.648, ROUND, false, INVALID}, {2147484.0, ROUND, false, INVALID},
        {-2147483.6485, CEIL, false, INVALID}, {3e9, ROUND, false, INVALID}, {-inf, FLOOR, false, INVALID}, {inf, CEIL, false, INVALID},
        {std::nan(""), ROUND, false, INVALID}, {std::nan(""), CEIL, false, INVALID},
    };
    for (const auto& row : rows) {
        FixPnt3 value(1);
        EXPECT_EQ(FixPnt::Convert(row.value, value, row.bias), row.fits) << row.value;
        EXPECT_EQ(value.Eject(), row.raw) << row.value << ' ' << row.bias;
    }
    EXPECT_EQ(FixPnt3(2147483).Eject(), 2147483000);
    EXPECT_EQ(FixPnt3(2147484).Eject(), INVALID);
    EXPECT_EQ(FixPnt3(0x80000000).Eject(), INVALID);
    EXPECT_EQ(FixPnt0(0x90000000).Eject(), INVALID);

    FixPnt3 assigned;
    assigned = FixPnt1(1.5);
    EXPECT_EQ(assigned.Eject(), 1500) << "assigning another type must scale, not copy the raw integer";
    FixPnt& base = assigned;
    base = -0.25;
    EXPECT_EQ(assigned.Eject(), -250);
}

TEST(FixPntCompare, AgreesWithExactArithmeticAcrossTypes)
{
    FixPnt0 p0;
    FixPnt1 p1;
    FixPnt3 p3;
    FixPnt6 p6;
    FixPnt* const numbers[] = {&p0, &p1, &p3, &p6};
    for (FixPnt* const a : numbers) {
        for (FixPnt* const b : numbers) {
            for (const SInt32 x : EDGES) {
                for (const SInt32 y : EDGES) {
                    a->Inject(x);
                    b->Inject(y);
                    if (a == b || x == INVALID || y == INVALID) {
                        continue;
                    }
                    const Wide exactA = x * Power(6 - a->GetType());
                    const Wide exactB = y * Power(6 - b->GetType());
                    EXPECT_EQ(FixPnt::Compare(*a, *b), (exactA > exactB) - (exactA < exactB)) << x << ' ' << y;
                    EXPECT_EQ(*a <= *b, exactA <= exactB);
                    EXPECT_EQ(*a != *b, exactA != exactB);
                }
            }
        }
    }
}

TEST(FixPntCompare, InvalidIsSmallestAndDoublesOutOfRangeAreBeyondIt)
{
    const FixPnt3 invalid(0x80000000);
    EXPECT_TRUE(invalid == FixPnt1(0x80000000));
    EXPECT_TRUE(invalid == INVALID_DOUBLE);
    EXPECT_TRUE(invalid < FixPnt3::Min());
    EXPECT_FALSE(FixPnt3(0) == INVALID_DOUBLE);
    EXPECT_TRUE(FixPnt3::Max() < 2147483648.0);
    EXPECT_TRUE(FixPnt3::Max() < 2147483.648);
    EXPECT_TRUE(FixPnt3::Min() > -2147483649.0);
    EXPECT_TRUE(FixPnt3(1.25) < 1.2501) << "the double must not be rounded to the grid";
    EXPECT_FALSE(invalid.IsInteger());
    EXPECT_TRUE(FixPnt0(0x80000000).IsInteger());
    EXPECT_EQ(FixPnt3(-1.25).GetFractPart().Eject(), -250);
}

TEST(FixPntArithmetic, WrapsLikeTheProcessorOnAnyOperands)
{
    for (const SInt32 x : EDGES) {
        for (const SInt32 y : EDGES) {
            const FixPnt3 a = FixPnt3::Inlay(x);
            const auto wrapped = [](SInt64 exact) { return static_cast<SInt32>(static_cast<UInt32>(exact)); };
            EXPECT_EQ((a + FixPnt3::Inlay(y)).Eject(), wrapped(SInt64{x} + y));
            EXPECT_EQ((a - FixPnt3::Inlay(y)).Eject(), wrapped(SInt64{x} - y));
            EXPECT_EQ((a * y).Eject(), wrapped(SInt64{x} * y));
            FixPnt3 quotient = a;
            quotient /= y;
            EXPECT_EQ(quotient.Eject(), y == 0 ? INVALID : wrapped(SInt64{x} / (y == 0 ? 1 : y)));
            EXPECT_TRUE((a / y).Eject() == quotient.Eject());
            EXPECT_EQ(SInt64{Dist(x, y)}, std::abs(SInt64{x} - y));
        }
    }
    EXPECT_EQ((1.5 - FixPnt3(0.25)).Eject(), 1250);
    EXPECT_EQ(FixPnt3(INVALID).ToDouble(), -2147483.648);
    EXPECT_EQ(Abs(INVALID), INVALID);
}

TEST(NumericHelpers, RoundAndRasterFollowTheirBias)
{
    EXPECT_EQ(Round(2.5), 3);
    EXPECT_EQ(Round(-2.5), -3);
    EXPECT_EQ(Round(1e300), INVALID);
    EXPECT_EQ(Round(std::nan("")), INVALID);
    EXPECT_EQ(Round(FixPnt3(-1.001), FLOOR), -2);
    EXPECT_EQ(Raster(FixPnt3(1.26), FixPnt3(0.05), ROUND), 1.25);
    EXPECT_EQ(Raster(7, -5, CEIL), 7);
    for (SInt32 v = -40; v <= 40; ++v) {
        for (SInt32 raster = 1; raster <= 13; raster += 3) {
            for (const Bias bias : {FLOOR, ROUND, CEIL}) {
                const double exact = double(v) / raster;
                const double steps = bias == FLOOR ? std::floor(exact) : bias == CEIL ? std::ceil(exact) : std::round(exact);
                EXPECT_EQ(Raster(v, raster, bias), SInt32(steps) * raster) << v << ' ' << raster << ' ' << bias;
            }
        }
    }
}

TEST(NumericHelpers, TransLinearStaysInsideAndKeepsTheOrder)
{
    EXPECT_EQ(TransLinear(5, 0, 10, 0, 100), 50);
    EXPECT_EQ(TransLinear(5, 10, 0, 100, 0), 50) << "the ends may stand in either order";
    EXPECT_EQ(TransLinear(1, 0, 100, 0, 10), 0);
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
        ASSERT_TRUE(Min(dstA, dstB) <= low && low <= high && high <= Max(dstA, dstB)) << x << ' ' << y << ' ' << srcA << ' ' << srcB;
    }
}

TEST(NumericHelpers, TheHighPartComesFirst)
{
    EXPECT_EQ(MakeWord(HiByte(0xA1B2), LoByte(0xA1B2)), 0xA1B2);
    EXPECT_EQ(MakeLong(HiWord(0xF1E2D3C4), LoWord(0xF1E2D3C4)), 0xF1E2D3C4u);
    EXPECT_EQ(HiByte(0xA1B2) << 8 | HiNibble(0xC5) << 4 | LoNibble(0xC5), 0xA1C5);
}
