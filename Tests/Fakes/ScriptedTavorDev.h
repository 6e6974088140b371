#pragma once

#include "TavorDev.h"

#include <map>
#include <set>
#include <string>
#include <vector>

/// What the stand-in for the sensor unit answers and what it was asked. ScriptedTavorDev.cpp defines the
/// operations of `TavorDev`, the global `tavorDev` and `inspectionMode`; put it among the sources of a test
/// program, and the real ones stay in their library. No thread runs; signals come by `emit tavorDev.Lost()`.
///
/// Commands are noted as "V1+" (open) to "V6-" (close), "VL+" and "F2+" (the two fans), "C+" and "C-"
/// (compressor), "home", "off" (power down), "pumpbacks=<n>", "time0" (compressor time to zero), "clock",
/// "profile<n>", "write<location>", "connect<mode>", "disconnect".
struct Scripted {
    bool connects = true;                  ///< `Connect` succeeds
    TavorDev::Info info;                   ///< an `applType` without value: the unit doesn't answer
    TavorDev::SupplyInfo supply;
    RR::DateTime clock;
    Temperature temperature;
    RR::SInt32 relHumidity = RR::INVALID;
    RR::SInt32 airPressure = RR::INVALID;
    RR::SInt32 depotLevel = RR::INVALID;
    RR::SInt32 comprOperTime = RR::INVALID;
    RR::SInt32 pumpBacks = RR::INVALID;
    double pressure[TavorDev::PRESSENS_NUM] = {};                ///< bar, `INVALID_DOUBLE` for no reading
    double amount[TavorDev::SENSOR_NUM] = {};                    ///< in the sensor's unit, likewise; SENSOR_HUM unused
    Humidity humidity;
    TavorDev::SensorProfile profile[TavorDev::SENSOR_NUM];       ///< fitted if `type` is the sensor's own
    TavorDev::ValveState valve[TavorDev::VALVE_NUM] = {};        ///< follow the commands
    TavorDev::CompressorState compressor = TavorDev::COMPRESSOR_OFF;
    TavorDev::FanState fan[2] = {};

    std::map<RR::UInt32, std::vector<unsigned char>> memory; ///< program memory, by location as it was written
    std::map<RR::UInt32, int> badWrites, badReads;           ///< so many at a location fail yet

    std::set<std::string> failing;         ///< commands that the unit refuses; they are noted, and change nothing
    std::vector<std::string> commands;     ///< all since `Reset`, in order

    /// A healthy instrument at rest: all sensors fitted, dry and clean gas, nothing under pressure.
    void Reset();
    void SetDewPoint(double cels);
    int Count(const std::string& command) const;
    /// The commands since the last call, separated by blanks.
    std::string TakeCommands();

    /// Notes a command; false if it is to fail.
    bool Command(const std::string& command);

private:
    size_t taken = 0;
};

extern Scripted scripted;
