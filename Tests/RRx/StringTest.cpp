#include "RRx/RRList.h"
#include "RRx/RRString.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

using namespace RR;
using testing::ElementsAre;

namespace {

std::string Std(const char* text)
{
    return text;
}

std::vector<std::string> Pieces(const char* text, const char* separators, bool skipEmpty)
{
    List<String> list;
    list.Append("old");
    String(text).Split(separators, list, skipEmpty);
    std::vector<std::string> pieces;
    for (auto h = list.First(); !h.IsNil(); h.Next()) {
        pieces.push_back(Std(h()));
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

TEST(String, PartsAreCutAtTheIndicesNamed)
{
    const String s("abcdef");
    const struct {
        String got;
        const char* expected;
    } rows[] = {
        {s.Mid(2, 4), "cd"}, {s.Mid(4, 2), ""}, {s.Mid(-1, 2), "ab"}, {s.Mid(6, 9), ""}, {s.Mid(5, INT32_MAX), "f"},
        {s.Mid(0, -1), ""}, {s.Left(2), "ab"}, {s.Right(4), "ef"}, {s.Rest(2), "ef"}, {s.Rest(9), "abcdef"},
        {s.Rest(INVALID), ""}, {String(s).Chop(2), "abcd"}, {String(s).Chop(0), "abcdef"}, {String(s).Chop(6), ""},
        {String("abc", 0), ""}, {String("abc", 2), "ab"}, {String("abc", 0x80000000), "abc"}, {String(0), ""},
        {String("  a \t b  ").Simplify(), "a b"}, {String("\v\f ").Simplify(), ""}, {String("a\n b").Simplify(), "a\n b"},
        {String(" \t a  b\v ").Trim(), "a  b\v"}, {String(" \t").Trim(), ""}, {String("a,b,").Replace(',', ';'), "a;b;"},
        {String("z\xE4\xF7\xFF").Upper(), "Z\xC4\xF7\xFF"}, {String("Z\xC4\xD7\xDF").Lower(), "z\xE4\xD7\xDF"},
        {"x" + s.Left(1) + 'y' + "z" + String(), "xayz"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Std(row.got), row.expected);
        EXPECT_EQ(row.got.GetLen(), SInt32(std::string(row.expected).size())) << row.expected;
    }
}

TEST(String, KeepsItsTextWhenItIsItsOwnSource)
{
    String s("abc");
    s = *&s;
    s += s;
    EXPECT_EQ(Std(s), "abcabc");
    s = s.Adr() + 4;
    EXPECT_EQ(Std(s), "bc");
    String copy(s);
    copy.First() = 'x';
    EXPECT_TRUE(s == "bc" && copy == "xc" && s != copy);
    s.SwapResources(copy);
    EXPECT_EQ(Std(s), "xc");
    s.SetLen(3);
    EXPECT_EQ(Std(s), "") << "another length loses the text";
    s.SetLen(3, '-');
    EXPECT_EQ(Std(s), "---");
    s = nullptr;
    EXPECT_TRUE(s.IsEmpty() && s == static_cast<const char*>(nullptr) && s.Adr() != nullptr);

    List<String> list;
    list.Append("p q");
    list.First()().Split(" ", list, true);
    EXPECT_EQ(Std(list.Last()()), "q");
}

TEST(String, SearchesAndSplits)
{
    SInt32 pos = 1;
    EXPECT_TRUE(String("abcabc").Find("ab", pos) && pos == 3);
    EXPECT_TRUE(String("abc").Find("", pos) && pos == 3);
    for (const SInt32 start : {-1, 4, INT32_MAX}) {
        pos = start;
        EXPECT_FALSE(String("abc").Find("c", pos) || pos != INVALID) << start;
    }
    pos = 0;
    EXPECT_FALSE(String("abc").Find(nullptr, pos) || pos != INVALID);
    EXPECT_TRUE(String("abc").Contains("xyc"));
    EXPECT_FALSE(String("abc").Contains("xy") || String("abc").Contains(nullptr));

    EXPECT_THAT(Pieces("a,,b", ",", false), ElementsAre("a", "", "b"));
    EXPECT_THAT(Pieces("a,,b;", ";,", true), ElementsAre("a", "b"));
    EXPECT_THAT(Pieces(",", ",", false), ElementsAre("", ""));
    EXPECT_THAT(Pieces("", ",", false), ElementsAre(""));
    EXPECT_THAT(Pieces("", ",", true), ElementsAre());
    EXPECT_THAT(Pieces("ab", nullptr, false), ElementsAre("ab"));
}

TEST(String, SortsUmlautsWithTheirBaseLettersAndComparesBytes)
{
    const struct {
        const char* a;
        const char* b;
        int expected;
    } rows[] = {
        {"\xC4pfel", "Apfel", 0}, {"Stra\xDF" "e", "Strasse", 0}, {"a", "B", 1}, {"\xDF", "s", 1}, {"\xDF", "st", -1},
        {"\xFCz", "uz", 0}, {"z", "\xE9", -1}, {"ab", "abc", -1}, {nullptr, nullptr, 0}, {"", nullptr, -1}, {nullptr, "z", 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Compare(row.a, row.b), row.expected) << (row.a ? row.a : "null");
        EXPECT_EQ(Compare(row.b, row.a), -row.expected) << (row.b ? row.b : "null");
    }
    const String umlaut("\xC4");
    EXPECT_FALSE(umlaut == "A" || umlaut < "A" || umlaut > "A");
    EXPECT_TRUE(umlaut <= "A" && umlaut >= String("A") && umlaut != "A");

    // The letters of Latin-1 are those that change their case, and sharp s.
    std::string letters;
    for (int c = 0x80; c <= 0xFF; ++c) {
        letters += String::IsLetter(static_cast<char>(c)) ? static_cast<char>(c) : '.';
    }
    EXPECT_EQ(letters.find_first_not_of('.'), 0x40u);
    EXPECT_EQ(std::count(letters.begin(), letters.end(), '.'), 64 + 3);
}

TEST(String, MatchesWildcardsWithBacktracking)
{
    const struct {
        const char* text;
        const char* pattern;
        bool caseSensitive;
        bool expected;
    } rows[] = {
        {"axxbc", "a*b?", true, true}, {"ab", "a*b?", true, false}, {"abcab", "*ab", true, true}, {"x.mea", "*.MEA", false, true},
        {"x.mea", "*.MEA", true, false}, {"\xE4", "\xC4", false, true}, {"abb", "*a?a*", true, false}, {"aaxb", "*a?b*", true, true},
        {"", "*", true, true}, {"", "?", true, false}, {"", "", true, true}, {"a", "", true, false}, {"abc", "*?", true, true},
        {"abc", "?*??", true, true}, {"ab", "?*??", true, false}, {"a*b", "a\\*b", true, true}, {"axb", "a\\*b", true, false},
        {"a?\\", "a\\?\\\\", true, true}, {"ab", "a\\b", true, false}, {"a", "a\\", true, false}, {"ab", "*\\b", true, false},
        {"mississippi", "m*iss*p?", true, true}, {"mississippi", "m*iss*ps", true, false}, {"a", nullptr, true, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(String(row.text).Matches(row.pattern, row.caseSensitive), row.expected) << row.text << ' ' << (row.pattern ? row.pattern : "null");
    }
}

TEST(StringNumbers, PrintsTheEndsOfEveryRange)
{
    EXPECT_EQ(Std(String::Print(INT32_MIN)), "-2147483648");
    EXPECT_EQ(Std(String::Print(INT64_MIN)), "-9223372036854775808");
    EXPECT_EQ(Std(String::Print(UINT64_MAX)), "18446744073709551615");
    EXPECT_EQ(Std(String::PrintHex(UInt08{0xA})), "0A");
    EXPECT_EQ(Std(String::PrintHex(UInt16{0xBEEF})), "BEEF");
    EXPECT_EQ(Std(String::PrintHex(UInt32{0x1F})), "0000001F");
    EXPECT_EQ(Std(String::PrintHex(UInt64{0xFEDCBA9876543210})), "FEDCBA9876543210");
    EXPECT_EQ(Std(String::Print(FixPnt3::Inlay(-1))), "-0.001");
    EXPECT_EQ(Std(String::Print(FixPnt3(0))), "0.000");
    EXPECT_EQ(Std(String::Print(FixPnt3(INVALID))), "-2147483.648");
    EXPECT_EQ(Std(String::Print(FixPnt6(12))), "12.000000");
}

TEST(StringNumbers, ParsesIntegersToTheLastOneThatFits)
{
    EXPECT_EQ(Parsed<SInt32>(" 12\t"), "12");
    EXPECT_EQ(Parsed<SInt32>("+0012"), "12");
    EXPECT_EQ(Parsed<SInt32>("-2147483648"), "-2147483648");
    EXPECT_EQ(Parsed<SInt32>("0x7fffFFFF"), "2147483647");
    EXPECT_EQ(Parsed<UInt32>("0XfFfFfFfF"), "4294967295");
    EXPECT_EQ(Parsed<UInt16>("65535"), "65535");
    EXPECT_EQ(Parsed<SInt16>("-32768"), "-32768");
    EXPECT_EQ(Parsed<UInt08>("0xff"), "255");
    for (const char* text : {"2147483648", "-2147483649", "0x80000000", "-0x10", "- 1", "+-1", "1-", "", " ", "1 2", "12a", "0x", "x1", "1.0"}) {
        EXPECT_EQ(Parsed<SInt32>(text), "refused -2147483648") << text;
    }
    for (const char* text : {"4294967296", "0x100000000", "-1", "+1", "0xg", "1x", " "}) {
        EXPECT_EQ(Parsed<UInt32>(text), "refused 0") << text;
    }
    EXPECT_EQ(Parsed<UInt16>("65536"), "refused 0");
    EXPECT_EQ(Parsed<UInt08>("256"), "refused 0");
}

TEST(StringNumbers, ParsesDecimalFractionsAsExactlyAsTheLibraryDoes)
{
    std::mt19937_64 random(9);
    for (int i = 0; i < 20000; ++i) {
        // Up to 15 digits and a small exponent are exact in one double operation.
        std::string text = std::to_string(random() % 1000000000000000 + 1);
        text.insert(random() % (text.size() + 1), ".");
        const int exponent = static_cast<int>(random() % 15) - 7;
        text = (i % 2 ? "-00" : "+") + text + (i % 3 ? "e" + std::to_string(exponent) : "");
        double value;
        ASSERT_TRUE(String::Parse(text.c_str(), value)) << text;
        ASSERT_EQ(value, std::strtod(text.c_str(), nullptr)) << text;
    }
    const struct {
        const char* text;
        double expected;
    } rows[] = {
        {"1.5e2", 150.0}, {" 0x10 ", 16.0}, {"0.0", 0.0}, {".5", 0.5}, {"5.", 5.0}, {"0.0e600", 0.0}, {"1e-600", 0.0}, {"1E+3", 1000.0},
        {"123456789012345678999", 123456789012345678000.0}, {"0.0000000000000000019", 1e-18}, {"1e99999999999999999999", HUGE_VAL},
    };
    for (const auto& row : rows) {
        double value = 7.0;
        EXPECT_TRUE(String::Parse(row.text, value)) << row.text;
        EXPECT_DOUBLE_EQ(value, row.expected) << row.text;
    }
    for (const char* text : {"", " ", "0", "00", ".", "0.", "-", "1.5e", "1e+", "12abc", "1.2.3", "1 2", "-0x10", "0xg", "e5", "inf", "nan", "1,5"}) {
        EXPECT_EQ(Parsed<double>(text), "refused 0.000000") << text;
    }
}

TEST(StringNumbers, FixedPointTextsComeBackAsTheSameRawInteger)
{
    FixPnt1 p1;
    FixPnt3 p3;
    EXPECT_TRUE(String::Parse("1.2345", p3) && p3.Eject() == 1235);
    EXPECT_TRUE(!String::Parse("abc", p3) && p3.Eject() == INVALID);
    EXPECT_TRUE(!String::Parse("2147484", p3) && p3.Eject() == INVALID);
    std::mt19937 random(3);
    FixPnt6 p6;
    for (FixPnt* const value : {static_cast<FixPnt*>(&p1), static_cast<FixPnt*>(&p3), static_cast<FixPnt*>(&p6)}) {
        for (int i = 0; i < 3000; ++i) {
            const SInt32 raw = static_cast<SInt32>(random() >> i % 32) * (i % 2 ? 1 : -1);
            if (raw == INVALID) {
                continue;
            }
            const String text = String::Print(value->Inject(raw));
            ASSERT_TRUE(String::Parse(text, *value)) << text.Adr();
            ASSERT_EQ(value->Eject(), raw) << text.Adr();
        }
    }
}
