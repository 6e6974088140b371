#include "DialogTesting.h"

#include <QPushButton>

TEST_F(DialogTest, TheLookForCutOffTextsSeesThem)
{
    const struct {
        QRect label;
        QRect button;
        QPoint window;
        int faults;
    } rows[] = {{{0, 0, 300, 30}, {0, 100, 300, 50}, {0, 0}, 0},
                {{0, 0, 40, 30}, {0, 100, 300, 8}, {0, 0}, 2},
                {{0, 0, 300, 10}, {0, 100, 60, 50}, {0, 0}, 2},
                {{200, 0, 300, 30}, {0, 100, 300, 50}, {0, 0}, 1},
                {{0, 0, 300, 30}, {0, 100, 300, 50}, {600, 0}, 1}};
    for (const auto& row : rows) {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QPushButton { min-width: 0px; min-height: 0px; padding: 0px; }"));
        window.setFixedSize(400, 200);
        QLabel label(QStringLiteral("a label's <b>text</b>"), &window);
        QPushButton button(QStringLiteral("a button's text"), &window);
        label.setObjectName(QStringLiteral("label"));
        button.setObjectName(QStringLiteral("button"));
        window.move(row.window);
        window.show();
        label.setGeometry(row.label);
        button.setGeometry(row.button);
        EXPECT_EQ(FitCheck::Faults(window, false).size(), row.faults) << qPrintable(FitCheck::Faults(window, false).join('\n'));
    }
}

TEST_F(DialogTest, CharactersThatNoFontHasAreSeen)
{
    for (const auto& [text, covered] : {std::pair{"Größe <b>&lt;Ω</b> m³", true}, {"one \U000F1234", false}}) {
        QWidget window;
        QLabel label(QString::fromUtf8(text), &window);
        window.show();
        EXPECT_EQ(FitCheck::UncoveredTexts(window).isEmpty(), covered) << text;
    }
}
