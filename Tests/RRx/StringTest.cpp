#include "RRx/RRList.h"
#include "RRx/RRString.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace RR;

namespace {

/// The pieces that Split cuts `text` into, each with a bar behind it.
String Pieces(const char* text, const char* separators, bool skipEmpty)
{
    List<String> list;
    list.Append("old");
    String(text).Split(separators, list, skipEmpty);
    String pieces;
    for (auto h = list.First(); !h.IsNil(); h.Next()) {
        pieces += h() + '|';
    }
    return pieces;
}

/// What Parse made of `text`: the value, or "refused" and what it left in the variable.
template <class T>
std::string Parsed(const char* text)
{
    T value = 77;
    const bool valid = String::Parse(text, value);
    return (valid ? "" : "refused ") + std::to_string(value);
}

}

TEST(String, PartsAreCutAtTheIndicesAndSeparatorsNamed)
{
    const String s("abcdef");
    const struct { String got; std::string expected; } rows[] = {
        {s.Mid(2, 4), "cd"}, {s.Mid(4, 2), ""}, {s.Mid(-1, 2), "ab"}, {s.Mid(6, 9), ""}, {s.Mid(5, INT32_MAX), "f"},
        {s.Mid(0, -1), ""}, {s.Left(2), "ab"}, {s.Right(4), "ef"}, {s.Rest(2), "ef"}, {s.Rest(9), "abcdef"},
        {s.Rest(INVALID), ""}, {String(s).Chop(2), "abcd"}, {String(s).Chop(0), "abcdef"}, {String(s).Chop(6), ""},
        {String("abc", 0), ""}, {String("abc", 2), "ab"}, {String("abc", 0x80000000), "abc"}, {String(0), ""},
        {String("  a \t b  ").Simplify(), "a b"}, {String("\v\f ").Simplify(), ""}, {String("a\n").Simplify(), "a\n"},
        {String(" \t a  b\v ").Trim(), "a  b\v"}, {String(" \t").Trim(), ""}, {String("a,,").Replace(',', ';'), "a;;"},
        {String("z\xE4\xF7\xFF").Upper(), "Z\xC4\xF7\xFF"}, {String("Z\xC4\xD7\xDF").Lower(), "z\xE4\xD7\xDF"},
        {"x" + s.Left(1) + 'y' + "z" + String(), "xayz"}, {Pieces("a,,b", ",", false), "a||b|"},
        {Pieces("a,,b;", ";,", true), "a|b|"}, {Pieces(",", ",", false), "||"}, {Pieces("", ",", false), "|"},
        {Pieces("", ",", true), ""}, {Pieces("ab", nullptr, false), "ab|"}};
    for (const auto& row : rows) {
        EXPECT_STREQ(row.got, row.expected.c_str());
        EXPECT_EQ(row.got.GetLen(), SInt32(row.expected.size())) << row.expected;
    }
}

TEST(String, KeepsItsTextWhenItIsItsOwnSource)
{
    String s("abc");
    s = *&s;
    s += s;
    s = s.Adr() + 2;
    EXPECT_STREQ(s, "cabc");
    String(s).First() = 'x';
    EXPECT_STREQ(s, "cabc") << "the copy shares the text";

    List<String> list;
    list.Append("p q");
    list.First()().Split(" ", list, true);
    EXPECT_STREQ(list.Last()(), "q");
}

TEST(String, SearchesFromAnyIndexOn)
{
    SInt32 pos = 1;
    EXPECT_TRUE(String("abcabc").Find("ab", pos) && pos == 3);
    EXPECT_TRUE(String("abc").Find("", pos) && pos == 3);
    for (const SInt32 start : {-1, 3, 4, INT32_MAX}) {
        pos = start;
        EXPECT_FALSE(String("abc").Find("c", pos) || pos != INVALID) << start;
    }
}

TEST(String, SortsUmlautsWithTheirBaseLettersAndComparesBytes)
{
    const struct { const char *a, *b; int expected; } rows[] = {
        {"\xC4pfel", "Apfel", 0}, {"Stra\xDF" "e", "Strasse", 0}, {"a", "B", 1}, {"\xDF", "s", 1}, {"\xDF", "st", -1},
        {"\xFCz", "uz", 0}, {"z", "\xE9", -1}, {"ab", "abc", -1}, {nullptr, nullptr, 0}, {nullptr, "z", 1}};
    for (const auto& row : rows) {
        EXPECT_EQ(Compare(row.a, row.b), row.expected) << (row.a ? row.a : "null");
        EXPECT_EQ(Compare(row.b, row.a), -row.expected) << (row.b ? row.b : "null");
    }
    const String umlaut("\xC4");
    EXPECT_TRUE(umlaut <= "A" && umlaut >= String("A") && umlaut != "A");
}

