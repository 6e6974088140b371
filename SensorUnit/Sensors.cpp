#include "SensorUnit/Sensors.h"

#include "SensorUnit/Calendar.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace SensorUnit {

namespace {

enum { UNIT_CELSIUS = 0, UNIT_PPMV = 2, UNIT_PERCENT = 4, UNIT_BAR = 5 };

struct Model {
    std::uint8_t version; ///< major and minor in one nibble each
    std::uint8_t tag, unit;
    std::int16_t rangeMin, rangeMax;
    const char* serial;
    std::int16_t expectancyDays, validityDays;
    double secondsLag; ///< time constant
    double noise;      ///< greatest deviation, in the unit
    double detection;  ///< the least amount that the sensor tells from none
};

constexpr Model models[SENSOR_NUM] = {
    {0x21, 0, UNIT_PERCENT, 0, 100, "SF0417", 3650, 730, 3, 0.02, 0},
    {0x13, 0, UNIT_PPMV, 0, 100, "SO2231", 1095, 730, 3, 0.05, 0.1},
    {0x20, 0, UNIT_CELSIUS, -60, 30, "HU1180", 3650, 730, 10, 0.03, 0},
    {0x13, 0, UNIT_PPMV, 0, 10, "HF0652", 730, 730, 4, 0.01, 0.05},
    {0x13, 0, UNIT_PPMV, 0, 500, "CO0933", 1095, 730, 3, 0.3, 0.5},
    {},
    {0x13, 0, UNIT_PPMV, 0, 100, "HS0208", 1095, 730, 3, 0.05, 0}, // drifts about zero
    {0x11, 0, UNIT_BAR, 0, 16, "P60071", 3650, 730, 0.2, 0.002, 0},
};

constexpr std::uint8_t notFitted = 0x80;
constexpr double pressureNoiseBar = 0.0008;
constexpr double noiseInterval = 0.25; ///< seconds

void PutWord(Profile& profile, std::size_t offset, int value)
{
    profile[offset] = std::uint8_t(value >> 8);
    profile[offset + 1] = std::uint8_t(value);
}

int SignedWord(const Profile& profile, std::size_t offset)
{
    return std::int16_t(profile[offset] << 8 | profile[offset + 1]);
}

void PutDate(Profile& profile, std::size_t offset, std::int64_t day)
{
    const CivilTime date = FromSeconds(day * secondsPerDay);
    PutWord(profile, offset, date.year);
    profile[offset + 2] = std::uint8_t(date.month);
    profile[offset + 3] = std::uint8_t(date.day);
}

Profile FactoryProfile(Sensor sensor, std::int64_t today)
{
    Profile profile{};
    const Model& model = models[sensor];
    if (!model.serial) {
        profile[0] = notFitted;
        return profile;
    }
    profile[0] = std::uint8_t(sensor);
    profile[1] = model.version;
    profile[2] = model.tag;
    profile[3] = model.unit;
    PutWord(profile, 4, model.rangeMin);
    PutWord(profile, 6, model.rangeMax);
    PutDate(profile, 8, today - 90);
    std::memcpy(&profile[12], model.serial, std::min<std::size_t>(8, std::strlen(model.serial)));
    PutWord(profile, 20, model.expectancyDays);
    PutDate(profile, 22, today - 60);
    PutWord(profile, 26, model.validityDays);
    return profile;
}

/// What a sensor at rest would show of the gas that it stands in.
double Truth(Sensor sensor, const GasPath& path, double ambientHPa)
{
    const Gas& gas = path.At(NODE_S).gas;
    switch (sensor) {
    case SENSOR_SF6: return gas[SHARE_SF6];
    case SENSOR_SO2: return gas[SHARE_SO2];
    case SENSOR_HUM: return DewPoint(gas[SHARE_WATER], ambientHPa);
    case SENSOR_HF: return gas[SHARE_HF];
    case SENSOR_CO: return gas[SHARE_CO];
    case SENSOR_H2S: return gas[SHARE_H2S];
    case SENSOR_P6: return path.Pressure(NODE_C1);
    default: return 0;
    }
}

}

double DewPoint(double ppmv, double ambientHPa)
{
    constexpr double lowest = -80, highest = 45;
    const double logarithm = std::log(std::max(ppmv, 1e-6) * ambientHPa / 1e6 / 6.112);
    const double overIce = 272.62 * logarithm / (22.46 - logarithm);
    const double dewPoint = overIce < 0 ? overIce : 243.12 * logarithm / (17.62 - logarithm);
    return std::clamp(dewPoint, lowest, highest);
}

double WaterContent(double dewPoint, double ambientHPa)
{
    const double a = dewPoint < 0 ? 22.46 : 17.62;
    const double b = dewPoint < 0 ? 272.62 : 243.12;
    return 6.112 * std::exp(a * dewPoint / (b + dewPoint)) / ambientHPa * 1e6;
}

Sensors::Sensors(std::int64_t today)
{
    for (int sensor = 0; sensor < SENSOR_NUM; sensor++) {
        profiles[std::size_t(sensor)] = FactoryProfile(Sensor(sensor), today);
    }
}

/// -1 to 1, the middle more likely than the ends.
double Sensors::Noise()
{
    double sum = 0;
    for (int i = 0; i < 3; i++) {
        seed = seed * 1664525 + 1013904223;
        sum += double(seed >> 8) / double(1 << 24) * 2 - 1;
    }
    return sum / 3;
}

void Sensors::Settle(const GasPath& path, double ambientHPa)
{
    for (int sensor = 0; sensor < SENSOR_NUM; sensor++) {
        shown[std::size_t(sensor)] = Truth(Sensor(sensor), path, ambientHPa);
    }
    Advance(0, path, ambientHPa);
}

void Sensors::Advance(double seconds, const GasPath& path, double ambientHPa)
{
    untilNoise -= seconds;
    const bool fresh = untilNoise <= 0;
    if (fresh) {
        untilNoise = noiseInterval;
    }
    for (std::size_t sensor = 0; sensor < SENSOR_NUM; sensor++) {
        const Model& model = models[sensor];
        if (model.secondsLag > 0) {
            shown[sensor] += (Truth(Sensor(sensor), path, ambientHPa) - shown[sensor]) * (1 - std::exp(-seconds / model.secondsLag));
        }
        if (fresh) {
            noise[sensor] = Noise() * model.noise;
        }
    }
    const double ambient = ambientHPa / 1000;
    const double bars[PRESSURE_NUM] = {path.Pressure(NODE_N1), path.Pressure(NODE_T) - ambient, path.Pressure(NODE_J),
                                       path.Pressure(NODE_D) - ambient, path.Pressure(NODE_L) - ambient};
    for (std::size_t sensor = 0; sensor < PRESSURE_NUM; sensor++) {
        if (fresh) {
            pressureNoise[sensor] = Noise() * pressureNoiseBar;
        }
        pressures[sensor] = std::int32_t(std::lround((bars[sensor] + pressureNoise[sensor]) * 1000));
    }
}

std::int32_t Sensors::Value(Sensor sensor) const
{
    const Profile& profile = profiles[sensor];
    // An electrochemical H2S cell drifts a little below zero; all others stop at the ends of their range.
    const double lowest = SignedWord(profile, 4) - (sensor == SENSOR_H2S ? 10 : 0);
    const double highest = std::max<double>(lowest, SignedWord(profile, 6));
    const double reading = shown[sensor] + noise[sensor];
    const double told = std::abs(reading) < models[sensor].detection ? 0 : reading;
    return std::int32_t(std::lround(std::clamp(told, lowest, highest) * 1000));
}

}
