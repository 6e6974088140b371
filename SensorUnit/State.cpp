#include "SensorUnit/State.h"

#include "SensorUnit/Log.h"
#include "SensorUnit/Protocol.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <locale>
#include <sstream>

namespace SensorUnit {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr const char* nodeKeys[NODE_NUM] = {"gas-c1", "gas-n1", "gas-e2", "gas-s", "gas-t", "gas-l", "gas-j", "gas-d", "gas-x"};

template <typename Range>
std::string Hex(const Range& bytes)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

bool FromHex(const std::string& text, Bytes& bytes)
{
    const auto digit = [](char c) { return c >= '0' && c <= '9' ? c - '0' : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1; };
    bytes.clear();
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
        const int high = digit(text[i]), low = digit(text[i + 1]);
        if (high < 0 || low < 0) {
            return false;
        }
        bytes.push_back(std::uint8_t(high << 4 | low));
    }
    return text.size() % 2 == 0;
}

/// Reads exactly `count` finite numbers from `low` to `high`.
bool Numbers(std::istringstream& from, double* values, int count, double low, double high)
{
    for (int i = 0; i < count; i++) {
        if (!(from >> values[i]) || !std::isfinite(values[i]) || values[i] < low || values[i] > high) {
            return false;
        }
    }
    return true;
}

bool TakeGas(std::istringstream& from, Node node, Machine& machine)
{
    Volume volume = machine.path.At(node);
    double own[2];
    if (!Numbers(from, own, 2, 1e-6, 1e6) || !Numbers(from, volume.gas.data(), SHARE_NUM, 0, 1e6)) {
        return false;
    }
    volume.litres = own[0];
    volume.content = own[1];
    machine.path.Restore(node, volume);
    return true;
}

bool TakeProfile(std::istringstream& from, Machine& machine)
{
    double sensor = 0;
    std::string text;
    Bytes bytes;
    Profile profile;
    if (!Numbers(from, &sensor, 1, 0, SENSOR_NUM - 1) || !(from >> text) || !FromHex(text, bytes) || bytes.size() != profile.size()) {
        return false;
    }
    std::copy(bytes.begin(), bytes.end(), profile.begin());
    machine.sensors.SetProfile(Sensor(int(sensor)), profile);
    return true;
}

bool TakeLine(const std::string& key, std::istringstream& from, Machine& machine, Loader& loader)
{
    double v[4];
    for (int node = 0; node < NODE_NUM; node++) {
        if (key == nodeKeys[node]) {
            return TakeGas(from, Node(node), machine);
        }
    }
    if (key == "sensor") {
        return TakeProfile(from, machine);
    }
    if (key == "memory") {
        std::string text;
        Bytes bytes;
        if (!(from >> text) || !FromHex(text, bytes)) {
            return false;
        }
        loader.Install(bytes);
        return true;
    }
    if (key == "storings" && Numbers(from, v, 2, 0, UINT32_MAX) && v[0] <= UINT16_MAX) {
        machine.pumpBacks = std::uint16_t(v[0]);
        machine.compressorSeconds = v[1];
        return true;
    }
    if (key == "board" && Numbers(from, v, 1, 0, UINT8_MAX)) {
        machine.boardType = std::uint8_t(v[0]);
        return true;
    }
    if (key == "clock" && Numbers(from, v, 1, -2.5e11, 2.5e11)) {
        machine.clockOffset = std::int64_t(v[0]);
        return true;
    }
    if (key == "ambient" && Numbers(from, v, 3, -99, 1100) && v[0] >= 300) {
        machine.SetAmbient(int(v[0]), v[1], v[2]);
        return true;
    }
    if (key == "ports" && Numbers(from, v, 3, 0, 1)) {
        machine.port1 = PortUse(int(v[0]));
        machine.port2 = PortUse(int(v[1]));
        machine.SetPort3(PortUse(int(v[2])), 0);
        return true;
    }
    if (key == "compartment" && Numbers(from, v, 2, 1e-6, 1e6)) {
        machine.compartmentBar = v[0];
        machine.compartmentLitres = v[1];
        return true;
    }
    if (key == "filter" && Numbers(from, v, 1, 0, 1)) {
        machine.filter = v[0];
        return true;
    }
    return false;
}

std::string Compose(const Machine& machine, const Loader& loader)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(12);
    text << "storings = " << machine.pumpBacks << ' ' << machine.compressorSeconds << '\n';
    text << "board = " << int(machine.boardType) << '\n';
    text << "clock = " << machine.clockOffset << '\n';
    for (int sensor = 0; sensor < SENSOR_NUM; sensor++) {
        text << "sensor = " << sensor << ' ' << Hex(machine.sensors.ProfileOf(Sensor(sensor))) << '\n';
    }
    // The surroundings and ports stand before the gas: they decide how much of it a volume takes up.
    text << "ambient = " << machine.AirPressureHPa() << ' ' << machine.celsius << ' ' << machine.relHumidity << '\n';
    text << "ports = " << machine.port1 << ' ' << machine.port2 << ' ' << machine.port3 << '\n';
    text << "compartment = " << machine.compartmentBar << ' ' << machine.compartmentLitres << '\n';
    text << "filter = " << machine.filter << '\n';
    for (int node = 0; node < NODE_NUM; node++) {
        const Volume& volume = machine.path.At(Node(node));
        text << nodeKeys[node] << " = " << volume.litres << ' ' << volume.content;
        for (const double share : volume.gas) {
            text << ' ' << share;
        }
        text << '\n';
    }
    text << "memory = " << Hex(loader.Content()) << '\n';
    return text.str();
}

}

bool SaveState(const std::string& file, const Machine& machine, const Loader& loader)
{
    const std::string fresh = file + ".new";
    std::ofstream stream(fresh, std::ios::binary | std::ios::trunc);
    stream << Compose(machine, loader);
    stream.close();
    if (!stream || std::rename(fresh.c_str(), file.c_str()) != 0) {
        Log("can't write the state to %s", file.c_str());
        return false;
    }
    return true;
}

void LoadState(const std::string& file, Machine& machine, Loader& loader)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        Log("no state in %s, starts as new", file.c_str());
        return;
    }
    std::string line;
    while (std::getline(stream, line)) {
        const std::size_t separator = line.find(" = ");
        std::istringstream values(separator == std::string::npos ? "" : line.substr(separator + 3));
        values.imbue(std::locale::classic());
        if (separator == std::string::npos || !TakeLine(line.substr(0, separator), values, machine, loader)) {
            Log("state not understood: %s", Printable(line).c_str());
        }
    }
    machine.Apply();
    machine.Settle();
}

}
