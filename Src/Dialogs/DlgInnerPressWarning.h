#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

class Ui_DlgInnerPressWarning;

/// Stands in the way while the pressure inside the instrument is out of balance with the air around it.
class DlgInnerPressWarning : public QDialog {
    Q_OBJECT

public:
    /// Whether P1 and P3 lie close enough to the air pressure; P1 may lie above it. A sensor without a reading
    /// doesn't count as an imbalance.
    static bool InnerPressureBalanced();
    /// Sends the sensor unit to its home positions first. True if the pressure is in balance, or comes into it;
    /// false if the user wants to shut down.
    static bool Show();

private slots:
    void OnTimeout();
    void OnShutDown();

private:
    DlgInnerPressWarning();
    ~DlgInnerPressWarning() override;

    std::unique_ptr<Ui_DlgInnerPressWarning> ui;
    QTimer timer;
    /// Runs while the pressure is in balance.
    QTimer closingDelayTimer;
};
