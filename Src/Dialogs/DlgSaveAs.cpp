#include "Dialogs/DlgSaveAs.h"

#include "Dialogs/DlgShared.h"
#include "ui_DlgSaveAs.h"

DlgSaveAs::DlgSaveAs(const QString& header, MeaTransFormat format, TimeoutOpt toOpt)
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgSaveAs), timeoutOpt(toOpt)
{
    ui->setupUi(this);
    ui->headerTxt->setText(header);
    (format == MTF_EXPORT_CSV ? ui->checkBoxExportCSV : ui->checkBoxSaveNative)->setChecked(true);
    DlgShared::Center(*this);
    connect(ui->buttonAccept, &QPushButton::clicked, this, &DlgSaveAs::OnExitButton);
    connect(ui->buttonReject, &QPushButton::clicked, this, &DlgSaveAs::OnExitButton);
    connect(&timer, &QTimer::timeout, this, &DlgSaveAs::OnTimeout);
    if (timeoutOpt != UNUSED) {
        timer.start(qAbs(static_cast<int>(timeoutOpt)) * 1000);
    }
}

DlgSaveAs::~DlgSaveAs() = default;

bool DlgSaveAs::Show(const QString& header, MeaTransFormat& format, TimeoutOpt toOpt)
{
    DlgSaveAs dialog(header, format, toOpt);
    if (dialog.exec() != Accepted) {
        return false;
    }
    format = dialog.ui->checkBoxExportCSV->isChecked() ? MTF_EXPORT_CSV : MTF_SAVE_NATIVE;
    return true;
}

void DlgSaveAs::OnExitButton()
{
    if (sender() == ui->buttonAccept) {
        accept();
    } else {
        reject();
    }
}

void DlgSaveAs::OnTimeout()
{
    if (timeoutOpt < 0) {
        reject();
    } else if (timeoutOpt > 0) {
        accept();
    }
}
