// What a job asks of the readings.

#include "BiC.h"
#include "JobStateMachine.h"

#include <optional>

using RR::FixPnt3;
using RR::Log;
using RR::SInt32;
using RR::SInt64;

/// How the log names a pressure sensor, in a comparison and where its value is stored.
struct PressureNames {
    const char* compared;
    const char* stored;
};
static const PressureNames pressureNames[TavorDev::PRESSENS_NUM] = {
    {"P1 (inlet): ", "P1 (inlet) "},
    {"P2 (back) : ", "P2 (back) "},
    {"P3 (oper.): ", "P3 (oper.) "},
    {"P4 (depot): ", "P4 (depot) "},
    {"P5: ", "P5"},
};

static bool HasValue(const FixPnt3& value) { return value.Eject() != RR::INVALID; }
static bool HasValue(SInt32 value) { return value != RR::INVALID; }

static const char* YesNo(bool holds)
{
    return holds ? "[yes]" : "[no]";
}

/// Compares and logs; nothing if one of the two has no value.
template <class Value>
static std::optional<bool> Compared(const char* name, const Value& value, JobStateMachine::Compare cmp, const Value& limit, const char* unit)
{
    std::optional<bool> holds;
    if (HasValue(value) && HasValue(limit)) {
        holds = cmp == JobStateMachine::LESS ? value < limit : value > limit;
    }
    const RR::String valueText = BiC(value);
    const RR::String limitText = BiC(limit);
    Log("[ZARN]       Check %s%s%s %c %s%s %s\n", name, static_cast<const char*>(valueText), unit,
        cmp == JobStateMachine::LESS ? '<' : '>', static_cast<const char*>(limitText), unit, holds ? YesNo(*holds) : "[error]");
    return holds;
}

bool JobStateMachine::CheckPressure(TavorDev::PressureSensor sensor, Compare cmp, FixPnt3 threshold)
{
    if (!IsRunning()) {
        return false;
    }
    ReadPressures();
    const auto holds = Compared(pressureNames[sensor].compared, pressure[sensor][Pressure::BAR], cmp, threshold, " bar");
    StopIf(!holds, PRESSURE_FAILURE);
    return holds.value_or(false);
}

bool JobStateMachine::CheckSensorValue(TavorDev::Sensor sensor, Compare cmp, FixPnt3 threshold)
{
    if (!IsRunning()) {
        return false;
    }
    const char* name = "";
    const char* unit = "";
    FixPnt3 value(RR::INVALID);
    switch (sensor) {
    case TavorDev::SENSOR_SF6:
        name = "SF6: ";
        value = FixPnt3(tavorDev.GetAmountSF6());
        break;
    case TavorDev::SENSOR_SO2:
        name = "SO2: ";
        value = tavorDev.GetAmountSO2();
        break;
    case TavorDev::SENSOR_HUM:
        name = "Hum: ";
        unit = " °C";
        value = tavorDev.GetHumidity()[Humidity::CELS];
        break;
    case TavorDev::SENSOR_HF:
        name = "HF: ";
        value = tavorDev.GetAmountHF();
        break;
    case TavorDev::SENSOR_CO:
        name = "CO: ";
        value = tavorDev.GetAmountCO();
        break;
    case TavorDev::SENSOR___:
        name = "__: ";
        value = tavorDev.GetAmount__();
        break;
    case TavorDev::SENSOR_H2S:
        name = "H2S: ";
        value = tavorDev.GetAmountH2S();
        break;
    default:
        return false;
    }
    if (sensor == TavorDev::SENSOR_SO2 && inspectionMode) {
        Log("[ZARN]       Check %s[disabled (Inspec.Mode)]\n", name);
        return false;
    }
    if (!HasValue(value)) { // as of a sensor that isn't fitted: no reason to stop
        Log("[ZARN]       Check %s[not available]\n", name);
        return false;
    }
    const auto holds = Compared(name, value, cmp, threshold, unit);
    StopIf(!holds, PRESSURE_FAILURE);
    return holds.value_or(false);
}

bool JobStateMachine::CheckHumidity(Compare cmp, FixPnt3 threshold)
{
    if (!IsRunning()) {
        return false;
    }
    const auto holds = Compared("humidity ", tavorDev.GetHumidity()[Humidity::CELS], cmp, threshold, " °C");
    StopIf(!holds, HUMIDITY_FAILURE);
    return holds.value_or(false);
}

bool JobStateMachine::CheckDepotFillingLevel(Compare cmp, SInt32 threshold)
{
    if (!IsRunning()) {
        return false;
    }
    const auto holds = Compared("depot filling level ", tavorDev.GetDepotFillingLevel(), cmp, threshold, " %");
    StopIf(!holds, DEPOT_FAILURE);
    return holds.value_or(false);
}

bool JobStateMachine::CheckAirPressure(Compare cmp, FixPnt3 threshold)
{
    if (!IsRunning()) {
        return false;
    }
    const SInt32 hPa = tavorDev.GetAirPressure();
    if (!HasValue(hPa) || !HasValue(threshold)) {
        return Fail("[ZARN]       Check PU (air pressure): [error]\n", PRESSURE_FAILURE);
    }
    // A hectopascal is a thousandth of a bar.
    return Compared("PU (air pressure): ", FixPnt3::Inlay(hPa), cmp, threshold, " bar").value_or(false);
}

