#include "SensorUnit/Registers.h"

#include "SensorUnit/Calendar.h"

#include <algorithm>
#include <cmath>

namespace SensorUnit {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr ServiceEntry services[SERVICE_NUM] = {
    {"supply", 0x10000100, 4, true, false},
    {"clock", 0x10000200, 7, true, true},
    {"home", 0x10000300, 1, false, true},
    {"climate", 0x10000500, 4, true, false},
    {"valves", 0x10000600, 6, true, true},
    {"compressor", 0x10000700, 1, true, true},
    {"pressures", 0x10000800, 20, true, false},
    {"depot", 0x10000900, 1, true, false},
    {"fans", 0x10000A00, 2, true, true},
    {"sf6", 0x10001100, 32, true, true},
    {"so2", 0x10001200, 32, true, true},
    {"hum", 0x10001300, 32, true, true},
    {"hf", 0x10001400, 32, true, true},
    {"co", 0x10001500, 32, true, true},
    {"spare", 0x10001600, 32, true, true},
    {"h2s", 0x10001700, 32, true, true},
    {"p6", 0x10001800, 32, true, true},
    {"storings", 0x10002000, 6, true, true},
    {"info", 0xFFFFFFF0, 4, true, false},
    {"enter-application", 0xFFFFFFF8, 1, false, true},
    {"enter-loader", 0xFFFFFFF9, 1, false, true},
    {"powerdown", 0xFFFFFFFA, 1, false, true},
};

constexpr std::uint8_t goCommand = 0x5E;
constexpr std::uint8_t failing = 2; ///< how a valve, the compressor or a fan reads that doesn't obey
constexpr std::uint8_t unplugged = 0x80;
constexpr double hottestReading = 127; ///< °C in a signed byte

void Append(Bytes& bytes, std::uint32_t value, int width)
{
    for (int shift = 8 * (width - 1); shift >= 0; shift -= 8) {
        bytes.push_back(std::uint8_t(value >> shift));
    }
}

std::uint32_t Number(const Bytes& bytes, std::size_t offset, int width)
{
    std::uint32_t value = 0;
    for (int i = 0; i < width; i++) {
        value = value << 8 | bytes[offset + std::size_t(i)];
    }
    return value;
}

Bytes ReadSupply(const Machine& machine)
{
    Bytes bytes{std::uint8_t(machine.supply)};
    Append(bytes, machine.voltsKnown ? std::uint32_t(std::lround(machine.volts * 10)) : 0x8000u, 2);
    bytes.push_back(machine.powerKey);
    return bytes;
}

Bytes ReadClock(const Machine& machine)
{
    const CivilTime time = FromSeconds(machine.wallClock() + machine.clockOffset);
    Bytes bytes;
    Append(bytes, std::uint32_t(time.year), 2);
    for (const int field : {time.month, time.day, time.hour, time.minute, time.second}) {
        bytes.push_back(std::uint8_t(field));
    }
    return bytes;
}

/// A time that doesn't exist is ignored: so the program says that it has none.
void WriteClock(Machine& machine, const Bytes& bytes)
{
    const CivilTime time{int(Number(bytes, 0, 2)), bytes[2], bytes[3], bytes[4], bytes[5], bytes[6]};
    if (IsValid(time)) {
        machine.clockOffset = ToSeconds(time) - machine.wallClock();
    }
}

Bytes ReadClimate(const Machine& machine)
{
    if (machine.faults.climateFailing) {
        return {0x80, 0xFF, 0xFF, 0xFF};
    }
    Bytes bytes{std::uint8_t(std::lround(std::min(machine.celsius + machine.heated, hottestReading))), std::uint8_t(std::lround(machine.relHumidity))};
    Append(bytes, std::uint32_t(machine.AirPressureHPa()), 2);
    return bytes;
}

std::uint8_t ReadValve(const Machine& machine, Way way)
{
    return machine.faults.valve[way] == VALVE_FAILING ? failing : machine.IsCommanded(way);
}

Bytes ReadPressures(const Machine& machine)
{
    Bytes bytes;
    for (int sensor = 0; sensor < PRESSURE_NUM; sensor++) {
        const bool bad = machine.faults.pressureFailing[std::size_t(sensor)];
        const std::int32_t drift = std::int32_t(std::lround(machine.faults.pressureOffset[std::size_t(sensor)] * 1000));
        Append(bytes, std::uint32_t(bad ? noValue : machine.sensors.Pressure(PressureSensor(sensor)) + drift), 4);
    }
    return bytes;
}

Bytes ReadStorings(const Machine& machine)
{
    Bytes bytes;
    Append(bytes, machine.pumpBacks, 2);
    Append(bytes, std::uint32_t(machine.compressorSeconds), 4);
    return bytes;
}

bool IsSensor(Service service)
{
    return service >= SERVICE_SF6 && service <= SERVICE_P6;
}

}

