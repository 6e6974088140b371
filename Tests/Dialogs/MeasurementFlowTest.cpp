#include "ProcessTesting.h"

#include "Dialogs/DlgMeaFollowUp.h"
#include "Dialogs/DlgMeaResult.h"
#include "Dialogs/DlgMeaStart.h"
#include "Dialogs/DlgSaveAs.h"
#include "Mea.h"

#include <QAbstractItemView>

using Jobs = JobStateMachine;

class MeasurementFlow : public ProcessDialogTest {
protected:
    static Jobs::Type Start(const std::function<void()>& touches)
    {
        Jobs::Type type = Jobs::TYPE_R;
        const Robot::Meanwhile user(touches);
        DlgMeaStart::Show(type);
        return type;
    }
    static void ChooseInterval(const char* box, const QString& text)
    {
        Tap(box);
        Await([] { return QApplication::activePopupWidget() != nullptr; });
        // A list that has just opened takes no touch yet.
        Await([&] {
            QAbstractItemView* view = QApplication::activePopupWidget()->findChild<QAbstractItemView*>();
            const QModelIndex row = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly).value(0);
            view->scrollTo(row);
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(row).center());
            return QApplication::activePopupWidget() == nullptr;
        });
    }
};

TEST_F(MeasurementFlow, EveryWayOutOfTheStartKeepsTheOptions)
{
    const struct {
        const char* button;
        Jobs::Type type;
    } rows[] = {{"buttonStartB", Jobs::TYPE_B}, {"buttonStartC", Jobs::TYPE_C}, {"buttonCancel", Jobs::TYPE_0}};
    for (const auto& row : rows) {
        settings = Settings::def;
        EXPECT_EQ(Start([&] {
            Tap("autoPumpBack");
            Tap("autoMeaBEnabled");
            TapArrow("autoMeaBCount", true);
            ChooseInterval("autoMeaBInterval", "1:30 h");
            Tap("autoMeaCEnabled");
            TapArrow("autoMeaCCount", true);
            TapArrow("autoMeaCCount", true);
            ChooseInterval("autoMeaCInterval", "24 h");
            Tap(row.button);
        }), row.type);
        EXPECT_TRUE(settings.autoPumpBack && settings.autoMeaBEnabled && settings.autoMeaCEnabled);
        EXPECT_EQ(settings.autoMeaBCount, 3);
        EXPECT_EQ(settings.autoMeaBInterval, 90);
        EXPECT_EQ(settings.autoMeaCCount, 4);
        EXPECT_EQ(settings.autoMeaCInterval, 1440);
    }
}

TEST_F(MeasurementFlow, ASeriesWithTheInternalDepotNeedsPumpBack)
{
    const auto state = [] {
        const auto flag = [](const char* name, const char* property) { return Get(name, property).toBool() ? "1" : "0"; };
        return std::string(flag("autoMeaBEnabled", "enabled")) + flag("autoMeaBEnabled", "checked") + flag("autoMeaBFrame", "enabled");
    };
    settings.autoPumpBack = settings.autoMeaBEnabled = true;
    Start([&] {
        EXPECT_EQ(state(), "111");
        const struct {
            const char* tapped;
            const char* state;
        } rows[] = {{"autoPumpBack", "000"}, {"autoPumpBack", "100"}, {"autoMeaBEnabled", "111"}, {"autoMeaBEnabled", "100"}};
        for (const auto& row : rows) {
            Tap(row.tapped);
            Await([&] { return state() == row.state; });
        }
        EXPECT_FALSE(Robot::IsEnabled("autoMeaCFrame"));
        Tap("autoMeaCEnabled");
        Await([] { return Robot::IsEnabled("autoMeaCFrame"); });
        Tap("buttonCancel");
    });
    EXPECT_FALSE(settings.autoMeaBEnabled);
}

TEST_F(MeasurementFlow, StoredOptionsBeyondTheOfferMoveToTheNearestOffered)
{
    const struct {
        int minutes, count;
        const char* shown;
        int minutesAfter, countAfter;
    } rows[] = {{7, 1, "10 min", 10, 2}, {1441, 100, "24 h", 1440, 99}, {0, -5, "1 min", 1, 2}, {151, 50, "3 h", 180, 50}};
    for (const auto& row : rows) {
        settings.autoMeaBInterval = settings.autoMeaCInterval = row.minutes;
        settings.autoMeaBCount = settings.autoMeaCCount = row.count;
        Start([&] {
            EXPECT_EQ(Get("autoMeaBInterval", "currentText").toString(), row.shown);
            EXPECT_EQ(Get("autoMeaCInterval", "currentText").toString(), row.shown);
            Tap("buttonCancel");
        });
        EXPECT_EQ(std::pair(settings.autoMeaBInterval, settings.autoMeaCInterval), std::pair(row.minutesAfter, row.minutesAfter));
        EXPECT_EQ(std::pair(settings.autoMeaBCount, settings.autoMeaCCount), std::pair(row.countAfter, row.countAfter));
    }
}