TEST(String, MatchesWildcardsWithBacktracking)
{
    const struct { const char *text, *pattern; bool caseSensitive, expected; } rows[] = {
        {"axxbc", "a*b?", true, true}, {"ab", "a*b?", true, false}, {"abcab", "*ab", true, true}, {"", "*", true, true},
        {"x.mea", "*.MEA", false, true}, {"x.mea", "*.MEA", true, false}, {"\xE4", "\xC4", false, true},
        {"abb", "*a?a*", true, false}, {"aaxb", "*a?b*", true, true}, {"", "?", true, false}, {"", "", true, true},
        {"a", "", true, false}, {"abc", "*?", true, true}, {"abc", "?*??", true, true}, {"ab", "?*??", true, false},
        {"a*b", "a\\*b", true, true}, {"axb", "a\\*b", true, false}, {"a?\\", "a\\?\\\\", true, true},
        {"ab", "a\\b", true, false}, {"a", "a\\", true, false}, {"ab", "*\\b", true, false},
        {"mississippi", "m*iss*p?", true, true}, {"mississippi", "m*iss*ps", true, false}};
    for (const auto& row : rows) {
        EXPECT_EQ(String(row.text).Matches(row.pattern, row.caseSensitive), row.expected) << row.text << row.pattern;
    }
}

TEST(StringNumbers, PrintsTheEndsOfEveryRange)
{
    EXPECT_STREQ(String::Print(INT64_MIN), "-9223372036854775808");
    EXPECT_STREQ(String::Print(UINT64_MAX), "18446744073709551615");
    EXPECT_STREQ(String::PrintHex(UInt08{0xA}), "0A");
    EXPECT_STREQ(String::PrintHex(UInt64{0xFEDCBA9876543210}), "FEDCBA9876543210");
    EXPECT_STREQ(String::Print(FixPnt3::Inlay(-1)), "-0.001");
    EXPECT_STREQ(String::Print(FixPnt6(12)), "12.000000");
}

TEST(StringNumbers, ParsesIntegersToTheLastOneThatFits)
{
    EXPECT_EQ(Parsed<SInt32>(" +0012\t"), "12");
    EXPECT_EQ(Parsed<SInt32>("-2147483648"), "-2147483648");
    EXPECT_EQ(Parsed<SInt32>("0x7fffFFFF"), "2147483647");
    EXPECT_EQ(Parsed<UInt32>("0XfFfFfFfF"), "4294967295");
    EXPECT_EQ(Parsed<UInt16>("65536"), "refused 0");
    EXPECT_EQ(Parsed<SInt16>("-32768"), "-32768");
    for (const char* text : {"2147483648", "-2147483649", "0x80000000", "-0x10", "- 1", "+-1", "1-", "1 2", "12a"}) {
        EXPECT_EQ(Parsed<SInt32>(text), "refused -2147483648") << text;
    }
    for (const char* text : {"4294967296", "0x100000000", "-1", "+1", "0xg", "0x", " "}) {
        EXPECT_EQ(Parsed<UInt32>(text), "refused 0") << text;
    }
}

TEST(StringNumbers, ParsesDecimalFractionsAsExactlyAsTheLibraryDoes)
{
    std::mt19937_64 random(9);
    for (int i = 0; i < 20000; ++i) {
        // Up to 15 digits and a small exponent are exact in one double operation.
        std::string text = std::to_string(random() % 1000000000000000 + 1);
        text.insert(random() % (text.size() + 1), ".");
        text = (i % 2 ? "-00" : "+") + text + (i % 3 ? "e" + std::to_string(i % 15 - 7) : "");
        double value;
        ASSERT_TRUE(String::Parse(text.c_str(), value)) << text;
        ASSERT_EQ(value, std::strtod(text.c_str(), nullptr)) << text;
    }
    const struct { const char* text; double expected; } rows[] = {
        {"1.5e2", 150.0}, {" 0x10 ", 16.0}, {"0.0", 0.0}, {".5", 0.5}, {"5.", 5.0}, {"0.0e600", 0.0}, {"1e-600", 0.0},
        {"1E+3", 1000.0}, {"123456789012345678999", 123456789012345678000.0}, {"0.0000000000000000019", 1e-18},
        {"1e99999999999999999999", HUGE_VAL}};
    for (const auto& row : rows) {
        double value = 7.0;
        EXPECT_TRUE(String::Parse(row.text, value)) << row.text;
        EXPECT_DOUBLE_EQ(value, row.expected) << row.text;
    }
    for (const char* text : {"", "0", ".", "0.", "-", "1.5e", "1e+", "12abc", "1.2.3", "1 2", "-0x10", "e5", "1,5"}) {
        EXPECT_EQ(Parsed<double>(text), "refused 0.000000") << text;
    }
}

TEST(StringNumbers, FixedPointTextsComeBackAsTheSameRawInteger)
{
    FixPnt3 value;
    std::mt19937 random(3);
    for (int i = 0; i < 3000; ++i) {
        // Never the invalid one, which isn't read back.
        const SInt32 raw = static_cast<SInt32>(random() >> (1 + i % 31)) * (i % 2 ? 1 : -1);
        const String text = String::Print(FixPnt3::Inlay(raw));
        ASSERT_TRUE(String::Parse(text, value) && value.Eject() == raw) << text.Adr();
    }
    EXPECT_TRUE(String::Parse("1.2345", value) && value.Eject() == 1235);
    EXPECT_TRUE(!String::Parse("2147484", value) && value.Eject() == INVALID);
}
