#include "ScriptedTavorDev.h"
#include "Conversions.h"

#include <algorithm>

using RR::FixPnt1;
using RR::FixPnt3;
using RR::SInt32;

Scripted scripted;
TavorDev tavorDev;
bool inspectionMode = false;

void Scripted::Reset()
{
    *this = Scripted();
    inspectionMode = false;
    info = {55, SVersion("6.0"), 17, SVersion("2.0")};
    supply = {TavorDev::SUPSRC_LINE_AND_CHARGING_COMPLETE, FixPnt1(24.0), false};
    clock = RR::DateTime(31, 1, 2024, 12, 0, 0);
    temperature = Temperature(25, 77);
    relHumidity = 40;
    airPressure = 1000;
    depotLevel = 0;
    comprOperTime = 60;
    pumpBacks = 7;
    pressure[TavorDev::PRESSENS_P1] = pressure[TavorDev::PRESSENS_P3] = 1.0;
    amount[TavorDev::SENSOR_SF6] = 99.5;
    amount[TavorDev::SENSOR_P6] = 6.0;
    SetDewPoint(-40.0);
    for (SInt32 i = 0; i < TavorDev::SENSOR_NUM; ++i) {
        profile[i].type = static_cast<TavorDev::Sensor>(i);
        profile[i].rangeMin = 0;
        profile[i].rangeMax = 100;
    }
}

void Scripted::SetDewPoint(double cels)
{
    humidity[Humidity::CELS] = FixPnt3(cels);
    humidity[Humidity::FAHR] = FixPnt3(ConvCelsToFahr(cels));
}

int Scripted::Count(const std::string& command) const
{
    return static_cast<int>(std::count(commands.begin(), commands.end(), command));
}

std::string Scripted::TakeCommands()
{
    std::string text;
    for (; taken < commands.size(); ++taken) {
        text += (text.empty() ? "" : " ") + commands[taken];
    }
    return text;
}

bool Scripted::Command(const std::string& command)
{
    commands.push_back(command);
    return !failing.contains(command);
}

namespace {

template <class State>
bool Switch(const std::string& name, State& state, bool on)
{
    const bool done = scripted.Command(name + (on ? "+" : "-"));
    if (done) {
        state = static_cast<State>(on);
    }
    return done;
}

Pressure FromBar(double bar)
{
    return Pressure(FixPnt3(bar), FixPnt3(ConvBarToKPa(bar)), FixPnt3(ConvBarToPsi(bar)), FixPnt3(ConvBarToMPa(bar)));
}

}

TavorDev::TavorDev() = default;
TavorDev::~TavorDev() = default;

bool TavorDev::Connect(Mode setMode)
{
    const bool done = scripted.Command("connect" + std::to_string(setMode)) && scripted.connects;
    mode = done ? setMode : MODE_NONE;
    if (done) {
        emit Connected();
    }
    return done;
}

void TavorDev::Disconnect()
{
    scripted.Command("disconnect");
    mode = MODE_NONE;
    emit Disconnected();
}

bool TavorDev::Read(RR::UInt32 loc, RR::Array<unsigned char>& data) const
{
    const std::vector<unsigned char>& stored = scripted.memory[loc];
    if (scripted.badReads[loc]-- > 0 || static_cast<SInt32>(stored.size()) != data.GetSize()) {
        return false;
    }
    std::copy(stored.begin(), stored.end(), data.Adr());
    return true;
}

bool TavorDev::Write(RR::UInt32 loc, const RR::Array<unsigned char>& data)
{
    if (!scripted.Command("write" + std::to_string(loc)) || scripted.badWrites[loc]-- > 0) {
        return false;
    }
    scripted.memory[loc].assign(data.Adr(), data.Adr() + data.GetSize());
    return true;
}

