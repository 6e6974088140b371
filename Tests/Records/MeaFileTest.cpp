#include "Fakes/ScriptedTavorDev.h"
#include "Records/MeaFiles.h"
#include "Settings.h"

#include <gtest/gtest.h>

using namespace RR;

namespace {

/// What the instrument writes for `DistinctRecord`. Never changed: files outlive programs.
const std::string reference = ReadFile(MEA_CORPUS "/Full.mea");

/// A snapshot in which no two readings, verdicts or settings of one type are alike, SO2 without reading.
Mea DistinctRecord()
{
    settings = Settings::def;
    settings.unitHumidity = Humidity::FAHRPR;
    settings.unitPressure = Pressure::PSI;
    settings.unitTemperature = Temperature::FAHR;
    settings.limitMaxHF = FixPnt3(4.75);
    settings.autoPumpBack = true;
    scripted.Reset();
    scripted.info = {17, SVersion("2.1"), 3, SVersion("4.2")};
    scripted.humidity = Humidity(FixPnt3(-41), FixPnt3(-42), FixPnt3(127.125), FixPnt3(15.658));
    scripted.humidity[Humidity::CELSPR] = FixPnt3(-12);
    scripted.humidity[Humidity::FAHRPR] = FixPnt3(10);
    for (SInt32 i = 0; i < TavorDev::SENSOR_NUM; ++i) {
        scripted.profile[i] = {TavorDev::Sensor(i), SVersion(1, i), UInt08(i), i, -i, 40 + i, Date(4 + i, 5, 2023),
                               String("A123") + char('0' + i), 3650 + i, Date(14 + i, 6, 2023), 365 + i};
        scripted.amount[i] = i == TavorDev::SENSOR_SF6 ? 96.5 : i == TavorDev::SENSOR_SO2 ? INVALID_DOUBLE : i + 0.5;
    }
    for (SInt32 i = 0; i < TavorDev::PRESSENS_NUM; ++i) {
        scripted.pressure[i] = 1.013 + i;
    }
    Mea mea;
    mea.Snapshot('C');
    mea.name = QString::fromUtf8("Zürich €𝄞");
    mea.dateTime = DateTime(31, 1, 2024, 23, 59, 59);
    mea.macAddress = "00:01:02:03:04:05";
    mea.ipAddress.SetEmpty();
    return mea;
}

Mea::LoadState LoadText(const std::string& text, Mea& mea)
{
    PutFile("Text.mea", text);
    return mea.Load("Text.mea");
}

/// The reference with every `from` replaced; `from` is there.
std::string Edit(const QString& from, const QString& to)
{
    EXPECT_TRUE(QString::fromStdString(reference).contains(from)) << from.toStdString();
    return QString::fromStdString(reference).replace(from, to).toStdString();
}

}

TEST(MeaFile, EveryFieldIsStoredBelowItsKeyAndComesBack)
{
    const Mea mea = DistinctRecord();
    settings.meaSaveNumber = 9999;
    ASSERT_TRUE(mea.Save("Saved.mea"));
    EXPECT_EQ(ReadFile(Board::Locate(CFG::MeaFilesFolder) + "/Saved.mea"), reference);
    EXPECT_EQ(settings.meaSaveNumber, 1);
    EXPECT_FALSE(mea.Save("no-such-folder/Saved.mea"));
    EXPECT_EQ(settings.meaSaveNumber, 2) << "advances with a failed save too";
    Mea loaded;
    EXPECT_EQ(LoadText(reference, loaded), Mea::ACCEPTED);
    EXPECT_EQ(DifferentFields(mea, loaded), "");
}

TEST(MeaFile, DamageAtAnyByteIsNoticedUnlessItChangesNothing)
{
    Mea mea, loaded;
    ASSERT_EQ(LoadText(reference, mea), Mea::ACCEPTED);
    for (size_t i = 0, line = 0; i < reference.size(); ++i) {
        line = i > 0 && reference[i - 1] == '\n' ? i : line;
        const std::string key = reference.substr(line, reference.find(' ', line) - line);
        for (const char byte : {char(reference[i] ^ 1), '"', '#', '\n'}) {
            std::string damaged = reference;
            damaged[i] = byte;
            const bool accepted = LoadText(damaged, loaded) == Mea::ACCEPTED;
            ASSERT_EQ(accepted, !loaded.IsEmpty());
            const std::string changed = accepted ? DifferentFields(mea, loaded) : "";
            // The signature doesn't cover keys: a renamed one leaves its field without value.
            const bool inKey = i < reference.find('=', line);
            ASSERT_TRUE(changed.empty() || (inKey && changed == key + " ")) << i << ": " << changed;
        }
        const bool accepted = LoadText(reference.substr(0, i), loaded) == Mea::ACCEPTED;
        ASSERT_TRUE(!accepted || DifferentFields(mea, loaded).empty()) << "cut at " << i;
    }
}

TEST(MeaFile, TheSignatureCoversTheValuesAlone)
{
    const std::tuple<const char*, std::string, Mea::LoadState> rows[] = {
        {"line ends", Edit("\r\n", "\n"), Mea::ACCEPTED},
        {"spacing and remarks", Edit("\"\r\n", "\"\t# note\r\n \r\n # note\r\n"), Mea::ACCEPTED},
        {"lower case signature", Edit("0X07A51156", "0x07a51156"), Mea::ACCEPTED},
        {"to the next value", Edit("00\"\r\nM-AmountH2S          = \"", "\"\r\nM-AmountH2S = \"00"), Mea::ACCEPTED},
        {"another order", Edit("M-Type               = \"C\"\r\n", "") + "M-Type = \"C\"\r\n", Mea::ACCEPTED},
        {"one digit", Edit("\"96.5\"", "\"97.5\""), Mea::MODIFIED},
        {"values swapped", Edit("lo\"\r\nM-ReportSO2          = \"---", "---\"\r\nM-ReportSO2 = \"lo"), Mea::MODIFIED},
        {"signature gone", Edit("A-Signature          = \"0X07A51156\"\r\n", ""), Mea::MODIFIED},
        {"one more key", reference + "Z = \"1\"\r\n", Mea::MODIFIED},
        {"other kind of file", Edit("ZARN-Measurement", "ZARN-Settings"), Mea::REJECTED},
        {"a key twice", reference + "M-Type = \"C\"\r\n", Mea::REJECTED}};
    for (const auto& [what, text, state] : rows) {
        SCOPED_TRACE(what);
        Mea loaded, brief;
        EXPECT_EQ(LoadText(text, loaded), state);
        EXPECT_EQ(brief.LoadBrief("Text.mea"), state);
        EXPECT_EQ(BiC(brief.dateTime) + BiC(brief.name) + BiC(brief.amountSF6) + BiC(brief.result),
                  BiC(loaded.dateTime) + BiC(loaded.name) + BiC(loaded.amountSF6) + BiC(loaded.result));
        EXPECT_EQ(loaded.IsEmpty(), state != Mea::ACCEPTED);
        EXPECT_EQ(DifferentFields(loaded, Mea()).empty(), state == Mea::REJECTED);
    }
    Mea loaded;
    EXPECT_EQ(loaded.Load("Missing.mea"), Mea::REJECTED);
    LoadText(Edit("\"C\"", "\"CC\""), loaded);
    EXPECT_EQ(DifferentFields(loaded, DistinctRecord()), "M-Type ") << "a modified file shows its values";
}
