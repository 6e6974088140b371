#include "Dialogs/DlgError.h"

#include "Dialogs/DlgShared.h"
#include "ui_DlgError.h"

namespace {

/// What stands above and below the text, in pixels.
constexpr int extraHeight = 180;

}

DlgError::DlgError(const QString& text, const QString& errNoText)
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgError)
{
    ui->setupUi(this);
    ui->errNoText->setText(errNoText);
    DlgShared::FitSize(*this, *ui->bodyArea, *ui->body, text, extraHeight);
    DlgShared::Center(*this);
    connect(ui->buttonClose, &QPushButton::clicked, this, &DlgError::close);
}

DlgError::~DlgError() = default;

void DlgError::Show(const QString& text, const QString& errNoText)
{
    DlgError dialog(text, errNoText);
    dialog.exec();
}
