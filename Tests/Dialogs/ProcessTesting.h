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

    /// Touches one of the arrows at the ends of a spin box, which then shows `text`.
    static void TapArrow(const char* name, bool up, const char* text)
    {
        AwaitShown(name);
        Robot::OnGui([=] {
            QWidget* box = QApplication::activeModalWidget()->findChild<QWidget*>(name);
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(up ? box->width() - 20 : 20, box->height() / 2));
        });
        AwaitText(name, text);
    }
};
