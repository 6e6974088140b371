#include "Conversions.h"
#include "Types.h"

#include <cmath>
#include <gtest/gtest.h>
#include <tuple>

using RR::FixPnt3;
using RR::INVALID_DOUBLE;

TEST(Conversions, EveryWayBetweenTwoUnitsLeadsBackAndPassesNoValueOn)
{
    using Conv = double (*)(double);
    const struct {
        Conv there, back;
        double from, to;
    } rows[] = {
        {ConvBarToKPa, ConvKPaToBar, 1.013, 101.3},         {ConvBarToPsi, ConvPsiToBar, 1.013, 14.692323},
        {ConvBarToMPa, ConvMPaToBar, 1.013, 0.1013},        {ConvKPaToPsi, ConvPsiToKPa, 101.3, 14.692323},
        {ConvKPaToMPa, ConvMPaToKPa, 101.3, 0.1013},        {ConvPsiToMPa, ConvMPaToPsi, 14.692323, 0.1013},
        {ConvPPMvToPPMw, ConvPPMwToPPMv, 1000.0, 123.288},  {ConvCelsToFahr, ConvFahrToCels, -40.0, -40.0},
        {ConvCelsToFahr, ConvFahrToCels, 36.5, 97.7},       {ConvFahrDPToPPMv, ConvPPMvToFahrDP, 32.0, 6033.56},
        {ConvCelsDPToPPMw, ConvPPMwToCelsDP, 0.0, 743.865}, {ConvFahrDPToPPMw, ConvPPMwToFahrDP, 32.0, 743.865},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(row.there(row.from), row.to, std::abs(row.to) * 1e-5) << row.from;
        EXPECT_NEAR(row.back(row.there(row.from)), row.from, 1e-9) << row.to;
        EXPECT_EQ(row.there(INVALID_DOUBLE), INVALID_DOUBLE) << row.from;
        EXPECT_EQ(row.back(INVALID_DOUBLE), INVALID_DOUBLE) << row.to;
    }
}

TEST(Conversions, DewPointsComeBackFromTheirWaterContent)
{
    for (double t = -80.0; t < 45.0; t += 0.5) {
        EXPECT_NEAR(ConvPPMvToCelsDP(ConvCelsDPToPPMv(t)), t, 1e-6);
    }
    EXPECT_NEAR(ConvCelsDPToPPMv(-20.0), 1032.6 / 1.013, 1.0) << "1.0326 hPa over ice";
    EXPECT_NEAR(ConvCelsDPToPPMv(20.0), 23370.0 / 1.013, 60.0) << "23.37 hPa over water";
}

TEST(Conversions, WhatLiesOutsideARangeHasNoValue)
{
    const struct {
        double (*conv)(double);
        double inside, outside;
    } rows[] = {
        {ConvCelsToFahr, -999.9, -1000.0},    {ConvCelsToFahr, 999999.9, 1000000.0},
        {ConvFahrToCels, -1767.0, -1767.1},   {ConvFahrToCels, 1800031.0, 1800032.0},
        {ConvCelsDPToPPMv, -80.0, -80.1},     {ConvCelsDPToPPMv, 45.0, 45.1},
        {ConvPPMvToCelsDP, 0.5, 0.49},        {ConvPPMvToCelsDP, 94000.0, 94000.1},
    };
    for (const auto& row : rows) {
        EXPECT_NE(row.conv(row.inside), INVALID_DOUBLE) << row.inside;
        EXPECT_EQ(row.conv(row.outside), INVALID_DOUBLE) << row.outside;
    }
    for (const auto& [ppmv, bar, valid] : {std::tuple{30000.0, 1.0, true}, {30000.1, 1.0, false}, {0.0, 1.0, false},
                                           {100.0, 100.0, true}, {100.0, 100.1, false}, {100.0, 0.0, false}}) {
        EXPECT_EQ(CalcPressurizedDP(ppmv, bar) != INVALID_DOUBLE, valid) << ppmv << " ppmv, " << bar << " bar";
    }
}

TEST(Conversions, ThePressurizedDewPointRisesWithThePressure)
{
    for (const double dp : {-60.0, -40.0, -20.0, -5.0, 5.0, 15.0}) {
        const double ppmv = ConvCelsDPToPPMv(dp);
        EXPECT_NEAR(CalcPressurizedDP(ppmv, 1.013), dp, 0.25) << "the two formulas drift apart";
        EXPECT_GT(CalcPressurizedDP(ppmv, 6.0), CalcPressurizedDP(ppmv, 1.0) + 10.0);
    }
    EXPECT_DOUBLE_EQ(CalcPressurizedDP(6107.14, 1.0), 0.1);
    EXPECT_NEAR(CalcPressurizedDP(10600.0, 1.0) - CalcPressurizedDP(10600.1, 1.0), 0.1, 0.001);
}

TEST(Conversions, AReadingIsValidInAllUnitsOrInNone)
{
    const Pressure none = ConvBarToPressure(FixPnt3(RR::INVALID));
    for (const auto unit : {Pressure::BAR, Pressure::KPA, Pressure::PSI, Pressure::MPA}) {
        EXPECT_EQ(none[unit].Eject(), RR::INVALID);
    }
    EXPECT_EQ(ConvBarToPressure(FixPnt3(30000))[Pressure::KPA].Eject(), RR::INVALID) << "too large for a field";
    EXPECT_EQ(Humidity(1, 2, 3, 4)[Humidity::FAHRPR].Eject(), RR::INVALID);
    EXPECT_DEATH(Pressure()[Pressure::NUM], "0<=index && index < NUM");
    EXPECT_DEATH(Temperature()[static_cast<Temperature::Unit>(-1)], "0<=index && index < NUM");
}

TEST(Types, ALanguageCodeIsTwoLettersOrNone)
{
    for (const auto& [text, code] : {std::pair{"de", "DE"}, {"UKx", "UK"}, {"\xE4\xFC", "\xC4\xDC"}, {"d", "--"},
                                     {"", "--"}, {"d1", "--"}, {"-E", "--"}}) {
        EXPECT_STREQ(LangCC(text).ToStr(), code) << text;
    }
    LangCC langCC("FR");
    EXPECT_FALSE(langCC.Set(nullptr));
    EXPECT_EQ(langCC, LangCC());
    EXPECT_LT(LangCC("DZ"), LangCC("EA"));
    EXPECT_GT(LangCC("\xC4" "A"), LangCC("ZZ")) << "bytes compare unsigned";
}
