#pragma once

#include "JobStateMachine.h"
#include "Mea.h"

#include <QMainWindow>
#include <QTimer>
#include <memory>

namespace Ui {
class WndMain;
}

/// The one main window. It owns the flow of work: connects to the sensor unit, starts the jobs, and
/// stores what a measurement has recorded.
class WndMain : public QMainWindow {
    Q_OBJECT

public:
    WndMain(QWidget* parent, Qt::WindowFlags flags);
    ~WndMain() override;

    /// Shows `msg` in the status line for `time` seconds, 0 to 3600. With the invalid value the message
    /// stands until the next one.
    void ShowStatusBarMsg(const QString& msg, RR::SInt32 time);

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void On2ndStage();
    void OnReconnectTavorDev();
    void OnTavorDevConnected();
    void OnTavorDevDisconnected();
    void OnTavorDevLost();
    void OnTavorDevRecovered();
    void OnTavorDevChanged();
    void OnShutdown();

    void OnStartMea();
    void OnStopJob();
    void OnJobSTMStarted();
    void OnJobSTMStopped();

private:
    void CheckMemoryCard();
    void ConnectSignals();
    void CheckFirmware();
    void SynchronizeClocks();
    void UpdateSensors();

    bool OnMeasurementStopped();
    bool OnTransferStopped();
    bool OnPreparationStopped();
    void SaveMeasurement(const Mea& mea);

    std::unique_ptr<Ui::WndMain> ui;
    QTimer statusMessageTimer;
    JobStateMachine::Snapshot jobSnapshot;
};
