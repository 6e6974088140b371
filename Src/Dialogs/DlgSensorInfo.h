#pragma once

#include "TavorDev.h"

/// What is known of the sensors.
class DlgSensorInfo {
public:
    /// Days until the sensor's calibration runs out, negative when it has. No value if the profile doesn't tell;
    /// a calibration date in the future counts as today.
    static RR::SInt32 GetCalRemainingDays(const TavorDev::SensorProfile& profile);
};
