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
    } rows[] = {{"DE", DlgQuestion::YES_NO, "Ja", "Nein"},
                {"DE", DlgQuestion::OK_CANCEL, "Ok", "Abbrechen"},
                {"UK", DlgQuestion::YES_NO, "Yes", "No"},
                {"UK", DlgQuestion::OK_CANCEL, "Ok", "Cancel"}};
    for (const auto& row : rows) {
        ASSERT_TRUE(SelectLanguage(row.language));
        for (const bool accept : {true, false}) {
            const Robot::Meanwhile finger([&] {
                EXPECT_TRUE(Robot::WaitForShown("body", 60000));
                EXPECT_EQ(Robot::TextOf("body"), "Sure?");
                EXPECT_EQ(Robot::TextOf("buttonAccept"), row.accept);
                EXPECT_EQ(Robot::TextOf("buttonReject"), row.reject);
                EXPECT_TRUE(Robot::Click(accept ? "buttonAccept" : "buttonReject"));
            });
            EXPECT_EQ(DlgQuestion::Show(QStringLiteral("Sure?"), row.option, DlgQuestion::UNUSED), accept);
        }
    }
}

TEST_F(DialogTest, EveryTimeOutEndsItsDialogInItsSense)
{
    // Each opens the next, shorter one above itself, so that all wait at the same time.
    struct Row {
        int seconds;
        std::function<bool()> show;
        bool result;
        double took = 0;
    };
    const struct {
        int seconds;
        DlgQuestion::TimeoutOpt reject;
        DlgQuestion::TimeoutOpt accept;
        DlgStatement::TimeoutOpt statement;
        DlgLowBatt::TimeoutOpt lowBatt;
    } options[] = {
        {600, DlgQuestion::REJECT_600, DlgQuestion::ACCEPT_600, DlgStatement::CLOSE_600, DlgLowBatt::CLOSE_600},
        {300, DlgQuestion::REJECT_300, DlgQuestion::ACCEPT_300, DlgStatement::CLOSE_300, DlgLowBatt::CLOSE_300},
        {80, DlgQuestion::REJECT_80, DlgQuestion::ACCEPT_80, DlgStatement::CLOSE_80, DlgLowBatt::CLOSE_80},
        {60, DlgQuestion::REJECT_60, DlgQuestion::ACCEPT_60, DlgStatement::CLOSE_60, DlgLowBatt::CLOSE_60},
        {40, DlgQuestion::REJECT_40, DlgQuestion::ACCEPT_40, DlgStatement::CLOSE_40, DlgLowBatt::CLOSE_40},
        {20, DlgQuestion::REJECT_20, DlgQuestion::ACCEPT_20, DlgStatement::CLOSE_20, DlgLowBatt::CLOSE_20},
        {10, DlgQuestion::REJECT_10, DlgQuestion::ACCEPT_10, DlgStatement::CLOSE_10, DlgLowBatt::CLOSE_10},
        {5, DlgQuestion::REJECT_10, DlgQuestion::ACCEPT_10, DlgStatement::CLOSE_5, DlgLowBatt::CLOSE_5}};
    const QString text = QStringLiteral("text");
    std::vector<Row> rows = {{600, [=] { return DlgQuestion::Show(text, DlgQuestion::YES_NO, DlgQuestion::UNUSED); }, true},
                             {600, [=] { return DlgStatement::Show(text, DlgStatement::UNUSED, true), true; }, true},
                             {600, [=] { return DlgLowBatt::Show(text, DlgLowBatt::UNUSED, true), true; }, true}};
    for (const auto& o : options) {
        rows.push_back({o.seconds, [=] { return DlgQuestion::Show(text, DlgQuestion::YES_NO, o.reject); }, false});
        rows.push_back({o.seconds, [=] { return DlgQuestion::Show(text, DlgQuestion::YES_NO, o.accept); }, true});
        rows.push_back({o.seconds, [=] { return DlgStatement::Show(text, o.statement, true), true; }, true});
        rows.push_back({o.seconds, [=] { return DlgLowBatt::Show(text, o.lowBatt, true), true; }, true});
    }

    size_t ended = 0;
    std::function<void(size_t)> open = [&](size_t i) {
        if (i < rows.size()) {
            QTimer::singleShot(0, qApp, [&, i] { open(i + 1); });
            rows[i].took = SecondsOf([&] { EXPECT_EQ(rows[i].show(), rows[i].result) << rows[i].seconds; });
            ++ended;
        }
    };
    // Those without a time-out, the first three, wait for a finger.
    for (const size_t left : {3, 2, 1}) {
        Robot::When([&, left] { return rows.size() - ended == left; }, [left] {
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>(left > 1 ? "buttonClose" : "buttonAccept"), Qt::LeftButton);
        });
    }
    open(0);
    for (const Row& row : rows) {
        EXPECT_GE(row.took, row.seconds - 1);
        EXPECT_LT(row.took, row.seconds * 2 + 30);
    }
}

