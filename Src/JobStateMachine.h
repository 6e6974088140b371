#pragma once

// Qt first: behind the standard headers that the others bring in, moc 6.4 stumbles over <concepts>.
#include <QObject>
#include <QString>
#include <QTimer>
#include <initializer_list>

#include "Mea.h"
#include "RRx/RRArray.h"
#include "RRx/RRDateTime.h"
#include "RRx/RRFixPnt.h"
#include "TavorDev.h"
#include "Types.h"

/// Runs all gas handling as jobs, one at a time. A job is a script of numbered phases that commands the valves
/// and the compressor of the sensor unit and compares its readings with limits; one step of it runs each second.
/// Lives on the thread of the event loop. A job ends with exactly one stop cause, and whatever the cause, the
/// sensor unit is then sent to its home positions.
class JobStateMachine : public QObject {
    Q_OBJECT

public:
    /// The job letters, as they stand in the log and in a record.
    enum Type : RR::SInt32 {
        TYPE_0 = '0',   ///< no job
        TYPE_B = 'B',   ///< measurement, the gas goes into the depot
        TYPE_C = 'C',   ///< measurement, the gas leaves at port 3
        TYPE_D = 'D',   ///< pump back: the depot through port 1
        TYPE_E = 'E',   ///< emptying: the depot through port 2
        TYPE_F = 'F',   ///< preparation: pressure balance of the gas path
        TYPE_H = 'H',   ///< one pressure flushing of the sensor path
        TYPE_J = 'J',   ///< self-purification: up to ten flushings
        TYPE_K = 'K',   ///< D with an external storage compartment
        TYPE_L = 'L',   ///< E with an external storage compartment
        TYPE_P = 'P',   ///< self-tests
        TYPE_Q = 'Q',
        TYPE_R = 'R'
    };

    /// Why a job ended: by the short code that service and screen show, and by name.
    enum StopCause : RR::SInt32 {
        UNDEFINED = -1,     ///< a script or primitive was used outside its bounds
        H00, H01,
        E02, E03, E04, E05, E06, E07, E08, E09, E10, E11, E12, E13,
        E14, E15, E16, E17, E18, E19, E20, E21, E22, E23, E24, E25,
        E50 = 50, E51, E52, E53, E54, E55, E56, E57, E58, E59, E60, E61, E62, E63,

        COMPLETED = H00, EXPLICIT,
        VALVE_FAILURE = E02, COMPRESSOR_FAILURE, PRESSURE_FAILURE, DEPOT_FAILURE, LACK_OF_DEPOT_SPACE,
        INLET_UNDERPRESSURE = E07, INLET_OVERPRESSURE, INLET_NO_PUMPBACK, BACK_UNDERPRESSURE, BACK_OVERPRESSURE,
        OPER_UNDERPRESSURE = E12, OPER_OVERPRESSURE, DEPOT_UNDERPRESSURE, DEPOT_OVERPRESSURE,
        PUMP_BACK_TIMEOUT = E16, PRESS_BALANCE_TIMEOUT, UNUSED, HUMIDITY_FAILURE, PREPARATION_FAILED, UNUSED_2,
        DEPOT_EMPTY = E22, TEST_PRESS_GEN_TIMEOUT, TEST_PRESS_REL_TIMEOUT, SO2_CONTAMINATION,
        SELFTEST_E50 = E50, SELFTEST_E51, SELFTEST_E52, SELFTEST_E53, SELFTEST_E54, SELFTEST_E55, SELFTEST_E56,
        SELFTEST_E57, SELFTEST_E58, SELFTEST_E59, SELFTEST_E60, SELFTEST_E61, SELFTEST_E62, SELFTEST_E63
    };

    enum StopCategory { PROPER_TERMINATION = 0, COMPONENT_FAILURE = 1, BOUNDARY_VIOLATION = 2 };
    /// Comparisons are strict.
    enum Compare { LESS = 0, GREATER = 1 };

    /// What remains of a job after its end.
    struct Snapshot {
        Type type = TYPE_0;
        StopCause stopCause = UNDEFINED;
        StopCategory stopCategory = PROPER_TERMINATION;
        RR::SInt32 lastPhase = RR::INVALID;
        Pressure pressure[TavorDev::PRESSENS_NUM];  ///< last read, by `TavorDev::PressureSensor`
    };

    JobStateMachine();

    /// Ignored while a job runs, and for a letter that is no job.
    void Start(Type t);
    /// Ends the job with `EXPLICIT`. A measurement with more than half of its passage time behind it is recorded.
    void Stop();

    bool IsRunning() const { return phase != RR::INVALID; }
    Type GetType() const { return type; }
    RR::SInt32 GetPhase() const { return phase; }           ///< no value when idle
    RR::SInt32 GetProgress() const { return progress; }     ///< percent
    RR::Time GetElapsed() const;
    RR::Time GetRemaining() const;                          ///< of the planned duration; 0 when idle
    Snapshot GetSnapshot() const { return snapshot; }
    /// The record of the last measurement job, empty if that didn't come to one.
    const Mea& GetMea() const { return mea; }
    /// What job R left to be shown beside it.
    QString GetJobOutputNote() const { return jobOutputNote; }

