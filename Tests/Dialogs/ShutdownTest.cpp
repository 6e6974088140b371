#include "DialogTesting.h"

#include "Dialogs/DlgShutdown.h"
#include "Dialogs/DlgStatement.h"

TEST_F(DialogTest, UntouchedTheCountdownShowsZeroAndThenShutsDown)
{
    QStringList shown;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        const QString text = Robot::TextOf("labelTime");
        if (DlgShutdown::IsShuttingDown() && !shown.contains(text)) {
            shown.append(text);
        }
    });
    watch.start(10);
    bool shutDown = false;
    EXPECT_GE(SecondsOf([&] { shutDown = DlgShutdown::Show(); }), 10.5);
    EXPECT_TRUE(shutDown);
    EXPECT_EQ(shown, QStringList({"10", "9", "8", "7", "6", "5", "4", "3", "2", "1", "0"}));
    EXPECT_TRUE(DlgShutdown::IsShuttingDown()) << "the timers of the window woke before it closed";
}

TEST_F(DialogTest, TheButtonsOfTheCountdownDecide)
{
    const struct {
        const char* at;
        const char* button;
        bool shutDown;
    } rows[] = {{"1", "buttonCancel", false}, {"0", "buttonCancel", true}, {"9", "buttonSkip", true}};
    for (const auto& row : rows) {
        ClickAt("labelTime", row.at, row.button);
        EXPECT_EQ(DlgShutdown::Show(), row.shutDown) << row.at;
        EXPECT_EQ(DlgShutdown::IsShuttingDown(), row.shutDown) << row.at;
    }
}

TEST_F(DialogTest, TheCountdownBeginsAgainUnderAnotherDialogAndGoesOnAfterIt)
{
    // The message stays for longer than the countdown had left.
    QString under;
    Robot::When([] { return Robot::TextOf("labelTime") == "3"; }, [&] {
        const QLabel* time = QApplication::activeModalWidget()->findChild<QLabel*>("labelTime");
        DlgStatement::Show(QStringLiteral("message"), DlgStatement::CLOSE_10, true);
        under = time->text();
    });
    bool shutDown = false;
    const double took = SecondsOf([&] { shutDown = DlgShutdown::Show(); });
    EXPECT_EQ(under, "9");
    EXPECT_TRUE(shutDown);
    EXPECT_GE(took, 7 + 10 + 9);
}
