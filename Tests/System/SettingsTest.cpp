#include "Settings.h"

#include "SystemTesting.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

const char* const folder = "/mnt/sdcard-i/Settings";
const char* const head = "# --------------------------\r\n#  ZARN Application settings\r\n# --------------------------\r\n";
const char* const board = ".ApplType             = \"ZARN\"\r\n.ApplVers             = \"V1.90\"\r\n"
                          ".BoardType            = \"10\"\r\n";

/// All that is set, in the order of the file: the factory value and another one.
const struct {
    const char* key;
    const char* factory;
    const char* other;
} rows[] = {
    {"ApplLanguage", "DE", "FR"},
    {"AutoMeaBCount", "2", "3"},
    {"AutoMeaBEnabled", "no", "yes"},
    {"AutoMeaBInterval", "30", "31"},
    {"AutoMeaCCount", "2", "4"},
    {"AutoMeaCEnabled", "no", "yes"},
    {"AutoMeaCInterval", "30", "32"},
    {"AutoPumpBack", "no", "yes"},
    {"DelOldestMea", "no", "yes"},
    {"DisplayAutoDimTime", "20", "21"},
    {"FlowChartView", "no", "yes"},
    {"InspJobNo", "0", "5"},
    {"InspJobPassTime", "450", "---"},
    {"InspJobPasses", "1", "6"},
    {"LimitMaxBkPress", "0.015,1.500,0.200,0.001", "0.016,1.600,0.232,0.002"},
    {"LimitMaxHF", "0.000", "1.500"},
    {"LimitMaxHumidity", "-36.000,-32.000,198.000,24.000,---,---", "-35.000,-31.000,220.000,27.000,1.000,2.000"},
    {"LimitMaxInletPress", "33.000,3300.000,480.000,3.300", "30.000,3000.000,435.000,3.000"},
    {"LimitMaxSO2", "12.000", "11.000"},
    {"LimitMinInletPress", "1.200,120.000,17.000,0.120", "1.500,150.000,22.000,0.150"},
    {"LimitMinSF6", "97.0", "96.5"},
    {"MeaRecentName", "0", "196,8364,0"},
    {"MeaSaveNumber", "1", "9999"},
    {"SaveAllMsgAs", "NAT", "CVS"},
    {"SaveOneMsgAs", "NAT", "CVS"},
    {"SensorPassageTime", "450", "600"},
    {"ShowAvailSensOnly", "yes", "no"},
    {"ShowSensorValuesAfter", "75", "50"},
    {"UnitHumidity", "cels", "fahrPr"},
    {"UnitPressure", "bar", "MPa"},
    {"UnitTemperature", "cels", "fahr"},
};

std::string Text(bool factory)
{
    std::string text = board;
    for (const auto& row : rows) {
        const std::string key = row.key;
        text += key + std::string(21 - key.size(), ' ') + " = \"" + (factory ? row.factory : row.other) + "\"\r\n";
    }
    return text;
}

class SettingsFile : public testing::Test {
protected:
    void SetUp() override
    {
        fs::remove_all(OnBoard(folder));
        WriteFile(OnBoard("/dev/mmcblk0p1"), "");
    }

    std::string Load(const std::string& content)
    {
        WriteFile(file, content);
        return LogOf([&] { s.Load(); });
    }
    /// The file without the comment at its top.
    std::string Entries() const
    {
        const std::string content = ReadFile(file);
        EXPECT_EQ(content.find(head), 0u) << content;
        return content.substr(std::min(content.find('.'), content.size()));
    }
    /// The record that is loaded now, as a file.
    std::string Saved()
    {
        fs::remove(file);
        s.Save();
        return Entries();
    }

    const fs::path file = OnBoard("/mnt/sdcard-i/Settings/ZARNSettings.ini");
    Settings s;
};

}

TEST_F(SettingsFile, EachSettingHasAKeyOfItsOwnAndAFactoryValue)
{
    s.Reset();
    fs::remove(OnBoard("/dev/mmcblk0p1"));
    EXPECT_THAT(LogOf([&] { s.Load(); }), HasSubstr("Error creating folder \"/mnt/sdcard-i/Settings\""));
    EXPECT_FALSE(fs::exists(file)) << "without a card";

    WriteFile(OnBoard("/dev/mmcblk0p1"), "");
    EXPECT_EQ(LogOf([&] { s.Load(); }), "[ZARN] /mnt/sdcard-i/Settings/ZARNSettings.ini: "
                                       "file open failure (default settings applied)\n");
    EXPECT_EQ(Saved(), Text(true));

    EXPECT_EQ(Load(Text(false)), "");
    EXPECT_EQ(s.meaRecentName, QStringLiteral("Ä€"));
    // "---" doesn't read, so it comes back as the factory value.
    std::string expected = Text(false);
    const auto none = expected.find("---\"");
    EXPECT_EQ(Saved(), expected.replace(none, 3, "450"));
}

TEST_F(SettingsFile, IsWrittenOnlyWhenItsContentChanges)
{
    EXPECT_EQ(Load(Text(false) + "Extra = \"1\"\r\n"), "");
    s.Save();
    EXPECT_THAT(ReadFile(file), Not(HasSubstr("Extra")));

    const auto longAgo = fs::last_write_time(file) - std::chrono::hours(1);
    fs::last_write_time(file, longAgo);
    s.Save();
    EXPECT_EQ(fs::last_write_time(file), longAgo);
    s.meaSaveNumber = 2;
    s.Save();
    EXPECT_NE(fs::last_write_time(file), longAgo);
    s.Reset();
    EXPECT_EQ(Entries(), Text(true));

    fs::remove_all(OnBoard(folder));
    WriteFile(OnBoard(folder), "no folder");
    EXPECT_EQ(LogOf([&] { s.Save(); }), "[ZARN] Error writing settings file\n");
    fs::remove(OnBoard(folder));
}

TEST_F(SettingsFile, ABadFileLeavesTheFactoryValuesAndSaysWhy)
{
    const std::string other = Text(false);
    const std::string name = "[ZARN] /mnt/sdcard-i/Settings/ZARNSettings.ini: ";
    const std::string rejected = "[ZARN] Settings file rejected (application type mismatch)\n";
    std::string alien = other;
    alien.replace(alien.find("ZARN\""), 4, "ZORN");
    const struct {
        std::string content, log;
    } cases[] = {
        {"", "[ZARN] Settings file empty\n"},
        {alien, rejected},
        {other.substr(other.find("ApplLanguage")), rejected},
        {other.substr(0, other.size() - 3), name + "34: syntax error\n"},
        {other + "DelOldestMea=\"yes\"\n", name + "35: duplicate key 'DelOldestMea'\n"},
    };
    for (const auto& [content, log] : cases) {
        EXPECT_EQ(Load(content), log);
        EXPECT_EQ(Saved(), Text(true)) << log;
    }
}

TEST_F(SettingsFile, ADamagedValueCostsThatSettingAlone)
{
    std::string damaged = Text(false);
    damaged.replace(damaged.find("96.5"), 4, "9..5");
    damaged.replace(damaged.find("MPa"), 3, "mpa");
    EXPECT_EQ(Load(damaged), "");
    EXPECT_EQ(s.limitMinSF6.Eject(), 970);
    EXPECT_EQ(s.unitPressure, Pressure::BAR);
    EXPECT_EQ(s.limitMaxSO2.Eject(), 11000);
    EXPECT_EQ(s.limitMaxHumidity[Humidity::FAHRPR].Eject(), 2000);
    EXPECT_FALSE(s.showAvailSensOnly);
}
