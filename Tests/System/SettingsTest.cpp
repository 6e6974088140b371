#include "Settings.h"

#include "BoardFiles.h"

#include <gmock/gmock.h>
#include <sstream>

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

class SettingsFile : public testing::Test {
protected:
    void SetUp() override
    {
        WriteFile(OnBoard("/dev/mmcblk0p1"), "");
        WriteFile(file, "");
        s.Reset();
        factory = ReadFile(file);
    }

    std::string Load(const std::string& content)
    {
        WriteFile(file, content);
        return LogOf([&] { s.Load(); });
    }

    std::string Saved()
    {
        fs::remove(file);
        s.Save();
        return ReadFile(file);
    }

    const fs::path file = OnBoard("/mnt/sdcard-i/Settings/ZARNSettings.ini");
    std::string factory;
    Settings s;
};

/// The file with every setting changed, each to another value of its kind.
std::string ChangeAll(const std::string& content)
{
    // A name is its code units and a 0.
    const std::pair<std::string, std::string> changes[] = {
        {"RecentName         = \"0", "RecentName         = \"196,8364,0"}, {"\"yes", "\"no"}, {"\"no", "\"yes"},
        {"\"DE", "\"FR"}, {"\"NAT", "\"CVS"}, {"\"cels", "\"fahr"}, {"\"bar", "\"psi"}, {"\"-36", "\"-35"},
        {"\"0\"", "\"8\""}, {"\"", "\"1"}};
    std::istringstream lines(content);
    std::string changed;
    for (std::string line; std::getline(lines, line); changed += line + "\n") {
        for (const auto& [from, to] : changes) {
            const auto at = line.find(from);
            if (line[0] != '.' && at != std::string::npos) {
                line.replace(at, from.size(), to);
                break;
            }
        }
    }
    return changed;
}

}

TEST_F(SettingsFile, EachSettingComesBackFromItsOwnKey)
{
    const std::string changed = ChangeAll(factory);
    EXPECT_EQ(std::count(changed.begin(), changed.end(), '='), 34);
    EXPECT_EQ(Load(changed), "");
    EXPECT_EQ(Saved(), changed);

    std::string damaged = changed;
    damaged.replace(damaged.find("psi"), 3, "PSI");
    damaged.replace(damaged.find("133.000"), 30, "none");
    EXPECT_EQ(Load(damaged), "");
    EXPECT_TRUE(s.unitPressure == Pressure::BAR && s.limitMaxInletPress[Pressure::MPA] == 3.3) << "factory values";
    EXPECT_EQ(s.unitTemperature, Temperature::FAHR) << "the others stay";
    EXPECT_EQ(s.meaRecentName, QStringLiteral("Ä€"));
}

TEST_F(SettingsFile, IsMadeWithTheFactoryValues)
{
    fs::remove_all(file.parent_path());
    fs::remove(OnBoard("/dev/mmcblk0p1"));
    const std::string failure =
        "[ZARN] /mnt/sdcard-i/Settings/ZARNSettings.ini: file open failure (default settings applied)\n";
    EXPECT_EQ(LogOf([&] { s.Load(); }), failure + "[ZARN] Error creating folder \"/mnt/sdcard-i/Settings\"\n");
    EXPECT_EQ(LogOf([&] { s.Save(); }), "[ZARN] Error writing settings file\n") << "without a card";
    WriteFile(OnBoard("/dev/mmcblk0p1"), "");
    EXPECT_EQ(LogOf([&] { s.Load(); }), failure);
    EXPECT_EQ(Saved(), factory);
    EXPECT_THAT(factory, HasSubstr("# --------------------------\r\n#  ZARN Application settings\r\n# -----"));
    EXPECT_THAT(factory, HasSubstr(".ApplVers             = \"V1.90\"\r\n.BoardType            = \"10\"\r\n"));
}

TEST_F(SettingsFile, IsWrittenOnlyWhenItsContentChanges)
{
    const auto longAgo = fs::last_write_time(file) - std::chrono::hours(1);
    fs::last_write_time(file, longAgo);
    s.Save();
    EXPECT_EQ(fs::last_write_time(file), longAgo);
    s.meaSaveNumber = 2;
    s.Save();
    EXPECT_NE(fs::last_write_time(file), longAgo);
    Load(factory + "Extra = \"1\"\r\n");
    s.Save();
    EXPECT_EQ(ReadFile(file), factory) << "the unknown key stays";
}

TEST_F(SettingsFile, ABadFileLeavesTheFactoryValuesAndSaysWhy)
{
    const std::string changed = ChangeAll(factory).substr(factory.find('.'));
    const std::string name = "[ZARN] /mnt/sdcard-i/Settings/ZARNSettings.ini: ";
    const std::string rejected = "[ZARN] Settings file rejected (application type mismatch)\n";
    std::string alien = changed;
    alien.replace(alien.find("ZARN\""), 4, "ZORN");
    for (const auto& [content, log] :
         {std::pair<std::string, std::string>{"", "[ZARN] Settings file empty\n"}, {alien, rejected},
          {changed.substr(changed.find("ApplLanguage")), rejected},
          {changed.substr(0, changed.size() - 3), name + "34: syntax error\n"},
          {changed + "DelOldestMea=\"yes\"\n", name + "35: duplicate key 'DelOldestMea'\n"}}) {
        EXPECT_EQ(Load(content), log);
        EXPECT_EQ(Saved(), factory) << log;
    }
}
