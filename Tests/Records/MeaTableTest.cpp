#include "MeaTable.h"
#include "Globals.h"
#include "Records/MeaFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QIcon>
#include <QSignalSpy>

using namespace RR;
namespace fs = std::filesystem;
using testing::StartsWith;

namespace {

const std::string reference = ReadFile(MEA_CORPUS "/Full.mea");
const auto longAgo = fs::file_time_type::clock::from_sys(std::chrono::sys_seconds(std::chrono::seconds(1706745599)));

class MeaTableFile : public testing::Test {
protected:
    void SetUp() override
    {
        fs::remove_all(folder);
        fs::create_directories(folder);
        WriteFile(card, "");
    }

    void Put(const char* file, const std::string& bytes)
    {
        PutFile(file, bytes);
        fs::last_write_time(folder / file, longAgo);
    }

    static std::string Measurement(const std::string& dateTime)
    {
        return QString::fromStdString(reference).replace("2024-01-31T23:59:59", dateTime.c_str()).toStdString();
    }

    /// The names of the files that the update read, and whatever else it logged.
    std::string Update()
    {
        const QString log = QString::fromStdString(LogOf([this] { table.Update(); }));
        return QString(log).replace("[ZARN] Header updated for ", "").replace("\n", " ").toStdString();
    }

    std::string Rows() const
    {
        std::string rows;
        for (int row = 0; row < table.rowCount(); ++row) {
            rows += std::string(table[row]->GetFileName()) + ":" + BiC(table[row]->GetStatus()).Adr() + " ";
        }
        return rows;
    }

    QVariant Data(int row, int column, int role) const { return table.data(table.index(row, column), role); }

    const fs::path card = Board::Locate("/dev/mmcblk0p1");
    const fs::path folder = Board::Locate(CFG::MeaHdrPath);
    const fs::path cache = folder / CFG::MeaHdrFile;
    MeaTable table{nullptr};
    QSignalSpy told{&table, &MeaTable::layoutChanged};
};

}

TEST_F(MeaTableFile, FolderAndCacheAreMadeIfTheyCanBe)
{
    fs::remove_all(folder);
    EXPECT_EQ(Update(), "");
    EXPECT_EQ(fs::file_size(cache), 0);
    Put("A.mea", reference);
    Update();
    ASSERT_EQ(table.GetSize(), 1);

    fs::remove_all(folder);
    fs::remove(card);
    EXPECT_EQ(Update(), "[ZARN] Error creating header file \"/mnt/sdcard-i/Measurements/.meaHdrs.dat\" ");
    WriteFile(card, "");
    WriteFile(folder, "");
    EXPECT_EQ(Update(), "[ZARN] Error creating folder \"/mnt/sdcard-i/Measurements\" ");
    EXPECT_TRUE(table.IsEmpty());
}

TEST_F(MeaTableFile, OnlyNewAndChangedFilesAreReadAndOnlyThenTheCacheIsWritten)
{
    Put("A.mea", reference);
    Put("B.mea", Measurement("2023-01-01T00:00:00"));
    EXPECT_EQ(Update(), "\"A.mea\" \"B.mea\" ");
    EXPECT_EQ(Rows(), "B.mea:M A.mea:A ");
    const std::string name = BiC(QString::fromUtf8("Zürich €𝄞")).Adr();
    EXPECT_THAT(ReadFile(cache), StartsWith("A.mea = \"" + std::to_string(reference.size())
                                            + "|2024-01-31T23:59:59|2024-01-31T23:59:59|" + name + "|96.5|F|A\"\r\n"));

    fs::last_write_time(cache, longAgo);
    Put("A.mea", std::string(reference.size(), '?'));
    EXPECT_EQ(Update(), "");
    EXPECT_EQ(Rows(), "B.mea:M A.mea:A ") << "not even opened";
    EXPECT_EQ(fs::last_write_time(cache), longAgo);
    EXPECT_EQ(told.count(), 2);

    PutFile("A.mea", reference);
    EXPECT_EQ(Update(), "\"A.mea\" ") << "another time alone";
    Put("B.mea", reference + "\n");
    fs::remove(folder / "A.mea");
    EXPECT_EQ(Update(), "\"B.mea\" ") << "another size alone";
    EXPECT_EQ(Rows(), "B.mea:A ");
    EXPECT_EQ(ReadFile(cache).find("A.mea"), std::string::npos);
}

