#include "Dialogs/DlgInspJobStart.h"

#include "Dialogs/DlgShared.h"
#include "Globals.h"
#include "RRx/RRString.h"
#include "Settings.h"
#include "ui_DlgInspJobStart.h"

namespace {

/// Seconds.
constexpr RR::SInt32 minPassTime = 30;
constexpr RR::SInt32 maxPassTime = 3000;

/// About a tenth of the time.
RR::FixPnt3 PassTimeRaster(RR::FixPnt0 time)
{
    return RasterizeValue(time * 10);
}

}

DlgInspJobStart::DlgInspJobStart() : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgInspJobStart)
{
    ui->setupUi(this);
    DlgShared::Center(*this);
    for (QLabel* label : {ui->labelTypeBDTxt, ui->labelTypeBETxt, ui->labelTypeHTxt, ui->labelTypeITxt}) {
        label->installEventFilter(this);
    }
    // Before anything changes the time, for then the box is to follow at once.
    ui->setSensPassageTime->SetOutputType(RR::FixPnt::FixP0);
    ui->setSensPassageTime->setRange(minPassTime, maxPassTime);
    TakeChoice(settings);
    // A stored time may be out of range, or have no value.
    ui->setSensPassageTime->SetRaster(PassTimeRaster(ui->setSensPassageTime->value()));
    connect(ui->buttonStart, &QPushButton::clicked, this, &DlgInspJobStart::OnExitButton);
    connect(ui->buttonCancel, &QPushButton::clicked, this, &DlgInspJobStart::OnExitButton);
    connect(ui->setFactoryDefaults, &QPushButton::clicked, this, &DlgInspJobStart::OnSetFactoryDefaults);
    connect(ui->setSensPassageTime, &QFixP3SpinBox::textChanged, this, &DlgInspJobStart::OnSensPassageTime);
}

DlgInspJobStart::~DlgInspJobStart() = default;

InspJob DlgInspJobStart::Show()
{
    DlgInspJobStart dialog;
    InspJob job;
    if (dialog.exec() != Accepted) {
        return job;
    }
    job.type = dialog.GetChoice();
    settings.inspJobNo = job.type;
    if (job.type == IJ_H || job.type == IJ_I) {
        settings.inspJobPassTime = RR::INVALID;
        settings.inspJobPasses = 1;
    } else {
        job.passMax = dialog.ui->setInspJobPasses->value();
        job.passTime = RR::FixPnt0(dialog.ui->setSensPassageTime->value()).ToInteger();
        settings.inspJobPasses = job.passMax;
        settings.inspJobPassTime = job.passTime;
    }
    return job;
}

bool DlgInspJobStart::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        static_cast<QCheckBox*>(watched->parent())->click();
    }
    return QDialog::eventFilter(watched, event);
}

void DlgInspJobStart::TakeChoice(const Settings& from)
{
    QCheckBox* box = ui->chooseInspJobBD;
    switch (from.inspJobNo) {
    case IJ_BE: box = ui->chooseInspJobBE; break;
    case IJ_H: box = ui->chooseInspJobH; break;
    case IJ_I: box = ui->chooseInspJobI; break;
    default: break;
    }
    box->setChecked(true);
    ui->setInspJobPasses->setValue(from.inspJobPasses);
    ui->setSensPassageTime->setValue(from.inspJobPassTime);
}

InspJobType DlgInspJobStart::GetChoice() const
{
    if (ui->chooseInspJobBE->isChecked()) {
        return IJ_BE;
    }
    if (ui->chooseInspJobH->isChecked()) {
        return IJ_H;
    }
    return ui->chooseInspJobI->isChecked() ? IJ_I : IJ_BD;
}

void DlgInspJobStart::OnExitButton()
{
    if (sender() == ui->buttonStart) {
        accept();
    } else {
        reject();
    }
}

void DlgInspJobStart::OnSensPassageTime(const QString& text)
{
    QString number = text;
    if (number.endsWith(ui->setSensPassageTime->suffix())) {
        number.chop(ui->setSensPassageTime->suffix().size());
    }
    RR::FixPnt0 time;
    if (RR::String::Parse(number.toLatin1().constData(), time)) {
        ui->setSensPassageTime->SetRaster(PassTimeRaster(time));
    }
}

void DlgInspJobStart::OnSetFactoryDefaults()
{
    TakeChoice(Settings::def);
}
