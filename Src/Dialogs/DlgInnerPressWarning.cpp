#include "Dialogs/DlgInnerPressWarning.h"

#include "Config.h"
#include "Dialogs/DlgShared.h"
#include "PrintIt.h"
#include "TavorDev.h"
#include "ui_DlgInnerPressWarning.h"

using RR::FixPnt3;

namespace {

bool HasValue(FixPnt3 value)
{
    return value.Eject() != RR::INVALID;
}

/// In bar, or without value.
FixPnt3 AirPressure()
{
    const FixPnt3 hPa = tavorDev.GetAirPressure();
    return HasValue(hPa) ? hPa / 1000 : hPa;
}

}

DlgInnerPressWarning::DlgInnerPressWarning()
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgInnerPressWarning)
{
    ui->setupUi(this);
    DlgShared::Center(*this);
    connect(ui->buttonShutDown, &QPushButton::clicked, this, &DlgInnerPressWarning::OnShutDown);
    connect(&timer, &QTimer::timeout, this, &DlgInnerPressWarning::OnTimeout);
    connect(&closingDelayTimer, &QTimer::timeout, this, &DlgInnerPressWarning::accept);
    closingDelayTimer.setInterval(5000);
    timer.start(1000);
}

DlgInnerPressWarning::~DlgInnerPressWarning() = default;

bool DlgInnerPressWarning::InnerPressureBalanced()
{
    const FixPnt3 inlet = tavorDev.GetPressure(TavorDev::PRESSENS_INLET)[Pressure::BAR];
    const FixPnt3 operation = tavorDev.GetPressure(TavorDev::PRESSENS_OPERATION)[Pressure::BAR];
    const FixPnt3 air = AirPressure();
    if (!HasValue(inlet) || !HasValue(operation) || !HasValue(air)) {
        return true;
    }
    return inlet - air > CFG::SysAirPressDevMin && operation - air > CFG::SysAirPressDevMin
        && operation - air < CFG::SysAirPressDevMax;
}

bool DlgInnerPressWarning::Show()
{
    DlgInnerPressWarning dialog;
    tavorDev.HomePositions();
    return InnerPressureBalanced() || dialog.exec() == Accepted;
}

void DlgInnerPressWarning::OnTimeout()
{
    if (!InnerPressureBalanced()) {
        closingDelayTimer.stop();
    } else if (!closingDelayTimer.isActive()) {
        closingDelayTimer.start();
    }
    const Pressure operation = tavorDev.GetPressure(TavorDev::PRESSENS_OPERATION);
    const FixPnt3 air = AirPressure();
    QString diagnosis;
    if (!HasValue(operation[Pressure::BAR]) || !HasValue(air)) {
        diagnosis = tr(" ... ungültig");
    } else if (operation[Pressure::BAR] - air < CFG::SysAirPressDevMin) {
        diagnosis = tr("(zu niedrig)");
    } else if (operation[Pressure::BAR] - air > CFG::SysAirPressDevMax) {
        diagnosis = tr("(zu hoch)");
    }
    ui->pressValue->setText(PrintPressure(operation));
    ui->pressDiagnosis->setText(diagnosis);
}

void DlgInnerPressWarning::OnShutDown()
{
    reject();
}
