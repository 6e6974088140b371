#include "WndMain.h"

#include "Config.h"
#include "Dialogs/DlgEmptyDepot.h"
#include "Dialogs/DlgEvacuation.h"
#include "Dialogs/DlgInspJobStart.h"
#include "Dialogs/DlgKeyboard.h"
#include "Dialogs/DlgMeaStart.h"
#include "Dialogs/DlgQuestion.h"
#include "Dialogs/DlgShutdown.h"
#include "Dialogs/DlgStatement.h"
#include "Globals.h"
#include "Settings.h"
#include "ui_WndMain.h"

// How jobs start and are stopped by the user. What follows on their end stands in WndMainJobEnds.cpp.

using Jobs = JobStateMachine;

namespace {

constexpr int nameLetters = 40;

void TellFull(const QString& text)
{
    DlgStatement::Show(text, DlgStatement::CLOSE_60, true);
}

}

void WndMain::OnStartMea()
{
    if (DlgShutdown::IsShuttingDown()) {
        return;
    }
    if (jobSTM.IsRunning()) {
        if (jobSTM.GetType() == Jobs::TYPE_F) {
            QTimer::singleShot(200, this, &WndMain::OnStartMea);
        }
        return;
    }
    if (!settings.delOldestMea && meaTable.GetSize() >= meaCapacityMax) {
        TellFull(tr("Die Speicherkapazität von %1 Messungen ist erreicht.<p><i>Bitte Messungen löschen oder "
                    "Option<br><b>Automatischen Löschung</b><br>aktivieren.</i>").arg(meaCapacityMax));
        return;
    }
    doAutoPumpBack = false;
    autoMeaType = Jobs::TYPE_0;
    autoMeaActualNum = 1;
    autoMeaPause = none;
    autoMeasMaxNum = none;

    Jobs::Type type = Jobs::TYPE_0;
    DlgMeaStart::Show(type);
    if (type != Jobs::TYPE_0 && !PlanMeasurement(type)) {
        return;
    }
    if (type != Jobs::TYPE_0) {
        ui->shutdown->setEnabled(false);
    }
    jobSTM.Start(type);
}

/// Asks for the name and takes over the options of job B or C. False if the measurement isn't to start.
bool WndMain::PlanMeasurement(JobStateMachine::Type type)
{
    if (!SetMeasurementName()) {
        return false;
    }
    const bool internal = type == Jobs::TYPE_B;
    doAutoPumpBack = internal && settings.autoPumpBack;
    if (internal ? settings.autoMeaBEnabled : settings.autoMeaCEnabled) {
        autoMeasMaxNum = internal ? settings.autoMeaBCount : settings.autoMeaCCount;
        autoMeaType = type;
        autoMeaInterval = 60 * (internal ? settings.autoMeaBInterval : settings.autoMeaCInterval);
    }
    if (autoMeaType != Jobs::TYPE_0 && !settings.delOldestMea && meaTable.GetSize() + autoMeasMaxNum >= meaCapacityMax) {
        TellFull(tr("Die Speicherkapazität von %1 Messungen wird bei Durchführung der geplanten %2 Messungen "
                    "überschritten.<p><i>Bitte Messungen löschen oder Option<br><b>Automatischen "
                    "Löschung</b><br>aktivieren.</i>").arg(meaCapacityMax).arg(autoMeasMaxNum));
        autoMeaType = Jobs::TYPE_0;
        doAutoPumpBack = false;
        return false;
    }
    return true;
}

bool WndMain::SetMeasurementName()
{
    if (settings.meaRecentName.isEmpty()) {
        settings.meaRecentName = tr("UNBENANNT");
    }
    QString name = settings.meaRecentName;
    if (!DlgKeyboard::Show(tr("Name der Messung oder Messstelle"), name, nameLetters)) {
        return false;
    }
    if (name != settings.meaRecentName) {
        settings.meaSaveNumber = 1;
    }
    settings.meaRecentName = name;
    return true;
}

void WndMain::OnStartJobD()
{
    StartAfterBalance(Jobs::TYPE_D, &WndMain::OnStartJobD);
}

void WndMain::OnStartJobE()
{
    StartAfterBalance(Jobs::TYPE_E, &WndMain::OnStartJobE);
}

void WndMain::StartAfterBalance(JobStateMachine::Type type, void (WndMain::*again)())
{
    if (!jobSTM.IsRunning()) {
        jobSTM.Start(type);
    } else if (jobSTM.GetType() == Jobs::TYPE_F) {
        QTimer::singleShot(1000, this, again);
    }
}

void WndMain::OnEmptyDepot()
{
    if (!jobSTM.IsRunning()) {
        Jobs::Type type = Jobs::TYPE_0;
        DlgEmptyDepot::Show(type);
        autoMeaActualNum = none;
        autoMeasMaxNum = none;
        jobSTM.Start(type);
    }
}

void WndMain::OnStartInspJob()
{
    if (jobSTM.IsRunning()) {
        return;
    }
    inspJob = DlgInspJobStart::Show();
    autoMeaActualNum = none;
    autoMeasMaxNum = none;
    switch (inspJob.type) {
    case IJ_BD:
    case IJ_BE:
        if (!settings.delOldestMea && meaTable.GetSize() + inspJob.passMax >= meaCapacityMax) {
            TellFull(QStringLiteral("Nicht genügend Platz zur Speicherung der %1 Testläufe.").arg(inspJob.passMax));
            inspJob.type = IJ_NONE;
            return;
        }
        StartInspectionPass();
        break;
    case IJ_H:
        jobSTM.Start(Jobs::TYPE_H);
        break;
    case IJ_I:
        jobSTM.Start(Jobs::TYPE_J);
        break;
    case IJ_NONE:
        break;
    }
}

