#pragma once

#include "SensorUnit/GasPath.h"
#include "SensorUnit/Sensors.h"

#include <array>
#include <cstdint>
#include <optional>
#include <set>

namespace SensorUnit {

enum ValveFault { VALVE_SOUND, VALVE_STUCK, VALVE_FAILING };
enum CompressorFault { COMPRESSOR_SOUND, COMPRESSOR_WEAK, COMPRESSOR_FAILING };

/// Everything that is wrong with the unit. A default one has no fault.
struct Faults {
    std::array<ValveFault, WAY_NUM> valve{};
    std::array<bool, WAY_NUM> stuckOpen{}; ///< a stuck valve stays so and reads as commanded
    CompressorFault compressor = COMPRESSOR_SOUND;
    double compressorShare = 1;               ///< what a weak one still yields; 0 is a dead one
    std::array<double, NODE_NUM> leak{};      ///< ml/s per bar
    std::optional<double> wetDewPoint;        ///< °C; the sensor path never gets drier
    std::array<bool, PRESSURE_NUM> pressureFailing{};
    std::array<double, PRESSURE_NUM> pressureOffset{}; ///< bar; a sensor that has drifted
    bool depotFailing = false;
    bool climateFailing = false;
    std::array<bool, SENSOR_NUM> sensorUnplugged{};
    std::array<bool, SENSOR_NUM> sensorFailing{};
    double batteryDrain = 0;                  ///< volts per minute
    double heating = 0;                       ///< °C per minute

    std::set<std::uint32_t> silentServices;   ///< by their first location
    bool silent = false;
    int slowMs = 0;                           ///< added before each answer
    double garble = 0;                        ///< probability that a character of an answer is spoilt
    bool stale = false;                       ///< each answer comes behind the one before it
    bool duplicate = false;                   ///< each answer comes twice
};

}
