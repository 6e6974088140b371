#include "Dialogs/DlgMeaFollowUp.h"

#include "Dialogs/DlgShared.h"
#include "ui_DlgMeaFollowUp.h"

DlgMeaFollowUp::DlgMeaFollowUp() : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgMeaFollowUp)
{
    ui->setupUi(this);
    const QString limit = DlgShared::WithPumpBackLimit(tr("(max. %1 %2 abs.)"));
    ui->labelTypePD->setText(limit);
    ui->labelTypePE->setText(limit);
    DlgShared::Center(*this);
    for (const QPushButton* button : {ui->buttonStartMea, ui->buttonStartD, ui->buttonStartE, ui->buttonQuit}) {
        connect(button, &QPushButton::clicked, this, &DlgMeaFollowUp::OnButton);
    }
}

DlgMeaFollowUp::~DlgMeaFollowUp() = default;

JobStateMachine::Type DlgMeaFollowUp::Show()
{
    DlgMeaFollowUp dialog;
    dialog.exec();
    return dialog.type;
}

void DlgMeaFollowUp::OnButton()
{
    if (sender() == ui->buttonStartMea) {
        type = JobStateMachine::TYPE_B;
    } else if (sender() == ui->buttonStartD) {
        type = JobStateMachine::TYPE_D;
    } else if (sender() == ui->buttonStartE) {
        type = JobStateMachine::TYPE_E;
    } else {
        type = JobStateMachine::TYPE_0;
    }
    close();
}
