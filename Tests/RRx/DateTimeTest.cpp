#include "RRx/RRDateTime.h"

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <string>

using namespace RR;

namespace {

template <class T>
std::string Filled(const T& value, std::string templ)
{
    value.Export(templ.data());
    return templ;
}

std::string Iso(const DateTime& value)
{
    return Filled(value, "YYYY-MM-DDThh:mm:ss");
}

std::string Iso(const Date& value)
{
    return Filled(value, "YYYY-MM-DD");
}

const std::string noDateTime = "xxxx-xx-xxTxx:xx:xx";

/// Puts the process into a time zone, and back at the end of its scope.
struct Zone {
    explicit Zone(const char* name)
    {
        setenv("TZ", name, 1);
        tzset();
    }
    ~Zone()
    {
        unsetenv("TZ");
        tzset();
    }
};

}

TEST(Date, SetBringsTheDayBackToTheEndOfItsMonthAndRefusesTheRest)
{
    struct { SInt32 day, month, year; const char* result; } const rows[] = {
        {29, 2, 2024, "2024-02-29"}, {29, 2, 2023, "2023-02-28"}, {31, 2, 1900, "1900-02-28"}, {31, 2, 2000, "2000-02-29"},
        {31, 11, 2020, "2020-11-30"}, {1, 1, 1700, "1700-01-01"}, {31, 12, 9000, "9000-12-31"},
        {0, 1, 2000, "xxxx-xx-xx"}, {32, 1, 2000, "xxxx-xx-xx"}, {1, 0, 2000, "xxxx-xx-xx"}, {1, 13, 2000, "xxxx-xx-xx"},
        {1, 1, 1699, "xxxx-xx-xx"}, {1, 1, 9001, "xxxx-xx-xx"}, {257, 257, 67536, "xxxx-xx-xx"}};
    for (const auto& row : rows) {
        Date date(5, 5, 2005);
        EXPECT_EQ(date.Set(row.day, row.month, row.year), row.result[0] != 'x') << row.day << ' ' << row.month << ' ' << row.year;
        EXPECT_EQ(Iso(date), row.result);
    }
    EXPECT_EQ(Date(1, 1, 1699).GetYear(), INVALID);
    EXPECT_EQ(Date::GetDaysInMonth(2, 9001), INVALID);
    EXPECT_EQ(Date::GetDaysInMonth(13, 2000), INVALID);
}

TEST(Date, EachDayOfTheCalendarFollowsTheOneBefore)
{
    Date date(1, 1, 1700);
    SInt32 weekDay = date.CalcWeekDay();
    ASSERT_EQ(weekDay, Date::FRI);
    for (SInt32 number = 0; date < Date(31, 12, 8999); ++number) {
        ASSERT_EQ(Date::CalcDiffInDays(Date(1, 1, 1700), date), number) << Iso(date);
        ASSERT_EQ(date.CalcWeekDay(), weekDay) << Iso(date);
        Date next = date;
        next.Increment(1);
        ASSERT_GT(next, date) << Iso(date);
        ASSERT_EQ(next.CalcYearDay(), next.GetYear() == date.GetYear() ? date.CalcYearDay() + 1 : 1) << Iso(next);
        date = next;
        weekDay = weekDay % 7 + 1;
    }
    EXPECT_EQ(Date(31, 12, 2024).CalcYearDay(), 366);
    EXPECT_EQ(NEW_YEAR_2000.CalcWeekDay(), Date::SAT);
    EXPECT_EQ(Date::CalcDiffInDays(Date(1, 1, 2024), Date(31, 12, 2023)), -1);
    EXPECT_EQ(Date::CalcDiffInDays(Date(), NEW_YEAR_2000), INVALID);
    EXPECT_EQ(Date().CalcWeekDay(), Date::NON);
    EXPECT_EQ(Date().CalcYearDay(), INVALID);
}

TEST(Date, StepsEndAtTheEdgesOfTheCalendarAndAboveTenThousandDays)
{
    struct { Date from; SInt32 days; const char* to; } const rows[] = {
        {Date(1, 3, 2024), -1, "2024-02-29"}, {Date(1, 1, 2000), 10000, "2027-05-19"}, {Date(19, 5, 2027), -10000, "2000-01-01"},
        {Date(1, 1, 2000), 10001, "xxxx-xx-xx"}, {Date(1, 1, 2000), -10001, "xxxx-xx-xx"},
        {Date(1, 1, 2000), INT32_MIN, "xxxx-xx-xx"}, {Date(1, 1, 2000), INT32_MAX, "xxxx-xx-xx"},
        {Date(31, 12, 8999), 1, "xxxx-xx-xx"}, {Date(1, 1, 9000), 1, "9000-01-02"}, {Date(31, 12, 9000), 1, "xxxx-xx-xx"},
        {Date(1, 1, 9000), -1, "8999-12-31"}, {Date(1, 1, 9000), 0, "9000-01-01"},
        {Date(1, 1, 1701), -1, "xxxx-xx-xx"}, {Date(1, 1, 1701), -400, "xxxx-xx-xx"}, {Date(2, 1, 1700), -1, "1700-01-01"},
        {Date(31, 12, 1700), 1, "1701-01-01"}, {Date(), 1, "xxxx-xx-xx"}};
    for (const auto& row : rows) {
        Date up = row.from;
        up.Increment(row.days);
        EXPECT_EQ(Iso(up), row.to) << Iso(row.from) << " by " << row.days;
        if (row.days != INT32_MIN) {
            Date down = row.from;
            down.Decrement(-row.days);
            EXPECT_EQ(down, up) << Iso(row.from) << " by " << row.days;
        }
    }
    Date date = NEW_YEAR_2000;
    date.Decrement(INT32_MIN);
    EXPECT_FALSE(date.IsValid());
}

