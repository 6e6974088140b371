#include "PrintIt.h"

#include "Conversions.h"
#include "Globals.h"
#include "Settings.h"

#include <QCoreApplication>
#include <QDate>
#include <QTime>

using RR::FixPnt0;
using RR::FixPnt1;
using RR::FixPnt2;
using RR::FixPnt3;
using RR::SInt32;
using RR::String;

namespace {

String Dashes(SInt32 num)
{
    String text;
    text.SetLen(num, '-');
    return text;
}

QString ToQString(const String& text)
{
    return QString::fromLatin1(text.Adr(), text.GetLen());
}

/// A number of the unit of `settings.unitPressure`, in at most `max` characters.
QString PressureNumber(const Pressure& pressure, SInt32 max)
{
    const FixPnt3 value = pressure[settings.unitPressure];
    return ToQString(settings.unitPressure == Pressure::KPA ? PrintNum(FixPnt1(value, RR::ROUND), max)
                                                            : PrintNum(value, max));
}

QString PrintAmount(FixPnt3 value, bool nice)
{
    const QString number = ToQString(PrintNum(FixPnt1(value, RR::ROUND), 6));
    return number + (nice ? QStringLiteral(" ppm<sub>v</sub>") : QStringLiteral(" ppmv"));
}

}

QString PrintNum(const RR::FixPnt& value)
{
    return value.Eject() == RR::INVALID ? QStringLiteral("---") : ToQString(String::Print(value));
}

QString PrintNum(SInt32 value)
{
    return value == RR::INVALID ? QStringLiteral("---") : QString::number(value);
}

String PrintNum(FixPnt0 value, SInt32 max)
{
    const String text = String::Print(value);
    return value.Eject() == RR::INVALID || text.GetLen() > max ? Dashes(max) : text;
}

String PrintNum(FixPnt1 value, SInt32 max)
{
    // Where the field is one character short of the sign, no "-0" appears.
    if (max == 3 && value > -0.5 && value < 0.0) {
        value = 0.0;
    }
    if (value.Eject() == RR::INVALID) {
        return Dashes(max);
    }
    const String text = String::Print(value);
    return text.GetLen() <= max ? text : PrintNum(FixPnt0(value, RR::ROUND), max);
}

String PrintNum(FixPnt3 value, SInt32 max)
{
    if (max == 5 && value > -0.005 && value < 0.0) {
        value = 0.0;
    }
    if (value.Eject() == RR::INVALID) {
        return Dashes(max);
    }
    String text = String::Print(value);
    if (text.GetLen() <= max) {
        return text;
    }
    FixPnt2 shorter(value, RR::ROUND);
    if (max == 4 && shorter > -0.05 && shorter < 0.0) {
        shorter = 0.0;
    }
    text = String::Print(shorter);
    return text.GetLen() <= max ? text : PrintNum(FixPnt1(shorter, RR::ROUND), max);
}

QString PrintAmountSF6(FixPnt1 value, bool)
{
    QString number;
    if (value.Eject() == RR::INVALID) {
        number = QStringLiteral("---");
    } else if (value < 0.0) {
        number = QStringLiteral("< 0");
    } else if (value > 100.0) {
        number = QStringLiteral(">100");
    } else {
        number = ToQString(PrintNum(value, 6));
    }
    return number + QStringLiteral(" Vol.-%");
}

QString PrintAmountSO2(FixPnt3 value, bool nice)
{
    return PrintAmount(value, nice);
}

QString PrintAmountHF(FixPnt3 value, bool nice)
{
    return PrintAmount(value, nice);
}

QString PrintAmountCO(FixPnt3 value, bool nice)
{
    return PrintAmount(value, nice);
}

QString PrintAmountH2S(FixPnt3 value, bool nice)
{
    return PrintAmount(value, nice);
}

QString PrintHumidity(const Humidity& humidity, bool nice)
{
    const FixPnt0 value(humidity[settings.unitHumidity], RR::ROUND);
    return ToQString(PrintNum(value, 7)) + ' ' + PrintHumidityUnit(settings.unitHumidity, nice);
}

