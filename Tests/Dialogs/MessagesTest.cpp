#include "DialogTesting.h"

#include "Dialogs/DlgError.h"
#include "Dialogs/DlgFileList.h"
#include "Dialogs/DlgLowBatt.h"
#include "Dialogs/DlgQuestion.h"
#include "Dialogs/DlgStatement.h"

namespace {

const bool screenChosen = (Panel::ChooseScreen(), true);

constexpr int screenHeight = 480;

}

TEST_F(DialogTest, EachButtonAnswersTheQuestionInEachLanguage)
{
    ASSERT_TRUE(screenChosen);
    const struct {
        LangCC language;
        DlgQuestion::Option option;
        const char* accept;
        const char* reject;
    } rows[] = {{"DE", DlgQuestion::YES_NO, "Ja", "Nein"}, {"UK", DlgQuestion::OK_CANCEL, "Ok", "Cancel"}};
    for (const auto& row : rows) {
        ASSERT_TRUE(SelectLanguage(row.language));
        for (const bool accept : {true, false}) {
            const Robot::Meanwhile finger([&] {
                EXPECT_TRUE(Robot::WaitForShown("body", 60000));
                EXPECT_EQ(Robot::TextOf("buttonAccept"), row.accept);
                EXPECT_EQ(Robot::TextOf("buttonReject"), row.reject);
                EXPECT_TRUE(Robot::Click(accept ? "buttonAccept" : "buttonReject", 60000));
            });
            EXPECT_EQ(DlgQuestion::Show(QStringLiteral("Sure?"), row.option, DlgQuestion::UNUSED), accept);
        }
    }
}

TEST_F(DialogTest, TimeOutsEndTheirDialogsInTheirSense)
{
    // Each opens the next, shorter one above itself, so that all wait at the same time.
    const QString text = QStringLiteral("text");
    struct {
        int seconds;
        std::function<bool()> show;
        bool result;
        double took = 0;
    } rows[] = {{600, [&] { return DlgStatement::Show(text, DlgStatement::UNUSED, true), true; }, true},
                {600, [&] { return DlgQuestion::Show(text, DlgQuestion::YES_NO, DlgQuestion::REJECT_600); }, false},
                {600, [&] { return DlgStatement::Show(text, DlgStatement::CLOSE_600, true), true; }, true},
                {300, [&] { return DlgLowBatt::Show(text, DlgLowBatt::CLOSE_300, true), true; }, true},
                {80, [&] { return DlgQuestion::Show(text, DlgQuestion::YES_NO, DlgQuestion::ACCEPT_80); }, true},
                {20, [&] { return DlgStatement::Show(text, DlgStatement::CLOSE_20, true), true; }, true},
                {10, [&] { return DlgQuestion::Show(text, DlgQuestion::YES_NO, DlgQuestion::REJECT_10); }, false},
                {5, [&] { return DlgLowBatt::Show(text, DlgLowBatt::CLOSE_5, true), true; }, true}};
    size_t ended = 0;
    std::function<void(size_t)> open = [&](size_t i) {
        if (i < std::size(rows)) {
            QTimer::singleShot(0, qApp, [&, i] { open(i + 1); });
            rows[i].took = SecondsOf([&] { EXPECT_EQ(rows[i].show(), rows[i].result) << rows[i].seconds; });
            ++ended;
        }
    };
    // The first has no time-out and waits for a finger.
    Robot::When([&] { return ended == std::size(rows) - 1; }, [] { Robot::Click("buttonClose"); });
    open(0);
    for (const auto& row : rows) {
        EXPECT_GE(row.took, row.seconds - 1);
        EXPECT_LT(row.took, row.seconds * 2 + 30);
    }
}

TEST_F(DialogTest, QuestionAndStatementGrowByTheLinesOfTheirText)
{
    const auto heightOf = [](const QString& text, bool statement) {
        int height = 0;
        LookAt([&] {
            statement ? DlgStatement::Show(text, DlgStatement::UNUSED, false)
                      : void(DlgQuestion::Show(text, DlgQuestion::OK_CANCEL, DlgQuestion::UNUSED));
        }, [&](QWidget& dialog) {
            height = dialog.height();
            EXPECT_EQ(dialog.width(), 430);
            const QPoint off = dialog.geometry().center() - QRect(0, 0, 800, 480).center();
            EXPECT_LE(off.manhattanLength(), 2);
            EXPECT_EQ(FitCheck::Faults(dialog, false), QStringList());
        });
        return height;
    };
    const int line = QFontMetrics(QApplication::font()).lineSpacing();
    const struct {
        const char* text;
        int lines;
        // Letters of 12.2 pixels: one line holds 30, and the tags count as letters.
    } rows[] = {{"one\r\ntwo", 2}, {"one<br>two", 2}, {"one<p>two<br>three<p>four\nfive", 7},
                {"nnnnnnnnnn nnnnnnnnnn nnn", 1}, {"nnnnnnnnnn <i>nnnnnnnnnn</i> nnn", 2}};
    for (const bool statement : {false, true}) {
        const int oneLine = heightOf(QStringLiteral("one"), statement);
        for (const auto& row : rows) {
            EXPECT_EQ(heightOf(QString::fromLatin1(row.text), statement) - oneLine, (row.lines - 1) * line) << row.text;
        }
    }
}

