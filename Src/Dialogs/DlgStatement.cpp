#include "Dialogs/DlgStatement.h"

#include "Dialogs/DlgShared.h"
#include "ui_DlgStatement.h"

DlgStatement::DlgStatement(const QString& text, TimeoutOpt toOpt, bool alignCenter)
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgStatement)
{
    ui->setupUi(this);
    if (alignCenter) {
        ui->body->setAlignment(Qt::AlignCenter);
    }
    ui->body->setText(text);
    Resize();
    DlgShared::Center(*this);
    connect(ui->buttonClose, &QPushButton::clicked, this, &DlgStatement::close);
    connect(&timer, &QTimer::timeout, this, &DlgStatement::close);
    if (toOpt > UNUSED) {
        timer.start(toOpt * 1000);
    }
}

DlgStatement::~DlgStatement() = default;

void DlgStatement::Show(const QString& text, TimeoutOpt toOpt, bool alignCenter)
{
    DlgStatement dialog(text, toOpt, alignCenter);
    dialog.exec();
}

void DlgStatement::Resize()
{
    DlgShared::FitHeight(*this, *ui->bodyArea, *ui->body, ui->body->text());
}
