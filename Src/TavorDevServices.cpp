#include "TavorDev.h"

#include "Conversions.h"
#include "RRx/RRService.h"
#include "TDService.h"

#include <cmath>
#include <cstring>

using RR::Array;
using RR::Date;
using RR::DateTime;
using RR::FixPnt1;
using RR::FixPnt3;
using RR::SInt08;
using RR::SInt16;
using RR::SInt32;
using RR::UInt08;
using RR::UInt16;
using RR::UInt32;

namespace {

using Bytes = Array<unsigned char>;

// Offsets in a sensor's service.
constexpr int sensorTypeAt = 0;
constexpr int sensorVersionAt = 1;
constexpr int sensorTagAt = 2;
constexpr int sensorUnitAt = 3;
constexpr int sensorRangeMinAt = 4;
constexpr int sensorRangeMaxAt = 6;
constexpr int sensorManfDateAt = 8;
constexpr int sensorSerialAt = 12;
constexpr int sensorSerialSize = 8;
constexpr int sensorExpectancyAt = 20;
constexpr int sensorCalDateAt = 22;
constexpr int sensorCalValidityAt = 26;
constexpr int sensorValueAt = 28;
constexpr int sensorProfileSize = 28;
constexpr int sensorServiceSize = 32;

constexpr UInt08 commandByte = 0x5E;
constexpr UInt08 powerdownByte = 0x05;
constexpr SInt16 noValue16 = INT16_MIN;
constexpr SInt32 pumpBackMax = 30000;
constexpr UInt32 compressorSecsMax = 359999940;

UInt16 Word(Bytes& data, int at)
{
    return RR::MakeWord(data[at], data[at + 1]);
}

UInt32 Long(Bytes& data, int at)
{
    return RR::MakeLong(Word(data, at), Word(data, at + 2));
}

void PutWord(Bytes& data, int at, UInt16 value)
{
    data[at] = RR::HiByte(value);
    data[at + 1] = RR::LoByte(value);
}

SInt32 OptionalWord(Bytes& data, int at)
{
    const SInt16 value = static_cast<SInt16>(Word(data, at));
    return value == noValue16 ? RR::INVALID : value;
}

void PutOptionalWord(Bytes& data, int at, SInt32 value)
{
    PutWord(data, at, static_cast<UInt16>(value == RR::INVALID ? noValue16 : value));
}

/// A day beyond its month is no date: `Date` alone would bring it back to the month's last day.
Date DateOf(SInt32 day, SInt32 month, SInt32 year)
{
    const Date date(day, month, year);
    return date.GetDay() == day ? date : Date();
}

Date DateAt(Bytes& data, int at)
{
    return DateOf(data[at + 3], data[at + 2], Word(data, at));
}

/// An invalid date goes out as all ones.
void PutDate(Bytes& data, int at, const Date& date)
{
    PutWord(data, at, static_cast<UInt16>(date.IsValid() ? date.GetYear() : 0xFFFF));
    data[at + 2] = static_cast<UInt08>(date.IsValid() ? date.GetMonth() : 0xFF);
    data[at + 3] = static_cast<UInt08>(date.IsValid() ? date.GetDay() : 0xFF);
}

/// `value` if it lies within the bounds, else no value.
SInt32 Ranged(SInt32 value, SInt32 min, SInt32 max)
{
    return value < min || value > max ? RR::INVALID : value;
}

Pressure PressureFromBar(FixPnt3 bar)
{
    if (bar == RR::INVALID_DOUBLE) {
        return Pressure();
    }
    const double value = bar.ToDouble();
    return Pressure(bar, FixPnt3(ConvBarToKPa(value)), FixPnt3(ConvBarToPsi(value)), FixPnt3(ConvBarToMPa(value)));
}

/// The value as it enters the conversions, which know the invalid value in its double form only.
double AsDouble(FixPnt3 value)
{
    return value == RR::INVALID_DOUBLE ? RR::INVALID_DOUBLE : value.ToDouble();
}

/// Water content in ppmv of gas with the dew point `celsDp` in °C at the sensor, by the Magnus formula
/// over ice below 0 °C and over water from 0 °C on.
FixPnt3 PPMvAtSensor(FixPnt3 celsDp, SInt32 airPressureHPa)
{
    const double t = celsDp.ToDouble();
    if (t < -80.0 || t > 45.0) {
        return FixPnt3(RR::INVALID);
    }
    const double a = t < 0 ? 22.46 : 17.62;
    const double b = t < 0 ? 272.62 : 243.12;
    const double e = 6.112 * std::exp(a * t / (b + t));
    return FixPnt3(e / (airPressureHPa / 1000.0) * 1000.0);
}

FixPnt3 WholeDegrees(FixPnt3 value)
{
    return FixPnt3(RR::FixPnt0(value, RR::ROUND));
}

}

