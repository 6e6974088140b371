#include "Dialogs/DlgEmptyDepot.h"

#include "Dialogs/DlgShared.h"
#include "ui_DlgEmptyDepot.h"

DlgEmptyDepot::DlgEmptyDepot() : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgEmptyDepot)
{
    ui->setupUi(this);
    const QString limit = DlgShared::WithPumpBackLimit(tr("(max. %1 %2 abs.)"));
    ui->labelTypePD->setText(limit);
    ui->labelTypePE->setText(limit);
    DlgShared::Center(*this);
    for (const QPushButton* button : {ui->buttonStartD, ui->buttonStartE, ui->buttonCancel}) {
        connect(button, &QPushButton::clicked, this, &DlgEmptyDepot::OnButton);
    }
}

DlgEmptyDepot::~DlgEmptyDepot() = default;

void DlgEmptyDepot::Show(JobStateMachine::Type& type)
{
    DlgEmptyDepot dialog;
    dialog.exec();
    type = dialog.type;
    if (dialog.ui->chooseMeaTypeMod->isChecked()) {
        if (type == JobStateMachine::TYPE_D) {
            type = JobStateMachine::TYPE_K;
        } else if (type == JobStateMachine::TYPE_E) {
            type = JobStateMachine::TYPE_L;
        }
    }
}

void DlgEmptyDepot::OnButton()
{
    if (sender() == ui->buttonStartD) {
        type = JobStateMachine::TYPE_D;
    } else if (sender() == ui->buttonStartE) {
        type = JobStateMachine::TYPE_E;
    } else {
        type = JobStateMachine::TYPE_0;
    }
    close();
}
