#include "SensorUnit/Calendar.h"
#include "SensorUnit/CommandWords.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace SensorUnit {

namespace {

// Places in a sensor's memory.
enum { AT_VERSION = 1, AT_TAG = 2, AT_UNIT = 3, AT_RANGE = 4, AT_MANUFACTURED = 8, AT_SERIAL = 12, AT_EXPECTANCY = 20, AT_CALIBRATED = 22, AT_VALIDITY = 26 };
constexpr std::size_t serialChars = 8;
constexpr int none = INT16_MIN;

int Word(const Profile& profile, std::size_t offset)
{
    return std::int16_t(profile[offset] << 8 | profile[offset + 1]);
}

void PutWord(Profile& profile, std::size_t offset, int value)
{
    profile[offset] = std::uint8_t(value >> 8);
    profile[offset + 1] = std::uint8_t(value);
}

std::string WordText(const Profile& profile, std::size_t offset)
{
    const int value = Word(profile, offset);
    return value == none ? "none" : std::to_string(value);
}

std::string DateText(const Profile& profile, std::size_t offset)
{
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", Word(profile, offset) & 0xFFFF, profile[offset + 2], profile[offset + 3]);
    return text;
}

bool TakeWord(Words& words, Profile& profile, std::size_t offset)
{
    if (words.TakeIf("none")) {
        PutWord(profile, offset, none);
        return true;
    }
    const std::optional<int> value = words.Whole(none + 1, INT16_MAX);
    PutWord(profile, offset, value.value_or(0));
    return value.has_value();
}

bool TakeByte(Words& words, Profile& profile, std::size_t offset)
{
    const std::optional<int> value = words.Whole(0, UINT8_MAX);
    profile[offset] = std::uint8_t(value.value_or(0));
    return value.has_value();
}

bool TakeVersion(Words& words, std::uint8_t& byte)
{
    const std::string word = words.Take();
    unsigned major = 0, minor = 0;
    char more = 0;
    if (std::sscanf(word.c_str(), "%2u.%2u%c", &major, &minor, &more) != 2 || major > 15 || minor > 15) {
        return words.Fail("a version as 5.9 is wanted");
    }
    byte = std::uint8_t(major << 4 | minor);
    return true;
}

bool TakeDate(Words& words, Profile& profile, std::size_t offset)
{
    const std::string word = words.Take();
    CivilTime date;
    char more = 0;
    if (std::sscanf(word.c_str(), "%4d-%2d-%2d%c", &date.year, &date.month, &date.day, &more) != 3 || !IsValid(date)) {
        return words.Fail("a date as 2024-05-31 is wanted");
    }
    PutWord(profile, offset, date.year);
    profile[offset + 2] = std::uint8_t(date.month);
    profile[offset + 3] = std::uint8_t(date.day);
    return true;
}

bool TakeSerial(Words& words, Profile& profile)
{
    const std::string word = words.Take();
    if (word.empty() || word.size() > serialChars) {
        return words.Fail("1 to 8 characters are wanted");
    }
    std::fill_n(&profile[AT_SERIAL], serialChars, std::uint8_t(0));
    std::memcpy(&profile[AT_SERIAL], word.data(), word.size());
    return true;
}

bool TakeField(Words& words, Profile& profile)
{
    const std::vector<std::string> fields = {"version", "tag", "unit", "range", "manufactured", "serial", "expectancy", "calibrated", "validity"};
    switch (words.Choice(fields).value_or(-1)) {
    case 0: return TakeVersion(words, profile[AT_VERSION]);
    case 1: return TakeByte(words, profile, AT_TAG);
    case 2: return TakeByte(words, profile, AT_UNIT);
    case 3: return TakeWord(words, profile, AT_RANGE) && TakeWord(words, profile, AT_RANGE + 2);
    case 4: return TakeDate(words, profile, AT_MANUFACTURED);
    case 5: return TakeSerial(words, profile);
    case 6: return TakeWord(words, profile, AT_EXPECTANCY);
    case 7: return TakeDate(words, profile, AT_CALIBRATED);
    case 8: return TakeWord(words, profile, AT_VALIDITY);
    default: return false;
    }
}

std::string ProfileText(const Profile& profile)
{
    const char* serial = reinterpret_cast<const char*>(&profile[AT_SERIAL]);
    return "version " + std::to_string(profile[AT_VERSION] >> 4) + "." + std::to_string(profile[AT_VERSION] & 15)
        + "\ntag " + std::to_string(profile[AT_TAG]) + "\nunit " + std::to_string(profile[AT_UNIT])
        + "\nrange " + WordText(profile, AT_RANGE) + " " + WordText(profile, AT_RANGE + 2)
        + "\nmanufactured " + DateText(profile, AT_MANUFACTURED)
        + "\nserial " + Printable(std::string(serial, strnlen(serial, serialChars)))
        + "\nexpectancy " + WordText(profile, AT_EXPECTANCY) + "\ncalibrated " + DateText(profile, AT_CALIBRATED)
        + "\nvalidity " + WordText(profile, AT_VALIDITY) + "\n";
}

}

bool CommandProfile(Unit& unit, Words& words, std::string& answer)
{
    const std::optional<int> sensor = words.Choice(SensorNames());
    if (!sensor) {
        return false;
    }
    Profile profile = unit.machine.sensors.ProfileOf(Sensor(*sensor));
    if (profile[0] != *sensor) {
        return words.Fail("no sensor is fitted there");
    }
    if (words.AtEnd()) {
        answer += ProfileText(profile);
        return true;
    }
    if (!TakeField(words, profile) || !words.Finish()) {
        return false;
    }
    unit.machine.sensors.SetProfile(Sensor(*sensor), profile);
    return true;
}

bool CommandImage(Unit& unit, Words& words, Micros now)
{
    if (words.TakeIf("damage")) {
        constexpr std::uint32_t inTheProgram = 0x100;
        const std::uint8_t spoilt = std::uint8_t(~*unit.loader.At(inTheProgram));
        if (!words.Finish()) {
            return false;
        }
        unit.loader.Write(inTheProgram, &spoilt, 1);
        return true;
    }
    ImageInfo info;
    info.boardType = unit.machine.boardType;
    if (!TakeVersion(words, info.version) || !words.Finish()) {
        return false;
    }
    unit.loader.Install(MakeImage(info));
    unit.Reset(now);
    return true;
}

}