TavorDev::SupplyInfo TavorDev::GetSupplyInfo() const
{
    SupplyInfo info;
    Bytes data;
    if (ReadService(srvReadSupplyInfo, data)) {
        info.source = data[0] < SUPSRC_UNKNOWN ? static_cast<SupplySource>(data[0]) : SUPSRC_UNKNOWN;
        const SInt32 tenths = OptionalWord(data, 1);
        info.voltage.Inject(tenths);
        info.powerKey = data[3] != 0;
    }
    return info;
}

DateTime TavorDev::GetRTC() const
{
    Bytes data;
    if (!ReadService(srvAccRTC, data)) {
        return DateTime();
    }
    return DateTime(DateAt(data, 0), RR::Time(data[4], data[5], data[6]));
}

Temperature TavorDev::GetBoardTemperature() const
{
    Bytes data;
    if (!ReadService(srvReadBoardClimate, data)) {
        return Temperature();
    }
    const SInt32 cels = Ranged(static_cast<SInt08>(data[0]), -99, 99);
    return cels == RR::INVALID ? Temperature() : Temperature(cels, RR::Round(ConvCelsToFahr(cels)));
}

SInt32 TavorDev::GetRelHumidity() const
{
    Bytes data;
    return ReadService(srvReadBoardClimate, data) ? Ranged(static_cast<SInt08>(data[1]), 0, 100) : RR::INVALID;
}

SInt32 TavorDev::GetAirPressure() const
{
    Bytes data;
    return ReadService(srvReadBoardClimate, data) ? Ranged(Word(data, 2), 300, 1100) : RR::INVALID;
}

TavorDev::ValveState TavorDev::GetValve(Valve valve) const
{
    Bytes data;
    if (!ReadService(srvAccValves, data) || data[valve] > 1) {
        return VALVE_FAILURE;
    }
    return data[valve] ? VALVE_OPEN : VALVE_CLOSE;
}

TavorDev::CompressorState TavorDev::GetCompressor() const
{
    Bytes data;
    if (!ReadService(srvAccCompressor, data) || data[0] > 1) {
        return COMPRESSOR_FAILURE;
    }
    return data[0] ? COMPRESSOR_ON : COMPRESSOR_OFF;
}

TavorDev::FanState TavorDev::GetFan1() const
{
    return GetFan(0);
}

TavorDev::FanState TavorDev::GetFan2() const
{
    return GetFan(1);
}

TavorDev::FanState TavorDev::GetFan(int index) const
{
    Bytes data;
    if (!ReadService(srvAccFans, data) || data[index] > 1) {
        return FAN_FAILURE;
    }
    return data[index] ? FAN_ON : FAN_OFF;
}

SInt32 TavorDev::GetCompressorOperatingTime() const
{
    Bytes data;
    if (!ReadService(srvAccStorings, data) || Long(data, 2) > compressorSecsMax) {
        return RR::INVALID;
    }
    return static_cast<SInt32>((Long(data, 2) + 30) / 60);
}

SInt32 TavorDev::GetPumpBackProcesses() const
{
    Bytes data;
    return ReadService(srvAccStorings, data) ? Ranged(Word(data, 0), 0, pumpBackMax) : RR::INVALID;
}

SInt32 TavorDev::GetDepotFillingLevel() const
{
    Bytes data;
    return ReadService(srvReadDepotFillingLevel, data) ? Ranged(data[0], 0, 100) : RR::INVALID;
}

Pressure TavorDev::GetPressure(PressureSensor sensor) const
{
    Bytes data;
    if (!ReadService(srvReadPressureSensors, data)) {
        return Pressure();
    }
    return PressureFromBar(FixPnt3::Inlay(static_cast<SInt32>(Long(data, 4 * sensor))));
}

bool TavorDev::GetSensorData(Sensor sensor, Bytes& data) const
{
    data.SetEmpty();
    if (sensor < 0 || sensor >= SENSOR_NUM) {
        return false;
    }
    return ReadService(SensorService(sensor), data) && data[sensorTypeAt] == sensor;
}

