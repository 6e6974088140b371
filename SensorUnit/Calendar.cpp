#include "SensorUnit/Calendar.h"

#include <chrono>
#include <cstdio>
#include <ctime>

namespace SensorUnit {

namespace {

std::chrono::year_month_day DateOf(const CivilTime& time)
{
    return std::chrono::year(time.year) / time.month / time.day;
}

}

bool IsValid(const CivilTime& time)
{
    return time.year >= 1970 && time.year <= 9999 && DateOf(time).ok() && time.hour >= 0 && time.hour < 24
        && time.minute >= 0 && time.minute < 60 && time.second >= 0 && time.second < 60;
}

std::int64_t ToSeconds(const CivilTime& time)
{
    const std::int64_t days = std::chrono::sys_days(DateOf(time)).time_since_epoch().count();
    return days * secondsPerDay + time.hour * 3600 + time.minute * 60 + time.second;
}

CivilTime FromSeconds(std::int64_t seconds)
{
    const std::chrono::sys_seconds moment{std::chrono::seconds(seconds)};
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date(midnight);
    const int ofDay = int((moment - midnight).count());
    return {int(date.year()), int(unsigned(date.month())), int(unsigned(date.day())), ofDay / 3600, ofDay / 60 % 60, ofDay % 60};
}

std::int64_t WallClock()
{
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
    localtime_r(&now, &local);
    return ToSeconds({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec % 60});
}

std::string ToText(const CivilTime& time)
{
    char text[80];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", time.year, time.month, time.day, time.hour, time.minute, time.second);
    return text;
}

}
