#include "SensorUnit/Machine.h"

#include "SensorUnit/Calendar.h"

#include <algorithm>

namespace SensorUnit {

namespace {

constexpr double hoseLitres = 0.02;
constexpr double couplingLitres = 0.025;
constexpr double bottleLitres = 10;
constexpr double hottest = 100; ///< above what it should be, °C

}

Machine::Machine(std::function<std::int64_t()> clock)
    : sensors(clock() / secondsPerDay)
    , wallClock(std::move(clock))
{
    SetAmbient(hPa, celsius, relHumidity);
    Settle();
}

void Machine::Advance(double seconds)
{
    path.Advance(seconds);
    sensors.Advance(seconds, path, hPa);
    if (compressorOn && faults.compressor != COMPRESSOR_FAILING) {
        compressorSeconds = std::min(compressorSeconds + seconds, double(UINT32_MAX));
    }
    volts = std::max(0.0, volts - faults.batteryDrain * seconds / 60);
    heated = faults.heating > 0 ? std::min(hottest, heated + faults.heating * seconds / 60) : 0;
}

void Machine::SetValve(Way way, bool on)
{
    commanded[way] = on;
    Apply();
}

void Machine::SetCompressor(bool on)
{
    compressorOn = on;
    Apply();
}

bool Machine::IsMoving() const
{
    return compressorOn || std::find(commanded.begin(), commanded.end(), true) != commanded.end();
}

void Machine::GoHome()
{
    commanded.fill(false);
    fan2 = false;
    compressorOn = false;
    Apply();
}

void Machine::Apply()
{
    for (int way = 0; way < WAY_NUM; way++) {
        const ValveFault fault = faults.valve[std::size_t(way)];
        const bool stuck = fault == VALVE_STUCK && faults.stuckOpen[std::size_t(way)];
        path.SetOpen(Way(way), fault == VALVE_SOUND ? commanded[std::size_t(way)] : stuck);
    }
    const bool runs = compressorOn && faults.compressor != COMPRESSOR_FAILING;
    path.SetCompressor(!runs ? 0 : faults.compressor == COMPRESSOR_WEAK ? faults.compressorShare : 1);
    for (int node = 0; node < NODE_NUM; node++) {
        path.SetLeak(Node(node), faults.leak[std::size_t(node)] / 1000);
    }
    path.SetWetSensorPath(faults.wetDewPoint ? WaterOf(*faults.wetDewPoint) : 0);
    path.SetFilter(filter);
    if (faults.batteryDrain > 0) {
        supply = SUPPLY_BATTERY;
    }
}

void Machine::Flush()
{
    path.Flush();
    Settle();
}

void Machine::SetAmbient(int newHPa, double newCelsius, double newRelHumidity)
{
    hPa = newHPa;
    celsius = newCelsius;
    relHumidity = newRelHumidity;
    path.SetAmbient(hPa / 1000.0, WaterContent(celsius, hPa) * relHumidity / 100);
}

void Machine::SetPort1(PortUse use)
{
    if (port1 == PORT_CONNECTED) {
        compartmentBar = path.Pressure(NODE_C1);
    }
    port1 = use;
    if (use == PORT_CAPPED) {
        path.SetCompartment(hPa / 1000.0, hoseLitres);
    } else {
        path.SetCompartment(compartmentBar, compartmentLitres);
    }
}

void Machine::SetCompartment(double bar, double litres)
{
    compartmentBar = bar;
    compartmentLitres = litres;
    port1 = PORT_CONNECTED;
    path.SetCompartment(bar, litres);
}

void Machine::SetPort2(PortUse use, double bar)
{
    port2 = use;
    path.SetPort2(use == PORT_CONNECTED ? bar : hPa / 1000.0, use == PORT_CONNECTED ? bottleLitres : couplingLitres);
}

void Machine::SetPort3(PortUse use, double litres)
{
    port3 = use;
    path.SetContainer(use == PORT_CONNECTED, litres);
}

}
