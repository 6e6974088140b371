#include "RRx/RRDateTime.h"

#include <algorithm>
#include <cstring>
#include <ctime>

namespace RR {

namespace {

constexpr SInt64 secondsPerDay = 86400;

/// Invalid if the system can't tell.
DateTime LocalTime(std::time_t clock)
{
    // The reentrant call looks at a changed time zone only if asked to.
    tzset();
    std::tm local;
    if (!localtime_r(&clock, &local) || local.tm_year > 9999) {
        return DateTime();
    }
    // A leap second is shown as the second before it.
    return DateTime(local.tm_mday, local.tm_mon + 1, local.tm_year + 1900, local.tm_hour, local.tm_min,
                    std::min(local.tm_sec, 59));
}

SInt32 DigitAt(const char* text)
{
    return static_cast<unsigned char>(*text) - '0';
}

}

const DateTime& DateTime::Now()
{
    static DateTime now;
    const std::time_t clock = std::time(nullptr);
    now = clock == static_cast<std::time_t>(-1) ? DateTime() : LocalTime(clock);
    return now;
}

void DateTime::Get(SInt32& day, SInt32& month, SInt32& year, SInt32& hour, SInt32& minute, SInt32& second) const
{
    date.Get(day, month, year);
    time.Get(hour, minute, second);
}

void DateTime::Get(Date& theDate, Time& theTime) const
{
    theDate = date;
    theTime = time;
}

void DateTime::Carry(SInt32 days)
{
    if (days != INVALID) {
        date.Increment(days);
    }
    Set(date, time);
}

void DateTime::CarryBack(SInt32 days)
{
    Carry(days == INVALID ? INVALID : -days);
}

DateTime& DateTime::operator+=(const Time& amount)
{
    Increment(amount);
    return *this;
}

DateTime& DateTime::operator-=(const Time& amount)
{
    Decrement(amount);
    return *this;
}

SInt64 DateTime::ToSeconds() const
{
    UInt32 ofDay;
    time.Export(ofDay);
    return date.ToDays() * secondsPerDay + ofDay;
}

void DateTime::FromSeconds(SInt64 seconds)
{
    const SInt64 days = (seconds >= 0 ? seconds : seconds - (secondsPerDay - 1)) / secondsPerDay;
    Set(Date::FromDays(days), Time(static_cast<UInt32>(seconds - days * secondsPerDay)));
}

void DateTime::Import(UInt32 tSecs)
{
    FromSeconds(tSecs);
}

bool DateTime::Export(UInt32& tSecs) const
{
    tSecs = 0xFFFFFFFF;
    const SInt64 seconds = IsValid() ? ToSeconds() : -1;
    if (seconds < 0 || seconds > 0xFFFFFFFF) {
        return false;
    }
    tSecs = static_cast<UInt32>(seconds);
    return true;
}

void DateTime::Localize()
{
    if (!IsValid()) {
        return;
    }
    // The system's clock may be too narrow for the date.
    const SInt64 seconds = ToSeconds();
    const std::time_t clock = static_cast<std::time_t>(seconds);
    *this = clock == seconds ? LocalTime(clock) : DateTime();
}

void DateTime::Universalize()
{
    if (!IsValid()) {
        return;
    }
    std::tm local = {};
    local.tm_mday = date.GetDay();
    local.tm_mon = date.GetMonth() - 1;
    local.tm_year = date.GetYear() - 1900;
    local.tm_hour = time.GetHour();
    local.tm_min = time.GetMinute();
    local.tm_sec = time.GetSecond();
    local.tm_isdst = -1;
    // -1 is a second of 1969 as well; only a success fills in the week day.
    local.tm_wday = -1;
    const std::time_t clock = std::mktime(&local);
    if (local.tm_wday == -1) {
        *this = DateTime();
    } else {
        FromSeconds(clock);
    }
}

bool DateTime::Import(const char* cBuf)
{
    Date newDate;
    Time newTime;
    if (newDate.Import(cBuf)) {
        const std::size_t timeAt = static_cast<unsigned char>(*cBuf) > '9' ? 12 : 11;
        if (strnlen(cBuf, timeAt) == timeAt) {
            newTime.Import(cBuf + timeAt);
        }
    }
    return Set(newDate, newTime);
}

bool DateTime::Export(char* cBuf) const
{
    date.Export(cBuf);
    time.Export(cBuf);
    return IsValid();
}

void SimpleSubst(char* text, const char* find, const char* rep)
{
    if (!text || !find || !rep || !*find || !*rep) {
        return;
    }
    const std::size_t findLength = std::strlen(find);
    const std::size_t copied = std::min(findLength, std::strlen(rep));
    while ((text = std::strstr(text, find))) {
        std::memcpy(text, rep, copied);
        text += findLength;
    }
}

void PrintXX(SInt32 v, char* buffer)
{
    const bool shown = v >= 0 && v <= 99;
    buffer[0] = shown ? static_cast<char>('0' + v / 10) : 'x';
    buffer[1] = shown ? static_cast<char>('0' + v % 10) : 'x';
    buffer[2] = 0;
}

SInt32 ReadXX(const char* text)
{
    return (*text == ' ' ? 0 : DigitAt(text) * 10) + DigitAt(text + 1);
}

SInt32 ReadXXXX(const char* text)
{
    return ((DigitAt(text) * 10 + DigitAt(text + 1)) * 10 + DigitAt(text + 2)) * 10 + DigitAt(text + 3);
}

}
