#include "Dialogs/DlgKeyboard.h"

#include "Board/Board.h"
#include "Dialogs/DlgNameList.h"
#include "DialogTesting.h"
#include "RRx/RRFile.h"

#include <QListView>
#include <QPushButton>
#include <unistd.h>

class Keyboard : public DialogTest {
protected:
    static void Store(const QStringList& names)
    {
        RR::DIR_Create("/mnt/sdcard-i/Settings");
        EXPECT_TRUE(DlgNameList::SaveNameList(file, names));
    }
    /// What the next start of the program finds.
    static QStringList Stored()
    {
        QStringList names;
        DlgNameList::LoadNameList(file, names);
        return names;
    }
    /// What becomes of `word`, in brackets if the user doesn't accept.
    static QString Edited(QString word, const std::function<void()>& steps)
    {
        const bool accepted = Use([&] { return DlgKeyboard::Show("Name", word, 40); }, steps);
        return accepted ? word : '(' + word + ')';
    }

    static constexpr const char* file = "/mnt/sdcard-i/Settings/MeaNameList.csv";
};

TEST_F(Keyboard, EditsAtTheCursorAndKeepsTheFocusInTheLine)
{
    EXPECT_EQ(Edited("FORMER", [] {
        Tap({"buttonClr"});
        EXPECT_TRUE(Robot::TypeOnScreen("AB 1_Ü"));
        Tap({"buttonDel", "buttonDel", "buttonLeft", "buttonLeft", "button403"});
        Tap({"buttonRight", "button501", "buttonRight", "button410"});
        Await([] { return QApplication::focusWidget() && QApplication::focusWidget()->objectName() == "lineEdit"; });
        Tap({"buttonOk"});
    }), "ABC  1-");
}

TEST_F(Keyboard, TypesWhatItsKeysShowInEachLanguage)
{
    EXPECT_EQ(Edited("", [] {
        for (const auto& [language, key] :
             {std::pair("DE", "button206"), {"UK", "button206"}, {"BR", "button111"}, {"CZ", "button408"},
              {"KR", "button410"}, {"RU", "button206"}, {"CN", "button311"}}) {
            Robot::OnGui([language = language] { EXPECT_TRUE(SelectLanguage(language)); });
            Tap({key});
        }
        AwaitText("headerTxt", "Name");
        Tap({"buttonOk"});
    }), "ZYÇ,\"Z操作者");
}

TEST_F(Keyboard, PutsAcceptedWordsAtTheHeadOfTheFile)
{
    Store(Numbered(500));
    const QString full(40, 'W');
    for (const auto& [former, keys, end, expected] :
         {std::tuple(QString(), "NEW", "buttonOk", QString("NEW")), {full + full, "1", "buttonOk", full},
          {"N", "7", "buttonOk", "N7"}, {"FORMER", "X", "buttonCancel", "(FORMER)"}}) {
        EXPECT_EQ(Edited(former, [keys = keys, end = end] {
            EXPECT_TRUE(Robot::TypeOnScreen(keys));
            Tap({end});
        }), expected);
    }
    QStringList others = Numbered(498);
    others.removeOne("N7");
    EXPECT_EQ(Stored(), QStringList({"N7", full, "NEW"}) + others);
}

TEST_F(Keyboard, LeavesAFileAloneThatItCannotRead)
{
    Store({});
    constexpr RR::SInt32 tooLarge = (32 << 20) + 1;
    ASSERT_EQ(truncate(Board::Locate(file).c_str(), tooLarge), 0);
    Edited("WORD", [] { Tap({"buttonOk"}); });
    EXPECT_EQ(RR::FILE_ReadSize(file), tooLarge);

    RR::FILE_Delete(file);
    Edited("WORD", [] { Tap({"buttonOk"}); });
    EXPECT_EQ(Stored(), QStringList("WORD"));
}

TEST_F(Keyboard, TakesNamesFromTheList)
{
    Store({"OLD 1", "OLD 2", "OLD 3"});
    EXPECT_EQ(Edited("FORMER", [] {
        Tap({"buttonList", "buttonClose"});
        AwaitText("lineEdit", "");
        Tap({"buttonList"});
        EXPECT_TRUE(Robot::ClickRow("nameList", "OLD 1"));
        Tap({"deleteEntry", "buttonAccept"});
        AwaitText("headerTxtNum", "(2)");
        EXPECT_TRUE(Robot::ClickRow("nameList", "OLD 3"));
        Tap({"buttonApply", "buttonOk"});
    }), "OLD 3");
    EXPECT_EQ(Stored(), QStringList({"OLD 3", "OLD 2"}));
}

TEST_F(Keyboard, OffersNamesToAFingerWithoutStandingInItsWay)
{
    Store({"STTATION", "STT_2", "STTAR", "A"});
    EXPECT_EQ(Edited("", [] {
        Tap({"button302"});
        AwaitShown("offeredNames");
        Robot::OnGui([] {
            const auto* rows = qobject_cast<QListView*>(QApplication::activePopupWidget());
            EXPECT_EQ(rows->model()->rowCount(), 3);
            EXPECT_GE(rows->visualRect(rows->model()->index(0, 0)).height(), 44);
            for (const QWidget* key : QApplication::activeModalWidget()->findChildren<QPushButton*>()) {
                EXPECT_FALSE(rows->geometry().intersects(QRect(key->mapToGlobal(QPoint()), key->size())));
            }
        });
        Tap({"button205", "button205"});
        AwaitText("lineEdit", "STT");
        EXPECT_TRUE(Robot::ClickRow("offeredNames", "STT_2"));
        Tap({"buttonOk"});
    }), "STT_2");
}
