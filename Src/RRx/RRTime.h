#pragma once

#include "RRx/RRTypeDefs.h"

#include <compare>

namespace RR {

/// A time of day, 00:00:00 to 23:59:59. An invalid time compares greater than every valid one.
class Time {
public:
    constexpr Time() = default;
    constexpr Time(SInt32 hour, SInt32 minute, SInt32 second) { Set(hour, minute, second); }
    explicit Time(UInt32 seconds) { Import(seconds); }
    explicit Time(const char* text) { Import(text); }

    /// The time part of `DateTime::Now()`, with the same limits of use.
    static const Time& Now();

    /// Invalid, with `false`, if a field is out of range.
    constexpr bool Set(SInt32 newHour, SInt32 newMinute, SInt32 newSecond)
    {
        if (newHour < 0 || newHour > 23 || newMinute < 0 || newMinute > 59 || newSecond < 0 || newSecond > 59) {
            *this = Time();
            return false;
        }
        hour = static_cast<UInt08>(newHour);
        minute = static_cast<UInt08>(newMinute);
        second = static_cast<UInt08>(newSecond);
        return true;
    }

    bool IsValid() const { return hour != NONE; }
    /// `INVALID` in all three for an invalid time, as the single getters give it.
    void Get(SInt32& theHour, SInt32& theMinute, SInt32& theSecond) const;
    SInt32 GetHour() const { return IsValid() ? hour : INVALID; }
    SInt32 GetMinute() const { return IsValid() ? minute : INVALID; }
    SInt32 GetSecond() const { return IsValid() ? second : INVALID; }

    friend constexpr bool operator==(const Time&, const Time&) = default;
    friend constexpr std::strong_ordering operator<=>(const Time&, const Time&) = default;

    /// Move the time by seconds, one without an argument, and return the days carried over in the
    /// direction of the call: a negative amount goes the other way and carries a negative number.
    /// From 2073600000 s (24000 days) on in either direction, or with an invalid `amount`, the time
    /// becomes invalid; the result for an invalid time is `INVALID`.
    SInt32 Increment() { return Increment(1); }
    SInt32 Increment(SInt32 seconds) { return Move(seconds); }
    SInt32 Increment(const Time& amount);
    SInt32 Decrement() { return Decrement(1); }
    SInt32 Decrement(SInt32 seconds);
    SInt32 Decrement(const Time& amount);

    Time& operator+=(const Time& amount);
    Time& operator-=(const Time& amount);
    Time operator+(const Time& amount) const { return Time(*this) += amount; }
    Time operator-(const Time& amount) const { return Time(*this) -= amount; }

    /// Takes seconds since midnight, reduced to a time of day; the result is the whole days in them.
    SInt32 Import(UInt32 seconds);
    /// Seconds since midnight; `false` and 0xFFFFFFFF for an invalid time.
    bool Export(UInt32& seconds) const;

    /// Reads "hh:mm:ss" at the start of `text`; the first digit may be a space. The separators aren't looked at.
    bool Import(const char* text);
    /// Fills the template in `text` in place: "hh" and "?h" the hour of 24 and of 12, "mm", "ss",
    /// "$" for "a" or "p". An invalid time fills with "x".
    bool Export(char* text) const;

private:
    static constexpr UInt08 NONE = 0xFF;

    SInt32 Move(SInt64 seconds);

    // The order of the fields is the order of comparison.
    UInt08 hour = NONE;
    UInt08 minute = NONE;
    UInt08 second = NONE;
};

inline constexpr Time MIDNIGHT(0, 0, 0);

}
