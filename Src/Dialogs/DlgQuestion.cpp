#include "Dialogs/DlgQuestion.h"

#include "Dialogs/DlgShared.h"
#include "ui_DlgQuestion.h"

DlgQuestion::DlgQuestion(const QString& text, Option option, TimeoutOpt toOpt)
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgQuestion), timeoutOpt(toOpt)
{
    ui->setupUi(this);
    ui->body->setText(text);
    Resize();
    DlgShared::Center(*this);
    ui->buttonAccept->setText(option == YES_NO ? tr("Ja") : tr("Ok"));
    ui->buttonReject->setText(option == YES_NO ? tr("Nein") : tr("Abbrechen"));
    connect(ui->buttonAccept, &QPushButton::clicked, this, &DlgQuestion::OnExitButton);
    connect(ui->buttonReject, &QPushButton::clicked, this, &DlgQuestion::OnExitButton);
    connect(&timer, &QTimer::timeout, this, &DlgQuestion::OnTimeout);
    if (timeoutOpt != UNUSED) {
        timer.start(qAbs(static_cast<int>(timeoutOpt)) * 1000);
    }
}

DlgQuestion::~DlgQuestion() = default;

bool DlgQuestion::Show(const QString& text, Option option, TimeoutOpt toOpt)
{
    DlgQuestion dialog(text, option, toOpt);
    return dialog.exec() == Accepted;
}

void DlgQuestion::Resize()
{
    DlgShared::FitHeight(*this, *ui->bodyArea, *ui->body, ui->body->text());
}

void DlgQuestion::OnExitButton()
{
    if (sender() == ui->buttonAccept) {
        accept();
    } else {
        reject();
    }
}

void DlgQuestion::OnTimeout()
{
    if (timeoutOpt < 0) {
        reject();
    } else {
        accept();
    }
}