void JobStateMachine::StorePressure(TavorDev::PressureSensor sensor)
{
    if (!IsRunning()) {
        return;
    }
    storedPressure = tavorDev.GetPressure(sensor)[Pressure::BAR];
    Log("[ZARN]       %s", pressureNames[sensor].stored);
    if (HasValue(storedPressure)) {
        Log(" = %s bar, value stored\n", static_cast<const char*>(BiC(storedPressure)));
    } else {
        Fail(" sensor error\n", PRESSURE_FAILURE);
    }
}

static const char outOfBounds[] = "failed (value out of bounds)\n";
static const char sensorFailure[] = "failed (sensor failure)\n";

static bool IsPercentage(SInt32 percent)
{
    return percent >= -1000 && percent <= 1000;
}

static void LogDeviation(FixPnt3 stored, FixPnt3 actual)
{
    Log(" d(%s,%s), ", static_cast<const char*>(BiC(stored)), static_cast<const char*>(BiC(actual)));
}

static bool IsBetween(FixPnt3 min, FixPnt3 value, FixPnt3 max, const char* unit)
{
    const bool holds = min < value && value < max;
    Log(" %s < %s < %s [%s]:  %s\n", static_cast<const char*>(BiC(min)), static_cast<const char*>(BiC(value)),
        static_cast<const char*>(BiC(max)), unit, YesNo(holds));
    return holds;
}

bool JobStateMachine::CheckPressureDeviationPerc(SInt32 percMin, TavorDev::PressureSensor sensor, SInt32 percMax)
{
    if (!IsRunning()) {
        return false;
    }
    Log("[ZARN]       Check deviation ");
    if (!IsPercentage(percMin) || !IsPercentage(percMax) || !HasValue(storedPressure) || storedPressure.Eject() == 0) {
        return Fail(outOfBounds, UNDEFINED);
    }
    const FixPnt3 actual = tavorDev.GetPressure(sensor)[Pressure::BAR];
    if (!HasValue(actual)) {
        return Fail(sensorFailure, PRESSURE_FAILURE);
    }
    const SInt64 percent = SInt64{100} * actual.Eject() / storedPressure.Eject();
    const bool holds = percMin < percent && percent < percMax;
    LogDeviation(storedPressure, actual);
    Log(" %d%% < %lld%% < %d%%:  %s\n", percMin, static_cast<long long>(percent), percMax, YesNo(holds));
    return holds;
}

bool JobStateMachine::CheckPressureDeviationVal(FixPnt3 min, TavorDev::PressureSensor sensor, FixPnt3 max)
{
    if (!IsRunning()) {
        return false;
    }
    Log("[ZARN]       Check deviation ");
    if (min > max || !HasValue(storedPressure)) {
        return Fail(outOfBounds, UNDEFINED);
    }
    const FixPnt3 actual = tavorDev.GetPressure(sensor)[Pressure::BAR];
    if (!HasValue(actual)) {
        return Fail(sensorFailure, PRESSURE_FAILURE);
    }
    LogDeviation(storedPressure, actual);
    return IsBetween(min, storedPressure - actual, max, "Bar");
}

void JobStateMachine::StoreHumidity()
{
    if (!IsRunning()) {
        return;
    }
    storedHumidity = tavorDev.GetHumidity()[Humidity::CELS];
    Log("[ZARN]       Store humidity value ");
    if (HasValue(storedHumidity)) {
        Log("%s °C\n", static_cast<const char*>(BiC(storedHumidity)));
    } else {
        Fail("failed\n", HUMIDITY_FAILURE);
    }
}

bool JobStateMachine::CheckHumidityDeviation(FixPnt3 min, FixPnt3 max)
{
    if (!IsRunning()) {
        return false;
    }
    Log("[ZARN]       Check humidity deviation ");
    if (min > max || !HasValue(storedHumidity)) {
        return Fail(outOfBounds, UNDEFINED);
    }
    const FixPnt3 actual = tavorDev.GetHumidity()[Humidity::CELS];
    if (!HasValue(actual)) {
        return Fail(sensorFailure, HUMIDITY_FAILURE);
    }
    LogDeviation(storedHumidity, actual);
    return IsBetween(min, actual - storedHumidity, max, "°C");
}

/// The watch on the hardware before every step.
void JobStateMachine::CheckComponents()
{
    for (SInt32 i = 0; i < TavorDev::VALVE_NUM; ++i) {
        if (tavorDev.GetValve(static_cast<TavorDev::Valve>(i)) == TavorDev::VALVE_FAILURE) {
            Terminate(VALVE_FAILURE);
            return;
        }
    }
    if (!ReadPressures()) {
        Terminate(PRESSURE_FAILURE);
    } else if (tavorDev.GetCompressor() == TavorDev::COMPRESSOR_FAILURE) {
        Terminate(COMPRESSOR_FAILURE);
    }
}

/// Reads all five, even if one fails.
bool JobStateMachine::ReadPressures()
{
    bool allValid = true;
    for (SInt32 i = 0; i < TavorDev::PRESSENS_NUM; ++i) {
        pressure[i] = tavorDev.GetPressure(static_cast<TavorDev::PressureSensor>(i));
        allValid = allValid && HasValue(pressure[i][Pressure::BAR]);
    }
    return allValid;
}

/// Ends the job with a last piece of log; false, as the answer of the check that failed.
bool JobStateMachine::Fail(const char* logText, StopCause cause)
{
    Log("%s", logText);
    Terminate(cause);
    return false;
}
