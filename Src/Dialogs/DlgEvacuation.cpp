#include "Dialogs/DlgEvacuation.h"

#include "Config.h"
#include "Dialogs/DlgInnerPressWarning.h"
#include "Dialogs/DlgQuestion.h"
#include "Dialogs/DlgShared.h"
#include "PrintIt.h"
#include "TavorDev.h"
#include "ui_DlgEvacuation.h"

namespace {

enum ExitPage { PAGE_CLOSE, PAGE_ABORT };

/// The depot still holds gas to be evacuated, as far as its sensor can tell.
bool IsDepotFilled()
{
    const RR::FixPnt3 pressure = tavorDev.GetPressure(TavorDev::PRESSENS_DEPOT)[Pressure::BAR];
    return pressure.Eject() != RR::INVALID && pressure > CFG::DepotEvacPressMin;
}

}

DlgEvacuation::DlgEvacuation() : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgEvacuation)
{
    ui->setupUi(this);
    DlgShared::Center(*this);
    connect(ui->closeButton, &QPushButton::clicked, this, &DlgEvacuation::OnClose);
    connect(ui->exitButton, &QPushButton::clicked, this, &DlgEvacuation::OnClose);
    connect(&timer, &QTimer::timeout, this, &DlgEvacuation::OnTimeout);
    connect(&pressBalancedTimer, &QTimer::timeout, this, &DlgEvacuation::OnBalancedTimeout);
    pressBalancedTimer.setInterval(5000);
    timer.start(1000);
}

DlgEvacuation::~DlgEvacuation() = default;

void DlgEvacuation::Show()
{
    DlgEvacuation dialog;
    dialog.depotValueOpen = IsDepotFilled();
    tavorDev.SetValve(TavorDev::VALVE_DEPOT, dialog.depotValueOpen);
    tavorDev.SetValve(TavorDev::VALVE_MAIN, true);
    dialog.exec();
    tavorDev.SetValve(TavorDev::VALVE_MAIN, false);
    tavorDev.SetValve(TavorDev::VALVE_DEPOT, false);
}

void DlgEvacuation::OnTimeout()
{
    if (depotValueOpen && !IsDepotFilled()) {
        depotValueOpen = false;
        tavorDev.SetValve(TavorDev::VALVE_DEPOT, false);
    }
    if (!DlgInnerPressWarning::InnerPressureBalanced()) {
        if (!pressBalancedTimer.isActive()) {
            ui->exitButtonStack->setCurrentIndex(PAGE_ABORT);
        }
        pressBalancedTimer.start();
    }
    ui->pressValue->setText(PrintPressure(tavorDev.GetPressure(TavorDev::PRESSENS_OPERATION)));
    ui->animStack->setCurrentIndex(1 - ui->animStack->currentIndex());
}

void DlgEvacuation::OnBalancedTimeout()
{
    if (DlgInnerPressWarning::InnerPressureBalanced()) {
        ui->exitButtonStack->setCurrentIndex(PAGE_CLOSE);
        pressBalancedTimer.stop();
    }
}

void DlgEvacuation::OnClose()
{
    const bool balanced = DlgInnerPressWarning::InnerPressureBalanced() && !pressBalancedTimer.isActive();
    if (balanced
        || DlgQuestion::Show(tr("Die Druckverhältnisse im Inneren des Gerätes sind noch unausgeglichen."
                                "<p><b>Evakuierung trozdem Abbrechen?</b>"),
                             DlgQuestion::YES_NO, DlgQuestion::REJECT_20)) {
        close();
    }
}
