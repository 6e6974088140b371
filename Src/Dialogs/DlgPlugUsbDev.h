#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

#include "RRx/RRString.h"
#include "RRx/RRTypeDefs.h"

class Ui_DlgPlugUsbDev;

/// Waits for a USB stick and mounts it.
class DlgPlugUsbDev : public QDialog {
    Q_OBJECT

public:
    /// True if a stick is mounted at `usbMntPoint`, which is empty otherwise. The user is asked for a stick if none is
    /// plugged, and told of a failure, but not of his own refusal.
    static bool Show(RR::String& usbMntPoint);
    /// The device node of a plugged stick, a partition before a bare device; empty if there is none.
    static RR::String GetDevNode();

private slots:
    void OnTimeout();

private:
    DlgPlugUsbDev();
    ~DlgPlugUsbDev() override;

    std::unique_ptr<Ui_DlgPlugUsbDev> ui;
    QTimer timer;
    /// Seconds left.
    RR::SInt32 timeout;
    RR::String devNode;
};
