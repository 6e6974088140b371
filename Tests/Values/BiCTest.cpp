#include "BiC.h"

#include <gtest/gtest.h>

using RR::FixPnt1;
using RR::FixPnt2;
using RR::FixPnt3;
using RR::SInt32;
using RR::String;

namespace {

/// What `text` reads as, told in the written form.
template <typename Type>
std::string Reads(const char* text, const Type& fallback)
{
    Type value = fallback;
    BiC(String(text), value, fallback);
    return BiC(value).Adr();
}

template <typename Version>
std::string ReadsVersion(const char* text)
{
    Version value("1.1");
    BiC(String(text), value);
    return BiC(value).Adr();
}

struct Row {
    const char* text;
    const char* reads;
};

}

TEST(BiC, NumbersHaveAllDecimalsAndNoValueReadsAsTheFallback)
{
    for (const auto& [text, reads] : {Row{"1.5", "1.500"}, {" -0.001 ", "-0.001"}, {"0.000", "0.000"}, {"0", "7.000"},
                                      {"---", "7.000"}, {"", "7.000"}, {"1,5", "7.000"}, {"2147484", "7.000"},
                                      {"0x10", "16.000"}, {"nan", "7.000"}, {"1e400", "7.000"}}) {
        EXPECT_EQ(Reads(text, FixPnt3(7)), reads) << text;
    }
    EXPECT_EQ(Reads("99.95", FixPnt1(7)), "100.0");
    EXPECT_EQ(Reads("-1.25", FixPnt2(7)), "-1.25");
    for (const auto& [text, reads] : {Row{" 12 ", "12"}, {"-2147483647", "-2147483647"}, {"2147483648", "7"},
                                      {"---", "7"}, {"1.0", "7"}, {"", "7"}}) {
        EXPECT_EQ(Reads(text, SInt32{7}), reads) << text;
    }
}

TEST(BiC, WordsLettersAndNames)
{
    for (const auto& [text, reads] : {Row{"YES", "yes"}, {"No", "no"}, {"ja", "yes"}, {" no", "yes"}, {"", "yes"}}) {
        EXPECT_EQ(Reads(text, true), reads) << text;
    }
    EXPECT_EQ(Reads("B", 'x'), "B");
    EXPECT_EQ(Reads("BC", 'x'), "x");
    EXPECT_EQ(Reads(" \ta b ", String("x")), "a b");
    EXPECT_EQ(Reads(" \t", String("x")), "x");
    EXPECT_EQ(Reads("uk", LangCC("DE")), "UK");
    EXPECT_EQ(Reads("UKR", LangCC("DE")), "DE");
    EXPECT_EQ(Reads("MPa", Pressure::BAR), "MPa");
    EXPECT_EQ(Reads("mpa", Pressure::PSI), "psi");
    EXPECT_EQ(Reads("fahrPr", Humidity::CELS), "fahrPr");
    EXPECT_EQ(Reads("celsPr", Temperature::FAHR), "fahr");
    EXPECT_EQ(Reads("CVS", MTF_SAVE_NATIVE), "CVS");
    EXPECT_EQ(Reads("CSV", MTF_SAVE_NATIVE), "NAT");
    EXPECT_EQ(BiC(static_cast<Humidity::Unit>(-1)), "---");
}

