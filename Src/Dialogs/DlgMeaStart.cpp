#include "Dialogs/DlgMeaStart.h"

#include "Dialogs/DlgShared.h"
#include "Settings.h"
#include "ui_DlgMeaStart.h"

DlgMeaStart::DlgMeaStart() : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgMeaStart)
{
    const struct {
        const char* text;
        int minutes;
    } intervals[] = {{"1 min", 1}, {"5 min", 5}, {"10 min", 10}, {"15 min", 15}, {"30 min", 30}, {"45 min", 45},
                     {"1 h", 60}, {"1:30 h", 90}, {"2 h", 120}, {"2:30 h", 150}, {"3 h", 180}, {"4 h", 240},
                     {"5 h", 300}, {"6 h", 360}, {"9 h", 540}, {"12 h", 720}, {"24 h", 1440}};
    const auto fill = [&intervals](QComboBox& box, int minutes) {
        int chosen = -1;
        for (const auto& interval : intervals) {
            if (chosen < 0 && interval.minutes >= minutes) {
                chosen = box.count();
            }
            box.addItem(QLatin1String(interval.text), interval.minutes);
        }
        box.setCurrentIndex(chosen < 0 ? box.count() - 1 : chosen);
    };

    ui->setupUi(this);
    DlgShared::Center(*this);
    for (const QPushButton* button : {ui->buttonStartB, ui->buttonStartC, ui->buttonCancel}) {
        connect(button, &QPushButton::clicked, this, &DlgMeaStart::OnButton);
    }
    for (const QCheckBox* box : {ui->autoPumpBack, ui->autoMeaBEnabled, ui->autoMeaCEnabled}) {
        connect(box, &QCheckBox::stateChanged, this, &DlgMeaStart::OnAutoChanged);
    }

    ui->autoPumpBack->setChecked(settings.autoPumpBack);
    ui->autoMeaBEnabled->setEnabled(settings.autoPumpBack);
    ui->autoMeaBEnabled->setChecked(settings.autoMeaBEnabled);
    ui->autoMeaBFrame->setEnabled(settings.autoMeaBEnabled);
    ui->autoMeaBCount->setValue(settings.autoMeaBCount);
    fill(*ui->autoMeaBInterval, settings.autoMeaBInterval);

    ui->autoMeaCEnabled->setChecked(settings.autoMeaCEnabled);
    ui->autoMeaCFrame->setEnabled(settings.autoMeaCEnabled);
    ui->autoMeaCCount->setValue(settings.autoMeaCCount);
    fill(*ui->autoMeaCInterval, settings.autoMeaCInterval);
}

DlgMeaStart::~DlgMeaStart()
{
    settings.autoPumpBack = ui->autoPumpBack->isChecked();
    settings.autoMeaBEnabled = ui->autoMeaBEnabled->isChecked();
    settings.autoMeaBCount = ui->autoMeaBCount->value();
    settings.autoMeaBInterval = ui->autoMeaBInterval->currentData().toInt();
    settings.autoMeaCEnabled = ui->autoMeaCEnabled->isChecked();
    settings.autoMeaCCount = ui->autoMeaCCount->value();
    settings.autoMeaCInterval = ui->autoMeaCInterval->currentData().toInt();
}

void DlgMeaStart::Show(JobStateMachine::Type& type)
{
    DlgMeaStart dialog;
    dialog.exec();
    type = dialog.type;
}

void DlgMeaStart::OnAutoChanged()
{
    if (sender() == ui->autoPumpBack) {
        // Without pump back the storage compartment would be full after the first of a series.
        const bool pumpBack = ui->autoPumpBack->isChecked();
        ui->autoMeaBEnabled->setEnabled(pumpBack);
        if (!pumpBack) {
            ui->autoMeaBEnabled->setChecked(false);
        }
        ui->autoMeaBFrame->setEnabled(false);
    } else if (sender() == ui->autoMeaBEnabled) {
        ui->autoMeaBFrame->setEnabled(ui->autoMeaBEnabled->isChecked());
    } else {
        ui->autoMeaCFrame->setEnabled(ui->autoMeaCEnabled->isChecked());
    }
}

void DlgMeaStart::OnButton()
{
    if (sender() == ui->buttonStartB) {
        type = JobStateMachine::TYPE_B;
    } else if (sender() == ui->buttonStartC) {
        type = JobStateMachine::TYPE_C;
    } else {
        type = JobStateMachine::TYPE_0;
    }
    close();
}