TEST_F(MeaTableFile, EveryFileOfTheNameHasItsRowInTheOrderOfMeasuring)
{
    for (const char* file : {"d.mea", "c.mea", "X.MEA", "x.txt", "mea", "Z\xC3\xBCrich 1.mea"}) {
        Put(file, Measurement(*file == 'X' ? "2022-01-01T00:00:00" : "2023-01-01T00:00:00"));
    }
    Put("a.mea", "");
    fs::create_directory(folder / "folder.mea");
    fs::create_symlink("nowhere", folder / "gone.mea");
    Update();
    EXPECT_EQ(Rows(), "X.MEA:M Z\xC3\xBCrich 1.mea:M c.mea:M d.mea:M :--- a.mea:R ");
    fs::last_write_time(cache, longAgo);
    EXPECT_NE(Update().find("rich 1.mea"), std::string::npos) << "a name that the cache can't hold is read each time";
    EXPECT_EQ(fs::last_write_time(cache), longAgo) << "and yet not written";
}

TEST_F(MeaTableFile, NoCacheWhateverIsInItHidesOrInventsAFile)
{
    Put("A.mea", reference);
    Put("B.mea", "");
    Update();
    const std::string good = ReadFile(cache);
    const std::string lineB = good.substr(good.find("B.mea"));
    const struct {
        std::string bytes, read, rows;
    } rows[] = {
        {good + "B.mea = \"1\"\r\n", "\"A.mea\" \"B.mea\" ", "A.mea:A B.mea:R "},
        {lineB + "A.mea = \"1|2|3|4|5|6\"", "\"A.mea\" ", "A.mea:A B.mea:R "},
        {good + "../A.mea = \"||||||\"\n\xC4 = \"\"", "\"A.mea\" \"B.mea\" ", "A.mea:A B.mea:R "},
        {lineB + "A.mea=\"" + std::to_string(reference.size()) + "|2024-01-31T23:59:59||-|0|x|a\"", "",
         "A.mea:--- B.mea:R "},
        {std::string(3, '\0') + "\x7F" "ELF", "\"A.mea\" \"B.mea\" ", "A.mea:A B.mea:R "}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bytes);
        PutFile(CFG::MeaHdrFile, row.bytes);
        EXPECT_EQ(Update(), row.read);
        EXPECT_EQ(Rows(), row.rows);
        EXPECT_EQ(ReadFile(cache) == good, row.rows.find("---") == std::string::npos);
    }
    for (size_t cut = 0; cut < good.size(); ++cut) {
        PutFile(CFG::MeaHdrFile, good.substr(0, cut));
        Update();
        ASSERT_EQ(Rows(), "A.mea:A B.mea:R ") << "cut at " << cut;
    }
}

TEST_F(MeaTableFile, ARowShowsDayNameAndVerdict)
{
    const char* const icons[] = {"Passed", "Failed", "NoResult", "Modified", "Damaged"};
    Mea mea;
    for (const Mea::Result result : {Mea::PASSED, Mea::FAILED, Mea::NO_RESULT}) {
        mea.dateTime = DateTime(Date::Today(), Time(result, 0, 0));
        mea.dateTime.Decrement(result == Mea::PASSED ? 86400 : 0);
        mea.name = "M";
        mea.result = result;
        mea.Save(String("T") + char('0' + result) + ".mea");
    }
    Put("Modified.mea", QString::fromStdString(ReadFile(folder / "T2.mea")).replace("T02:", "T03:").toStdString());
    Put("Rejected.mea", "");
    Update();
    ASSERT_EQ(table.GetSize(), 5);
    SelectLanguage("UK");
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(Data(row, 0, Qt::DisplayRole).toString() == "today", row % 4 != 0);
        EXPECT_EQ(Data(row, 1, Qt::DisplayRole), row < 4 ? "M" : "");
        EXPECT_EQ(Data(row, 2, Qt::DecorationRole).value<QIcon>().pixmap(40).toImage(),
                  QPixmap(QString(":/TImg/Images/Mea_%1_A.png").arg(icons[row])).toImage());
        EXPECT_EQ(Data(row, row % 3, Qt::ForegroundRole).isValid(), row > 2);
    }
    SelectLanguage("DE");
    EXPECT_EQ(Data(4, 0, Qt::DisplayRole), "--.--.--");
    const QModelIndex stale = table.index(4, 0);
    fs::remove(folder / "Rejected.mea");
    Update();
    EXPECT_FALSE(table.data(stale, Qt::TextAlignmentRole).isValid());
    EXPECT_TRUE(table[-1] == nullptr && table[4] == nullptr);
}
