#include "Dialogs/DlgEmptyDepot.h"
#include "Dialogs/DlgEvacuation.h"
#include "Dialogs/DlgInnerPressWarning.h"
#include "Dialogs/DlgInspJobStart.h"
#include "Dialogs/DlgMeaFollowUp.h"
#include "Dialogs/DlgMeaResult.h"
#include "Dialogs/DlgMeaStart.h"
#include "Dialogs/DlgSaveAs.h"
#include "Dialogs/DlgTDFirmware.h"
#include "Fakes/ScriptedTavorDev.h"
#include "Gallery.h"
#include "Mea.h"
#include "Robot.h"
#include "Settings.h"
#include "TDFirmware.h"

#include <QApplication>

namespace Gallery {

namespace {

/// A healthy instrument as it leaves the factory, but for the language.
void MakeNew()
{
    const LangCC language = settings.applLanguage;
    settings = Settings::def;
    settings.applLanguage = language;
    scripted.Reset();
}

void ShowMeaStart(bool series)
{
    MakeNew();
    settings.autoPumpBack = settings.autoMeaBEnabled = settings.autoMeaCEnabled = series;
    settings.autoMeaBCount = series ? 99 : 2;
    settings.autoMeaBInterval = 150;
    JobStateMachine::Type type;
    DlgMeaStart::Show(type);
}

void ShowMeaResult(double so2)
{
    MakeNew();
    scripted.amount[TavorDev::SENSOR_SO2] = so2;
    Mea mea;
    mea.Snapshot('B');
    DlgMeaResult::Show(mea);
}

void ShowMeaResultWithoutReadings()
{
    MakeNew();
    scripted.profile[TavorDev::SENSOR_HF] = TavorDev::SensorProfile();
    DlgMeaResult::Show(Mea());
}

void ShowMeaResultBeyondRange()
{
    MakeNew();
    settings.unitHumidity = Humidity::PPMV;
    Mea mea;
    mea.amountSF6 = 100.4;
    mea.amountSO2 = 99999.0;
    mea.humidity = Humidity(20, 68, 23000, 2820);
    mea.amountHF = 99999.0;
    mea.reportSF6 = Mea::NORMAL;
    mea.reportSO2 = mea.reportHum = mea.reportHF = Mea::ABOVE_MAX;
    mea.result = Mea::FAILED;
    DlgMeaResult::Show(mea);
}

void ShowMeaFollowUp(Pressure::Unit unit)
{
    MakeNew();
    settings.unitPressure = unit;
    DlgMeaFollowUp::Show();
}

void ShowSaveAs(const char* german, const char* english)
{
    MeaTransFormat format = MTF_EXPORT_CSV;
    DlgSaveAs::Show(Said(german, english), format, DlgSaveAs::REJECT_40);
}

void ShowEmptyDepot()
{
    MakeNew();
    settings.unitPressure = Pressure::PSI;
    JobStateMachine::Type type;
    DlgEmptyDepot::Show(type);
}

void ShowEvacuation(double operationBar)
{
    MakeNew();
    scripted.pressure[TavorDev::PRESSENS_P3] = operationBar;
    DlgEvacuation::Show();
}

void ShowInspJobStart()
{
    MakeNew();
    settings.inspJobPasses = 999;
    settings.inspJobPassTime = 3000;
    DlgInspJobStart::Show();
}

void ShowInnerPressWarning(double operationBar)
{
    MakeNew();
    scripted.pressure[TavorDev::PRESSENS_P3] = operationBar;
    DlgInnerPressWarning::Show();
}

/// Up to its message: of a unit on a wrong board, or of success.
void ShowFirmware(RR::SInt32 boardType)
{
    MakeNew();
    scripted.info.boardType = boardType;
    if (boardType != TDFW_INFO.boardType) {
        scripted.failing = {"connect1"};
    }
    DlgTDFirmware::Show();
}

bool AwaitMessage()
{
    return Robot::WaitForShown("buttonClose");
}

bool AwaitPressure()
{
    return Robot::WaitFor([] { return !Robot::TextOf("pressValue").isEmpty(); });
}

bool LoseAirPressure()
{
    Robot::OnGui([] { scripted.airPressure = RR::INVALID; });
    return Robot::WaitFor([] { return Robot::TextOf("pressDiagnosis").contains(QLatin1String("...")); });
}

}

std::vector<Exhibit> ProcessExhibits()
{
    return {
        {"DlgMeaStart", TYPICAL, [] { ShowMeaStart(false); }},
        {"DlgMeaStart-series", TYPICAL, [] { ShowMeaStart(true); }},
        {"DlgMeaStart-interval", TYPICAL, [] { ShowMeaStart(true); },
         [] {
             return Robot::Click("autoMeaBInterval") && Robot::WaitFor([] { return QApplication::activePopupWidget() != nullptr; });
         }},
        {"DlgMeaResult-passed", TYPICAL, [] { ShowMeaResult(0); }},
        {"DlgMeaResult-failed", TYPICAL, [] { ShowMeaResult(120); }},
        {"DlgMeaResult-none", TYPICAL, ShowMeaResultWithoutReadings},
        {"DlgMeaResult-range", EXTREME, ShowMeaResultBeyondRange},
        {"DlgMeaFollowUp", TYPICAL, [] { ShowMeaFollowUp(Pressure::BAR); }},
        {"DlgMeaFollowUp-kPa", TYPICAL, [] { ShowMeaFollowUp(Pressure::KPA); }},
        {"DlgSaveAs", TYPICAL, [] { ShowSaveAs("Ausgewählte Messung übertragen?", "Transfer selected measurement?"); }},
        {"DlgSaveAs-all", TYPICAL,
         [] { ShowSaveAs("Alle vorhandenen 500 Messungen übertragen?", "Transfer all 500 measurements?"); }},
        {"DlgEmptyDepot", TYPICAL, ShowEmptyDepot},
        {"DlgEvacuation", TYPICAL, [] { ShowEvacuation(1); }},
        {"DlgEvacuation-unbalanced", TYPICAL, [] { ShowEvacuation(0.02); }, AwaitPressure},
        {"DlgInspJobStart", TYPICAL, ShowInspJobStart},
        {"DlgInnerPressWarning-high", TYPICAL, [] { ShowInnerPressWarning(1.5); }, AwaitPressure},
        {"DlgInnerPressWarning-low", TYPICAL, [] { ShowInnerPressWarning(0.5); }, AwaitPressure},
        {"DlgInnerPressWarning-invalid", TYPICAL, [] { ShowInnerPressWarning(0.5); }, LoseAirPressure},
        {"DlgTDFirmware-done", TYPICAL, [] { ShowFirmware(TDFW_INFO.boardType); }, AwaitMessage},
        {"DlgTDFirmware-wrong-board", TYPICAL, [] { ShowFirmware(2); }, AwaitMessage},
    };
}

}
