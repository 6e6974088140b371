#include "ProcessTesting.h"

#include "Dialogs/DlgEmptyDepot.h"
#include "Dialogs/DlgMeaFollowUp.h"
#include "Dialogs/DlgMeaResult.h"
#include "Dialogs/DlgMeaStart.h"
#include "Dialogs/DlgSaveAs.h"
#include "Mea.h"

#include <QCheckBox>
#include <QComboBox>

using MeasurementFlow = ProcessDialogTest;
using enum JobStateMachine::Type;

TEST_F(MeasurementFlow, EveryWayOutOfTheStartKeepsTheOptionsThatItOffers)
{
    for (const auto& [button, type, minutes, minutesKept] :
         {std::tuple("buttonStartB", TYPE_B, 7, 10), {"buttonStartC", TYPE_C, 90, 90},
          {"buttonCancel", TYPE_0, 1441, 1440}}) {
        settings = Settings::def;
        settings.autoMeaBInterval = minutes;
        settings.autoMeaCInterval = 0;
        settings.autoMeaBCount = 1;
        settings.autoMeaCCount = 100;
        JobStateMachine::Type started = TYPE_R;
        Use([&] { DlgMeaStart::Show(started); }, [button = button] {
            Tap({"autoPumpBack", "autoMeaBEnabled", "autoMeaCEnabled"});
            TapArrow("autoMeaBCount", true, "3");
            TapArrow("autoMeaCCount", false, "98");
            Tap({button});
        });
        EXPECT_EQ(started, type);
        EXPECT_TRUE(settings.autoPumpBack && settings.autoMeaBEnabled && settings.autoMeaCEnabled);
        EXPECT_EQ(std::pair(settings.autoMeaBCount, settings.autoMeaCCount), std::pair(3, 98));
        EXPECT_EQ(std::pair(settings.autoMeaBInterval, settings.autoMeaCInterval), std::pair(minutesKept, 1));
    }
}

TEST_F(MeasurementFlow, ASeriesWithTheInternalDepotNeedsPumpBack)
{
    settings.autoPumpBack = settings.autoMeaBEnabled = true;
    settings.autoMeaBInterval = 61;
    JobStateMachine::Type type = TYPE_R;
    LookAt([&] { DlgMeaStart::Show(type); }, [](QWidget& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>("autoMeaBInterval")->currentText(), "1:30 h");
        const auto* series = dialog.findChild<QCheckBox*>("autoMeaBEnabled");
        for (const auto& [tapped, offered, chosen] :
             {std::tuple("autoMeaBEnabled", true, false), {"autoMeaBEnabled", true, true},
              {"autoPumpBack", false, false}, {"autoPumpBack", true, false}}) {
            dialog.findChild<QCheckBox*>(tapped)->click();
            EXPECT_EQ(std::pair(series->isEnabled(), series->isChecked()), std::pair(offered, chosen));
            EXPECT_EQ(Robot::IsEnabled("autoMeaBFrame"), chosen);
        }
        EXPECT_FALSE(Robot::IsEnabled("autoMeaCFrame"));
        dialog.findChild<QCheckBox*>("autoMeaCEnabled")->click();
        EXPECT_TRUE(Robot::IsEnabled("autoMeaCFrame"));
    });
    EXPECT_FALSE(settings.autoMeaBEnabled);
}

