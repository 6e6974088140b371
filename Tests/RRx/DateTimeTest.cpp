#include "RRx/RRDateTime.h"

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <string>

using namespace RR;

namespace {

const char* const ISO_DAY = "YYYY-MM-DD";
const std::string noDay = "xxxx-xx-xx";
const std::string noDateTime = "xxxx-xx-xxTxx:xx:xx";

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

}

TEST(Date, SetBringsTheDayBackToTheEndOfItsMonthAndRefusesTheRest)
{
    const struct { SInt32 day, month, year; std::string result; } rows[] = {
        {29, 2, 2024, "2024-02-29"}, {29, 2, 2023, "2023-02-28"}, {31, 2, 1900, "1900-02-28"},
        {31, 11, 2020, "2020-11-30"}, {1, 1, 1700, "1700-01-01"}, {31, 12, 9000, "9000-12-31"},
        {0, 1, 2000, noDay}, {32, 1, 2000, noDay}, {1, 0, 2000, noDay}, {1, 13, 2000, noDay},
        {1, 1, 1699, noDay}, {1, 1, 9001, noDay}, {257, 257, 67536, noDay}};
    for (const auto& row : rows) {
        Date date(5, 5, 2005);
        EXPECT_EQ(date.Set(row.day, row.month, row.year), row.result != noDay) << row.year << '-' << row.month;
        EXPECT_EQ(Filled(date, ISO_DAY), row.result);
    }
}

TEST(Date, EachDayOfTheCalendarFollowsTheOneBefore)
{
    Date date(1, 1, 1700);
    SInt32 weekDay = Date::FRI;
    for (SInt32 number = 0; date < Date(31, 12, 8999); ++number) {
        ASSERT_EQ(Date::CalcDiffInDays(Date(1, 1, 1700), date), number);
        ASSERT_EQ(date.CalcWeekDay(), weekDay) << number;
        Date next = date;
        next.Increment(1);
        ASSERT_GT(next, date) << number;
        ASSERT_EQ(next.CalcYearDay(), next.GetYear() == date.GetYear() ? date.CalcYearDay() + 1 : 1) << number;
        date = next;
        weekDay = weekDay % 7 + 1;
    }
    EXPECT_EQ(Date::CalcDiffInDays(Date(1, 1, 2024), Date(31, 12, 2023)), -1);
    EXPECT_EQ(Date::CalcDiffInDays(Date(), NEW_YEAR_2000), INVALID);
}

TEST(Date, StepsEndAtTheEdgesOfTheCalendarAndAboveTenThousandDays)
{
    const struct { Date from; SInt32 days; std::string to; } rows[] = {
        {Date(1, 3, 2024), -1, "2024-02-29"}, {Date(1, 1, 2000), 10000, "2027-05-19"}, {Date(1, 1, 2000), 10001, noDay},
        {Date(1, 1, 2000), -10001, noDay}, {Date(1, 1, 2000), INT32_MAX, noDay},
        {Date(31, 12, 8999), 1, noDay}, {Date(1, 1, 9000), 1, "9000-01-02"}, {Date(31, 12, 9000), 1, noDay},
        {Date(1, 1, 9000), -1, "8999-12-31"}, {Date(1, 1, 9000), 0, "9000-01-01"}, {Date(1, 1, 1701), -1, noDay},
        {Date(2, 1, 1700), -1, "1700-01-01"}, {Date(31, 12, 1700), 1, "1701-01-01"}, {Date(), 1, noDay}};
    for (const auto& row : rows) {
        Date date = row.from;
        date.Increment(row.days);
        EXPECT_EQ(Filled(date, ISO_DAY), row.to) << row.days;
    }
    Date date = NEW_YEAR_2000;
    date.Decrement(INT32_MIN);
    EXPECT_FALSE(date.IsValid());
}

TEST(Time, MovesCarryTheDaysInTheDirectionOfTheCall)
{
    Time time(23, 59, 59);
    EXPECT_EQ(time.Increment(1), 1);
    EXPECT_EQ(time.Increment(-86401), -2);
    EXPECT_EQ(time.Decrement(-86402), -2);
    EXPECT_EQ(time, Time(0, 0, 1));
    EXPECT_EQ(time.Increment(2073599999), 24000);
    EXPECT_EQ(time.Decrement(2073599999), 24000);
    EXPECT_EQ(time.Decrement(Time(1, 30, 1)), 1);
    EXPECT_EQ(time + Time(2, 0, 0), Time(0, 30, 0));
    for (const SInt32 seconds : {2073600000, -2073600000, INT32_MIN}) {
        Time moved = time;
        EXPECT_EQ(moved.Decrement(seconds), INVALID) << seconds;
        EXPECT_EQ(moved.Increment(1), INVALID) << seconds;
    }
}

