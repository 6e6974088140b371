#include "WndMain.h"

#include "Config.h"
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

void WndMain::OnJobSTMStarted()
{
    const Jobs::Type type = jobSTM.GetType();
    const bool preparing = type == Jobs::TYPE_F || type == Jobs::TYPE_H || type == Jobs::TYPE_J;
    ui->shutdown->setEnabled(type == Jobs::TYPE_H || type == Jobs::TYPE_J);
    ui->stopJob->setVisible(!preparing || inspectionMode);
    ui->jobStackedWidget->setCurrentIndex(1);
    switch (type) {
    case Jobs::TYPE_B:
    case Jobs::TYPE_C:
        ui->meaResult->clear();
        StatusMsg(tr("Messung gestartet"));
        break;
    case Jobs::TYPE_D:
    case Jobs::TYPE_K:
        StatusMsg(tr("Rückpumpvorgang gestartet"));
        break;
    case Jobs::TYPE_E:
    case Jobs::TYPE_L:
        StatusMsg(tr("Depotleerung gestartet"));
        break;
    case Jobs::TYPE_F:
    case Jobs::TYPE_H:
    case Jobs::TYPE_J:
        StatusMsg(tr("Bereitschaft herstellen"));
        break;
    default:
        break;
    }
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
        ui->startMea->setEnabled(tavorDev.GetMode() == TavorDev::MODE_APPL);
        ui->jobStackedWidget->setCurrentIndex(0);
    }
}

/// The cause of the stop with its tag, for the user.
static QString CauseText(const Jobs::Snapshot& snapshot)
{
    return Jobs::PrintStopCause(snapshot.stopCause) + " ("
        + Jobs::PrintStateTag(snapshot.type, snapshot.lastPhase, snapshot.stopCause) + ")";
}

bool WndMain::OnMeasurementStopped()
{
    const Jobs::StopCause cause = jobSnapshot.stopCause;
    if (cause == Jobs::COMPLETED) {
        StatusMsg(tr("Messung abgeschlossen"));
    } else if (cause == Jobs::EXPLICIT) {
        StatusMsg(tr("Messung abgebrochen"));
    } else {
        ui->meaResult->setText(tr("Messung abgebrochen!\n\n") + CauseText(jobSnapshot));
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
        ui->meaResult->setText(mea.name + ": " + PrintResult(mea.result));
    } else {
        RR::Log("[ZARN] Error saving measurement file\n");
        ui->meaResult->setText(tr("<b>Fehler ...</b><br>Messung konnte nicht gespeichert werden."));
    }
}

bool WndMain::OnTransferStopped()
{
    const bool pumpBack = jobSnapshot.type == Jobs::TYPE_D || jobSnapshot.type == Jobs::TYPE_K;
    if (jobSnapshot.stopCause == Jobs::COMPLETED) {
        StatusMsg(pumpBack ? tr("Rückpumpvorgang abgeschlossen") : tr("Depotleerung abgeschlossen"));
    } else {
        StatusMsg(pumpBack ? tr("Rückpumpvorgang abgebrochen") : tr("Depotleerung abgebrochen"));
        if (jobSnapshot.stopCause != Jobs::EXPLICIT) {
            ui->meaResult->setText(CauseText(jobSnapshot));
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
        ui->meaResult->setText(CauseText(jobSnapshot));
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
