#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

class Ui_DlgShutdown;

/// The countdown to switching off. It begins again while another window is in front of it.
class DlgShutdown : public QDialog {
    Q_OBJECT

public:
    /// True if the instrument is to shut down.
    static bool Show();
    /// True from the start of the countdown on, unless the user cancels it. What runs on timers then rests.
    static bool IsShuttingDown();

protected:
    bool event(QEvent* event) override;

private slots:
    void OnTimeout();
    void OnSkipButton();
    void OnCancelButton();

private:
    DlgShutdown();
    ~DlgShutdown() override;

    void ShowDelay();

    std::unique_ptr<Ui_DlgShutdown> ui;
    QTimer timer;
    /// Seconds left.
    int delay;
};