TEST(DateTime, TheTimeCarriesTheDateAndInvalidSortsLast)
{
    const struct { const char* from; SInt32 seconds; std::string to; } rows[] = {
        {"2023-12-31T23:59:59", 1, "2024-01-01T00:00:00"}, {"2024-01-01T00:00:00", -1, "2023-12-31T23:59:59"},
        {"2024-02-28T12:00:00", 86400 + 3600, "2024-02-29T13:00:00"}, {"2024-01-01T00:00:00", INT32_MAX, noDateTime},
        {"2024-01-01T00:00:00", 10001 * 86400, noDateTime}, {"2024-01-01T24:00:00", 0, noDateTime}};
    for (const auto& row : rows) {
        DateTime up(row.from);
        up.Increment(row.seconds);
        EXPECT_EQ(Iso(up), row.to) << row.seconds;
        DateTime down(row.from);
        down.Decrement(-row.seconds);
        EXPECT_EQ(down, up) << row.seconds;
    }
    EXPECT_EQ(Iso(SILVESTER_2000 - Time(0, 0, 1) + Time(0, 0, 2)), "2000-01-01T00:00:01");
    EXPECT_EQ(Iso(SILVESTER_2000 + Time()), noDateTime);

    EXPECT_TRUE(DateTime() > DateTime::Now() && DateTime::Now() > SILVESTER_2000);
    EXPECT_LT(DateTime(2, 1, 2000, 0, 0, 0), DateTime(1, 2, 2000, 0, 0, 0));
}

TEST(DateTime, SecondsSince1970FitBothWaysUpTo2106)
{
    const struct { UInt32 seconds; const char* text; } rows[] = {
        {0, "1970-01-01T00:00:00"}, {86399, "1970-01-01T23:59:59"}, {951782400, "2000-02-29T00:00:00"},
        {0x80000000, "2038-01-19T03:14:08"}, {0xFFFFFFFF, "2106-02-07T06:28:15"}};
    UInt32 seconds;
    for (const auto& row : rows) {
        DateTime value;
        value.Import(row.seconds);
        EXPECT_EQ(Iso(value), row.text);
        EXPECT_TRUE(value.Export(seconds) && seconds == row.seconds) << seconds;
    }
    for (const char* text : {"1969-12-31T23:59:59", "2106-02-07T06:28:16", "9000-01-01T00:00:00", ""}) {
        EXPECT_FALSE(DateTime(text).Export(seconds) || seconds != 0xFFFFFFFF) << text;
    }
}

TEST(DateTime, LocalAndUniversalTimeFollowTheZone)
{
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    tzset();
    const struct { const char* utc; const char* local; } rows[] = {
        {"2024-01-31T23:30:00", "2024-02-01T00:30:00"}, {"2024-07-01T12:00:00", "2024-07-01T14:00:00"},
        {"1969-12-31T23:59:59", "1970-01-01T00:59:59"}, {noDateTime.c_str(), "1700-01-01T00:30:00"}};
    for (const auto& row : rows) {
        DateTime value(row.local);
        value.Universalize();
        EXPECT_EQ(Iso(value), row.utc);
        value.Localize();
        EXPECT_EQ(Iso(value), value.IsValid() ? row.local : noDateTime);
    }
    unsetenv("TZ");
    tzset();
}

TEST(DateTime, ReadsItsTwoFormsAndNothingElse)
{
    const struct { const char *text, *result; } rows[] = {
        {"2024-01-31T23:59:59", "2024-01-31T23:59:59"}, {"2024-01-31 23:59:59rest", "2024-01-31T23:59:59"},
        {"2024x 1x 2x 3x04x05", "2024-01-02T03:04:05"}, {"2024-02-31T00:00:00", "2024-02-29T00:00:00"},
        {"Jan 31 2024 23:59:59", "2024-01-31T23:59:59"}, {"deZ  3 2024 00:00:00", "2024-12-03T00:00:00"},
        {"Okt-03-2024_01:02:03", "2024-10-03T01:02:03"}, {"M\304R 03 2024 01:02:03", "2024-03-03T01:02:03"},
        {"M\344r 03 2024 01:02:03", nullptr}, {"ANF 03 2024 01:02:03", nullptr}, {"Jan  0 2024 01:02:03", nullptr},
        {"2024-01-31T24:00:00", nullptr}, {"2024-01-31T23:60:00", nullptr}, {"2024-13-31T23:00:00", nullptr},
        {"2024-01-31", nullptr}, {"2024-01-31T23:59:5", nullptr}, {"Jan 31 2024 ", nullptr}, {"Jan 31 202", nullptr},
        {"2024-01-3", nullptr}, {"", nullptr}, {nullptr, nullptr},
        {"0\377\377\377-\377\377-\377\377 \377\377:\377\377:\377\377", nullptr}};
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
    const struct { DateTime value; const char *templ, *text; } rows[] = {
        {evening, "_yyMMDD_hhmmss_", "_240131_235958_"}, {evening, "MME-DD-YYYY hh:mm:ss", "Jan-31-2024 23:59:58"},
        {evening, "wg wwe MM/MMG ?h:mm$ DD", "Mi Wed 01/Jan 11:59p 31"}, {evening, "D M YYY h s", "D M YYY h s"},
        {night, "MMG yy ?h$ wg", "M\344r 00 12a Fr"}, {DateTime(1, 1, 2000, 12, 0, 0), "?h$", "12p"},
        {DateTime(), "DD MMG MME MM yy YYYY wg wwe hh ?h mm ss $", "xx xxx xxx xx xx xxxx xx xxx xx xx xx xx p"}};
    for (const auto& row : rows) {
        EXPECT_EQ(Filled(row.value, row.templ), row.text) << row.templ;
    }
}