const ServiceEntry& EntryOf(Service service)
{
    return services[service];
}

Service ServiceFor(const Request& request)
{
    for (int i = 0; i < SERVICE_NUM; i++) {
        const ServiceEntry& entry = services[i];
        const std::uint32_t offset = request.location - entry.location;
        if (request.location >= entry.location && offset < std::uint32_t(entry.size) && request.count <= entry.size - int(offset)) {
            return (request.write ? entry.writable : entry.readable) ? Service(i) : SERVICE_NUM;
        }
    }
    return SERVICE_NUM;
}

std::vector<std::uint8_t> Registers::Read(Service service) const
{
    switch (service) {
    case SERVICE_SUPPLY: return ReadSupply(machine);
    case SERVICE_CLOCK: return ReadClock(machine);
    case SERVICE_CLIMATE: return ReadClimate(machine);
    case SERVICE_PRESSURES: return ReadPressures(machine);
    case SERVICE_STORINGS: return ReadStorings(machine);
    case SERVICE_FANS: return {ReadValve(machine, WAY_VL), machine.fan2};
    case SERVICE_COMPRESSOR: return {machine.faults.compressor == COMPRESSOR_FAILING ? failing : std::uint8_t(machine.IsCompressorOn())};
    case SERVICE_DEPOT: return {machine.faults.depotFailing ? std::uint8_t(0xFF) : std::uint8_t(std::lround(machine.path.DepotLevel()))};
    case SERVICE_VALVES: {
        Bytes bytes;
        for (int way = WAY_V1; way <= WAY_V6; way++) {
            bytes.push_back(ReadValve(machine, Way(way)));
        }
        return bytes;
    }
    default: return IsSensor(service) ? ReadSensor(Sensor(service - SERVICE_SF6)) : Bytes{};
    }
}

std::vector<std::uint8_t> Registers::ReadSensor(Sensor sensor) const
{
    const Profile& profile = machine.sensors.ProfileOf(sensor);
    Bytes bytes(profile.begin(), profile.end());
    std::int32_t value = machine.sensors.Value(sensor);
    if (profile[0] != sensor || machine.faults.sensorUnplugged[sensor]) {
        bytes.assign(profile.size(), 0);
        bytes[0] = unplugged;
        value = noValue;
    } else if (machine.faults.sensorFailing[sensor]) {
        value = noValue;
    }
    Append(bytes, std::uint32_t(value), 4);
    return bytes;
}

bool Registers::Write(Service service, const Request& request)
{
    const int first = int(request.location - services[service].location);
    if (service == SERVICE_VALVES || service == SERVICE_COMPRESSOR || service == SERVICE_FANS) {
        return WriteSwitches(service, first, request);
    }
    if (service == SERVICE_HOME) {
        if (request.data[0] != goCommand) {
            return false;
        }
        machine.GoHome();
        return true;
    }
    Bytes payload = Read(service);
    std::copy_n(request.data.begin(), request.count, payload.begin() + first);
    if (service == SERVICE_CLOCK) {
        WriteClock(machine, payload);
        return true;
    }
    if (service == SERVICE_STORINGS) {
        machine.pumpBacks = std::uint16_t(Number(payload, 0, 2));
        if (first + request.count > 2) {
            machine.compressorSeconds = Number(payload, 2, 4);
        }
        return true;
    }
    return IsSensor(service) && WriteSensor(Sensor(service - SERVICE_SF6), payload);
}

bool Registers::WriteSwitches(Service service, int first, const Request& request)
{
    if (std::any_of(request.data.begin(), request.data.begin() + request.count, [](std::uint8_t byte) { return byte > 1; })) {
        return false;
    }
    for (int i = 0; i < request.count; i++) {
        const bool on = request.data[std::size_t(i)] == 1;
        if (service == SERVICE_COMPRESSOR) {
            machine.SetCompressor(on);
        } else if (service == SERVICE_VALVES) {
            machine.SetValve(Way(first + i), on);
        } else if (first + i == 0) {
            machine.SetValve(WAY_VL, on);
        } else {
            machine.fan2 = on;
        }
    }
    return true;
}

/// The memory is in the sensor: without one there is nothing to write to, and no writing makes it another sensor.
/// The measured value behind the memory can't be written; it is passed over.
bool Registers::WriteSensor(Sensor sensor, const Bytes& payload)
{
    if (machine.sensors.ProfileOf(sensor)[0] != sensor || machine.faults.sensorUnplugged[sensor] || payload[0] != sensor) {
        return false;
    }
    Profile profile;
    std::copy_n(payload.begin(), profile.size(), profile.begin());
    machine.sensors.SetProfile(sensor, profile);
    return true;
}

}