TEST_F(DialogTest, ErrorAndLowBatteryTakeTheSizeOfTheirText)
{
    const QFontMetrics metrics(QApplication::font());
    const int line = metrics.lineSpacing();
    const QString word = QStringLiteral("Messung abgebrochen!");
    const int width = metrics.horizontalAdvance(word);
    const struct {
        QString text;
        int width;
        int lines;   ///< of the text as it is written
        int thirds;  ///< of the font's height
        QString shown;
    } rows[] = {{word, width, 1, 1, word},
                {word + "\n\n" + word, width, 3, 3, word + "<p><p>" + word},
                {word + "<p>", metrics.horizontalAdvance(word + "<p>"), 1, 2, word + "<p>"},
                {word + "<br>", metrics.horizontalAdvance(word + "<br>"), 1, 1, word + "<br>"}};
    for (const auto& row : rows) {
        for (const bool lowBatt : {false, true}) {
            LookAt([&] {
                lowBatt ? DlgLowBatt::Show(row.text, DlgLowBatt::UNUSED, false) : DlgError::Show(row.text, "B04-08");
            }, [&](QWidget& dialog) {
                EXPECT_EQ(dialog.findChild<QLabel*>("body")->text(), row.shown);
                EXPECT_NEAR(dialog.width(), row.width + 30, 1) << qPrintable(row.text);
                EXPECT_EQ(dialog.height(), row.lines * line + (lowBatt ? 220 : 180) + row.thirds * metrics.height() / 3)
                    << qPrintable(row.text);
                EXPECT_EQ(FitCheck::Faults(dialog, false), QStringList());
            });
        }
    }
}

TEST_F(DialogTest, NoTextLeavesTheScreenOrIsCutOff)
{
    const QString texts[] = {QString(40, 'W'), QStringLiteral("<b>%1</b>&lt;%1").arg(QString(400, 'W')),
                             QStringLiteral("five words in this line\n").repeated(80), QStringLiteral("<p>").repeated(300),
                             QStringLiteral("a<"), QStringLiteral("%1 %n & <img src='x' width='9000' height='9000'>"), QString()};
    for (const QString& text : texts) {
        const std::function<void()> dialogs[] = {
            [&] { DlgQuestion::Show(text, DlgQuestion::YES_NO, DlgQuestion::UNUSED); },
            [&] { DlgStatement::Show(text, DlgStatement::UNUSED, true); },
            [&] { DlgError::Show(text, QStringLiteral("<b>B04</b>")); },
            [&] { DlgLowBatt::Show(text, DlgLowBatt::UNUSED, false); }};
        for (const auto& show : dialogs) {
            LookAt(show, [&](QWidget& dialog) {
                EXPECT_EQ(FitCheck::Faults(dialog, true), QStringList()) << qPrintable(text.left(30));
                EXPECT_LE(dialog.height(), screenHeight);
            });
        }
    }
}

TEST_F(DialogTest, TheListHandsBackExactlyTheChosenName)
{
    const QStringList names = {"b.csv", "<b>a</b>.csv", "%1 \"q\" & 'p'.csv", QString(300, 'W'), "ä/..\\n.csv"};
    const auto choose = [&](const QString& name, const char* button) {
        QString chosen = QStringLiteral("before");
        const Robot::Meanwhile finger([&] {
            EXPECT_TRUE(Robot::WaitForShown("fileNameList", 60000));
            EXPECT_TRUE(name.isEmpty() || Robot::ClickRow("fileNameList", name));
            EXPECT_TRUE(Robot::Click(button, 60000));
        });
        EXPECT_EQ(DlgFileList::Show(QStringLiteral("<i>Files</i>"), names, chosen), qstrcmp(button, "buttonOk") == 0);
        return chosen;
    };
    for (const QString& name : names) {
        EXPECT_EQ(choose(name, "buttonOk"), name);
    }
    EXPECT_EQ(choose(names[0], "buttonCancel"), "before");
    EXPECT_EQ(choose(QString(), "buttonOk"), "before");
}
