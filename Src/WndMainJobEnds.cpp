#include "WndMain.h"

#include "Config.h"
#include "Dialogs/DlgError.h"
#include "Dialogs/DlgMeaFollowUp.h"
#include "Dialogs/DlgMeaResult.h"
#include "Dialogs/DlgStatement.h"
#include "Globals.h"
#include "JobTables.h"
#include "RRx/RRFile.h"
#include "Settings.h"
#include "TavorDev.h"
#include "ui_WndMain.h"

#include <algorithm>

// What follows on the end of a job. Each case tells whether the process has come to its end, so that the window is to
// return to rest; where it hasn't, the job that the case has started carries it on.
// Dialogs run nested event loops: the end of a job that was started before one opened arrives while it is open. The
// steps behind it go on all the same; a second start is refused, and a second return to rest changes nothing.

using Jobs = JobStateMachine;

namespace {

constexpr int followUpMs = 500;

void ShowError(const QString& heading, const Jobs::Snapshot& snapshot)
{
    DlgError::Show(heading + Jobs::PrintStopCause(snapshot.stopCause),
                   Jobs::PrintStateTag(snapshot.type, snapshot.lastPhase, snapshot.stopCause));
}

/// The storage compartment is above the pressure at which pumping it empty ends.
bool HoldsGas(RR::FixPnt3 depotBar)
{
    return depotBar != RR::INVALID_DOUBLE && depotBar > CFG::JD_p[2] && depotBar > CFG::JE_p[2];
}

}

void WndMain::OnJobSTMStopped()
{
    jobSnapshot = jobSTM.GetSnapshot();
    if (HasProcessEnded()) {
        ReturnToRest();
    }
}

bool WndMain::HasProcessEnded()
{
    switch (jobSnapshot.type) {
    case Jobs::TYPE_B:
    case Jobs::TYPE_C:
        return OnMeasurementStopped();
    case Jobs::TYPE_D:
    case Jobs::TYPE_K:
        return OnPumpBackStopped();
    case Jobs::TYPE_E:
    case Jobs::TYPE_L:
        return OnEmptyingStopped();
    case Jobs::TYPE_F:
        return OnBalanceStopped();
    case Jobs::TYPE_H:
        return OnFlushingStopped();
    case Jobs::TYPE_J:
        return OnPurificationStopped();
    default:
        return true;
    }
}

void WndMain::ReturnToRest()
{
    ui->mainTabWidget->setTabEnabled(1, true);
    ui->mainTabWidget->setTabEnabled(2, true);
    ui->shutdown->setEnabled(true);
    ui->chartView->setStyleSheet(QString());
    ui->sensorView->setStyleSheet(QString());
    // A job F that was just started keeps the busy page; its own end comes here again.
    if (jobSTM.GetType() != Jobs::TYPE_F) {
        ui->jobStackedWidget->setCurrentIndex(0);
        ui->statusInfo->setCurrentIndex(0);
    }
    ui->statusMsgStack->setCurrentIndex(0);
    autoMeaType = Jobs::TYPE_0;
    inspJob.type = IJ_NONE;
    doAutoPumpBack = false;
}

/// No further pass of a test sequence follows.
void WndMain::EndSequence()
{
    inspJob.passNo = inspJob.passMax;
    ui->statusInspJobText->setText(QStringLiteral("Testlauf Ende"));
}

bool WndMain::IsMeasuringSequence() const
{
    return inspJob.type == IJ_BD || inspJob.type == IJ_BE;
}

bool WndMain::OnMeasurementStopped()
{
    const Jobs::Snapshot stopped = jobSnapshot;
    Mea mea = jobSTM.GetMea();
    mea.name = settings.meaRecentName;
    if (autoMeaType != Jobs::TYPE_0) {
        mea.name += QStringLiteral(" %1").arg(settings.meaSaveNumber);
    }
    if (IsMeasuringSequence()) {
        const QString prefix = inspJob.type == IJ_BD ? QStringLiteral("Test BD %1 %2") : QStringLiteral("Test BE %1 %2");
        mea.name = prefix.arg(inspJob.passNo + 1).arg(inspJob.passMax) + mea.name;
    }

    if (stopped.stopCause == Jobs::COMPLETED) {
        StatusMsg(tr("Messung abgeschlossen"));
    } else {
        autoMeaType = Jobs::TYPE_0;
        doAutoPumpBack = false;
        if (stopped.stopCause == Jobs::EXPLICIT) {
            StatusMsg(tr("Messung abgebrochen"));
        } else {
            if (stopped.stopCause == Jobs::SO2_CONTAMINATION) {
                jobSTM.Start(Jobs::TYPE_J);
            }
            if (stopped.stopCategory != Jobs::PROPER_TERMINATION) {
                ShowError(tr("Messung abgebrochen!\n\n"), stopped);
            }
        }
        EndSequence();
    }
    if (!mea.IsEmpty()) {
        SaveMeasurement(mea);
    }
    if (stopped.stopCategory == Jobs::COMPONENT_FAILURE || stopped.stopCause == Jobs::SO2_CONTAMINATION) {
        return true;
    }
    return DealWithGas(mea, stopped.pressure[TavorDev::PRESSENS_DEPOT][Pressure::BAR]);
}

