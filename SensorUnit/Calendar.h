#pragma once

#include <cstdint>
#include <string>

namespace SensorUnit {

constexpr std::int64_t secondsPerDay = 86400;

/// A date and time of day, in no particular time zone.
struct CivilTime {
    int year = 1970, month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

/// Whether the fields name a moment that exists, in the years 1970 to 9999.
bool IsValid(const CivilTime& time);

/// Seconds since 1 January 1970, 00:00, of the same time zone.
std::int64_t ToSeconds(const CivilTime& time);
CivilTime FromSeconds(std::int64_t seconds);

/// Seconds since 1970 that the clock on the wall shows: the system's clock in local time.
std::int64_t WallClock();

/// As "2024-05-31 14:07:09".
std::string ToText(const CivilTime& time);

}
