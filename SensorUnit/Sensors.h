#pragma once

#include "SensorUnit/GasPath.h"

#include <array>
#include <cstdint>

namespace SensorUnit {

/// Sensor positions, numbered as their services.
enum Sensor { SENSOR_SF6, SENSOR_SO2, SENSOR_HUM, SENSOR_HF, SENSOR_CO, SENSOR_SPARE, SENSOR_H2S, SENSOR_P6, SENSOR_NUM };

/// Pressure sensors, numbered as in their service.
enum PressureSensor { PRESSURE_P1, PRESSURE_P2, PRESSURE_P3, PRESSURE_P4, PRESSURE_P5, PRESSURE_NUM };

/// What the board reports where it has no value.
constexpr std::int32_t noValue = INT32_MIN;

/// A sensor's memory: the first 28 bytes of its service, in their wire form.
using Profile = std::array<std::uint8_t, 28>;

/// Dew point in °C of gas with `ppmv` of water at `ambientHPa`, limited to -80 to 45; Magnus formula, over ice below 0.
double DewPoint(double ppmv, double ambientHPa);

/// Water content in ppmv of gas whose dew point at `ambientHPa` is `dewPoint` °C. The inverse of `DewPoint`.
double WaterContent(double dewPoint, double ambientHPa);

/// The sensors fitted to the unit, with their memories, their inertia and a little noise.
class Sensors {
public:
    /// Fits all positions but the spare one, calibrated 60 days before `today` (days since 1970).
    explicit Sensors(std::int64_t today);

    /// Lets the sensors follow the gas for `seconds`. Noise is the same in every run.
    void Advance(double seconds, const GasPath& path, double ambientHPa);

    /// The sensors show at once what is in the path, as after a long flow.
    void Settle(const GasPath& path, double ambientHPa);

    /// Thousandths of the sensor's unit, limited to the range in its memory.
    std::int32_t Value(Sensor sensor) const;

    /// Thousandths of a bar; P1 and P3 absolute, the others against ambient.
    std::int32_t Pressure(PressureSensor sensor) const { return pressures[sensor]; }

    const Profile& ProfileOf(Sensor sensor) const { return profiles[sensor]; }
    void SetProfile(Sensor sensor, const Profile& profile) { profiles[sensor] = profile; }

private:
    double Noise();

    std::array<Profile, SENSOR_NUM> profiles{};
    std::array<double, SENSOR_NUM> shown{};
    std::array<double, SENSOR_NUM> noise{};
    std::array<std::int32_t, PRESSURE_NUM> pressures{};
    double untilNoise = 0;
    std::array<double, PRESSURE_NUM> pressureNoise{};
    std::uint32_t seed = 1;
};

}
