#include "Dialogs/DlgNameList.h"

#include "Board/Board.h"
#include "DialogTesting.h"
#include "RRx/RRFile.h"

#include <QTextDocumentFragment>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

const char* const file = "/names.csv";

QStringList Loaded(const QByteArray& content)
{
    QStringList names{"former"};
    EXPECT_TRUE(RR::FILE_Write(file, reinterpret_cast<const RR::UInt08*>(content.constData()), static_cast<RR::SInt32>(content.size())));
    EXPECT_TRUE(DlgNameList::LoadNameList(file, names));
    return names;
}

TEST(NameListFile, IsReadInEveryFormAndWrittenInOne)
{
    using namespace Qt::StringLiterals;
    const QString text = u"\uFEFF\"A b\";b,\"C:*/\\?=\"\r\nÄ\n"_s;
    QByteArray little(reinterpret_cast<const char*>(text.utf16()), 2 * text.size());
    QByteArray big = little;
    for (qsizetype i = 0; i < big.size(); i += 2) {
        std::swap(big[i], big[i + 1]);
    }
    const QStringList expected{"A B", "B", "C______", u"Ä"_s};
    EXPECT_EQ(Loaded(little), expected);
    EXPECT_EQ(Loaded(big), expected);
    EXPECT_EQ(Loaded(big + 'x'), expected);
    EXPECT_EQ(Loaded(text.mid(1).toLatin1()), expected);

    static const struct {
        QByteArray content;
        QStringList names;
    } rows[] = {
        {"x", {"X"}},      {"\xFF\xFE", {}},      {"\"\"a\" b\"\"", {"A\" B"}}, {QByteArray("\xFE\xFF\0A", 4), {"A"}},
        {",;\r\n,", {}},   {"a\nA\na ", {"A"}},  {" \t\"\" \xA0,x\t y", {"X Y"}},
        {QByteArray("a\0b,c", 5), {"AB", "C"}},  {"<b>%1</b>", {"<B>%1<_B>"}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Loaded(row.content), row.names) << row.content.toHex().constData();
    }

    RR::Array<RR::UInt08> saved;
    EXPECT_TRUE(DlgNameList::SaveNameList(file, {"A", "B"}) && RR::FILE_Read(file, saved));
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(saved.Adr()), saved.GetSize()),
              QByteArray("\xFF\xFE\"\0A\0\"\0,\0\"\0B\0\"\0", 16));
}

TEST(NameListFile, LimitsTheListAndNotTheUser)
{
    QStringList names;
    {
        const Robot::Meanwhile user([] {
            EXPECT_TRUE(Robot::WaitFor([] { return Robot::TextOf("body").contains("500"); }));
            Robot::Click("buttonClose");
        });
        names = Loaded(Numbered(600).join(',').toLatin1());
    }
    EXPECT_EQ(names, Numbered(500));

    // Quadratic work would take minutes on these.
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_EQ(Loaded((Numbered(500).join(',') + ',').repeated(200).toLatin1()).size(), 500);
    EXPECT_TRUE(Loaded(QByteArray(1 << 20, '"') + QByteArray(1 << 20, '\xDF')).first().startsWith("SSS"));
    EXPECT_LT(elapsed.elapsed(), 20000);

    // 17 MB, which were 34 MB once written.
    QByteArray large;
    for (int i = 0; i < 500; ++i) {
        large += QByteArray::number(i) + QByteArray(34000, 'x') + ',';
    }
    names = Loaded(large);
    EXPECT_EQ(names.size(), 500);
    ASSERT_TRUE(DlgNameList::SaveNameList(file, names));
    QStringList again;
    EXPECT_TRUE(DlgNameList::LoadNameList(file, again) && again == names);

    EXPECT_FALSE(DlgNameList::LoadNameList("/no/such/file.csv", names));
    EXPECT_TRUE(names.isEmpty());
    // Yields fewer bytes than it has, like a file on a stick that is pulled.
    fs::create_symlink("/sys/class/net/lo/mtu", Board::Locate("/short.csv"));
    EXPECT_FALSE(DlgNameList::LoadNameList("/short.csv", names));
}

class NameList : public DialogTest {
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        std::ofstream(Board::Root() + "/dev/sda1").close();
        fs::remove_all(stick);
        fs::create_directories(stick);
    }
    void TearDown() override { fs::remove(Board::Root() + "/dev/sda1"); }

    void Use(const std::function<void()>& steps)
    {
        const Robot::Meanwhile user([&] { EXPECT_TRUE(Robot::WaitForShown("nameList")); steps(); });
        accepted = DlgNameList::Show(list, word);
    }
    static void Confirm(const char* button, const char* answer = "buttonAccept")
    {
        EXPECT_TRUE(Robot::Click(button)) << button;
        EXPECT_TRUE(Robot::Click(answer)) << button;
    }
    static void Import(const char* name)
    {
        Confirm("importList");
        EXPECT_TRUE(Robot::ClickRow("fileNameList", name));
        Robot::Click("buttonOk");
    }
    /// Closes the statement on top and returns what the user could read there.
    static QString Read()
    {
        EXPECT_TRUE(Robot::WaitForShown("body"));
        const QString shown = Robot::TextOf("body");
        Robot::Click("buttonClose");
        // Another statement may follow.
        Robot::WaitFor([&] { return Robot::TextOf("body") != shown; });
        return Qt::mightBeRichText(shown) ? QTextDocumentFragment::fromHtml(shown).toPlainText() : shown;
    }

    const fs::path stick = fs::path(Board::Root()) / "usb-stick";
    QStringList list;
    QString word = "former";
    bool accepted = false;
};