    /// In the current language; empty for a proper end.
    static QString PrintStopCause(StopCause stopCause);
    /// "B04", and with a cause other than `UNDEFINED` "B04-08".
    static QString PrintStateTag(Type type, RR::SInt32 phase, StopCause stopCause);

signals:
    // Connect them queued: only then may a slot start the next job.
    void Started();
    void Stopped();
    void Progress(int percent);

private slots:
    void OnSecTimeout();

private:
    struct Job;
    static const Job* FindJob(Type t);
    void LoadTables(const Job& job);
    RR::SInt32 PlannedDuration(Type t);
    void Terminate(StopCause cause);
    void ResetData();

    // The scripts, each one step by `phase`.
    void DoB();
    void DoBFlow();
    void DoC();
    void DoCFlow();
    void DoD();
    void DoE();
    void DoF();
    void DoH();
    void DoJ();
    void DoJVerdict();
    void DoK();
    void DoL();
    void DoP();
    void DoPOutlet();
    void DoQ();
    void DoQTopUp();
    void DoQDrying();
    void DoR();
    void DoREndPressure();
    void CheckPumpStart();
    void PumpUntilEmpty(std::initializer_list<TavorDev::Valve> path);

    // Names of the scripts. VL is a seventh valve that the unit switches as its first fan.
    static constexpr auto V1 = TavorDev::VALVE_V1, V2 = TavorDev::VALVE_V2, V3 = TavorDev::VALVE_V3,
                          V4 = TavorDev::VALVE_V4, V5 = TavorDev::VALVE_V5;
    static constexpr auto P1 = TavorDev::PRESSENS_P1, P2 = TavorDev::PRESSENS_P2, P3 = TavorDev::PRESSENS_P3,
                          P4 = TavorDev::PRESSENS_P4, P5 = TavorDev::PRESSENS_P5;

    // Steps. They do nothing while idle and the checks are then false, so a script runs on harmlessly when one
    // of them has ended the job.
    void SetValve(TavorDev::Valve valve, bool open);
    void SetValveL(bool open);
    void SetCompressor(bool start);
    void Open(std::initializer_list<TavorDev::Valve> valves);
    void Close(std::initializer_list<TavorDev::Valve> valves);
    void GotoPhase(RR::SInt32 phase);
    /// The next step runs `pause` ticks from now; 0, 1 and more than 3600 mean the next tick.
    void NextPhaseAfterPause(RR::SInt32 pause);
    void GotoPhaseAfterPause(RR::SInt32 pause, RR::SInt32 phase);
    /// Supervision time in active ticks, 0 to 3599; any other value sets none.
    void SetTimeout(RR::SInt32 t);
    bool HasTimeout() const;
    bool CheckTimeout(Compare cmp, RR::SInt32 resttime) const;
    void SetCounter(RR::SInt32 c);
    void DecCounter();
    bool IsCounterZero() const;
    /// Takes what the sensors show now, whatever the state.
    void RecordMeasurement();
    void StopIf(bool condition, StopCause cause);
    /// The answer to a condition that has the supervision time to become true; its end stops the job.
    bool Await(bool condition, StopCause timeoutCause);

    // Checks, each with a line in the log. A failed reading ends the job, but for `CheckSensorValue`.
    bool CheckPressure(TavorDev::PressureSensor sensor, Compare cmp, RR::FixPnt3 threshold);
    bool CheckSensorValue(TavorDev::Sensor sensor, Compare cmp, RR::FixPnt3 threshold);
    bool CheckHumidity(Compare cmp, RR::FixPnt3 threshold);                ///< dew point, °C
    bool CheckDepotFillingLevel(Compare cmp, RR::SInt32 threshold);        ///< percent
    bool CheckAirPressure(Compare cmp, RR::FixPnt3 threshold);             ///< bar
    void StorePressure(TavorDev::PressureSensor sensor);
    /// The present pressure in percent of the stored one.
    bool CheckPressureDeviationPerc(RR::SInt32 percMin, TavorDev::PressureSensor sensor, RR::SInt32 percMax);
    /// The stored pressure less the present one.
    bool CheckPressureDeviationVal(RR::FixPnt3 min, TavorDev::PressureSensor sensor, RR::FixPnt3 max);
    void StoreHumidity();
    /// The present dew point less the stored one.
    bool CheckHumidityDeviation(RR::FixPnt3 min, RR::FixPnt3 max);
    void CheckComponents();
    bool ReadPressures();
    bool Fail(const char* logText, StopCause cause);

    QTimer timer;
    Type type = TYPE_0;
    RR::SInt32 phase = RR::INVALID;         ///< script step of the next active tick; no value: idle
    RR::SInt32 secsElapsed = 0;
    RR::SInt32 secsTotal = 0;
    RR::SInt32 timeout = RR::INVALID;       ///< active ticks left
    RR::SInt32 counter = RR::INVALID;
    RR::UInt32 pause = 0;                   ///< ticks to skip
    RR::SInt32 progress = RR::INVALID;
    Pressure pressure[TavorDev::PRESSENS_NUM];
    Mea mea;
    RR::Array<int> tt;                      ///< seconds
    RR::Array<RR::FixPnt3> pp;              ///< bar
    RR::FixPnt3 so2Limit;                   ///< ppmv; above it the gas is contaminated
    Snapshot snapshot;
    RR::FixPnt3 storedPressure;             ///< bar
    RR::FixPnt3 storedHumidity;             ///< °C
    QString jobOutputNote;
};

/// Adds one to the unit's count of pump back processes, up to 30000; an unreadable count starts at 0.
void IncPumpBackProcesses();

extern JobStateMachine jobSTM;
