#pragma once

#include "FitCheck.h"
#include "Globals.h"
#include "Panel.h"
#include "Robot.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

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
    }

    /// Opens a dialog, lets `look` see it, and closes it.
    static void LookAt(const std::function<void()>& show, const std::function<void(QWidget&)>& look)
    {
        Robot::When([] { return QApplication::activeModalWidget() != nullptr; }, [look] {
            QWidget* dialog = QApplication::activeModalWidget();
            look(*dialog);
            dialog->close();
        });
        show();
    }

    /// Presses a button as soon as the label of the open dialog shows `text`.
    static void ClickAt(const char* label, const QString& text, const char* button)
    {
        Robot::When([=] { return Robot::TextOf(label) == text; }, [=] {
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>(button), Qt::LeftButton);
        });
    }

    static double SecondsOf(const std::function<void()>& show)
    {
        QElapsedTimer elapsed;
        elapsed.start();
        show();
        return static_cast<double>(elapsed.elapsed()) / 1000;
    }
};