/// The way of a measurement from its record to the gas that it left in the storage compartment.
bool WndMain::DealWithGas(const Mea& mea, RR::FixPnt3 depotBar)
{
    if (doAutoPumpBack || autoMeaType != Jobs::TYPE_0) {
        jobSTM.Start(Jobs::TYPE_F);
        return false;
    }
    if (!IsMeasuringSequence() && !mea.IsEmpty()) {
        DlgMeaResult::Show(mea);
    }
    if (!HoldsGas(depotBar)) {
        jobSTM.Start(Jobs::TYPE_F);
        return false;
    }
    if (inspJob.type == IJ_NONE) {
        jobSTM.Start(Jobs::TYPE_F);
        AskForFollowUp();
        return true;
    }
    if (inspJob.passNo == inspJob.passMax) {
        jobSTM.Start(Jobs::TYPE_F);
    } else {
        jobSTM.Start(inspJob.type == IJ_BD ? Jobs::TYPE_D : Jobs::TYPE_E);
    }
    return false;
}

void WndMain::AskForFollowUp()
{
    switch (DlgMeaFollowUp::Show()) {
    case Jobs::TYPE_B:
        QTimer::singleShot(followUpMs, this, &WndMain::OnStartMea);
        break;
    case Jobs::TYPE_D:
        QTimer::singleShot(followUpMs, this, &WndMain::OnStartJobD);
        break;
    case Jobs::TYPE_E:
        QTimer::singleShot(followUpMs, this, &WndMain::OnStartJobE);
        break;
    default:
        break;
    }
}

bool WndMain::OnPumpBackStopped()
{
    const Jobs::Snapshot stopped = jobSnapshot;
    const bool componentFailure = stopped.stopCategory == Jobs::COMPONENT_FAILURE;
    if (!componentFailure) {
        jobSTM.Start(Jobs::TYPE_F);
    }
    if (stopped.stopCause == Jobs::COMPLETED) {
        StatusMsg(tr("Rückpumpvorgang abgeschlossen"));
    } else {
        autoMeaType = Jobs::TYPE_0;
        if (stopped.stopCause != Jobs::EXPLICIT) {
            ShowError(tr("Rückpumpvorgang abgebrochen!\n\n"), stopped);
        }
        StatusMsg(tr("Rückpumpvorgang abgebrochen"));
        EndSequence();
    }
    return componentFailure;
}

bool WndMain::OnEmptyingStopped()
{
    const Jobs::Snapshot stopped = jobSnapshot;
    const bool componentFailure = stopped.stopCategory == Jobs::COMPONENT_FAILURE;
    if (!componentFailure) {
        jobSTM.Start(Jobs::TYPE_F);
    }
    if (stopped.stopCause == Jobs::COMPLETED) {
        const QString text = tr("Depotleerung abgeschlossen");
        if (inspJob.type == IJ_NONE) {
            DlgStatement::Show(text, DlgStatement::CLOSE_60, true);
        }
        StatusMsg(text);
    } else {
        if (stopped.stopCause != Jobs::EXPLICIT) {
            ShowError(tr("Depotleerung abgebrochen!\n\n"), stopped);
        }
        StatusMsg(tr("Depotleerung abgebrochen"));
        EndSequence();
    }
    return componentFailure;
}

bool WndMain::OnBalanceStopped()
{
    const Jobs::Snapshot stopped = jobSnapshot;
    if (stopped.stopCause == Jobs::COMPLETED) {
        TellBalanced();
    } else {
        if (stopped.stopCause != Jobs::EXPLICIT && stopped.stopCategory != Jobs::PROPER_TERMINATION) {
            ShowError(tr("Bereitstellung abgebrochen!\n\n"), stopped);
        }
        StatusMsg(tr("Vorgang abgebrochen"));
        EndSequence();
        doAutoPumpBack = false;
        autoMeaType = Jobs::TYPE_0;
    }
    if (inspJob.type != IJ_NONE && inspJob.passNo + 1 < inspJob.passMax) {
        ++inspJob.passNo;
        StartInspectionPass();
        return false;
    }
    if (doAutoPumpBack) {
        doAutoPumpBack = false;
        QTimer::singleShot(followUpMs, this, &WndMain::OnStartJobD);
        if (!IsMeasuringSequence() && autoMeaType == Jobs::TYPE_0 && !jobSTM.GetMea().IsEmpty()) {
            DlgMeaResult::Show(jobSTM.GetMea());
        }
        return false;
    }
    if (autoMeaType != Jobs::TYPE_0 && autoMeaActualNum < autoMeasMaxNum) {
        ++autoMeaActualNum;
        ui->statusInfo->setCurrentIndex(0);
        autoMeaPause = autoMeaInterval;
        ui->jobInfoStackedWidget1->setCurrentIndex(0);
        return false;
    }
    return true;
}