TEST(Time, MovesCarryTheDaysInTheDirectionOfTheCall)
{
    struct { Time from; SInt32 seconds; const char* to; SInt32 days; } const rows[] = {
        {Time(23, 59, 59), 1, "00:00:00", 1}, {Time(0, 0, 0), -1, "23:59:59", -1}, {Time(1, 0, 0), 86400, "01:00:00", 1},
        {Time(0, 0, 0), 86399, "23:59:59", 0}, {Time(0, 0, 1), -86402, "23:59:59", -2},
        {Time(0, 0, 0), 2073599999, "23:59:59", 23999}, {Time(0, 0, 0), -2073599999, "00:00:01", -24000},
        {Time(0, 0, 0), 2073600000, "xx:xx:xx", INVALID}, {Time(0, 0, 0), -2073600000, "xx:xx:xx", INVALID},
        {Time(0, 0, 0), INT32_MIN, "xx:xx:xx", INVALID}, {Time(), 1, "xx:xx:xx", INVALID}};
    for (const auto& row : rows) {
        Time up = row.from;
        EXPECT_EQ(up.Increment(row.seconds), row.days) << row.seconds;
        EXPECT_EQ(Filled(up, "hh:mm:ss"), row.to) << row.seconds;
        if (row.seconds != INT32_MIN) {
            Time down = row.from;
            EXPECT_EQ(down.Decrement(-row.seconds), row.days == INVALID ? INVALID : -row.days) << row.seconds;
            EXPECT_EQ(down, up) << row.seconds;
        }
    }
    Time time(0, 0, 0);
    EXPECT_EQ(time.Decrement(), 1);
    EXPECT_EQ(time.Increment(), 1);
    EXPECT_EQ(time.Decrement(Time(1, 30, 0)), 1);
    EXPECT_EQ(time, Time(22, 30, 0));
    EXPECT_EQ(time + Time(2, 0, 0), Time(0, 30, 0));
    EXPECT_EQ(time.Decrement(Time()), INVALID);
    EXPECT_FALSE(time.IsValid());
    EXPECT_EQ(time.Import(UInt32(0xFFFFFFFF)), 49710);
    EXPECT_EQ(time, Time(6, 28, 15));
    UInt32 seconds;
    EXPECT_TRUE(time.Export(seconds));
    EXPECT_EQ(seconds, 23295u);
    EXPECT_FALSE(Time(24, 0, 0).Export(seconds));
    EXPECT_EQ(seconds, 0xFFFFFFFF);
}

TEST(DateTime, TheTimeCarriesTheDateAndInvalidSortsLast)
{
    DateTime value(31, 12, 2023, 23, 59, 59);
    EXPECT_EQ(value + Time(0, 0, 1), DateTime(1, 1, 2024, 0, 0, 0));
    value.Increment(1 - 86400);
    EXPECT_EQ(Iso(value), "2023-12-31T00:00:00");
    value -= Time(0, 0, 1);
    EXPECT_EQ(Iso(value), "2023-12-30T23:59:59");
    value.Decrement(-(86400 + 1));
    EXPECT_EQ(Iso(value), "2024-01-01T00:00:00");

    for (const SInt32 seconds : {INT32_MIN, INT32_MAX, 10001 * 86400}) {
        DateTime moved = value;
        moved.Increment(seconds);
        EXPECT_EQ(moved, DateTime()) << seconds;
    }
    value.Increment(Time());
    EXPECT_EQ(Iso(value), noDateTime);

    EXPECT_EQ(DateTime(1, 1, 2000, 24, 0, 0), DateTime(Date(), MIDNIGHT));
    EXPECT_GT(DateTime(), DateTime::Now());
    EXPECT_GT(DateTime::Now(), SILVESTER_2000);
    EXPECT_LT(DateTime(2, 1, 2000, 0, 0, 0), DateTime(1, 2, 2000, 0, 0, 0));
    EXPECT_LT(DateTime(31, 12, 1999, 23, 59, 59), SILVESTER_2000);
}

