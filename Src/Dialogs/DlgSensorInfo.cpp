#include "Dialogs/DlgSensorInfo.h"

RR::SInt32 DlgSensorInfo::GetCalRemainingDays(const TavorDev::SensorProfile& profile)
{
    // Beyond these the date is a mistake, or none.
    constexpr RR::SInt32 minAge = -3000, maxAge = 30000;
    if (profile.type >= TavorDev::SENSOR_NUM || profile.calValidity == RR::INVALID) {
        return RR::INVALID;
    }
    const RR::SInt32 age = RR::Date::CalcDiffInDays(profile.calDate, RR::Date::Today());
    if (age < minAge || age > maxAge) {
        return RR::INVALID;
    }
    return age < 0 ? profile.calValidity : profile.calValidity - age;
}
