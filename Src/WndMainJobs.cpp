#include "WndMain.h"

#include "Config.h"
#include "Dialogs/DlgEmptyDepot.h"
#include "Dialogs/DlgError.h"
#include "Dialogs/DlgEvacuation.h"
#include "Dialogs/DlgInspJobStart.h"
#include "Dialogs/DlgMeaResult.h"
#include "Dialogs/DlgQuestion.h"
#include "Dialogs/DlgStatement.h"
#include "Globals.h"
#include "Settings.h"
#include "TavorDev.h"
#include "ui_WndMain.h"

using Jobs = JobStateMachine;

void WndMain::OnStartMea()
{
    if (jobSTM.IsRunning()) {
        if (jobSTM.GetType() == Jobs::TYPE_F) {
            QTimer::singleShot(200, this, &WndMain::OnStartMea);
        }
        return;
    }
    if (settings.meaRecentName.isEmpty()) {
        settings.meaRecentName = tr("UNBENANNT");
    }
    ui->shutdown->setEnabled(false);
    jobSTM.Start(Jobs::TYPE_B);
}

void WndMain::OnStopJob()
{
    jobSTM.Stop();
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

void WndMain::OnJobSTMStarted()
{
    const Jobs::Type type = jobSTM.GetType();
    const bool preparing = type == Jobs::TYPE_F || type == Jobs::TYPE_H || type == Jobs::TYPE_J;
    LockTabs(true);
    ui->shutdown->setEnabled(type == Jobs::TYPE_H || type == Jobs::TYPE_J);
    ui->jobInfoStackedWidget1->setCurrentIndex(preparing && !inspectionMode ? 1 : 0);
    switch (type) {
    case Jobs::TYPE_B:
    case Jobs::TYPE_C:
        ui->jobInfoStackedWidget2->setCurrentIndex(0);
        StatusMsg(tr("Messung gestartet"));
        break;
    case Jobs::TYPE_D:
    case Jobs::TYPE_K:
        ui->jobInfoStackedWidget2->setCurrentIndex(1);
        StatusMsg(tr("Rückpumpvorgang gestartet"));
        break;
    case Jobs::TYPE_E:
    case Jobs::TYPE_L:
        ui->jobInfoStackedWidget2->setCurrentIndex(2);
        StatusMsg(tr("Depotleerung gestartet"));
        break;
    case Jobs::TYPE_F:
    case Jobs::TYPE_H:
    case Jobs::TYPE_J:
        ui->jobInfoStackedWidget2->setCurrentIndex(3);
        StatusMsg(tr("Bereitschaft herstellen"));
        break;
    default:
        break;
    }
}

/// The form that the window has while a job runs, and its return to rest.
void WndMain::LockTabs(bool busy)
{
    ui->mainTabWidget->setTabEnabled(1, !busy);
    ui->mainTabWidget->setTabEnabled(2, !busy);
    ui->chartView->setStyleSheet(busy ? QStringLiteral("QWidget#chartView{background: rgba(0, 162, 0, 80);}") : QString());
    ui->sensorView->setStyleSheet(busy ? QStringLiteral("QWidget#sensorView{background: rgba(0, 162, 0, 80);}") : QString());
    ui->statusInfo->setCurrentIndex(busy ? 1 : 0);
    ui->jobStackedWidget->setCurrentIndex(busy ? 1 : 0);
}

void WndMain::OnJobSTMStopped()
{
    jobSnapshot = jobSTM.GetSnapshot();
    bool nextStarted = false;
    switch (jobSnapshot.type) {
    case Jobs::TYPE_B:
    case Jobs::TYPE_C:
        nextStarted = OnMeasurementStopped();
        break;
    case Jobs::TYPE_D:
    case Jobs::TYPE_E:
    case Jobs::TYPE_K:
    case Jobs::TYPE_L:
        nextStarted = OnTransferStopped();
        break;
    case Jobs::TYPE_F:
    case Jobs::TYPE_H:
    case Jobs::TYPE_J:
        nextStarted = OnPreparationStopped();
        break;
    default:
        break;
    }
    if (!nextStarted) {
        ui->shutdown->setEnabled(true);
        LockTabs(false);
    }
}

static void ShowError(const QString& heading, const Jobs::Snapshot& snapshot)
{
    DlgError::Show(heading + Jobs::PrintStopCause(snapshot.stopCause),
                   Jobs::PrintStateTag(snapshot.type, snapshot.lastPhase, snapshot.stopCause));
}

bool WndMain::OnMeasurementStopped()
{
    const Jobs::StopCause cause = jobSnapshot.stopCause;
    if (cause == Jobs::COMPLETED) {
        StatusMsg(tr("Messung abgeschlossen"));
    } else if (cause == Jobs::EXPLICIT) {
        StatusMsg(tr("Messung abgebrochen"));
    } else {
        ShowError(tr("Messung abgebrochen!\n\n"), jobSnapshot);
    }
    Mea mea = jobSTM.GetMea();
    if (!mea.IsEmpty()) {
        mea.name = settings.meaRecentName;
        SaveMeasurement(mea);
    }
    if (cause == Jobs::SO2_CONTAMINATION) {
        jobSTM.Start(Jobs::TYPE_J);
        return true;
    }
    if (jobSnapshot.stopCategory == Jobs::COMPONENT_FAILURE) {
        return false;
    }
    jobSTM.Start(Jobs::TYPE_F);
    return true;
}

void WndMain::SaveMeasurement(const Mea& mea)
{
    const RR::String file = Mea::CreateFilename();
    if (!file.IsEmpty() && mea.Save(file)) {
        RR::Log("[ZARN] Measurement saved as \"%s\"\n", static_cast<const char*>(file));
        StatusMsg(tr("Messung gespeichert"));
    } else {
        RR::Log("[ZARN] Error saving measurement file\n");
        DlgStatement::Show(tr("<b>Fehler ...</b><br>Messung konnte nicht gespeichert werden."), DlgStatement::CLOSE_40, true);
    }
    UpdateMeaTab();
}

bool WndMain::OnTransferStopped()
{
    const bool pumpBack = jobSnapshot.type == Jobs::TYPE_D || jobSnapshot.type == Jobs::TYPE_K;
    if (jobSnapshot.stopCause == Jobs::COMPLETED) {
        StatusMsg(pumpBack ? tr("Rückpumpvorgang abgeschlossen") : tr("Depotleerung abgeschlossen"));
    } else {
        StatusMsg(pumpBack ? tr("Rückpumpvorgang abgebrochen") : tr("Depotleerung abgebrochen"));
        if (jobSnapshot.stopCause != Jobs::EXPLICIT) {
            ShowError(pumpBack ? tr("Rückpumpvorgang abgebrochen!\n\n") : tr("Depotleerung abgebrochen!\n\n"), jobSnapshot);
        }
    }
    if (jobSnapshot.stopCategory == Jobs::COMPONENT_FAILURE) {
        return false;
    }
    jobSTM.Start(Jobs::TYPE_F);
    return true;
}

bool WndMain::OnPreparationStopped()
{
    const bool failed = jobSnapshot.stopCategory != Jobs::PROPER_TERMINATION;
    if (failed) {
        ShowError(tr("Vorgang abgebrochen!\n\n"), jobSnapshot);
    }
    if (jobSnapshot.type == Jobs::TYPE_H && jobSnapshot.stopCategory != Jobs::COMPONENT_FAILURE) {
        const RR::FixPnt3 dewPoint = tavorDev.GetHumidity()[Humidity::CELS];
        if (dewPoint != RR::INVALID_DOUBLE && dewPoint > CFG::DryingThreshold) {
            jobSTM.Start(Jobs::TYPE_J);
            return true;
        }
    }
    StatusMsg(failed ? tr("Gerät nur eingeschränkt betriebsbereit") : tr("Gerät betriebsbereit"));
    return false;
}
