#pragma once

#include "Board/Board.h"
#include "Fakes/ScriptedTavorDev.h"
#include "Globals.h"
#include "JobStateMachine.h"
#include "Panel.h"
#include "Robot.h"
#include "Settings.h"
#include "WndMain.h"

#include <QApplication>
#include <QLabel>
#include <QStackedWidget>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

using Jobs = JobStateMachine;

/// The main window in German, with the flow chart in front, on a healthy unit. Times are those of the sped-up clock.
class WindowTest : public testing::Test {
protected:
    void SetUp() override
    {
        Panel::Dress();
        scripted.Reset();
        settings = Settings::def;
        settings.flowChartView = true;
        Plug("dev/mmcblk0p1");
    }
    void TearDown() override
    {
        jobSTM.Stop();
        delete wndMain;
        wndMain = nullptr;
    }

    static void Plug(const char* node) { std::ofstream(std::filesystem::path(Board::Root()) / node); }
    static void Pull(const char* node) { std::filesystem::remove(std::filesystem::path(Board::Root()) / node); }

    static void Open()
    {
        wndMain = new WndMain(nullptr, Qt::FramelessWindowHint);
        wndMain->show();
        SelectLanguage("DE");
    }
    /// Opens the window and waits for the end of the preparation.
    static void OpenReady()
    {
        Open();
        ASSERT_TRUE(WaitFor([] { return jobSTM.IsRunning(); }));
        ASSERT_TRUE(WaitFor([] { return !jobSTM.IsRunning(); }));
        Update();
    }
    /// The unit has told something new.
    static void Update()
    {
        emit tavorDev.Changed();
        QCoreApplication::processEvents();
    }
    /// False if it doesn't come within ten minutes, which are twelve real seconds.
    static bool WaitFor(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 600 * 1000); }
    static void Wait(int seconds) { QTest::qWait(seconds * 1000); }

    template <class Widget = QWidget>
    static Widget& Find(const char* name)
    {
        Widget* widget = wndMain->findChild<Widget*>(name);
        RR_ASSERT(widget != nullptr);
        return *widget;
    }
    static QString TextOf(const char* name) { return Find<>(name).property("text").toString(); }
    static int PageOf(const char* name) { return Find<QStackedWidget>(name).currentIndex(); }
    static QString Status() { return TextOf("statusMessageText"); }
    static void Click(const char* name) { QTest::mouseClick(&Find<>(name), Qt::LeftButton); }

    /// Once a dialog whose `label` contains `text` is open, presses its `button`. Gives what it has done.
    static std::shared_ptr<bool> Answer(const char* label, const QString& text, const char* button)
    {
        auto done = std::make_shared<bool>(false);
        Robot::When([=] { return QApplication::activeModalWidget() && Robot::TextOf(label).contains(text); }, [=] {
            *done = true;
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>(button), Qt::LeftButton);
        });
        return done;
    }
};
