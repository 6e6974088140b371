#pragma once

#include "Fakes/PrintQt.h"
#include "FitCheck.h"
#include "Globals.h"
#include "Panel.h"
#include "Robot.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>
#include <vector>

inline QStringList Numbered(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QStringLiteral("N%1").arg(i));
    }
    return names;
}

/// Dialogs on a screen of the instrument's size, in its font and style, in German.
class DialogTest : public testing::Test {
protected:
    void SetUp() override
    {
        Panel::Dress();
        SelectLanguage("DE");
        elapsed.start();
    }

    static void Await(const std::function<bool()>& condition) { EXPECT_TRUE(Robot::WaitFor(condition)); }
    static void AwaitShown(const char* name) { EXPECT_TRUE(Robot::WaitForShown(name)) << name; }
    static void AwaitText(const char* name, const QString& text)
    {
        EXPECT_TRUE(Robot::WaitFor([&] { return Robot::TextOf(name) == text; })) << qPrintable(text);
    }
    using Names = std::vector<const char*>;
    static void Tap(const Names& names)
    {
        for (const char* name : names) {
            EXPECT_TRUE(Robot::Click(name)) << name;
        }
    }

    /// Closes the statement that says `text`.
    static void Dismiss(const QString& text)
    {
        AwaitText("body", text);
        Tap({"buttonClose"});
    }

    /// What `show` returns, whose dialog the steps use from a thread of their own.
    template <class Show>
    static auto Use(const Show& show, const std::function<void()>& steps)
    {
        const Robot::Meanwhile user(steps);
        return show();
    }

    /// Opens a dialog, lets `look` see it, and closes it by its button if that is all the button does.
    static void LookAt(const std::function<void()>& show, const std::function<void(QWidget&)>& look)
    {
        Robot::When([] { return QApplication::activeModalWidget() != nullptr; }, [look] {
            QWidget* dialog = QApplication::activeModalWidget();
            look(*dialog);
            if (QWidget* button = dialog->findChild<QWidget*>("buttonClose")) {
                QTest::mouseClick(button, Qt::LeftButton);
                EXPECT_FALSE(dialog->isVisible());
            }
            dialog->close();
        });
        show();
    }

    /// Since the test began, if that doesn't start it again.
    QElapsedTimer elapsed;
};
