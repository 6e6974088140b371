#pragma once

#include "RRx/RRDateTime.h"
#include "RRx/RRFixPnt.h"
#include "RRx/RRString.h"
#include "TavorDev.h"
#include "Types.h"

#include <QString>

// Values as the user sees them, in the units and the language of the settings. A value without a reading, or
// too large for its field, shows dashes. `nice` asks for rich text with subscripts, for labels.

/// All decimals of the type.
QString PrintNum(const RR::FixPnt& value);
QString PrintNum(RR::SInt32 value);
/// At most `max` characters; decimals are given up as far as needed.
RR::String PrintNum(RR::FixPnt0 value, RR::SInt32 max);
RR::String PrintNum(RR::FixPnt1 value, RR::SInt32 max);
RR::String PrintNum(RR::FixPnt3 value, RR::SInt32 max);

/// Percent by volume; beyond 0 to 100 the text says so without a number.
QString PrintAmountSF6(RR::FixPnt1 value, bool nice);
/// Parts per million by volume, as the three below.
QString PrintAmountSO2(RR::FixPnt3 value, bool nice);
QString PrintAmountHF(RR::FixPnt3 value, bool nice);
QString PrintAmountCO(RR::FixPnt3 value, bool nice);
QString PrintAmountH2S(RR::FixPnt3 value, bool nice);

QString PrintHumidity(const Humidity& humidity, bool nice);
QString PrintHumidityUnit(Humidity::Unit unit, bool nice);
QString PrintPressure(const Pressure& pressure);
/// The pressure in the gas compartment, not above the range of its sensor.
QString PrintPressureComp(const Pressure& pressure, const TavorDev::SensorProfile& profile);
QString PrintPressureUnit(Pressure::Unit unit);
/// Two digits at most.
QString PrintTemperature(const Temperature& temperature);
QString PrintTemperatureUnit(Temperature::Unit unit);

QString PrintDate(const RR::Date& d);
/// The locale's long form with `showSecs`, else its short one.
QString PrintTime(const RR::Time& t, bool showSecs);
QString PrintDayName(RR::Date::Weekday day);