TEST_F(DialogTest, QuestionAndStatementGrowByTheLinesOfTheirText)
{
    const auto heightOf = [](const QString& text, bool statement) {
        int height = 0;
        LookAt([&] {
            if (statement) {
                DlgStatement::Show(text, DlgStatement::UNUSED, false);
            } else {
                DlgQuestion::Show(text, DlgQuestion::OK_CANCEL, DlgQuestion::UNUSED);
            }
        }, [&](QWidget& dialog) {
            height = dialog.height();
            EXPECT_EQ(dialog.width(), 430);
            const QPoint off = dialog.geometry().center() - QRect(0, 0, 800, 480).center();
            EXPECT_LE(off.manhattanLength(), 2);
            EXPECT_EQ(FitCheck::Faults(dialog, false), QStringList());
        });
        return height;
    };
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    const int line = QFontMetrics(font).lineSpacing();
    const struct {
        const char* text;
        int lines;
    } rows[] = {{"one\ntwo", 2},
                {"one\r\ntwo", 2},
                {"one<br>two", 2},
                {"one<p>two", 3},
                {"one<p>two<br>three<p>four", 6},
                // 40 letters of 12.2 pixels: one line holds 30, and the tags count as letters.
                {"nnnnnnnnnn nnnnnnnnnn nnnnnnnnnn nnnnnnnnnn", 2},
                {"nnnnnnnnnn nnnnnnnnnn nnn", 1},
                {"nnnnnnnnnn <i>nnnnnnnnnn</i> nnn", 2}};
    for (const bool statement : {false, true}) {
        const int oneLine = heightOf(QStringLiteral("one"), statement);
        for (const auto& row : rows) {
            EXPECT_EQ(heightOf(QString::fromLatin1(row.text), statement) - oneLine, (row.lines - 1) * line) << row.text;
        }
    }
}

TEST_F(DialogTest, ErrorAndLowBatteryTakeTheSizeOfTheirText)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    const QFontMetrics metrics(font);
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
                {word + "\r\n" + word, width, 2, 2, word + "\r<p>" + word},
                {word + "<p>", metrics.horizontalAdvance(word + "<p>"), 1, 2, word + "<p>"},
                {word + "<br>", metrics.horizontalAdvance(word + "<br>"), 1, 1, word + "<br>"}};
    for (const auto& row : rows) {
        for (const bool lowBatt : {false, true}) {
            LookAt([&] {
                if (lowBatt) {
                    DlgLowBatt::Show(row.text, DlgLowBatt::UNUSED, false);
                } else {
                    DlgError::Show(row.text, QStringLiteral("B04-08"));
                }
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
    for (const QString& name : names) {
        QString chosen = QStringLiteral("before");
        const Robot::Meanwhile finger([&] {
            EXPECT_TRUE(Robot::WaitForShown("fileNameList", 60000));
            EXPECT_EQ(Robot::TextOf("headerTxt"), "<i>Files</i>");
            EXPECT_TRUE(Robot::ClickRow("fileNameList", name));
            EXPECT_TRUE(Robot::Click("buttonOk"));
        });
        EXPECT_TRUE(DlgFileList::Show(QStringLiteral("<i>Files</i>"), names, chosen));
        EXPECT_EQ(chosen, name);
    }
    for (const bool accept : {true, false}) {
        QString chosen = QStringLiteral("before");
        const Robot::Meanwhile finger([&] {
            if (!accept) {
                EXPECT_TRUE(Robot::ClickRow("fileNameList", names.first()));
            }
            EXPECT_TRUE(Robot::Click(accept ? "buttonOk" : "buttonCancel", 60000));
        });
        EXPECT_EQ(DlgFileList::Show(QString(), names, chosen), accept);
        EXPECT_EQ(chosen, "before");
    }
}
