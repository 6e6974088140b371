#include "Dialogs/DlgShutdown.h"

#include "Dialogs/DlgShared.h"
#include "ui_DlgShutdown.h"

#include <QApplication>
#include <QEvent>

namespace {

constexpr int fullDelay = 10;
bool isShuttingDown = false;

}

DlgShutdown::DlgShutdown()
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgShutdown), delay(fullDelay)
{
    ui->setupUi(this);
    ShowDelay();
    connect(ui->buttonSkip, &QPushButton::clicked, this, &DlgShutdown::OnSkipButton);
    connect(ui->buttonCancel, &QPushButton::clicked, this, &DlgShutdown::OnCancelButton);
    connect(&timer, &QTimer::timeout, this, &DlgShutdown::OnTimeout);
    timer.start(1000);
}

DlgShutdown::~DlgShutdown() = default;

bool DlgShutdown::Show()
{
    DlgShutdown dialog;
    isShuttingDown = true;
    DlgShared::Center(dialog);
    dialog.exec();
    isShuttingDown = dialog.delay == 0;
    return isShuttingDown;
}

bool DlgShutdown::IsShuttingDown()
{
    return isShuttingDown;
}

bool DlgShutdown::event(QEvent* event)
{
    // Not every window system makes it the active window again when the dialog above it has closed.
    if (event->type() == QEvent::WindowUnblocked) {
        activateWindow();
    }
    return QDialog::event(event);
}

void DlgShutdown::ShowDelay()
{
    ui->labelTime->setText(QString::number(delay));
}

void DlgShutdown::OnTimeout()
{
    if (QApplication::activeWindow() != this) {
        delay = fullDelay;
    }
    if (delay == 0) {
        close();
        return;
    }
    --delay;
    ShowDelay();
}

void DlgShutdown::OnSkipButton()
{
    delay = 0;
    close();
}

void DlgShutdown::OnCancelButton()
{
    close();
}