TEST_F(NameList, HandsBackWhatTheUserTapsAndNothingElse)
{
    list = {"ONE", "TWO", "<I>THREE"};
    Use([] {
        EXPECT_TRUE(Robot::IsShown("buttonClose") && !Robot::IsShown("buttonApply") && !Robot::IsShown("buttonDeny"));
        EXPECT_FALSE(Robot::IsEnabled("deleteEntry"));
        Robot::Click("buttonClose");
    });
    EXPECT_TRUE(accepted && word.isEmpty());

    for (const bool apply : {false, true}) {
        Use([apply] {
            Robot::ClickRow("nameList", "TWO");
            Confirm("deleteEntry", "buttonReject");
            EXPECT_TRUE(Robot::WaitFor([] { return Robot::TextOf("headerTxtNum") == "(3)"; }));
            Confirm("deleteEntry");
            EXPECT_TRUE(Robot::WaitFor([] { return Robot::TextOf("headerTxtNum") == "(2)"; }));
            Robot::ClickRow("nameList", "<I>THREE");
            Robot::Click(apply ? "buttonApply" : "buttonDeny");
        });
        EXPECT_EQ(accepted, apply);
        EXPECT_EQ(word, apply ? "<I>THREE" : "");
        EXPECT_EQ(list.size(), apply ? 2 : 3);
    }
    EXPECT_EQ(list, (QStringList{"ONE", "<I>THREE"}));

    Use([] {
        Confirm("deleteList");
        EXPECT_TRUE(Robot::WaitForShown("buttonApply"));
        EXPECT_EQ(Robot::TextOf("headerTxtNum"), "(0)");
        EXPECT_FALSE(Robot::IsEnabled("deleteEntry") || Robot::IsEnabled("exportList") || Robot::IsEnabled("deleteList"));
        Robot::Click("buttonApply");
    });
    EXPECT_TRUE(accepted && list.isEmpty() && word.isEmpty());
}

TEST_F(NameList, ComesBackFromAStickAsItWas)
{
    list = {"ZETA 40", "ALPHA \"1\" 2", QString::fromUtf8("ÄÖ %1 <B>")};
    QStringList sorted = list;
    sorted.sort();
    Use([] {
        Confirm("exportList");
        EXPECT_EQ(Read(), "Kopiervorgang abgeschlossen");
        Confirm("deleteList");
        Import("MeaNameList.csv");
        EXPECT_EQ(Read(), QString::fromUtf8("3 Einträge gefunden"));
        EXPECT_EQ(Robot::TextOf("headerTxtNum"), "(3)");
        Robot::Click("buttonApply");
    });
    EXPECT_EQ(list, sorted);
    EXPECT_FALSE(RR::FILE_IsPresent("/mnt/usb-storage/MeaNameList.csv")) << "still mounted";

    // Two encodings of one name look the same.
    std::ofstream(stick / "\xC4.csv") << "ONE";
    std::ofstream(stick / "\xC3\x84.csv") << "TWO";
    QStringList imported;
    for (const char* shown : {"Ä.csv", "Ä.csv (2)"}) {
        Use([&] {
            Import(shown);
            Read();
            Robot::Click("buttonApply");
        });
        imported += list;
    }
    imported.sort();
    EXPECT_EQ(imported, (QStringList{"ONE", "TWO"}));
}

TEST_F(NameList, LosesNothingWhenAStickFails)
{
    list = {"ONE", "TWO"};
    Use([&] {
        Confirm("importList");
        EXPECT_EQ(Read(), "Keine Datei mit Endung \".csv\" vorgefunden");

        for (const char* name : {"<i>100%1 \"&lt;.csv", "&lt;.csv"}) {
            fs::create_symlink("/nowhere", stick / name);
            Import(name);
            EXPECT_EQ(Read(), QStringLiteral("Datei \"%1\" kann nicht gelesen werden").replace("%1", name));
        }
        EXPECT_EQ(Robot::TextOf("headerTxtNum"), "(2)");

        fs::create_symlink("/dev/full", stick / "MeaNameList.csv");
        Confirm("exportList");
        EXPECT_EQ(Read(), QString::fromUtf8("Wechseldatenträger ist voll"));
        EXPECT_EQ(Read(), "Kopiervorgang fehlgeschlagen");

        fs::remove_all(stick);
        Confirm("importList");
        EXPECT_TRUE(Read().startsWith("Fehler ...\n\nInhalt"));
        Confirm("exportList");
        EXPECT_EQ(Read(), "Kopiervorgang fehlgeschlagen");
        EXPECT_TRUE(Robot::ClickRow("nameList", "TWO"));
        Robot::Click("buttonApply");
    });
    EXPECT_EQ(list, (QStringList{"ONE", "TWO"}));
    EXPECT_EQ(word, "TWO");
}

}
