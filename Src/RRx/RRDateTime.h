#pragma once

#include "RRx/RRDate.h"
#include "RRx/RRTime.h"

namespace RR {

/// A date with a time of day, local time unless stated; no time zone is kept. Either both parts are valid or
/// none. An invalid value compares greater than every valid one.
class DateTime {
public:
    constexpr DateTime() = default;
    constexpr DateTime(const Date& date, const Time& time) { Set(date, time); }
    constexpr DateTime(SInt32 day, SInt32 month, SInt32 year, SInt32 hour, SInt32 minute, SInt32 second)
    {
        Set(day, month, year, hour, minute, second);
    }
    explicit DateTime(const char* text) { Import(text); }

    /// The system's local time, invalid if the clock can't be read. One object, refreshed at each call: copy
    /// it at once, and don't call from two threads at the same time.
    static const DateTime& Now();

    /// Invalid as a whole, with `false`, if a field is out of range; the day follows the rule of `Date::Set`.
    constexpr bool Set(SInt32 day, SInt32 month, SInt32 year, SInt32 hour, SInt32 minute, SInt32 second)
    {
        return Set(Date(day, month, year), Time(hour, minute, second));
    }
    constexpr bool Set(const Date& newDate, const Time& newTime)
    {
        const bool valid = newDate != Date() && newTime != Time();
        date = valid ? newDate : Date();
        time = valid ? newTime : Time();
        return valid;
    }

    bool IsValid() const { return date.IsValid() && time.IsValid(); }
    void Get(SInt32& day, SInt32& month, SInt32& year, SInt32& hour, SInt32& minute, SInt32& second) const;
    void Get(Date& theDate, Time& theTime) const;
    const Date& GetDate() const { return date; }
    const Time& GetTime() const { return time; }
    /// `INVALID` for an invalid value.
    SInt32 GetDay() const { return date.GetDay(); }
    SInt32 GetMonth() const { return date.GetMonth(); }
    SInt32 GetYear() const { return date.GetYear(); }
    SInt32 GetHour() const { return time.GetHour(); }
    SInt32 GetMinute() const { return time.GetMinute(); }
    SInt32 GetSecond() const { return time.GetSecond(); }

    friend constexpr bool operator==(const DateTime&, const DateTime&) = default;
    friend constexpr std::strong_ordering operator<=>(const DateTime&, const DateTime&) = default;

    /// Move the value by seconds; the carry of the time moves the date. Beyond the limits of `Time` and `Date`,
    /// or with an invalid `amount`, it becomes invalid.
    void Increment(SInt32 seconds) { Carry(time.Increment(seconds)); }
    void Increment(const Time& amount) { Carry(time.Increment(amount)); }
    void Decrement(SInt32 seconds) { CarryBack(time.Decrement(seconds)); }
    void Decrement(const Time& amount) { CarryBack(time.Decrement(amount)); }

    DateTime& operator+=(const Time& amount);
    DateTime& operator-=(const Time& amount);
    DateTime operator+(const Time& amount) const { return DateTime(*this) += amount; }
    DateTime operator-(const Time& amount) const { return DateTime(*this) -= amount; }

    Date::Weekday CalcWeekDay() const { return date.CalcWeekDay(); }
    SInt32 CalcYearDay() const { return date.CalcYearDay(); }

    /// Seconds since 1 January 1970, 00:00:00, without any time zone correction.
    void Import(UInt32 tSecs);
    /// The reverse; `false` and 0xFFFFFFFF before 1970, after 7 February 2106, 06:28:15, and if invalid.
    bool Export(UInt32& tSecs) const;

    /// Takes the value as UTC and turns it into the system's local time.
    void Localize();
    /// Takes the value as the system's local time and turns it into UTC; the system decides on daylight saving.
    void Universalize();

    /// Reads a date in a form of `Date::Import`, any one character, and a time.
    bool Import(const char* cBuf);
    /// Fills the template in `cBuf` in place, with the patterns of `Date::Export` and `Time::Export`.
    bool Export(char* cBuf) const;

private:
    /// Days that the time has passed, `INVALID` if the time is no more valid.
    void Carry(SInt32 days);
    void CarryBack(SInt32 days);
    /// Seconds since 1970. For a valid value only.
    SInt64 ToSeconds() const;
    void FromSeconds(SInt64 seconds);

    Date date;
    Time time;
};

/// The earliest value taken for a clock that is set.
inline constexpr DateTime SILVESTER_2000(NEW_YEAR_2000, MIDNIGHT);

/// Overwrites each `find` in `text` with `rep`, as far as both reach. A null argument, an empty `find` and
/// an empty `rep` change nothing.
void SimpleSubst(char* text, const char* find, const char* rep);

/// Two decimal digits and a NUL; "xx" for `v` outside 0 to 99.
void PrintXX(SInt32 v, char* buffer);

/// The number in two characters, of which the first may be a space. Any other character counts by its distance
/// from '0', so the caller has to test the range.
SInt32 ReadXX(const char* text);

/// The same for four characters, without spaces.
SInt32 ReadXXXX(const char* text);

}
