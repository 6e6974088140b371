#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

class Ui_DlgEvacuation;

/// Holds the valves open while a pump at port 1 evacuates the instrument. To be used while no job runs.
class DlgEvacuation : public QDialog {
    Q_OBJECT

public:
    /// Returns when the evacuation is over; V1 and V4 are then closed.
    static void Show();

private slots:
    void OnTimeout();
    void OnBalancedTimeout();
    void OnClose();

private:
    DlgEvacuation();
    ~DlgEvacuation() override;

    std::unique_ptr<Ui_DlgEvacuation> ui;
    QTimer timer;
    /// Runs until the pressure has been in balance for its whole time.
    QTimer pressBalancedTimer;
    /// V4 is open.
    bool depotValueOpen = false;
};