TavorDev::SupplyInfo TavorDev::GetSupplyInfo() const { return scripted.supply; }
RR::DateTime TavorDev::GetRTC() const { return scripted.clock; }
Temperature TavorDev::GetBoardTemperature() const { return scripted.temperature; }
SInt32 TavorDev::GetRelHumidity() const { return scripted.relHumidity; }
SInt32 TavorDev::GetAirPressure() const { return scripted.airPressure; }
TavorDev::ValveState TavorDev::GetValve(Valve valve) const { return scripted.valve[valve]; }
TavorDev::CompressorState TavorDev::GetCompressor() const { return scripted.compressor; }
TavorDev::FanState TavorDev::GetFan1() const { return scripted.fan[0]; }
TavorDev::FanState TavorDev::GetFan2() const { return scripted.fan[1]; }
SInt32 TavorDev::GetCompressorOperatingTime() const { return scripted.comprOperTime; }
SInt32 TavorDev::GetPumpBackProcesses() const { return scripted.pumpBacks; }
SInt32 TavorDev::GetDepotFillingLevel() const { return scripted.depotLevel; }
Pressure TavorDev::GetPressure(PressureSensor sensor) const { return FromBar(scripted.pressure[sensor]); }
FixPnt1 TavorDev::GetAmountSF6() const { return FixPnt1(scripted.amount[SENSOR_SF6]); }
FixPnt3 TavorDev::GetAmountSO2() const { return FixPnt3(scripted.amount[SENSOR_SO2]); }
FixPnt3 TavorDev::GetAmountHF() const { return FixPnt3(scripted.amount[SENSOR_HF]); }
FixPnt3 TavorDev::GetAmountCO() const { return FixPnt3(scripted.amount[SENSOR_CO]); }
FixPnt3 TavorDev::GetAmount__() const { return FixPnt3(scripted.amount[SENSOR___]); }
FixPnt3 TavorDev::GetAmountH2S() const { return FixPnt3(scripted.amount[SENSOR_H2S]); }
Humidity TavorDev::GetHumidity() const { return scripted.humidity; }
Pressure TavorDev::GetPressureComp() const { return FromBar(scripted.amount[SENSOR_P6]); }
TavorDev::SensorProfile TavorDev::GetSensorProfile(Sensor sensor) const { return scripted.profile[sensor]; }
bool TavorDev::HasSensor(Sensor sensor) const { return scripted.profile[sensor].type == sensor; }

bool TavorDev::GetDevInfo(Info& info) const
{
    info = scripted.info;
    return info.applType != RR::INVALID;
}

bool TavorDev::HasSensors() const
{
    return std::any_of(std::begin(scripted.profile), std::end(scripted.profile), [](const SensorProfile& profile) { return profile.type < SENSOR_NUM; });
}

bool TavorDev::SetSensorProfile(const SensorProfile& profile)
{
    const bool done = scripted.Command("profile" + std::to_string(profile.type)) && profile.type < SENSOR_NUM;
    if (done) {
        scripted.profile[profile.type] = profile;
    }
    return done;
}

bool TavorDev::SetRTC(const RR::DateTime& dateTime)
{
    const bool done = scripted.Command("clock");
    if (done) {
        scripted.clock = dateTime;
    }
    return done;
}

bool TavorDev::HomePositions()
{
    const bool done = scripted.Command("home");
    if (done) {
        std::fill(std::begin(scripted.valve), std::end(scripted.valve), VALVE_CLOSE);
        std::fill(std::begin(scripted.fan), std::end(scripted.fan), FAN_OFF);
        scripted.compressor = COMPRESSOR_OFF;
    }
    return done;
}

bool TavorDev::PowerDown() { return scripted.Command("off"); }
bool TavorDev::SetValve(Valve valve, bool open) { return Switch("V" + std::to_string(valve + 1), scripted.valve[valve], open); }
bool TavorDev::SetCompressor(bool on) { return Switch("C", scripted.compressor, on); }
bool TavorDev::SetFan1(bool open) { return Switch("VL", scripted.fan[0], open); }
bool TavorDev::SetFan2(bool open) { return Switch("F2", scripted.fan[1], open); }

bool TavorDev::SetPumpBackProcesses(SInt32 num)
{
    const bool done = scripted.Command("pumpbacks=" + std::to_string(num));
    if (done) {
        scripted.pumpBacks = num >= 0 && num <= 30000 ? num : RR::INVALID;
    }
    return done;
}

void TavorDev::ZeroizeCompressorOperatingTime()
{
    if (scripted.Command("time0")) {
        scripted.comprOperTime = 0;
    }
}
