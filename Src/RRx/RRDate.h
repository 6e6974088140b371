#pragma once

#include "RRx/RRTypeDefs.h"

#include <compare>

namespace RR {

/// A day of the Gregorian calendar, 1 January 1700 to 31 December 9000. An invalid date compares greater
/// than every valid one.
class Date {
public:
    enum Weekday { NON = 0, MON = 1, TUE = 2, WED = 3, THU = 4, FRI = 5, SAT = 6, SUN = 7 };

    constexpr Date() = default;
    constexpr Date(SInt32 day, SInt32 month, SInt32 year) { Set(day, month, year); }
    explicit Date(const char* text) { Import(text); }

    /// The date part of `DateTime::Now()`, with the same limits of use.
    static const Date& Today();

    /// `false` outside the years 1700 to 9999.
    static constexpr bool IsLeapYear(SInt32 year)
    {
        return year >= MIN_YEAR && year <= 9999 && year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    }

    /// `INVALID` for a month or a year that a valid date can't have.
    static constexpr SInt32 GetDaysInMonth(UInt08 month, UInt16 year)
    {
        constexpr UInt08 days[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        if (month < 1 || month > 12 || year < MIN_YEAR || year > MAX_YEAR) {
            return INVALID;
        }
        return month == 2 && IsLeapYear(year) ? 29 : days[month];
    }

    /// Days from `a` to `b`, negative if `b` is earlier; `INVALID` if one of them is invalid.
    static SInt32 CalcDiffInDays(const Date& a, const Date& b);

    /// Invalid, with `false`, if a field is out of range. A day behind the end of its month, up to the 31st,
    /// is brought back to the last day.
    constexpr bool Set(SInt32 newDay, SInt32 newMonth, SInt32 newYear)
    {
        *this = Date();
        if (newDay < 1 || newDay > 31 || newMonth < 1 || newMonth > 12 || newYear < MIN_YEAR || newYear > MAX_YEAR) {
            return false;
        }
        month = static_cast<UInt08>(newMonth);
        year = static_cast<UInt16>(newYear);
        const SInt32 last = GetDaysInMonth(month, year);
        day = static_cast<UInt08>(newDay < last ? newDay : last);
        return true;
    }

    bool IsValid() const { return month != NONE; }
    /// `INVALID` in all three for an invalid date, as the single getters give it.
    void Get(SInt32& theDay, SInt32& theMonth, SInt32& theYear) const;
    SInt32 GetDay() const { return IsValid() ? day : INVALID; }
    SInt32 GetMonth() const { return IsValid() ? month : INVALID; }
    SInt32 GetYear() const { return IsValid() ? year : INVALID; }

    friend constexpr bool operator==(const Date&, const Date&) = default;
    friend constexpr std::strong_ordering operator<=>(const Date&, const Date&) = default;

    /// Move the date by days, a negative amount the other way. More than 10000 days in either direction, a
    /// step up into the year 9000 and a step down into the year 1700 make it invalid.
    void Increment(SInt32 days) { Move(days); }
    void Decrement(SInt32 days) { Move(-static_cast<SInt64>(days)); }

    /// `NON` for an invalid date. Offset method of Tomohiko Sakamoto.
    Weekday CalcWeekDay() const;
    /// 1 for 1 January; `INVALID` for an invalid date.
    SInt32 CalcYearDay() const;

    /// Reads "YYYY-MM-DD", or "Mmm DD YYYY" with a German or English month, at the start of `text`; the first
    /// digit of month and day may be a space. The separators aren't looked at.
    bool Import(const char* text);
    /// Fills the template in `text` in place: "DD", "MM", "yy", "YYYY", "MMG" and "MME" the German and English
    /// month, "wg" and "wwe" the German and English week day (Latin-1). An invalid date fills with "x".
    bool Export(char* text) const;

private:
    friend class DateTime;

    static constexpr UInt08 NONE = 0xFF;
    static constexpr SInt32 MIN_YEAR = 1700;
    static constexpr SInt32 MAX_YEAR = 9000;

    /// Days since 1 January 1970. For a valid date only.
    SInt32 ToDays() const;
    /// Invalid if the day lies outside the calendar.
    static Date FromDays(SInt64 days);
    void Move(SInt64 days);

    // The order of the fields is the order of comparison.
    UInt16 year = 0xFFFF;
    UInt08 month = NONE;
    UInt08 day = NONE;
};

inline constexpr Date NEW_YEAR_2000(1, 1, 2000);

}