TEST_F(MeasurementFlow, TheVerdictNamesWhatFailed)
{
    Mea mea;
    mea.amountSF6 = 96.5;
    mea.amountSO2 = 13;
    mea.reportSF6 = Mea::BELOW_MIN;
    mea.reportSO2 = Mea::ABOVE_MAX;
    mea.reportHum = Mea::NORMAL;
    for (const auto& [result, hasHF, verdict, verdictPicture] :
         {std::tuple(Mea::FAILED, true, "Nicht Bestanden", "Failed"), {Mea::PASSED, false, "Bestanden", "Passed"},
          {Mea::NO_RESULT, true, "n.v.", "Neutral"}}) {
        mea.result = result;
        scripted.profile[TavorDev::SENSOR_HF].type = hasHF ? TavorDev::SENSOR_HF : TavorDev::SENSOR_NUM;
        LookAt([&] { DlgMeaResult::Show(mea); }, [&](QWidget& dialog) {
            for (const auto& [label, text] :
                 {std::pair("reportSF6Value", "96.5 Vol.-%"), {"reportSO2Value", "13.0 ppm<sub>v</sub>"},
                  {"reportSF6Text", "< Min."}, {"reportSO2Text", "> Max."}, {"reportHumText", "Normal"},
                  {"reportHFText", hasHF ? "n.v." : ""}, {"resultText", verdict}}) {
                EXPECT_EQ(Robot::TextOf(label), text) << label;
            }
            for (const auto& [icon, picture] :
                 {std::pair("reportSF6Icon", "Failed"), {"reportSO2Icon", "Failed"}, {"reportHumIcon", "Passed"},
                  {"reportHFIcon", "Neutral"}, {"resultIcon", verdictPicture}}) {
                const QPixmap expected(QStringLiteral(":/TImg/Images/Mea_%1_A.png").arg(picture));
                EXPECT_EQ(dialog.findChild<QLabel*>(icon)->pixmap().toImage(), expected.toImage()) << icon;
            }
            for (const char* name : {"labelHF", "reportHFValue", "reportHFIcon"}) {
                EXPECT_EQ(Robot::IsShown(name), hasHF) << name;
            }
        });
    }
}

TEST_F(MeasurementFlow, TheGasGoesWhereTheUserTouches)
{
    settings.unitPressure = Pressure::MPA;
    const auto emptyDepot = +[] {
        JobStateMachine::Type type = TYPE_R;
        DlgEmptyDepot::Show(type);
        return type;
    };
    for (const auto& [ask, touched, type] :
         {std::tuple(emptyDepot, Names{"labelTypeD_1"}, TYPE_D), {emptyDepot, {"labelTypePE"}, TYPE_E},
          {emptyDepot, {"chooseMeaTypeMod", "buttonStartD"}, TYPE_K},
          {emptyDepot, {"chooseMeaTypeMod", "buttonStartE"}, TYPE_L},
          {emptyDepot, {"chooseMeaTypeMod", "buttonCancel"}, TYPE_0},
          {DlgMeaFollowUp::Show, {"buttonStartMea"}, TYPE_B}, {DlgMeaFollowUp::Show, {"buttonStartD"}, TYPE_D},
          {DlgMeaFollowUp::Show, {"buttonStartE"}, TYPE_E}, {DlgMeaFollowUp::Show, {"buttonQuit"}, TYPE_0}}) {
        EXPECT_EQ(Use(ask, [touched = touched] {
            AwaitText("labelTypePD", "(max. 1 MPa abs.)");
            AwaitText("labelTypePE", "(max. 1 MPa abs.)");
            Tap(touched);
        }), type) << touched.back();
    }
}

TEST_F(MeasurementFlow, TheFormatChangesOnlyIfAccepted)
{
    for (const auto& [before, after, touched, timeOut, accepted] :
         {std::tuple(MTF_EXPORT_CSV, MTF_EXPORT_CSV, Names{"buttonAccept"}, DlgSaveAs::UNUSED, true),
          {MTF_SAVE_NATIVE, MTF_EXPORT_CSV, {"checkBoxExportCSV", "buttonAccept"}, DlgSaveAs::REJECT_600, true},
          {MTF_EXPORT_CSV, MTF_EXPORT_CSV, {"checkBoxSaveNative", "buttonReject"}, DlgSaveAs::UNUSED, false},
          {MTF_SAVE_NATIVE, MTF_SAVE_NATIVE, {"checkBoxExportCSV"}, DlgSaveAs::REJECT_40, false},
          {MTF_EXPORT_CSV, MTF_SAVE_NATIVE, {"checkBoxSaveNative"}, DlgSaveAs::ACCEPT_40, true}}) {
        MeaTransFormat format = before;
        elapsed.start();
        EXPECT_EQ(Use([&] { return DlgSaveAs::Show("<b>All?</b>", format, timeOut); }, [touched = touched] {
            AwaitText("headerTxt", "<b>All?</b>");
            Tap(touched);
        }), accepted);
        EXPECT_EQ(format, after);
        EXPECT_GE(elapsed.elapsed(), qAbs(int(timeOut)) == 40 ? 39000 : 0);
    }
}
