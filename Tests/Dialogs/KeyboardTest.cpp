#include "Dialogs/DlgKeyboard.h"

#include "Board/Board.h"
#include "Dialogs/DlgNameList.h"
#include "DialogTesting.h"
#include "RRx/RRFile.h"

#include <QAbstractItemView>
#include <QPushButton>
#include <unistd.h>

namespace {

const char* const file = "/mnt/sdcard-i/Settings/MeaNameList.csv";

class Keyboard : public DialogTest {
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        RR::DIR_Create("/mnt/sdcard-i/Settings");
        Store({"OLD 1", "OLD 2"});
    }

    static void Store(const QStringList& names) { EXPECT_TRUE(DlgNameList::SaveNameList(file, names)); }
    /// What the next start of the program finds.
    static QStringList Stored()
    {
        QStringList names;
        DlgNameList::LoadNameList(file, names);
        return names;
    }
    void Use(const QString& former, const std::function<void()>& touches)
    {
        word = former;
        const Robot::Meanwhile user([&] { EXPECT_TRUE(Robot::WaitForShown("lineEdit")); touches(); });
        accepted = DlgKeyboard::Show("Name", word, 40);
    }
    static void Press(std::initializer_list<const char*> buttons)
    {
        for (const char* button : buttons) {
            EXPECT_TRUE(Robot::Click(button)) << button;
        }
    }
    static QString Line() { return Robot::TextOf("lineEdit"); }

    QString word;
    bool accepted = false;
};

TEST_F(Keyboard, EditsAtTheCursorAndKeepsTheFocusInTheLine)
{
    Use("FORMER", [] {
        Press({"buttonClr"});
        EXPECT_TRUE(Robot::TypeOnScreen(QString::fromUtf8("AB 1_Ü")));
        Press({"buttonDel", "buttonDel", "buttonLeft", "buttonLeft", "button403"});
        EXPECT_EQ(Line(), "ABC 1");
        Press({"buttonRight", "button501", "buttonRight", "button410"});
        EXPECT_EQ(Line(), "ABC  1-");
        QString focus;
        Robot::OnGui([&] { focus = QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(); });
        EXPECT_EQ(focus, "lineEdit");
        Press({"buttonOk"});
    });
    EXPECT_TRUE(accepted);
    EXPECT_EQ(word, "ABC  1-");
}

TEST_F(Keyboard, TypesWhatItsKeysShowInEachLanguage)
{
    static const struct {
        const char* language;
        const char* key;
        const char* typed;
    } rows[] = {{"DE", "button206", "Z"}, {"UK", "button206", "Y"}, {"BR", "button111", "Ç"}, {"CZ", "button408", ","},
                {"KR", "button410", "\""}, {"RU", "button206", "Z"}, {"CN", "button311", "操作者"}};
    QString expected;
    Use("", [&] {
        for (const auto& row : rows) {
            Robot::OnGui([&] { EXPECT_TRUE(SelectLanguage(row.language)) << row.language; });
            Press({row.key});
            expected += QString::fromUtf8(row.typed);
            EXPECT_EQ(Line(), expected) << row.language;
        }
        EXPECT_EQ(Robot::TextOf("headerTxt"), "Name");
        Press({"buttonOk"});
    });
    EXPECT_EQ(word, expected);
}

TEST_F(Keyboard, PutsAcceptedWordsAtTheHeadOfTheFile)
{
    QStringList names = Numbered(500);
    Store(names);
    const auto type = [&](const QString& former, const char* keys, const char* end) {
        Use(former, [&] { EXPECT_TRUE(Robot::TypeOnScreen(keys) && Robot::Click(end)); });
    };
    type("", "NEW", "buttonOk");
    names.prepend("NEW");
    names.removeLast();
    EXPECT_EQ(Stored(), names);
    type("N", "7", "buttonOk");
    names.move(names.indexOf("N7"), 0);
    EXPECT_EQ(Stored(), names);
    type(QString(50, 'W'), "1", "buttonOk");
    EXPECT_EQ(word, QString(40, 'W'));
    names = Stored();
    EXPECT_EQ(names.first(), word);
    type("FORMER", "X", "buttonCancel");
    EXPECT_FALSE(accepted);
    EXPECT_EQ(word, "FORMER");
    EXPECT_EQ(Stored(), names);
}

TEST_F(Keyboard, LeavesAFileAloneThatItCannotRead)
{
    constexpr RR::SInt32 tooLarge = (32 << 20) + 1;
    ASSERT_EQ(truncate(Board::Locate(file).c_str(), tooLarge), 0);
    Use("WORD", [] { Press({"buttonOk"}); });
    EXPECT_EQ(RR::FILE_ReadSize(file), tooLarge);

    RR::FILE_Delete(file);
    Use("WORD", [] { Press({"buttonOk"}); });
    EXPECT_EQ(Stored(), QStringList("WORD"));
}

TEST_F(Keyboard, TakesNamesFromTheList)
{
    for (const char* end : {"buttonCancel", "buttonOk"}) {
        Use("FORMER", [&] {
            Press({"buttonList", "buttonClose"});
            EXPECT_TRUE(Robot::WaitForShown("lineEdit"));
            EXPECT_EQ(Line(), "");
            Press({"buttonList"});
            EXPECT_TRUE(Robot::ClickRow("nameList", "OLD 1"));
            Press({"deleteEntry", "buttonAccept"});
            EXPECT_TRUE(Robot::ClickRow("nameList", "OLD 2"));
            Press({"buttonApply", end});
        });
        EXPECT_EQ(word, accepted ? "OLD 2" : "FORMER");
        EXPECT_EQ(Stored(), accepted ? QStringList{"OLD 2"} : (QStringList{"OLD 1", "OLD 2"}));
    }
    EXPECT_TRUE(accepted);
}

TEST_F(Keyboard, OffersNamesToAFingerWithoutStandingInItsWay)
{
    Store({"STTATION", "STT_2", "STTAR", "A"});
    const auto popup = [] { return QApplication::activePopupWidget(); };
    Use("", [&] {
        Press({"button302"});
        EXPECT_TRUE(Robot::WaitFor([&] { return popup() != nullptr; }));
        Robot::OnGui([&] {
            const auto* rows = qobject_cast<QAbstractItemView*>(popup());
            ASSERT_TRUE(rows);
            EXPECT_EQ(rows->model()->rowCount(), 3);
            EXPECT_GE(rows->visualRect(rows->model()->index(0, 0)).height(), 44);
            const QWidget* dialog = QApplication::activeModalWidget();
            for (const QWidget* key : dialog->findChildren<QPushButton*>()) {
                EXPECT_FALSE(rows->geometry().intersects(QRect(key->mapToGlobal(QPoint()), key->size())));
            }
        });
        Press({"button205", "button205"});
        EXPECT_TRUE(Robot::WaitFor([] { return Line() == "STT"; })) << "a touch beside the names is lost";
        Press({"button408"});
        EXPECT_TRUE(Robot::WaitFor([&] { return popup() && qobject_cast<QAbstractItemView*>(popup())->model()->rowCount() == 1; }));
        EXPECT_TRUE(Robot::ClickRow("offeredNames", "STT_2"));
        EXPECT_TRUE(Robot::WaitFor([&] { return !popup(); }));
        EXPECT_EQ(Line(), "STT_2");
        Press({"buttonOk"});
    });
    EXPECT_EQ(word, "STT_2");
}

}