FixPnt3 TavorDev::GetSensorValue(Sensor sensor, SInt32 driftBelowRange) const
{
    Bytes data;
    if (!GetSensorData(sensor, data)) {
        return FixPnt3(RR::INVALID);
    }
    const FixPnt3 rangeMin(static_cast<SInt16>(Word(data, sensorRangeMinAt)));
    const FixPnt3 rangeMax(static_cast<SInt16>(Word(data, sensorRangeMaxAt)));
    const FixPnt3 value = FixPnt3::Inlay(static_cast<SInt32>(Long(data, sensorValueAt)));
    if (value < rangeMin - FixPnt3(driftBelowRange) || value > rangeMax) {
        return FixPnt3(RR::INVALID);
    }
    return driftBelowRange && value < rangeMin && !inspectionMode ? rangeMin : value;
}

FixPnt1 TavorDev::GetAmountSF6() const
{
    return FixPnt1(GetSensorValue(SENSOR_SF6), RR::ROUND);
}

FixPnt3 TavorDev::GetAmountSO2() const
{
    return GetSensorValue(SENSOR_SO2);
}

FixPnt3 TavorDev::GetAmountHF() const
{
    return GetSensorValue(SENSOR_HF);
}

FixPnt3 TavorDev::GetAmountCO() const
{
    return GetSensorValue(SENSOR_CO);
}

FixPnt3 TavorDev::GetAmount__() const
{
    return GetSensorValue(SENSOR___);
}

FixPnt3 TavorDev::GetAmountH2S() const
{
    return GetSensorValue(SENSOR_H2S, 10);
}

Pressure TavorDev::GetPressureComp() const
{
    return PressureFromBar(GetSensorValue(SENSOR_P6));
}

Humidity TavorDev::GetHumidity() const
{
    Humidity humidity;
    const FixPnt3 dewPoint = GetSensorValue(SENSOR_HUM);
    if (dewPoint == RR::INVALID_DOUBLE) {
        return humidity;
    }
    const FixPnt3 refPressure = GetPressure(PRESSENS_INLET)[Pressure::BAR];
    const SInt32 airPressure = GetAirPressure();
    if (refPressure == RR::INVALID_DOUBLE || airPressure == RR::INVALID) {
        return humidity;
    }
    humidity[Humidity::PPMV] = PPMvAtSensor(dewPoint, airPressure);
    const double ppmv = AsDouble(humidity[Humidity::PPMV]);
    humidity[Humidity::PPMW] = ConvPPMvToPPMw(ppmv);
    humidity[Humidity::CELS] = CalcPressurizedDP(ppmv, 1.0);
    humidity[Humidity::FAHR] = ConvCelsToFahr(AsDouble(humidity[Humidity::CELS]));
    humidity[Humidity::CELSPR] = CalcPressurizedDP(ppmv, refPressure.ToDouble());
    humidity[Humidity::FAHRPR] = ConvCelsToFahr(AsDouble(humidity[Humidity::CELSPR]));
    for (Humidity::Unit unit : {Humidity::CELS, Humidity::FAHR, Humidity::CELSPR, Humidity::FAHRPR}) {
        humidity[unit] = WholeDegrees(humidity[unit]);
    }
    return humidity;
}

bool TavorDev::GetDevInfo(Info& info) const
{
    info = Info();
    Bytes data;
    if (!ReadService(srvReadDeviceInfo, data)) {
        data.SetSize(srvReadDeviceInfo.GetSize());
        if (!Read(srvReadDeviceInfo.GetLoc(), data)) {
            return false;
        }
    }
    info.applType = data[0];
    info.applVers.BCD() = data[1];
    info.boardType = data[2];
    info.boardVers.BCD() = data[3];
    return true;
}

TavorDev::SensorProfile TavorDev::GetSensorProfile(Sensor sensor) const
{
    SensorProfile profile;
    Bytes data;
    if (!GetSensorData(sensor, data)) {
        return profile;
    }
    profile.type = sensor;
    profile.version.BCD() = data[sensorVersionAt];
    profile.tag = data[sensorTagAt];
    profile.unit = data[sensorUnitAt];
    profile.rangeMin = OptionalWord(data, sensorRangeMinAt);
    profile.rangeMax = OptionalWord(data, sensorRangeMaxAt);
    profile.manfDate = DateAt(data, sensorManfDateAt);
    profile.serial = RR::String(reinterpret_cast<const char*>(data.Adr()) + sensorSerialAt, sensorSerialSize);
    profile.expectancy = OptionalWord(data, sensorExpectancyAt);
    profile.calDate = DateAt(data, sensorCalDateAt);
    profile.calValidity = OptionalWord(data, sensorCalValidityAt);
    return profile;
}