TEST(BiC, AListKeepsItsReadableElements)
{
    const Pressure bar(1.013, 101.3, 14.692, 0.101);
    for (const auto& [text, reads] : {Row{"2,200,29.008,0.2", "2.000,200.000,29.008,0.200"},
                                      {"2,---,,0.2", "2.000,---,---,0.200"},
                                      {"2,200,29", "2.000,200.000,29.000,---"},
                                      {"---,---,---,---", "1.013,101.300,14.692,---"},
                                      {"---,---,---", "1.013,101.300,14.692,---"},
                                      {"1,2,3,4,5", "1.013,101.300,14.692,---"},
                                      {"", "1.013,101.300,14.692,---"}}) {
        EXPECT_EQ(Reads(text, bar), reads) << text;
    }
    const Humidity dry(-40, -40, 127, 15.658);
    for (const auto& [text, reads] : {Row{"-36,-32,198,24,-12,x", "-36.000,-32.000,198.000,24.000,-12.000,---"},
                                      {"-36,-32,198,24,-12", "-40.000,-40.000,127.000,15.658,---,---"},
                                      {"0,0,0,0,0,0", "-40.000,-40.000,127.000,15.658,---,---"}}) {
        EXPECT_EQ(Reads(text, dry), reads) << text;
    }
    for (const auto& [text, reads] : {Row{"60,140", "60,140"}, {"60,---", "60,---"}, {"x,140", "---,140"},
                                      {"---,---", "23,73"}, {"60", "23,73"}, {"60,140,1", "23,73"}}) {
        EXPECT_EQ(Reads(text, Temperature(23, 73)), reads) << text;
    }
}

TEST(BiC, DatesThatAreNoneReadAsTheFallback)
{
    const RR::Date date(31, 1, 2024);
    EXPECT_EQ(Reads("2023-02-31", date), "2023-02-28");
    EXPECT_EQ(Reads("2023-13-01", date), "2024-01-31");
    const RR::DateTime time(31, 1, 2024, 23, 59, 58);
    EXPECT_EQ(Reads("2023-05-04", time), "2024-01-31T23:59:58");
    EXPECT_EQ(Reads("2023-05-04T24:00:00", time), "2024-01-31T23:59:58");
}

TEST(BiC, AnyNameFitsAnAsciiFile)
{
    for (const QString& name : {QString(), QStringLiteral("M1"), QStringLiteral("Ä€\"\n"), QStringLiteral("変圧器 🛢"),
                                QString(QChar(0xD800)), QString(1, QChar(0))}) {
        QString read;
        BiC(BiC(name), read, QStringLiteral("y"));
        EXPECT_EQ(read, name);
    }
    EXPECT_EQ(BiC(QStringLiteral("Ä€")), "196,8364,0");
    EXPECT_EQ(Reads("77,49,7", QString()), "77,49,0") << "the last unit goes, whatever it is";
    EXPECT_EQ(Reads("77,x,65536,49,0", QString()), "77,0,0,49,0");
    EXPECT_EQ(Reads("", QStringLiteral("y")), "121,0");
}

TEST(SLVersion, OnlyWholeVersionsAreRead)
{
    for (const auto& [text, reads] : {Row{"1.5", "1.5"}, {" V 1.2 \t", "1.2"}, {"v0.0", "0.0"}, {"12.3", "-.-"},
                                      {"1.23", "-.-"}, {"1.", "-.-"}, {"VV1.2", "-.-"}, {"1.2x", "-.-"}, {"", "-.-"}}) {
        EXPECT_EQ(ReadsVersion<SVersion>(text), reads) << text;
    }
    for (const auto& [text, reads] : {Row{"V1.90", "1.90"}, {" v12.34 ", "12.34"}, {"V1.9", "1.09"}, {"01.2", "1.02"},
                                      {"V 1.2", "--.--"}, {"123.4", "--.--"}, {"1.234", "--.--"}, {".5", "--.--"}}) {
        EXPECT_EQ(ReadsVersion<LVersion>(text), reads) << text;
    }
    EXPECT_FALSE(SVersion(nullptr).IsValid() || LVersion(nullptr).IsValid());
    EXPECT_FALSE(SVersion(10, 0).IsValid() || SVersion(0, -1).IsValid());
    EXPECT_LT(SVersion("9.9"), SVersion()) << "an invalid version is the greatest";
    EXPECT_LT(LVersion("1.9"), LVersion("1.10"));
    SVersion fromTheWire;
    fromTheWire.BCD() = 0x1A;
    EXPECT_STREQ(fromTheWire.ToStr(), "-.-");
}