TEST(DateTime, SecondsSince1970FitBothWaysUpTo2106)
{
    struct { UInt32 seconds; const char* text; } const rows[] = {
        {0, "1970-01-01T00:00:00"}, {86399, "1970-01-01T23:59:59"}, {951782400, "2000-02-29T00:00:00"},
        {0x80000000, "2038-01-19T03:14:08"}, {0xFFFFFFFF, "2106-02-07T06:28:15"}};
    UInt32 seconds;
    for (const auto& row : rows) {
        DateTime value;
        value.Import(row.seconds);
        EXPECT_EQ(Iso(value), row.text);
        EXPECT_TRUE(value.Export(seconds)) << row.text;
        EXPECT_EQ(seconds, row.seconds);
    }
    for (const char* text : {"1969-12-31T23:59:59", "2106-02-07T06:28:16", "9000-01-01T00:00:00", ""}) {
        EXPECT_FALSE(DateTime(text).Export(seconds)) << text;
        EXPECT_EQ(seconds, 0xFFFFFFFF) << text;
    }
}

TEST(DateTime, LocalAndUniversalTimeFollowTheZone)
{
    const Zone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    struct { const char* utc; const char* local; } const rows[] = {
        {"2024-01-31T23:30:00", "2024-02-01T00:30:00"}, {"2024-07-01T12:00:00", "2024-07-01T14:00:00"},
        {"1969-12-31T23:59:59", "1970-01-01T00:59:59"}};
    for (const auto& row : rows) {
        DateTime value(row.utc);
        value.Localize();
        EXPECT_EQ(Iso(value), row.local);
        value.Universalize();
        EXPECT_EQ(Iso(value), row.utc);
    }
    DateTime first(1, 1, 1700, 0, 30, 0);
    first.Universalize();
    EXPECT_FALSE(first.IsValid()) << Iso(first);
}

TEST(DateTime, ReadsItsTwoFormsAndNothingElse)
{
    struct { const char* text; const char* result; } const rows[] = {
        {"2024-01-31T23:59:59", "2024-01-31T23:59:59"}, {"2024-01-31 23:59:59rest", "2024-01-31T23:59:59"},
        {"2024x 1x 2x 3x04x05", "2024-01-02T03:04:05"}, {"2024-02-31T00:00:00", "2024-02-29T00:00:00"},
        {"Jan 31 2024 23:59:59", "2024-01-31T23:59:59"}, {"deZ  3 2024 00:00:00", "2024-12-03T00:00:00"},
        {"Okt-03-2024_01:02:03", "2024-10-03T01:02:03"}, {"M\304R 03 2024 01:02:03", "2024-03-03T01:02:03"},
        {"M\344r 03 2024 01:02:03", nullptr}, {"ANF 03 2024 01:02:03", nullptr}, {"Jan  0 2024 01:02:03", nullptr},
        {"2024-01-31T24:00:00", nullptr}, {"2024-01-31T23:60:00", nullptr}, {"2024-13-31T23:00:00", nullptr},
        {"2024-01-31", nullptr}, {"2024-01-31T", nullptr}, {"2024-01-31T23:59:5", nullptr}, {"Jan 31 2024", nullptr},
        {"Jan 31 2024 ", nullptr}, {"Jan 31 202", nullptr}, {"2024-01-3", nullptr}, {"", nullptr}, {nullptr, nullptr},
        {"\377\377\377\377\377\377\377\377\377\377\377\377\377\377\377\377\377\377\377\377", nullptr},
        {"0\377\377\377-\377\377-\377\377 \377\377:\377\377:\377\377", nullptr},
        {"\001\001\001\001\001\001\001\001\001\001\001\001\001\001\001\001\001\001\001", nullptr}};
    for (const auto& row : rows) {
        DateTime value(5, 5, 2005, 5, 5, 5);
        EXPECT_EQ(value.Import(row.text), row.result != nullptr) << row.text;
        EXPECT_EQ(Iso(value), row.result ? row.result : noDateTime) << row.text;
    }
}

TEST(DateTime, TemplatesAreFilledInPlace)
{
    const DateTime evening(31, 1, 2024, 23, 59, 58);
    const DateTime night(3, 3, 2000, 0, 4, 5);
    struct { DateTime value; const char* templ; const char* text; } const rows[] = {
        {evening, "_yyMMDD_hhmmss_", "_240131_235958_"}, {evening, "MME-DD-YYYY hh:mm:ss", "Jan-31-2024 23:59:58"},
        {evening, "wg wwe MM/MMG ?h:mm$ ?h$ DD", "Mi Wed 01/Jan 11:59p 11p 31"}, {evening, "D M YYY h s", "D M YYY h s"},
        {night, "MMG yy ?h$ wg", "M\344r 00 12a Fr"}, {DateTime(1, 1, 2000, 12, 0, 0), "?h$", "12p"},
        {DateTime(), "DD MMG MME MM yy YYYY wg wwe hh ?h mm ss $", "xx xxx xxx xx xx xxxx xx xxx xx xx xx xx p"}};
    for (const auto& row : rows) {
        EXPECT_EQ(Filled(row.value, row.templ), row.text) << row.templ;
    }

    std::string text = "aaXaa";
    SimpleSubst(text.data(), "aa", "b");
    EXPECT_EQ(text, "baXba");
    SimpleSubst(text.data(), "ba", "1234");
    EXPECT_EQ(text, "12X12");
    SimpleSubst(text.data(), "", "1");
    SimpleSubst(text.data(), "12", "");
    EXPECT_EQ(text, "12X12");
}