bool TavorDev::HasSensor(Sensor sensor) const
{
    return GetSensorProfile(sensor).type == sensor;
}

bool TavorDev::HasSensors() const
{
    for (SInt32 sensor = 0; sensor < SENSOR_NUM; ++sensor) {
        if (HasSensor(static_cast<Sensor>(sensor))) {
            return true;
        }
    }
    return false;
}

bool TavorDev::SetSensorProfile(const SensorProfile& profile)
{
    Bytes data(sensorProfileSize);
    data.Fill(0);
    data[sensorTypeAt] = static_cast<UInt08>(profile.type);
    data[sensorVersionAt] = profile.version.BCD();
    data[sensorTagAt] = profile.tag;
    data[sensorUnitAt] = static_cast<UInt08>(profile.unit);
    PutOptionalWord(data, sensorRangeMinAt, profile.rangeMin);
    PutOptionalWord(data, sensorRangeMaxAt, profile.rangeMax);
    PutDate(data, sensorManfDateAt, profile.manfDate);
    std::strncpy(reinterpret_cast<char*>(data.Adr()) + sensorSerialAt, profile.serial, sensorSerialSize);
    PutOptionalWord(data, sensorExpectancyAt, profile.expectancy);
    PutDate(data, sensorCalDateAt, profile.calDate);
    PutOptionalWord(data, sensorCalValidityAt, profile.calValidity);
    return SetSensorData(profile.type, data);
}

bool TavorDev::SetSensorData(Sensor sensor, const Bytes& data)
{
    if (data.GetSize() != sensorProfileSize || sensor < 0 || sensor >= SENSOR_NUM) {
        return false;
    }
    // The unit ignores the last four bytes: they are the place of its reading.
    Bytes payload(sensorServiceSize);
    payload.Fill(0);
    std::memcpy(payload.Adr(), data.Adr(), sensorProfileSize);
    return Write(SensorService(sensor).GetLoc(), payload);
}

bool TavorDev::SetRTC(const DateTime& dateTime)
{
    Bytes data(srvAccRTC.GetSize());
    data.Fill(0xFF);
    if (dateTime.IsValid()) {
        PutWord(data, 0, static_cast<UInt16>(dateTime.GetYear()));
        data[2] = static_cast<UInt08>(dateTime.GetMonth());
        data[3] = static_cast<UInt08>(dateTime.GetDay());
        data[4] = static_cast<UInt08>(dateTime.GetHour());
        data[5] = static_cast<UInt08>(dateTime.GetMinute());
        data[6] = static_cast<UInt08>(dateTime.GetSecond());
    }
    return Write(srvAccRTC.GetLoc(), data);
}

bool TavorDev::HomePositions()
{
    return WriteByte(srvHomePositions.GetLoc(), commandByte);
}

bool TavorDev::PowerDown()
{
    return WriteByte(srvPowerdown.GetLoc(), powerdownByte);
}

bool TavorDev::SetValve(Valve valve, bool open)
{
    return WriteByte(srvAccValves.GetLoc() + static_cast<UInt32>(valve), open ? 1 : 0);
}

bool TavorDev::SetCompressor(bool on)
{
    return WriteByte(srvAccCompressor.GetLoc(), on ? 1 : 0);
}

bool TavorDev::SetFan1(bool open)
{
    return WriteByte(srvAccFans.GetLoc(), open ? 1 : 0);
}

bool TavorDev::SetFan2(bool open)
{
    return WriteByte(srvAccFans.GetLoc() + 1, open ? 1 : 0);
}

bool TavorDev::SetPumpBackProcesses(SInt32 num)
{
    Bytes data(2);
    PutWord(data, 0, static_cast<UInt16>(num < 0 || num > pumpBackMax ? 0x8000 : num));
    return Write(srvAccStorings.GetLoc(), data);
}

void TavorDev::ZeroizeCompressorOperatingTime()
{
    Bytes data(4);
    data.Fill(0);
    Write(srvAccStorings.GetLoc() + 2, data);
}
