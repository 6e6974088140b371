#include "Dialogs/DlgNameList.h"

#include "Board/Board.h"
#include "DialogTesting.h"

#include <QFile>
#include <QStringEncoder>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

class NameList : public DialogTest {
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        std::ofstream(Board::Locate("/dev/sda1")).close();
        fs::remove_all(stick);
        fs::create_directories(stick);
    }

    static QStringList Loaded(const QByteArray& content)
    {
        std::ofstream(Board::Locate(file)) << content.toStdString();
        QStringList names{"former"};
        EXPECT_TRUE(DlgNameList::LoadNameList(file, names));
        return names;
    }
    bool Open(const std::function<void()>& steps)
    {
        return Use([this] { return DlgNameList::Show(list, word); }, steps);
    }
    static void Import(const char* name)
    {
        Tap({"importList", "buttonAccept"});
        EXPECT_TRUE(Robot::ClickRow("fileNameList", name));
        Tap({"buttonOk"});
    }

    static constexpr const char* file = "/names.csv";
    const fs::path stick = fs::path(Board::Root()) / "usb-stick";
    QStringList list;
    QString word = "former";
};

TEST_F(NameList, IsReadInEveryFormAndWrittenInOne)
{
    const QString text = "\"A b\";b,\"C:*/\\?=\"\r\nÄ\n";
    const QStringList expected{"A B", "B", "C______", "Ä"};
    EXPECT_EQ(Loaded(text.toLatin1()), expected);
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        const QByteArray bytes = QStringEncoder(encoding)(QChar(QChar::ByteOrderMark) + text);
        EXPECT_EQ(Loaded(bytes), expected);
        EXPECT_EQ(Loaded(bytes + 'x'), expected);
    }
    for (const auto& [content, names] :
         {std::pair<QByteArray, QStringList>("x", {"X"}), {"\xFF\xFE", {}}, {",;\r\n,", {}}, {"a\nA\na ", {"A"}},
          {"\"\"a\" b\"\"", {"A\" B"}}, {" \t\"\" \xA0,x\t y", {"X Y"}}, {QByteArray("a\0b,c", 5), {"AB", "C"}}}) {
        EXPECT_EQ(Loaded(content), names) << content.toHex().constData();
    }

    EXPECT_TRUE(DlgNameList::SaveNameList(file, {"A", "€"}));
    QFile saved(QString::fromStdString(Board::Locate(file)));
    EXPECT_TRUE(saved.open(QFile::ReadOnly));
    EXPECT_EQ(saved.readAll(), QByteArray("\xFF\xFE\"\0A\0\"\0,\0\"\0\xAC\x20\"\0", 16));
}

TEST_F(NameList, IsLimitedAndEmptyIfItCannotBeRead)
{
    EXPECT_EQ(Use([] { return Loaded(Numbered(600).join(',').toLatin1()); }, [] {
        Dismiss("Liste der Namen wurde auf die\nHöchstmenge von 500 Einträgen begrenzt.");
    }), Numbered(500));
    // Letters that become two; to turn all of them would take minutes.
    EXPECT_EQ(Loaded(QByteArray(1 << 20, '\xDF')), QStringList(QString(1000, 'S')));

    // Yields fewer bytes than it has, like a file on a stick that is pulled.
    fs::create_symlink("/sys/class/net/lo/mtu", Board::Locate("/short.csv"));
    for (const char* unreadable : {"/no/such/file.csv", "/short.csv"}) {
        EXPECT_FALSE(DlgNameList::LoadNameList(unreadable, list = {"former"}));
        EXPECT_TRUE(list.isEmpty());
    }
}

TEST_F(NameList, HandsBackWhatTheUserTapsAndNothingElse)
{
    list = {"ONE", "TWO", "<I>THREE"};
    for (const bool apply : {false, true}) {
        EXPECT_EQ(Open([apply] {
            AwaitShown("buttonClose");
            EXPECT_FALSE(Robot::IsShown("buttonApply") || Robot::IsShown("buttonDeny"));
            EXPECT_FALSE(Robot::IsEnabled("deleteEntry"));
            EXPECT_TRUE(Robot::ClickRow("nameList", "TWO"));
            Tap({"deleteEntry", "buttonReject", "deleteEntry", "buttonAccept"});
            AwaitText("headerTxtNum", "(2)");
            EXPECT_TRUE(Robot::ClickRow("nameList", "<I>THREE"));
            Tap({apply ? "buttonApply" : "buttonDeny"});
        }), apply);
        EXPECT_EQ(word, apply ? "<I>THREE" : "");
    }
    EXPECT_EQ(list, QStringList({"ONE", "<I>THREE"}));
}

TEST_F(NameList, ComesBackFromAStickAsItWas)
{
    // Two encodings of one name look the same. A stick that stays mounted can't be mounted again.
    std::ofstream(stick / "\xC4.csv") << "ONE";
    std::ofstream(stick / "\xC3\x84.csv") << "ONE";
    list = {"ZETA 40", "ALPHA \"1\" 2", "ÄÖ %1 <B>"};
    EXPECT_TRUE(Open([] {
        Tap({"exportList", "buttonAccept"});
        Dismiss("Kopiervorgang abgeschlossen");
        Tap({"deleteList", "buttonAccept"});
        AwaitText("headerTxtNum", "(0)");
        EXPECT_FALSE(Robot::IsEnabled("deleteEntry") || Robot::IsEnabled("deleteList"));
        EXPECT_FALSE(Robot::IsEnabled("exportList"));
        Import("Ä.csv (2)");
        Dismiss("1 Einträge gefunden");
        Import("MeaNameList.csv");
        Dismiss("3 Einträge gefunden");
        Tap({"buttonApply"});
    }));
    EXPECT_EQ(list, QStringList({"ALPHA \"1\" 2", "ZETA 40", "ÄÖ %1 <B>"}));
}

TEST_F(NameList, LosesNothingWhenAStickFails)
{
    list = {"ONE", "TWO"};
    EXPECT_TRUE(Open([this] {
        Tap({"importList", "buttonAccept"});
        Dismiss("Keine Datei mit Endung \".csv\" vorgefunden");
        fs::create_symlink("/nowhere", stick / "%1&lt;.csv");
        Import("%1&lt;.csv");
        Dismiss("<qt>Datei &quot;%1&amp;lt;.csv&quot; kann nicht gelesen werden</qt>");
        Tap({"importList", "buttonAccept", "buttonOk"});
        Dismiss("Datei \"\" kann nicht gelesen werden");
        Tap({"importList", "buttonAccept", "buttonCancel"});

        fs::create_symlink("/dev/full", stick / "MeaNameList.csv");
        Tap({"exportList", "buttonAccept"});
        Dismiss("Wechseldatenträger ist voll");
        Dismiss("Kopiervorgang fehlgeschlagen");

        fs::remove_all(stick);
        Tap({"importList", "buttonAccept"});
        Dismiss("Fehler ...\n\nInhalt des USB Wechseldatenträgers\nkann nicht gelesen werden");
        Tap({"exportList", "buttonAccept"});
        Dismiss("Kopiervorgang fehlgeschlagen");
        EXPECT_TRUE(Robot::ClickRow("nameList", "TWO"));
        Tap({"buttonApply"});
    }));
    EXPECT_EQ(list, QStringList({"ONE", "TWO"}));
    EXPECT_EQ(word, "TWO");
}
