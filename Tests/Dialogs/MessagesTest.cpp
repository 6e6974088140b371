#include "DialogTesting.h"

#include "Dialogs/DlgError.h"
#include "Dialogs/DlgLowBatt.h"
#include "Dialogs/DlgQuestion.h"
#include "Dialogs/DlgStatement.h"

[[maybe_unused]] const bool screenChosen = (Panel::ChooseScreen(), true);

using Show = void (*)(const QString&);
constexpr auto yesNo = DlgQuestion::YES_NO;
constexpr Show question = [](const QString& text) { DlgQuestion::Show(text, yesNo, DlgQuestion::UNUSED); };
constexpr Show statement = [](const QString& text) { DlgStatement::Show(text, DlgStatement::UNUSED, true); };
constexpr Show error = [](const QString& text) { DlgError::Show(text, "<b>B04</b>"); };
constexpr Show lowBatt = [](const QString& text) { DlgLowBatt::Show(text, DlgLowBatt::UNUSED, false); };

class Messages : public DialogTest {
protected:
    /// The size of a dialog, in the middle of the screen, that shows the whole text.
    static QSize SizeOf(Show show, const QString& text)
    {
        QSize size;
        LookAt([&] { show(text); }, [&](QWidget& dialog) {
            size = dialog.size();
            EXPECT_LE((dialog.geometry().center() - QRect(0, 0, 800, 480).center()).manhattanLength(), 2);
            EXPECT_EQ(FitCheck::Faults(dialog, false), QStringList());
            EXPECT_FALSE(show == error && Robot::TextOf("body").contains('\n')) << "its paragraphs stand apart";
        });
        return size;
    }
};

TEST_F(Messages, EachButtonAnswersTheQuestion)
{
    for (const auto& [option, accept, reject] :
         {std::tuple(yesNo, "Ja", "Nein"), {DlgQuestion::OK_CANCEL, "Ok", "Abbrechen"}}) {
        for (const bool answer : {true, false}) {
            EXPECT_EQ(Use([&] { return DlgQuestion::Show("Sure?", option, DlgQuestion::UNUSED); }, [&] {
                AwaitText("buttonAccept", accept);
                AwaitText("buttonReject", reject);
                Tap({answer ? "buttonAccept" : "buttonReject"});
            }), answer);
        }
    }
}

TEST_F(Messages, TimeOutsEndTheirDialogsInTheirSense)
{
    // Each opens above the one before, which has longer to go, so that all wait at the same time.
    const struct {
        int seconds;
        bool result;
        std::function<bool()> show;
    } rows[] = {{600, true, [] { return DlgStatement::Show("", DlgStatement::UNUSED, true), true; }},
                {600, false, [] { return DlgQuestion::Show("", yesNo, DlgQuestion::REJECT_600); }},
                {300, true, [] { return DlgLowBatt::Show("", DlgLowBatt::CLOSE_300, true), true; }},
                {80, true, [] { return DlgQuestion::Show("", yesNo, DlgQuestion::ACCEPT_80); }},
                {20, true, [] { return DlgStatement::Show("", DlgStatement::CLOSE_20, true), true; }}};
    size_t ended = 0;
    for (const auto& row : rows) {
        QTimer::singleShot(0, qApp, [&] {
            EXPECT_EQ(row.show(), row.result) << row.seconds;
            EXPECT_GE(elapsed.elapsed(), row.seconds * 1000 - 1000);
            EXPECT_LT(elapsed.elapsed(), row.seconds * 2000 + 60000);
            ++ended;
        });
    }
    // The first has no time-out and waits for a finger.
    Robot::When([&] { return ended == std::size(rows) - 1; }, [] { Tap({"buttonClose"}); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended == std::size(rows); }, 600 * 1000));
}

TEST_F(Messages, QuestionAndStatementGrowByTheLinesOfTheirText)
{
    const int line = QFontMetrics(QApplication::font()).lineSpacing();
    for (const Show show : {question, statement}) {
        const int oneLine = SizeOf(show, "one").height();
        // Letters of 12.2 pixels: one line holds 30, and the tags count as letters.
        for (const auto& [text, lines] : {std::pair("one\r\ntwo", 2), {"one<p>two<br>three<p>four\nfive", 7},
                                          {"nnnnnnnnnn nnnnnnnnnn nnn", 1}, {"nnnnnnnnnn <i>nnnnnnnnnn</i> nnn", 2}}) {
            EXPECT_EQ(SizeOf(show, text), QSize(430, oneLine + (lines - 1) * line)) << text;
        }
    }
}

TEST_F(Messages, ErrorAndLowBatteryTakeTheSizeOfTheirText)
{
    const QFontMetrics metrics(QApplication::font());
    const QString word = QStringLiteral("Messung abgebrochen!");
    const int line = metrics.lineSpacing();
    const int third = metrics.height() / 3;
    for (const auto& [text, widest, height] :
         {std::tuple(word, word, line + third), {word + "<p>", word + "<p>", line + 2 * third},
          {word + "\n\n" + word, word, 3 * line + 3 * third}}) {
        for (const auto& [show, extraHeight] : {std::pair(error, 180), {lowBatt, 220}}) {
            const QSize size = SizeOf(show, text);
            EXPECT_NEAR(size.width(), metrics.horizontalAdvance(widest) + 30, 1) << qPrintable(text);
            EXPECT_NEAR(size.height(), height + extraHeight, 2) << qPrintable(text);
        }
    }
}

TEST_F(Messages, NoTextLeavesTheScreenOrIsCutOff)
{
    for (const QString& text : {QString(40, 'W'), QStringLiteral("<b>%1</b>&lt;%1").arg(QString(400, 'W')),
                                QStringLiteral("five words in this line\n").repeated(80), QString("a<"), QString(),
                                QStringLiteral("%1 %n & <img src='x' width='9000' height='9000'>")}) {
        for (const Show show : {question, statement, error, lowBatt}) {
            LookAt([&] { show(text); }, [&](QWidget& dialog) {
                // A name that was typed, of 40 letters, has to be seen whole.
                EXPECT_EQ(FitCheck::Faults(dialog, text.size() > 40), QStringList());
            });
        }
    }
}

TEST_F(Messages, TextsThatAreCutOffOrMissLettersWouldBeSeen)
{
    LookAt([] { question("one \U000F1234"); }, [](QWidget& dialog) {
        EXPECT_EQ(FitCheck::UncoveredTexts(dialog).size(), 1);
        dialog.findChild<QWidget*>("body")->setFixedSize(90, 5);
        dialog.findChild<QWidget*>("buttonAccept")->setFixedSize(90, 5);
        dialog.move(700, 0);
        EXPECT_EQ(FitCheck::Faults(dialog, false).size(), 3);
    });
}
