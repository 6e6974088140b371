#include "TavorDev.h"

#include "BiC.h"
#include "RRx/RRList.h"

using RR::List;
using RR::SInt32;
using RR::String;

namespace {

constexpr SInt32 fieldNum = 11;

/// Takes the field at `field`, and moves on to the next one.
const String& Next(List<String>::Handle& field)
{
    const String& text = field.Entry();
    field.Next();
    return text;
}

SInt32 NextInteger(List<String>::Handle& field)
{
    SInt32 value;
    BiC(Next(field), value, RR::INVALID);
    return value;
}

}

bool TavorDev::SensorProfile::operator==(const SensorProfile& other) const
{
    return type == other.type && version == other.version && tag == other.tag && unit == other.unit
        && rangeMin == other.rangeMin && rangeMax == other.rangeMax && manfDate == other.manfDate
        && serial == other.serial && expectancy == other.expectancy && calDate == other.calDate
        && calValidity == other.calValidity;
}

String BiC(const TavorDev::SensorProfile& value)
{
    return BiC(static_cast<SInt32>(value.type)) + "," + BiC(value.version) + "," + BiC(SInt32(value.tag)) + ","
        + BiC(value.unit) + "," + BiC(value.rangeMin) + "," + BiC(value.rangeMax) + "," + BiC(value.manfDate) + ","
        + BiC(value.serial) + "," + BiC(value.expectancy) + "," + BiC(value.calDate) + "," + BiC(value.calValidity);
}

void BiC(const String& text, TavorDev::SensorProfile& value)
{
    value = TavorDev::SensorProfile();
    List<String> fields;
    text.Split(",", fields, false);
    if (fields.GetCount() != fieldNum) {
        return;
    }
    List<String>::Handle field = fields.First();
    value.type = static_cast<TavorDev::Sensor>(NextInteger(field));
    BiC(Next(field), value.version);
    value.tag = static_cast<RR::UInt08>(NextInteger(field));
    value.unit = NextInteger(field);
    value.rangeMin = NextInteger(field);
    value.rangeMax = NextInteger(field);
    BiC(Next(field), value.manfDate, RR::Date());
    BiC(Next(field), value.serial, String());
    value.expectancy = NextInteger(field);
    BiC(Next(field), value.calDate, RR::Date());
    value.calValidity = NextInteger(field);
}
