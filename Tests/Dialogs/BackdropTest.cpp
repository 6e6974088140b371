#include "DialogTesting.h"

#include "Dialogs/DlgStatement.h"

#include <QScreen>

namespace {

/// A white window of the screen's size, and what it shows.
class WhiteWindow : public QWidget {
public:
    WhiteWindow()
    {
        setFixedSize(800, 480);
        setStyleSheet(QStringLiteral("background: white"));
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }
    QImage OnScreen(const QRect& part) { return screen()->grabWindow(winId(), part.x(), part.y(), part.width(), part.height()).toImage(); }
    int GreyAt(int x, int y) { return qGray(OnScreen(QRect(x, y, 1, 1)).pixel(0, 0)); }
};

}

TEST_F(DialogTest, TheBackdropStaysUntilTheNextDialogHasClosed)
{
    for (const bool updates : {true, false}) {
        WhiteWindow window;
        window.setUpdatesEnabled(updates);
        DsplHalfbright();
        EXPECT_NEAR(window.GreyAt(5, 5), 127, 1);
        EXPECT_EQ(window.updatesEnabled(), updates);
        DsplHalfbright();
        EXPECT_NEAR(window.GreyAt(5, 5), 127, 1) << "dimmed twice";
        LookAt([] { DlgStatement::Show(QStringLiteral("text"), DlgStatement::UNUSED, true); },
               [&](QWidget&) { EXPECT_NEAR(window.GreyAt(5, 5), 127, 1); });
        window.setUpdatesEnabled(true);
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.GreyAt(5, 5) == 255; }));
    }
}

TEST_F(DialogTest, TheSignOfWaitingStandsInTheMiddleAndGoesAtATouch)
{
    WhiteWindow window;
    DsplHalfbright();
    const auto sign = [&] { return window.OnScreen(QRect(379, 210, 41, 60)); };
    const QImage dimmed = sign();
    DsplShowHourglass();
    EXPECT_NE(sign(), dimmed);
    EXPECT_NEAR(window.GreyAt(378, 240), 127, 1);
    EXPECT_NEAR(window.GreyAt(421, 240), 127, 1);
    QTest::mouseClick(window.childAt(5, 5), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.GreyAt(400, 240) == 255; }));
}
