#include "RRx/RRDateTime.h"

#include <cstring>

namespace RR {

namespace {

constexpr SInt32 secondsPerDay = 86400;
constexpr SInt64 maxMoveSecs = 2073600000;

}

const Time& Time::Now()
{
    return DateTime::Now().GetTime();
}

void Time::Get(SInt32& theHour, SInt32& theMinute, SInt32& theSecond) const
{
    theHour = GetHour();
    theMinute = GetMinute();
    theSecond = GetSecond();
}

SInt32 Time::Move(SInt64 seconds)
{
    UInt32 ofDay;
    if (!Export(ofDay) || seconds >= maxMoveSecs || seconds <= -maxMoveSecs) {
        *this = Time();
        return INVALID;
    }
    const SInt64 sum = ofDay + seconds;
    const SInt64 days = (sum >= 0 ? sum : sum - (secondsPerDay - 1)) / secondsPerDay;
    Import(static_cast<UInt32>(sum - days * secondsPerDay));
    return static_cast<SInt32>(days);
}

SInt32 Time::Increment(const Time& amount)
{
    UInt32 seconds;
    return Move(amount.Export(seconds) ? seconds : maxMoveSecs);
}

SInt32 Time::Decrement(SInt32 seconds)
{
    const SInt32 days = Move(-static_cast<SInt64>(seconds));
    return days == INVALID ? INVALID : -days;
}

SInt32 Time::Decrement(const Time& amount)
{
    UInt32 seconds;
    const SInt32 days = Move(amount.Export(seconds) ? -static_cast<SInt64>(seconds) : maxMoveSecs);
    return days == INVALID ? INVALID : -days;
}

Time& Time::operator+=(const Time& amount)
{
    Increment(amount);
    return *this;
}

Time& Time::operator-=(const Time& amount)
{
    Decrement(amount);
    return *this;
}

SInt32 Time::Import(UInt32 seconds)
{
    const SInt32 ofDay = static_cast<SInt32>(seconds % secondsPerDay);
    Set(ofDay / 3600, ofDay / 60 % 60, ofDay % 60);
    return static_cast<SInt32>(seconds / secondsPerDay);
}

bool Time::Export(UInt32& seconds) const
{
    seconds = IsValid() ? (hour * 60u + minute) * 60u + second : 0xFFFFFFFF;
    return IsValid();
}

bool Time::Import(const char* text)
{
    if (!text || strnlen(text, 8) < 8) {
        *this = Time();
        return false;
    }
    // Only the hour may lack its first digit.
    const bool digitsStand = text[3] != ' ' && text[6] != ' ';
    return Set(digitsStand ? ReadXX(text) : INVALID, ReadXX(text + 3), ReadXX(text + 6));
}

bool Time::Export(char* text) const
{
    char digits[3];
    PrintXX(GetHour(), digits);
    SimpleSubst(text, "hh", digits);
    PrintXX(IsValid() ? (hour + 11) % 12 + 1 : INVALID, digits);
    SimpleSubst(text, "?h", digits);
    PrintXX(GetMinute(), digits);
    SimpleSubst(text, "mm", digits);
    PrintXX(GetSecond(), digits);
    SimpleSubst(text, "ss", digits);
    SimpleSubst(text, "$", IsValid() && hour < 12 ? "a" : "p");
    return IsValid();
}

}