/// The job reads the passage time when it starts; all other measurements keep the user's own.
void WndMain::StartInspectionPass()
{
    const RR::SInt32 sensPassageTime = settings.sensPassageTime;
    settings.sensPassageTime = inspJob.passTime;
    jobSTM.Start(Jobs::TYPE_B);
    settings.sensPassageTime = sensPassageTime;
}

void WndMain::OnSysEvacuation()
{
    if (DlgQuestion::Show(tr("System evakuieren?"), DlgQuestion::YES_NO, DlgQuestion::ACCEPT_300)) {
        ShowStatusBarMsg(tr("Evakuierung eingeleitet"), 10);
        evacuationMode = true;
        DlgEvacuation::Show();
        evacuationMode = false;
        ShowStatusBarMsg(tr("Evakuierung beendet"), 5);
    }
}

void WndMain::OnStopJob()
{
    if (DlgShutdown::IsShuttingDown()) {
        return;
    }
    const QString question = StopQuestion();
    if (!question.isEmpty()) {
        if (DlgQuestion::Show(question, DlgQuestion::YES_NO, DlgQuestion::REJECT_10)) {
            jobSTM.Stop();
        }
    } else if (autoMeaType != Jobs::TYPE_0
               && DlgQuestion::Show(tr("Mehrfachmessung abbrechen?"), DlgQuestion::YES_NO, DlgQuestion::REJECT_10)) {
        StopSeries();
    }
}

/// What to ask before the running job is stopped; empty if there is none to stop.
QString WndMain::StopQuestion() const
{
    if (inspJob.type != IJ_NONE) {
        return QStringLiteral("Inspektions-Testsequenz abbrechen?");
    }
    switch (jobSTM.GetType()) {
    case Jobs::TYPE_B:
    case Jobs::TYPE_C:
        return tr("Laufende Messung abbrechen?");
    case Jobs::TYPE_D:
        return tr("Rückpumpvorgang abbrechen?");
    case Jobs::TYPE_E:
        return tr("Depotleerung abbrechen?");
    case Jobs::TYPE_F:
        return tr("Bereitstellung abbrechen?");
    case Jobs::TYPE_H:
    case Jobs::TYPE_J:
    case Jobs::TYPE_K:
    case Jobs::TYPE_L:
        return tr("Vorgang abbrechen?");
    default:
        return QString();
    }
}

/// Ends a series in the pause between two of its measurements.
void WndMain::StopSeries()
{
    ui->mainTabWidget->setTabEnabled(1, true);
    ui->mainTabWidget->setTabEnabled(2, true);
    ui->statusMsgStack->setCurrentIndex(0);
    ui->jobStackedWidget->setCurrentIndex(0);
    ui->shutdown->setEnabled(true);
    autoMeaType = Jobs::TYPE_0;
    StatusMsg(tr("Mehrfachmessung abgebrochen"));
}

void WndMain::OnJobSTMStarted()
{
    ui->mainTabWidget->setTabEnabled(1, false);
    ui->mainTabWidget->setTabEnabled(2, false);
    ui->shutdown->setEnabled(false);
    // With an alpha value it has to be rgba: Qt leaves out an rgb of four numbers.
    ui->chartView->setStyleSheet("QWidget#chartView{background: rgba(0, 162, 0, 80);}");
    ui->sensorView->setStyleSheet("QWidget#sensorView{background: rgba(0, 162, 0, 80);}");
    ui->statusInfo->setCurrentIndex(1);
    ui->jobStackedWidget->setCurrentIndex(1);
    StatusMsg(ShowStartedJob(jobSTM.GetType()));

    if (inspJob.type == IJ_BD || inspJob.type == IJ_BE) {
        ui->statusInspJobText->setText(QStringLiteral("Test %1/%2").arg(inspJob.passNo + 1).arg(inspJob.passMax));
        RR::Log("[ZARN] Testsequence %s (%d of %d) started\n", inspJob.type == IJ_BD ? "BD " : "BE ", inspJob.passNo + 1,
                inspJob.passMax);
    }
}

/// Brings up the pages of the busy view for a job, and returns what to tell of its start.
QString WndMain::ShowStartedJob(JobStateMachine::Type type)
{
    const bool series = autoMeaType != Jobs::TYPE_0;
    const int hidden = inspectionMode ? 0 : 1; // page of the stop button during preparations
    int stopPage = 0;
    int infoPage = 0;
    QString text;
    switch (type) {
    case Jobs::TYPE_B:
    case Jobs::TYPE_C:
        text = series ? tr("Messung %1 von %2 gestartet").arg(autoMeaActualNum).arg(autoMeasMaxNum) : tr("Messung gestartet");
        break;
    case Jobs::TYPE_D:
    case Jobs::TYPE_K:
        text = series ? tr("Rückpumpvorgang %1 von %2 gestartet").arg(autoMeaActualNum).arg(autoMeasMaxNum)
                      : tr("Rückpumpvorgang gestartet");
        infoPage = 1;
        break;
    case Jobs::TYPE_E:
    case Jobs::TYPE_L:
        text = tr("Depotleerung gestartet");
        infoPage = 2;
        break;
    case Jobs::TYPE_H:
    case Jobs::TYPE_J:
        ui->shutdown->setEnabled(true);
        [[fallthrough]];
    case Jobs::TYPE_F:
        text = tr("Bereitschaft herstellen");
        stopPage = hidden;
        infoPage = 3;
        break;
    default:
        return QString();
    }
    ui->jobInfoStackedWidget1->setCurrentIndex(stopPage);
    ui->jobInfoStackedWidget2->setCurrentIndex(infoPage);
    return text;
}
