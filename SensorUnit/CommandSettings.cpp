#include "SensorUnit/Calendar.h"
#include "SensorUnit/CommandWords.h"

#include <algorithm>
#include <cmath>

namespace SensorUnit {

namespace {

/// One value of the unit by name. Without `set` it can only be read.
struct Setting {
    const char* name;
    const char* help;
    std::string (*get)(const Unit& unit);
    bool (*set)(Unit& unit, Words& words);
};

const std::vector<std::string> portUses[] = {{"capped", "compartment"}, {"capped", "none", "bottle"}, {"none", "container"}};
const std::vector<std::string> supplies = {"battery", "charging", "charged", "unknown"};
const std::vector<std::string> onOff = {"off", "on"};

template <Share share>
std::string GetShare(const Unit& unit)
{
    return Text(unit.machine.path.At(NODE_C1).gas[share]);
}

template <Share share, int most>
bool SetShare(Unit& unit, Words& words)
{
    const std::optional<double> value = words.Number(0, most);
    if (!value || !words.Finish()) {
        return false;
    }
    Gas gas = unit.machine.path.At(NODE_C1).gas;
    gas[share] = *value;
    unit.machine.path.SetCompartmentGas(gas);
    return true;
}

bool SetHumidity(Unit& unit, Words& words)
{
    const std::optional<double> dewPoint = words.Number(-80, 40);
    if (!dewPoint || !words.Finish()) {
        return false;
    }
    Gas gas = unit.machine.path.At(NODE_C1).gas;
    gas[SHARE_WATER] = unit.machine.WaterOf(*dewPoint);
    unit.machine.path.SetCompartmentGas(gas);
    return true;
}

bool SetCompartment(Unit& unit, Words& words)
{
    const std::optional<double> bar = words.Number(0.01, 40);
    const std::optional<double> litres = bar && !words.AtEnd() ? words.Number(0.01, 100000) : unit.machine.compartmentLitres;
    if (!bar || !litres || !words.Finish()) {
        return false;
    }
    unit.machine.SetCompartment(*bar, *litres);
    return true;
}

bool SetPort1(Unit& unit, Words& words)
{
    const std::optional<int> use = words.Choice(portUses[0]);
    if (!use || !words.Finish()) {
        return false;
    }
    unit.machine.SetPort1(PortUse(*use));
    return true;
}

bool SetPort2(Unit& unit, Words& words)
{
    const std::optional<int> use = words.Choice(portUses[1]);
    const std::optional<double> bar = use == 2 ? words.Number(0.01, 40) : 0;
    if (!use || !bar || !words.Finish()) {
        return false;
    }
    unit.machine.SetPort2(*use == 2 ? PORT_CONNECTED : PORT_CAPPED, *bar);
    return true;
}

bool SetPort3(Unit& unit, Words& words)
{
    const std::optional<int> use = words.Choice(portUses[2]);
    const std::optional<double> litres = use == 1 && !words.AtEnd() ? words.Number(0, GasPath::containerLitres) : 0;
    if (!use || !litres || !words.Finish()) {
        return false;
    }
    unit.machine.SetPort3(PortUse(*use), *litres);
    return true;
}

bool SetDepot(Unit& unit, Words& words)
{
    const std::optional<double> percent = words.Number(0, 100);
    if (!percent || !words.Finish()) {
        return false;
    }
    unit.machine.path.SetDepotLevel(*percent);
    return true;
}

/// Air pressure, temperature or relative humidity, the other two as they are.
template <int which>
bool SetAmbient(Unit& unit, Words& words)
{
    constexpr double limits[3][2] = {{300, 1100}, {-60, 100}, {0, 100}};
    Machine& machine = unit.machine;
    double values[3] = {double(machine.AirPressureHPa()), machine.celsius, machine.relHumidity};
    const std::optional<double> value = words.Number(limits[which][0], limits[which][1]);
    if (!value || !words.Finish()) {
        return false;
    }
    values[which] = *value;
    machine.SetAmbient(int(std::lround(values[0])), values[1], values[2]);
    return true;
}

bool SetBattery(Unit& unit, Words& words)
{
    const bool none = words.TakeIf("none");
    const std::optional<double> volts = none ? unit.machine.volts : words.Number(0, 60);
    if (!volts || !words.Finish()) {
        return false;
    }
    unit.machine.voltsKnown = !none;
    unit.machine.volts = *volts;
    return true;
}

bool SetSupply(Unit& unit, Words& words)
{
    const std::optional<int> supply = words.Choice(supplies);
    if (!supply || !words.Finish()) {
        return false;
    }
    unit.machine.supply = Supply(*supply);
    return true;
}

bool SetPowerKey(Unit& unit, Words& words)
{
    const std::optional<int> pressed = words.Choice(onOff);
    if (!pressed || !words.Finish()) {
        return false;
    }
    unit.machine.powerKey = *pressed == 1;
    return true;
}

bool SetPumpBacks(Unit& unit, Words& words)
{
    const std::optional<int> count = words.Whole(0, UINT16_MAX);
    if (!count || !words.Finish()) {
        return false;
    }
    unit.machine.pumpBacks = std::uint16_t(*count);
    return true;
}

bool SetCompressorSeconds(Unit& unit, Words& words)
{
    const std::optional<double> seconds = words.Number(0, UINT32_MAX);
    if (!seconds || !words.Finish()) {
        return false;
    }
    unit.machine.compressorSeconds = *seconds;
    return true;
}

bool SetFilter(Unit& unit, Words& words)
{
    const std::optional<double> percent = words.Number(0, 100);
    if (!percent || !words.Finish()) {
        return false;
    }
    unit.machine.filter = *percent / 100;
    unit.machine.Apply();
    return true;
}

/// A unit of another board comes with the program made for it.
bool SetBoardType(Unit& unit, Words& words)
{
    const std::optional<int> type = words.Whole(0, 255);
    if (!type || !words.Finish()) {
        return false;
    }
    unit.machine.boardType = std::uint8_t(*type);
    ImageInfo info;
    info.boardType = unit.machine.boardType;
    unit.loader.Install(MakeImage(info));
    return true;
}

std::string GetPort2(const Unit& unit)
{
    return unit.machine.port2 == PORT_CONNECTED ? "bottle " + Text(unit.machine.path.Pressure(NODE_E2)) : "capped";
}

std::string GetPort3(const Unit& unit)
{
    return unit.machine.port3 == PORT_CONNECTED ? "container " + Text(unit.machine.path.ContainerContent()) : "none";
}

std::string GetValves(const Unit& unit)
{
    std::string text;
    for (int way = 0; way < WAY_NUM; way++) {
        text += unit.machine.IsCommanded(Way(way)) ? (text.empty() ? "" : " ") + ValveNames()[std::size_t(way)] : "";
    }
    return text.empty() ? "none" : text;
}

std::string GetPressures(const Unit& unit)
{
    std::string text;
    for (int sensor = 0; sensor < PRESSURE_NUM; sensor++) {
        text.append(sensor ? " " : "").append(Text(unit.machine.sensors.Pressure(PressureSensor(sensor)) / 1000.0));
    }
    return text;
}

std::string GetSensors(const Unit& unit)
{
    std::string text;
    for (int sensor = 0; sensor < SENSOR_NUM; sensor++) {
        if (sensor != SENSOR_SPARE) {
            text += (sensor ? " " : "") + SensorNames()[std::size_t(sensor)] + " " + Text(unit.machine.sensors.Value(Sensor(sensor)) / 1000.0);
        }
    }
    return text;
}

std::string GetInfo(const Unit& unit)
{
    const std::vector<std::uint8_t> info = unit.DeviceInfo();
    const auto version = [](std::uint8_t byte) { return std::to_string(byte >> 4) + "." + std::to_string(byte & 15); };
    return "type " + std::to_string(info[0]) + " V" + version(info[1]) + " board " + std::to_string(info[2]) + " V" + version(info[3]);
}

std::string GetMode(const Unit& unit)
{
    constexpr const char* names[] = {"application", "loader", "off"};
    return names[unit.GetMode()];
}

using Ref = const Unit&;

constexpr Setting settings[] = {
    {"sf6", "VALUE: the compartment's gas, Vol.-%", GetShare<SHARE_SF6>, SetShare<SHARE_SF6, 100>},
    {"so2", "VALUE: likewise, ppmv", GetShare<SHARE_SO2>, SetShare<SHARE_SO2, 1000000>},
    {"hf", "VALUE: likewise, ppmv", GetShare<SHARE_HF>, SetShare<SHARE_HF, 1000000>},
    {"co", "VALUE: likewise, ppmv", GetShare<SHARE_CO>, SetShare<SHARE_CO, 1000000>},
    {"h2s", "VALUE: likewise, ppmv", GetShare<SHARE_H2S>, SetShare<SHARE_H2S, 1000000>},
    {"humidity", "VALUE: likewise, dew point at ambient pressure, °C", [](Ref u) { return Text(DewPoint(u.machine.path.At(NODE_C1).gas[SHARE_WATER], u.machine.AirPressureHPa())); }, SetHumidity},
    {"compartment", "BAR [LITRES]: a compartment at port 1, bar absolute", [](Ref u) { return Text(u.machine.path.Pressure(NODE_C1)) + " " + Text(u.machine.path.At(NODE_C1).litres); }, SetCompartment},
    {"port1", "compartment|capped", [](Ref u) { return portUses[0][u.machine.port1]; }, SetPort1},
    {"port2", "bottle BAR|none|capped: a bottle of 10 l, bar absolute; without one the port shuts itself", GetPort2, SetPort2},
    {"port3", "container [LITRES]|none: a bag of 100 l and what is in it", GetPort3, SetPort3},
    {"depot", "PERCENT: filling level", [](Ref u) { return Text(u.machine.path.DepotLevel()); }, SetDepot},
    {"hpa", "VALUE: air pressure, whole hPa", [](Ref u) { return std::to_string(u.machine.AirPressureHPa()); }, SetAmbient<0>},
    {"temperature", "VALUE: of board and air, °C", [](Ref u) { return Text(u.machine.celsius + u.machine.heated); }, SetAmbient<1>},
    {"rh", "VALUE: relative humidity of the air, percent", [](Ref u) { return Text(u.machine.relHumidity); }, SetAmbient<2>},
    {"battery", "VOLTS|none", [](Ref u) { return u.machine.voltsKnown ? Text(u.machine.volts) : "none"; }, SetBattery},
    {"supply", "battery|charging|charged|unknown", [](Ref u) { return supplies[u.machine.supply]; }, SetSupply},
    {"powerkey", "on|off", [](Ref u) { return onOff[u.machine.powerKey]; }, SetPowerKey},
    {"pumpbacks", "COUNT: pump-back processes; above 30000 is no value", [](Ref u) { return std::to_string(u.machine.pumpBacks); }, SetPumpBacks},
    {"compressor-seconds", "SECONDS: operating time of the compressor", [](Ref u) { return Text(u.machine.compressorSeconds); }, SetCompressorSeconds},
    {"filter", "PERCENT: water and decomposition products that the compressor's filter keeps", [](Ref u) { return Text(u.machine.filter * 100); }, SetFilter},
    {"board-type", "NUMBER: 17 is the one the program expects", [](Ref u) { return std::to_string(u.machine.boardType); }, SetBoardType},
    {"mode", "", GetMode, nullptr},
    {"info", "", GetInfo, nullptr},
    {"line", "", [](Ref u) { return std::string(u.line.IsPlugged() ? "plugged" : "unplugged"); }, nullptr},
    {"clock", "", [](Ref u) { return ToText(FromSeconds(u.machine.wallClock() + u.machine.clockOffset)); }, nullptr},
    {"valves", "", GetValves, nullptr},
    {"compressor", "", [](Ref u) { return onOff[u.machine.IsCompressorOn()]; }, nullptr},
    {"fan2", "", [](Ref u) { return onOff[u.machine.fan2]; }, nullptr},
    {"pressures", "", GetPressures, nullptr},
    {"sensors", "", GetSensors, nullptr},
};

}

bool CommandGet(Unit& unit, Words& words, std::string& answer)
{
    const bool all = words.AtEnd();
    const std::string name = words.Take();
    if (!words.Finish()) {
        return false;
    }
    bool found = all;
    for (const Setting& setting : settings) {
        if (all || name == setting.name) {
            answer += (all ? std::string(setting.name) + " " : "") + setting.get(unit) + "\n";
            found = true;
        }
    }
    return found || words.Fail("nothing is called " + name);
}

bool CommandSet(Unit& unit, Words& words, std::string&)
{
    const std::string name = words.Take();
    const auto found = std::find_if(std::begin(settings), std::end(settings), [&name](const Setting& setting) { return name == setting.name; });
    if (found == std::end(settings) || !found->set) {
        return words.Fail(name + " can't be set");
    }
    return found->set(unit, words);
}

std::string HelpOnSettings()
{
    std::string text;
    for (const Setting& setting : settings) {
        text += setting.set ? std::string("set ") + setting.name + " " + setting.help + "\n" : std::string("get ") + setting.name + "\n";
    }
    return text;
}

}
