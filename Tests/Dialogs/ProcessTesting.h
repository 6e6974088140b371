#pragma once

#include "DialogTesting.h"
#include "Fakes/ScriptedTavorDev.h"
#include "Settings.h"

/// Dialogs of an instrument as it left the factory, at rest, with a scripted sensor unit.
class ProcessDialogTest : public DialogTest {
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        settings = Settings::def;
        scripted.Reset();
    }

    /// Much longer than any dialog waits: on a busy machine the sped-up clock runs ahead of the events.
    static constexpr int limitMs = 600000;

    static void Tap(const char* name) { EXPECT_TRUE(Robot::Click(name, limitMs)) << name; }
    /// One of the arrows at the ends of a spin box.
    static void TapArrow(const char* name, bool up)
    {
        EXPECT_TRUE(Robot::WaitForShown(name, limitMs));
        Robot::OnGui([=] {
            QWidget* box = QApplication::activeModalWidget()->findChild<QWidget*>(name);
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(up ? box->width() - 20 : 20, box->height() / 2));
        });
    }
    static void Await(const std::function<bool()>& condition) { EXPECT_TRUE(Robot::WaitFor(condition, limitMs)); }
    static QVariant Get(const char* name, const char* property)
    {
        QVariant value;
        EXPECT_TRUE(Robot::WaitForShown(name, limitMs)) << name;
        Robot::OnGui([&] {
            if (const QWidget* widget = QApplication::activeModalWidget()->findChild<QWidget*>(name)) {
                value = widget->property(property);
            }
        });
        return value;
    }
};