TEST_F(MeasurementFlow, TheVerdictNamesWhatFailed)
{
    Mea mea;
    mea.amountSF6 = 96.5;
    mea.amountSO2 = 13;
    mea.humidity[Humidity::CELS] = -40;
    mea.amountHF = 1.5;
    mea.reportSF6 = Mea::BELOW_MIN;
    mea.reportSO2 = Mea::ABOVE_MAX;
    mea.reportHum = Mea::NORMAL;
    const struct {
        LangCC language;
        Mea::Result result;
        bool hasHF;
        const char* resultText;
        const char* resultImg;
        const char* noReport;
    } rows[] = {{"DE", Mea::FAILED, true, "Nicht Bestanden", "Failed", "n.v."}, {"UK", Mea::FAILED, true, "Failed", "Failed", "n/a"},
                {"DE", Mea::PASSED, false, "Bestanden", "Passed", ""}, {"UK", Mea::NO_RESULT, false, "n/a", "Neutral", ""}};
    for (const auto& row : rows) {
        ASSERT_TRUE(SelectLanguage(row.language));
        mea.result = row.result;
        scripted.profile[TavorDev::SENSOR_HF].type = row.hasHF ? TavorDev::SENSOR_HF : TavorDev::SensorProfile().type;
        LookAt([&] { DlgMeaResult::Show(mea); }, [&](QWidget& dialog) {
            const auto shows = [&](const char* icon, const char* img) {
                return dialog.findChild<QLabel*>(icon)->pixmap().toImage() == QPixmap(QStringLiteral(":/TImg/Images/Mea_%1_A.png").arg(img)).toImage();
            };
            EXPECT_EQ(Robot::TextOf("reportSF6Value"), "96.5 Vol.-%");
            EXPECT_TRUE(Robot::TextOf("reportSO2Value").startsWith("13"));
            EXPECT_EQ(Robot::TextOf("reportSF6Text"), "< Min.");
            EXPECT_EQ(Robot::TextOf("reportSO2Text"), "> Max.");
            EXPECT_EQ(Robot::TextOf("reportHumText"), "Normal");
            EXPECT_EQ(Robot::TextOf("resultText"), row.resultText);
            EXPECT_EQ(Robot::TextOf("reportHFText"), row.noReport);
            for (const char* name : {"labelHF", "reportHFValue", "reportHFIcon"}) {
                EXPECT_EQ(Robot::IsShown(name), row.hasHF) << name;
            }
            EXPECT_TRUE(shows("reportSF6Icon", "Failed") && shows("reportSO2Icon", "Failed") && shows("reportHumIcon", "Passed")
                        && shows("reportHFIcon", "Neutral") && shows("resultIcon", row.resultImg));
        });
    }
}

TEST_F(MeasurementFlow, TheFollowUpTellsTheLimitAndReturnsTheJob)
{
    const struct {
        Pressure::Unit unit;
        const char* limit;
        const char* button;
        Jobs::Type type;
    } rows[] = {{Pressure::BAR, "(max. 11 bar abs.)", "buttonStartMea", Jobs::TYPE_B}, {Pressure::KPA, "(max. 1100 kPa abs.)", "buttonStartD", Jobs::TYPE_D},
                {Pressure::PSI, "(max. 160 psi abs.)", "buttonStartE", Jobs::TYPE_E}, {Pressure::MPA, "(max. 1 MPa abs.)", "buttonQuit", Jobs::TYPE_0}};
    for (const auto& row : rows) {
        settings.unitPressure = row.unit;
        const Robot::Meanwhile user([&] {
            EXPECT_EQ(Get("labelTypePD", "text").toString(), row.limit);
            EXPECT_EQ(Get("labelTypePE", "text").toString(), row.limit);
            Tap(row.button);
        });
        EXPECT_EQ(DlgMeaFollowUp::Show(), row.type);
    }
}

TEST_F(MeasurementFlow, TheFormatChangesOnlyIfAccepted)
{
    const struct {
        MeaTransFormat before;
        const char* tapped;
        const char* button; // none: time runs out
        DlgSaveAs::TimeoutOpt option;
        bool result;
        MeaTransFormat after;
    } rows[] = {{MTF_EXPORT_CSV, nullptr, "buttonAccept", DlgSaveAs::UNUSED, true, MTF_EXPORT_CSV},
                {MTF_SAVE_NATIVE, "checkBoxExportCSV", "buttonAccept", DlgSaveAs::REJECT_600, true, MTF_EXPORT_CSV},
                {MTF_EXPORT_CSV, "checkBoxSaveNative", "buttonAccept", DlgSaveAs::UNUSED, true, MTF_SAVE_NATIVE},
                {MTF_EXPORT_CSV, "checkBoxSaveNative", "buttonReject", DlgSaveAs::UNUSED, false, MTF_EXPORT_CSV},
                {MTF_SAVE_NATIVE, "checkBoxExportCSV", nullptr, DlgSaveAs::REJECT_40, false, MTF_SAVE_NATIVE},
                {MTF_SAVE_NATIVE, "checkBoxExportCSV", nullptr, DlgSaveAs::ACCEPT_40, true, MTF_EXPORT_CSV}};
    for (const auto& row : rows) {
        MeaTransFormat format = row.before;
        const Robot::Meanwhile user([&] {
            EXPECT_EQ(Get("headerTxt", "text").toString(), "<b>All?</b>");
            if (row.tapped) {
                Tap(row.tapped);
            }
            if (row.button) {
                Tap(row.button);
            }
        });
        const double took = SecondsOf([&] { EXPECT_EQ(DlgSaveAs::Show("<b>All?</b>", format, row.option), row.result); });
        EXPECT_EQ(format, row.after);
        EXPECT_GE(took, row.button ? 0 : 39);
    }
}
