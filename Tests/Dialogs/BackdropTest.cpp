#include "DialogTesting.h"

#include "Dialogs/DlgStatement.h"

#include <QScreen>

TEST_F(DialogTest, TheScreenStaysDimmedUntilTheNextDialogHasClosedOrATouch)
{
    QWidget window;
    window.setFixedSize(800, 480);
    window.setStyleSheet("background: white");
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto grey = [&](int x) { return qGray(window.screen()->grabWindow(window.winId()).toImage().pixel(x, 240)); };
    for (const bool updates : {true, false}) {
        window.setUpdatesEnabled(updates);
        DsplHalfbright();
        DsplHalfbright();
        EXPECT_EQ(window.updatesEnabled(), updates);
        LookAt([] { DlgStatement::Show("text", DlgStatement::UNUSED, true); },
               [&](QWidget&) { EXPECT_NEAR(grey(5), 127, 1) << "not dimmed once"; });
        window.setUpdatesEnabled(true);
        EXPECT_TRUE(QTest::qWaitFor([&] { return grey(5) == 255; }));
    }

    DsplHalfbright();
    DsplShowHourglass();
    for (const auto& [x, level] : {std::pair(378, 127), {379, 102}, {419, 102}, {420, 127}}) {
        EXPECT_NEAR(grey(x), level, 1) << x;
    }
    QTest::mouseClick(window.childAt(5, 5), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return grey(400) == 255; }));
}
