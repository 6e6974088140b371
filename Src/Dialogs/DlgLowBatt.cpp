#include "Dialogs/DlgLowBatt.h"

#include "Dialogs/DlgShared.h"
#include "ui_DlgLowBatt.h"

namespace {

/// What stands above and below the text, in pixels.
constexpr int extraHeight = 220;

}

DlgLowBatt::DlgLowBatt(const QString& text, TimeoutOpt toOpt, bool alignCenter)
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgLowBatt)
{
    ui->setupUi(this);
    if (alignCenter) {
        ui->body->setAlignment(Qt::AlignCenter);
    }
    DlgShared::FitSize(*this, *ui->bodyArea, *ui->body, text, extraHeight);
    DlgShared::Center(*this);
    connect(ui->buttonClose, &QPushButton::clicked, this, &DlgLowBatt::close);
    connect(&timer, &QTimer::timeout, this, &DlgLowBatt::close);
    if (toOpt > UNUSED) {
        timer.start(toOpt * 1000);
    }
}

DlgLowBatt::~DlgLowBatt() = default;

void DlgLowBatt::Show(const QString& text, TimeoutOpt toOpt, bool alignCenter)
{
    DlgLowBatt dialog(text, toOpt, alignCenter);
    dialog.exec();
}
