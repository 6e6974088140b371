#pragma once

// First: moc of Qt 6.4 stumbles over the standard headers that RR includes unless Qt's are known.
#include <QMainWindow>
#include <QTimer>

#include "JobStateMachine.h"
#include "Mea.h"
#include "MeaTable.h"
#include "TavorDev.h"
#include "Types.h"

#include <memory>

class QGridLayout;
class QLabel;
class QModelIndex;
class Ui_WndMain;

/// The one main window. It shows the instrument, watches over it, and owns the flow of work: which job starts, and
/// what becomes of what it measured. All slots run on the event loop's thread.
class WndMain : public QMainWindow {
    Q_OBJECT

public:
    WndMain(QWidget* parent, Qt::WindowFlags flags);
    ~WndMain() override;

    /// Shows `msg` in the status line for `time` seconds, 0 to 3600. With the invalid value the message
    /// stands until the next one, or until the time of an earlier one is over.
    void ShowStatusBarMsg(const QString& msg, RR::SInt32 time);

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    // Start and stop of the program, the sensor unit's coming and going.
    void On2ndStage();
    void OnReconnectTavorDev();
    void OnTavorDevConnected();
    void OnTavorDevDisconnected();
    void OnTavorDevLost();
    void OnTavorDevRecovered();
    void OnTavorDevChanged();
    void OnShutdown();

    // Supervision and the live picture.
    void OnSecTimeout();
    void OnSensSupervisionTimeout();
    void OnStatusMessageTimeout();
    void OnToggleSensors();
    void OnToggleView();
    void OnValve(bool checked);
    void OnFan1(bool checked);
    void OnCompressor(bool checked);

    // Jobs.
    void OnStartMea();
    void OnStartJobD();
    void OnStartJobE();
    void OnStartInspJob();
    void OnEmptyDepot();
    void OnStopJob();
    void OnJobSTMStarted();
    void OnJobSTMStopped();
    void OnSysEvacuation();

    // The other tabs.
    void OnEquipControls();

private:
    // Construction.
    void ConnectTavorDev();
    void ConnectJobSTM();
    void ConnectControls();
    void LockUnservedControls();
    void SetupPressureBoxes();
    void FillUnitSelectors();
    void ShowFirstPages();
    void CheckMemoryCard();
    void ApplyInspectionMode();
    void EquipControls();

    // Second stage of the start.
    void CheckFirmware();
    void SynchronizeClocks();
    void WarnOfSensorService();

    void UpdateSensors();
    // These tell whether they have closed the window.
    bool ShutsOffTooHot(const Temperature& reading);
    bool ShutsDownUnbalanced();
    bool ShutsOffBatteryEmpty(const TavorDev::SupplyInfo& supply);
    // False if the user gives up; the window is closed then.
    bool WarnOfInnerPressure();

    void UpdateChart();
    void UpdateSensorValues(QLabel* const* labels);
    void PlaceSensorOutputFields();
    void PlaceNoSensors(QGridLayout* chartGrid, QGridLayout* sensorGrid);
    // `names` by slot; `count` of the fields shown.
    void PlaceSensorView(QGridLayout* grid, const QString* names, int count);
    void PlaceChartView(QGridLayout* grid, const QString* names, int count);

    void CountDownSeries();
    void ShowSupply(const TavorDev::SupplyInfo& supply);
    void ShowBusy();
    void StartNextOfSeries();
    void CheckCalibrationGas();
    void ShowStatusTime(const RR::DateTime& dt);

    void UpdateMeaTab();
    void OnMeaTable(const QModelIndex& index);
    void ShowMeaPreview(const MeaHeader* header);

    // Start of jobs.
    bool PlanMeasurement(JobStateMachine::Type type);
    bool SetMeasurementName();
    void StartInspectionPass();
    void StartAfterBalance(JobStateMachine::Type type, void (WndMain::*again)());
    QString ShowStartedJob(JobStateMachine::Type type);
    QString StopQuestion() const;
    void StopSeries();

    // End of jobs. Those that return a bool tell whether the window is to return to rest.
    bool HasProcessEnded();
    bool OnMeasurementStopped();
    bool DealWithGas(const Mea& mea, RR::FixPnt3 depotBar);
    bool OnPumpBackStopped();
    bool OnEmptyingStopped();
    bool OnBalanceStopped();
    bool OnFlushingStopped();
    bool OnPurificationStopped();
    void AskForFollowUp();
    void TellBalanced();
    void EndSequence();
    bool IsMeasuringSequence() const;
    void ReturnToRest();
    void SaveMeasurement(const Mea& mea);
    void DeleteOldestMeasurements();

    static constexpr int fieldNum = 6; ///< of the gas sensors
    static constexpr int none = RR::INVALID;
    static constexpr int meaCapacityMax = 500; ///< stored measurements

    std::unique_ptr<Ui_WndMain> ui;
    QTimer secTimer;
    QTimer sensSupervisionTimer;
    QTimer statusMessageTimer;
    MeaTable meaTable;
    bool equipCompleted = false; ///< the settings tab shows current values; before, its handlers do nothing
    // One slot a sensor field, null while there is no such field.
    QLabel* chartViewOutputName[fieldNum] = {};
    QLabel* chartViewOutputValue[fieldNum] = {};
    QLabel* sensorViewOutputName[fieldNum] = {};
    QLabel* sensorViewOutputValue[fieldNum] = {};
    JobStateMachine::Snapshot jobSnapshot; ///< of the job that stopped last
    InspJob inspJob;                       ///< the test sequence in progress
    bool innerPressureWarned = false;      ///< the warning is open
    bool evacuationMode = false;           ///< the evacuation dialog is open
    bool doAutoPumpBack = false;           ///< the gas goes back when the present job F has ended
    JobStateMachine::Type autoMeaType = JobStateMachine::TYPE_0; ///< of a series of measurements; TYPE_0: none
    int autoMeaActualNum = none;           ///< from 1
    int autoMeasMaxNum = none;
    int autoMeaInterval = none;            ///< seconds
    int autoMeaPause = none;               ///< seconds left of the pause between two measurements
};
