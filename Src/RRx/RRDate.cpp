#include "RRx/RRDateTime.h"

#include <cstring>

namespace RR {

namespace {

constexpr SInt64 maxMoveDays = 10000;

// German texts are Latin-1: the octal escape is a-umlaut, small and capital.
const char* const gerMonStr[13] = {"xxx", "Jan", "Feb", "M\344r", "Apr", "Mai", "Jun",
                                   "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
const char* const engMonStr[13] = {"xxx", "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
const char* const gerDayStr[8] = {"xx", "Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};
const char* const engDayStr[8] = {"xxx", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};

const char* const gerMonths = "JANFEBM\304RAPRMAIJUNJULAUGSEPOKTNOVDEZ";
const char* const engMonths = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";

/// 0 if the three characters are no month. Case is folded for ASCII only.
SInt32 ReadMonth(const char* text)
{
    char upper[3];
    for (int i = 0; i < 3; ++i) {
        upper[i] = text[i] >= 'a' && text[i] <= 'z' ? static_cast<char>(text[i] - 'a' + 'A') : text[i];
    }
    for (SInt32 month = 1; month <= 12; ++month) {
        const int at = (month - 1) * 3;
        if (std::memcmp(upper, gerMonths + at, 3) == 0 || std::memcmp(upper, engMonths + at, 3) == 0) {
            return month;
        }
    }
    return 0;
}

/// Days since 1 January 1970 for the first day of a year.
SInt32 DaysToYear(SInt32 year)
{
    const SInt32 before = year - 1;
    return year * 365 + before / 4 - before / 100 + before / 400 - 719527;
}

}

const Date& Date::Today()
{
    return DateTime::Now().GetDate();
}

SInt32 Date::CalcDiffInDays(const Date& a, const Date& b)
{
    return a.IsValid() && b.IsValid() ? b.ToDays() - a.ToDays() : INVALID;
}

void Date::Get(SInt32& theDay, SInt32& theMonth, SInt32& theYear) const
{
    theDay = GetDay();
    theMonth = GetMonth();
    theYear = GetYear();
}

SInt32 Date::ToDays() const
{
    return DaysToYear(year) + CalcYearDay() - 1;
}

Date Date::FromDays(SInt64 days)
{
    if (days < DaysToYear(MIN_YEAR) || days >= DaysToYear(MAX_YEAR + 1)) {
        return Date();
    }
    SInt32 rest = static_cast<SInt32>(days);
    SInt32 year = 1970 + rest / 366;
    while (DaysToYear(year) > rest) {
        --year;
    }
    while (DaysToYear(year + 1) <= rest) {
        ++year;
    }
    rest -= DaysToYear(year);
    SInt32 month = 1;
    for (SInt32 length; rest >= (length = GetDaysInMonth(static_cast<UInt08>(month), static_cast<UInt16>(year))); ++month) {
        rest -= length;
    }
    return Date(rest + 1, month, year);
}

void Date::Move(SInt64 days)
{
    if (!IsValid() || days == 0) {
        return;
    }
    Date moved;
    if (days >= -maxMoveDays && days <= maxMoveDays) {
        moved = FromDays(ToDays() + days);
    }
    const bool enteredLastYear = moved.year == MAX_YEAR && year < MAX_YEAR;
    const bool enteredFirstYear = moved.year == MIN_YEAR && year > MIN_YEAR;
    *this = enteredLastYear || enteredFirstYear ? Date() : moved;
}

Date::Weekday Date::CalcWeekDay() const
{
    constexpr UInt08 offset[13] = {0, 0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    if (!IsValid()) {
        return NON;
    }
    const SInt32 y = month < 3 ? year - 1 : year;
    const SInt32 w = (offset[month] + day + y + y / 4 + y / 400 - y / 100) % 7;
    return w == 0 ? SUN : static_cast<Weekday>(w);
}

SInt32 Date::CalcYearDay() const
{
    if (!IsValid()) {
        return INVALID;
    }
    SInt32 days = day;
    for (UInt08 m = 1; m < month; ++m) {
        days += GetDaysInMonth(m, year);
    }
    return days;
}

bool Date::Import(const char* text)
{
    *this = Date();
    if (!text) {
        return false;
    }
    if (static_cast<unsigned char>(*text) > '9') {
        return strnlen(text, 11) == 11 && Set(ReadXX(text + 4), ReadMonth(text), ReadXXXX(text + 7));
    }
    return strnlen(text, 10) == 10 && Set(ReadXX(text + 8), ReadXX(text + 5), ReadXXXX(text));
}

bool Date::Export(char* text) const
{
    const SInt32 shownMonth = IsValid() ? month : 0;
    char digits[5];
    PrintXX(GetDay(), digits);
    SimpleSubst(text, "DD", digits);
    SimpleSubst(text, "MMG", gerMonStr[shownMonth]);
    SimpleSubst(text, "MME", engMonStr[shownMonth]);
    PrintXX(GetMonth(), digits);
    SimpleSubst(text, "MM", digits);
    PrintXX(IsValid() ? year % 100 : INVALID, digits);
    SimpleSubst(text, "yy", digits);
    PrintXX(IsValid() ? year / 100 : INVALID, digits);
    PrintXX(IsValid() ? year % 100 : INVALID, digits + 2);
    SimpleSubst(text, "YYYY", digits);
    SimpleSubst(text, "wg", gerDayStr[CalcWeekDay()]);
    SimpleSubst(text, "wwe", engDayStr[CalcWeekDay()]);
    return IsValid();
}

}
