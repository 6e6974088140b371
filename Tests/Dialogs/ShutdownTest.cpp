#include "DialogTesting.h"

#include "Dialogs/DlgShutdown.h"
#include "Dialogs/DlgStatement.h"

/// On a busy machine a second may pass unseen.
static bool IsDownTo(int seconds)
{
    return Robot::IsShown("labelTime") && Robot::TextOf("labelTime").toInt() <= seconds;
}

TEST_F(DialogTest, TheCountdownShutsDownUnlessCancelled)
{
    EXPECT_TRUE(DlgShutdown::Show());
    EXPECT_GE(elapsed.elapsed(), 10500);
    for (const auto& [at, button, shutDown] :
         {std::tuple(5, "buttonCancel", false), {0, "buttonCancel", true}, {9, "buttonSkip", true}}) {
        static int now = -1; // a finger that came too late stays off the next countdown
        now = at;
        Robot::When([at = at] { return now == at && IsDownTo(at); }, [button = button] {
            EXPECT_TRUE(DlgShutdown::IsShuttingDown());
            Tap({button});
        });
        EXPECT_EQ(DlgShutdown::Show(), shutDown) << at;
        EXPECT_EQ(DlgShutdown::IsShuttingDown(), shutDown) << at;
    }
}

TEST_F(DialogTest, TheCountdownBeginsAgainUnderAnotherDialogAndGoesOnAfterIt)
{
    // The message stays for longer than the countdown had left.
    QString under;
    Robot::When([] { return IsDownTo(3); }, [&] {
        DlgStatement::Show("message", DlgStatement::CLOSE_10, true);
        under = Robot::TextOf("labelTime");
    });
    EXPECT_TRUE(DlgShutdown::Show());
    EXPECT_GE(elapsed.elapsed(), (7 + 10 + 9) * 1000);
    EXPECT_EQ(under, "9");
}