QString PrintHumidityUnit(Humidity::Unit unit, bool nice)
{
    switch (unit) {
    case Humidity::CELS: return QStringLiteral("°C");
    case Humidity::FAHR: return QStringLiteral("°F");
    case Humidity::PPMV: return nice ? QStringLiteral("ppm<sub>v</sub>") : QStringLiteral("ppmv");
    case Humidity::PPMW: return nice ? QStringLiteral("ppm<sub>w</sub>") : QStringLiteral("ppmw");
    case Humidity::CELSPR: return nice ? QStringLiteral("°C<sub>[Pr]</sub>") : QStringLiteral("°C [Pr]");
    case Humidity::FAHRPR: return nice ? QStringLiteral("°F<sub>[Pr]</sub>") : QStringLiteral("°F [Pr]");
    case Humidity::NUM: break;
    }
    RR_ASSERT(false);
}

QString PrintPressure(const Pressure& pressure)
{
    return PressureNumber(pressure, 5) + ' ' + PrintPressureUnit(settings.unitPressure);
}

QString PrintPressureComp(const Pressure& pressure, const TavorDev::SensorProfile& profile)
{
    if (profile.type != TavorDev::SENSOR_P6) {
        return QCoreApplication::translate("PrintIt", "n.v.");
    }
    const Pressure range = ConvBarToPressure(FixPnt3(profile.rangeMax));
    if (pressure[Pressure::BAR] < range[Pressure::BAR]) {
        return PrintPressure(pressure);
    }
    return QStringLiteral("> %1 %2").arg(PressureNumber(range, 4), PrintPressureUnit(settings.unitPressure));
}

QString PrintPressureUnit(Pressure::Unit unit)
{
    switch (unit) {
    case Pressure::BAR: return QStringLiteral("bar");
    case Pressure::KPA: return QStringLiteral("kPa");
    case Pressure::PSI: return QStringLiteral("psi");
    case Pressure::MPA: return QStringLiteral("MPa");
    case Pressure::NUM: break;
    }
    RR_ASSERT(false);
}

QString PrintTemperature(const Temperature& temperature)
{
    const SInt32 value = temperature[settings.unitTemperature];
    QString number;
    if (value == RR::INVALID) {
        number = QStringLiteral("××");
    } else if (value < -99) {
        number = QStringLiteral("<-99");
    } else if (value > 99) {
        number = QStringLiteral("> 99");
    } else {
        number = QString::number(value);
    }
    return number + PrintTemperatureUnit(settings.unitTemperature);
}

QString PrintTemperatureUnit(Temperature::Unit unit)
{
    return unit == Temperature::FAHR ? QStringLiteral("°F") : QStringLiteral("°C");
}

QString PrintDate(const RR::Date& d)
{
    if (!d.IsValid()) {
        return QStringLiteral("--.--.--");
    }
    return QDate(d.GetYear(), d.GetMonth(), d.GetDay()).toString(GetLocal().dateFormat(QLocale::ShortFormat));
}

QString PrintTime(const RR::Time& t, bool showSecs)
{
    if (!t.IsValid()) {
        return showSecs ? QStringLiteral("--:--:--") : QStringLiteral("--:--");
    }
    const QTime time(t.GetHour(), t.GetMinute(), t.GetSecond());
    const QLocale locale = GetLocal();
    if (!showSecs) {
        return locale.toString(time, QLocale::ShortFormat);
    }
    // The long format also names the time zone, which a time of the instrument doesn't have.
    QString format = locale.timeFormat(QLocale::LongFormat);
    format.remove("(t)").remove("[t]").remove('t');
    return locale.toString(time, format.trimmed());
}

QString PrintDayName(RR::Date::Weekday day)
{
    return day == RR::Date::NON ? QStringLiteral("××") : GetLocal().dayName(day, QLocale::ShortFormat);
}