void WndMain::TellBalanced()
{
    if (doAutoPumpBack) {
        return;
    }
    if (autoMeaType == Jobs::TYPE_0 || autoMeaActualNum == autoMeasMaxNum) {
        if (autoMeasMaxNum != none && autoMeasMaxNum == autoMeaActualNum) {
            DlgStatement::Show(tr("%1 Messungen durchgeführt.\n").arg(autoMeasMaxNum), DlgStatement::UNUSED, true);
        }
        StatusMsg(tr("Gerät Betriebsbereit"));
    } else {
        StatusMsg(tr("Nächste Messung in ..."));
    }
}

bool WndMain::OnFlushingStopped()
{
    const Jobs::Snapshot stopped = jobSnapshot;
    if (stopped.stopCategory == Jobs::COMPONENT_FAILURE) {
        if (stopped.stopCause != Jobs::EXPLICIT) {
            ShowError(tr("Vorgang abgebrochen!\n\n"), stopped);
        }
    } else if (inspJob.type != IJ_H) {
        const RR::FixPnt3 dewPoint = tavorDev.GetHumidity()[Humidity::CELS];
        if (dewPoint != RR::INVALID_DOUBLE && dewPoint > CFG::DryingThreshold) {
            jobSTM.Start(Jobs::TYPE_J);
            return false;
        }
        StatusMsg(tr("Gerät betriebsbereit"));
    }
    return true;
}

bool WndMain::OnPurificationStopped()
{
    const Jobs::Snapshot stopped = jobSnapshot;
    if (stopped.stopCategory == Jobs::COMPONENT_FAILURE) {
        if (stopped.stopCause != Jobs::EXPLICIT) {
            ShowError(tr("Vorgang abgebrochen!\n\n"), stopped);
            StatusMsg(tr("Gerät nur eingeschränkt betriebsbereit"));
        }
    } else if (inspJob.type != IJ_I) {
        if (stopped.stopCategory != Jobs::PROPER_TERMINATION) {
            ShowError(tr("Warnung!\n\n"), stopped);
            StatusMsg(tr("Gerät nur eingeschränkt betriebsbereit"));
        } else {
            StatusMsg(tr("Gerät betriebsbereit"));
        }
    }
    return true;
}

void WndMain::SaveMeasurement(const Mea& mea)
{
    const RR::String file = Mea::CreateFilename();
    if (!file.IsEmpty()) {
        if (mea.Save(file)) {
            RR::Log("[ZARN] Measurement saved as \"%s\"\n", static_cast<const char*>(file));
            StatusMsg(tr("Messung gespeichert"));
        } else {
            RR::Log("[ZARN] Error saving measurement file\n");
            DlgStatement::Show(tr("<b>Fehler ...</b><br>Messung konnte nicht gespeichert werden."), DlgStatement::CLOSE_40, true);
        }
    }
    UpdateMeaTab();
    DeleteOldestMeasurements();
    for (int row = meaTable.GetSize() - 1; row >= 0; --row) {
        if (meaTable[row]->GetFileName() == file) {
            const QModelIndex index = meaTable.index(row, 0);
            ui->meaTable->setCurrentIndex(index);
            OnMeaTable(index);
            break;
        }
    }
}

/// Row 0 is the oldest.
void WndMain::DeleteOldestMeasurements()
{
    if (!settings.delOldestMea || meaTable.GetSize() <= meaCapacityMax) {
        return;
    }
    for (int row = 0; row < meaTable.GetSize() - meaCapacityMax; ++row) {
        const RR::String file = meaTable[row]->GetFileName();
        RR::Log("[ZARN] Measurement limit exceeded: Delete file \"%s\" ... ", static_cast<const char*>(file));
        RR::Log(RR::FILE_Delete(RR::PATH_Merge(CFG::MeaFilesFolder, file)) ? "ok\n" : "failed\n");
    }
    UpdateMeaTab();
}
