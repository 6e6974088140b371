#pragma once

#include "SensorUnit/Faults.h"
#include "SensorUnit/GasPath.h"
#include "SensorUnit/Sensors.h"

#include <array>
#include <cstdint>
#include <functional>

namespace SensorUnit {

enum Supply { SUPPLY_BATTERY, SUPPLY_CHARGING, SUPPLY_CHARGED, SUPPLY_UNKNOWN };
enum PortUse { PORT_CAPPED, PORT_CONNECTED };

/// The hardware around the controller: gas path with its actuators, sensors, supply, clock, counters. It
/// knows what is wrong with it and acts accordingly; registers only translate.
class Machine {
public:
    /// `wallClock` gives the seconds since 1970 from which a clock that was never set shows the time.
    explicit Machine(std::function<std::int64_t()> wallClock);

    void Advance(double seconds);

    void SetValve(Way way, bool on);
    void SetCompressor(bool on);
    /// All valves shut, compressor and fans off.
    void GoHome();
    /// To be called after a change of `faults` or of the surroundings.
    void Apply();
    /// The whole path and the sensors at once on the gas of the compartment.
    void Flush();
    /// The sensors at once on what is in the path.
    void Settle() { sensors.Settle(path, hPa); }
    /// Whether a way is open or the compressor runs.
    bool IsMoving() const;

    bool IsCommanded(Way way) const { return commanded[way]; }
    bool IsCompressorOn() const { return compressorOn; }
    int AirPressureHPa() const { return hPa; }
    double WaterOf(double dewPoint) const { return WaterContent(dewPoint, hPa); }

    void SetAmbient(int newHPa, double newCelsius, double newRelHumidity);
    void SetPort1(PortUse use);
    void SetCompartment(double bar, double litres);
    /// A bottle of 10 l at `bar`; without one the coupling shuts itself.
    void SetPort2(PortUse use, double bar);
    void SetPort3(PortUse use, double litres);

    GasPath path;
    Sensors sensors;
    Faults faults;

    bool fan2 = false;
    Supply supply = SUPPLY_CHARGED;
    double volts = 25.2;
    bool voltsKnown = true;
    bool powerKey = false;
    double celsius = 23, relHumidity = 45;
    double heated = 0; ///< °C by which the board is hotter than it should be
    std::uint16_t pumpBacks = 12;
    double compressorSeconds = 18360;
    std::int64_t clockOffset = 0; ///< seconds by which the clock was set against the wall clock
    std::function<std::int64_t()> wallClock;

    std::uint8_t boardType = 0x11;

    PortUse port1 = PORT_CONNECTED, port2 = PORT_CAPPED, port3 = PORT_CAPPED;
    double compartmentBar = 5, compartmentLitres = 50;
    double filter = 0; ///< share of water and decomposition products kept by the compressor's filter

private:
    std::array<bool, WAY_NUM> commanded{};
    bool compressorOn = false;
    int hPa = 1013;
};

}
