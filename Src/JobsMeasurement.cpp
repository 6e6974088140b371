// The measurements: a sample of the gas flows through the sensors for the passage time and is then recorded.

#include "Globals.h"
#include "JobStateMachine.h"
#include "JobTables.h"

/// Into the depot.
void JobStateMachine::DoB()
{
    switch (phase) {
    case 0:
        StopIf(CheckPressure(P1, GREATER, pp[1]), E08);
        StopIf(CheckPressure(P3, GREATER, pp[1]), E13);
        StopIf(CheckPressure(P4, GREATER, pp[2]), E15);
        StopIf(CheckDepotFillingLevel(GREATER, CFG::DepotLevelMax), E06);
        NextPhaseAfterPause(tt[1]);
        break;
    case 1:
        Open({V1});
        NextPhaseAfterPause(tt[2]);
        break;
    case 2:
        StopIf(CheckPressure(P1, LESS, pp[7]), E07);
        StopIf(CheckPressure(P1, GREATER, pp[3]), E08);
        NextPhaseAfterPause(tt[3]);
        break;
    case 3:
        Open({V2, V3, V4});
        SetTimeout(tt[4]);
        NextPhaseAfterPause(tt[5]);
        break;
    case 4:
        DoBFlow();
        break;
    case 5:
        Close({V1});
        NextPhaseAfterPause(tt[8]);
        break;
    case 6:
        Close({V2, V3, V4});
        NextPhaseAfterPause(tt[9]);
        break;
    case 7:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// The first violation decides, and nothing is read behind it.
void JobStateMachine::DoBFlow()
{
    const StopCause cause = CheckPressure(P1, GREATER, pp[3]) ? E08
        : CheckPressure(P1, LESS, pp[5])                      ? E07
        : CheckPressure(P2, GREATER, pp[6])                   ? E11
        : CheckPressure(P4, GREATER, pp[6])                   ? E15
        : CheckSensorValue(TavorDev::SENSOR_SO2, GREATER, so2Limit) ? E25 : H00;
    if (cause == H00 && !HasTimeout()) {
        return;
    }
    const bool longEnough = timeout < tt[6];
    if (cause == H00 || longEnough) {
        StatusMsg(tr("Messwertaufnahme"));
        RecordMeasurement();
    }
    // A depot that fills up late has only shortened the measurement.
    if (cause == H00 || (longEnough && cause == E15)) {
        NextPhaseAfterPause(tt[7]);
    } else {
        Terminate(cause);
    }
}

/// Out through port 3.
void JobStateMachine::DoC()
{
    switch (phase) {
    case 0:
        StopIf(CheckPressure(P1, GREATER, pp[1]), E08);
        StopIf(CheckPressure(P3, GREATER, pp[1]), E13);
        NextPhaseAfterPause(tt[1]);
        break;
    case 1:
        Open({V1});
        NextPhaseAfterPause(tt[2]);
        break;
    case 2:
        StopIf(CheckPressure(P1, LESS, pp[6]), E07);
        StopIf(CheckPressure(P1, GREATER, pp[3]), E08);
        NextPhaseAfterPause(tt[3]);
        break;
    case 3:
        Open({V2, V3});
        SetTimeout(tt[4]);
        NextPhaseAfterPause(tt[5]);
        break;
    case 4:
        DoCFlow();
        break;
    case 5:
        Close({V1});
        NextPhaseAfterPause(tt[8]);
        break;
    case 6:
        Close({V2, V3});
        NextPhaseAfterPause(tt[9]);
        break;
    case 7:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// All four readings are made, and the gravest violation decides.
void JobStateMachine::DoCFlow()
{
    const bool inletLow = CheckPressure(P1, LESS, pp[4]);
    const bool inletHigh = CheckPressure(P1, GREATER, pp[3]);
    const bool backHigh = CheckPressure(P2, GREATER, pp[5]);
    const bool contaminated = CheckSensorValue(TavorDev::SENSOR_SO2, GREATER, so2Limit);
    if (!IsRunning()) {
        return; // a reading failed: that is no measurement to record
    }
    const StopCause cause = contaminated ? E25 : backHigh ? E11 : inletHigh ? E08 : inletLow ? E07 : H00;
    if (cause == H00 && !HasTimeout()) {
        return;
    }
    if (cause == H00 || timeout < tt[6]) {
        StatusMsg(tr("Messwertaufnahme"));
        RecordMeasurement();
    }
    if (cause == H00) {
        NextPhaseAfterPause(tt[7]);
    } else {
        Terminate(cause);
    }
}
