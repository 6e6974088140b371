// Flushing of the sensor path by pressure pulses, and the self-tests.

#include "JobStateMachine.h"
#include "JobTables.h"
#include "PrintIt.h"

/// One pulse. It has no failure by time: a pressure that isn't reached ends that half of the pulse only.
void JobStateMachine::DoH()
{
    switch (phase) {
    case 0:
        Open({V2, V3});
        NextPhaseAfterPause(tt[1]);
        break;
    case 1:
        SetCompressor(true);
        SetTimeout(tt[2]);
        NextPhaseAfterPause(tt[3]);
        break;
    case 2:
        if (CheckPressure(P1, GREATER, pp[1]) || HasTimeout()) {
            SetCompressor(false);
            SetTimeout(tt[4]);
            NextPhaseAfterPause(tt[5]);
        }
        break;
    case 3:
        if (CheckPressure(P1, LESS, pp[2]) || HasTimeout()) {
            Close({V2});
            NextPhaseAfterPause(tt[6]);
        }
        break;
    case 4:
        Close({V3});
        NextPhaseAfterPause(tt[7]);
        break;
    case 5:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// Phases 2 to 5 are one pulse, up to ten times.
void JobStateMachine::DoJ()
{
    switch (phase) {
    case 0:
        SetValveL(true);
        NextPhaseAfterPause(tt[1]);
        break;
    case 1:
        Open({V2, V3});
        SetCounter(10);
        NextPhaseAfterPause(tt[2]);
        break;
    case 2:
        SetCompressor(true);
        SetTimeout(tt[3]);
        NextPhaseAfterPause(tt[4]);
        break;
    case 3:
        if (CheckPressure(P1, GREATER, pp[1]) || HasTimeout()) {
            SetCompressor(false);
            SetTimeout(tt[5]);
            NextPhaseAfterPause(tt[6]);
        }
        break;
    case 4:
        if (CheckPressure(P1, LESS, pp[2]) || HasTimeout()) {
            DecCounter();
            NextPhaseAfterPause(tt[7]);
        }
        break;
    case 5:
        DoJVerdict();
        break;
    case 6:
        Close({V3});
        NextPhaseAfterPause(tt[9]);
        break;
    case 7:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// Good gas ends the pulses; behind the last one a dew point between the two limits is good enough.
void JobStateMachine::DoJVerdict()
{
    if (CheckHumidity(GREATER, CFG::JJ_f[1]) || CheckSensorValue(TavorDev::SENSOR_SO2, GREATER, CFG::JJ_o[1])) {
        if (!IsCounterZero()) {
            GotoPhase(2);
            return;
        }
        StopIf(CheckSensorValue(TavorDev::SENSOR_SO2, GREATER, CFG::JJ_o[1]), E25);
        StopIf(CheckHumidity(GREATER, CFG::JJ_f[2]), E20);
    }
    Close({V2});
    SetValveL(false);
    NextPhaseAfterPause(tt[8]);
}

/// Does the path hold a pressure, and does it fall as it must when a valve opens? First on the inlet side, where
/// two attempts may build the pressure up; from phase 9 on the outlet side.
void JobStateMachine::DoP()
{
    switch (phase) {
    case 0:
        Open({V1, V5});
        SetCounter(2);
        NextPhaseAfterPause(tt[1]);
        break;
    case 1:
        Open({V2, V3, V4});
        SetValveL(true);
        SetTimeout(tt[2]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 2:
        if (Await(CheckPressure(P1, LESS, pp[1]), E50)) {
            Close({V1, V2, V3, V5});
            SetValveL(false);
            NextPhaseAfterPause(tt[1]);
        }
        break;
    case 3:
        SetCompressor(true);
        SetTimeout(tt[3]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 4:
        if (CheckPressure(P1, GREATER, pp[2])) {
            SetCompressor(false);
            Close({V4});
            NextPhaseAfterPause(tt[1]);
        } else if (HasTimeout()) {
            SetCompressor(false);
            DecCounter();
            StopIf(IsCounterZero(), E51);
            GotoPhase(1);
        }
        break;
    case 5:
        StorePressure(P1);
        NextPhaseAfterPause(tt[6]);
        break;
    case 6:
        StopIf(!CheckPressureDeviationPerc(97, P1, 102), E52);
        StorePressure(P1);
        Open({V1});
        NextPhaseAfterPause(tt[7]);
        break;
    case 7:
        StopIf(!CheckPressureDeviationPerc(40, P1, 90), E53);
        StorePressure(P1);
        NextPhaseAfterPause(tt[8]);
        break;
    case 8:
        StopIf(!CheckPressureDeviationPerc(97, P1, 102), E54);
        Open({V4});
        Close({V1});
        SetCompressor(true);
        SetTimeout(tt[4]);
        NextPhaseAfterPause(tt[1]);
        break;
    default:
        DoPOutlet();
    }
}

void JobStateMachine::DoPOutlet()
{
    switch (phase) {
    case 9:
        if (Await(CheckPressure(P1, GREATER, pp[2]), E55)) {
            SetCompressor(false);
            Close({V4});
            IncPumpBackProcesses();
            NextPhaseAfterPause(tt[1]);
        }
        break;
    case 10:
        StorePressure(P1);
        Open({V5});
        NextPhaseAfterPause(tt[7]);
        break;
    case 11:
        StopIf(!CheckPressureDeviationPerc(40, P1, 70), E56);
        StorePressure(P1);
        NextPhaseAfterPause(tt[8]);
        break;
    case 12:
        StopIf(!CheckPressureDeviationPerc(97, P1, 102), E57);
        Open({V1, V5});
        NextPhaseAfterPause(tt[1]);
        break;
    case 13:
        Open({V2, V3, V4});
        SetTimeout(tt[5]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 14:
        if (Await(CheckPressure(P1, LESS, pp[1]), E58)) {
            Close({V2});
            NextPhaseAfterPause(tt[9]);
        }
        break;
    case 15:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// Builds a pressure in the whole path and holds it; the top-ups begin at phase 15, the drying at phase 21.
void JobStateMachine::DoQ()
{
    if (phase >= 15) {
        DoQTopUp();
        return;
    }
    switch (phase) {
    case 0:
        Open({V1, V2, V3, V4, V5});
        SetValveL(true);
        SetTimeout(tt[2]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 1:
        if (Await(CheckPressure(P1, LESS, pp[1]), E50)) {
            Close({V1, V2, V3});
            SetValveL(false);
            NextPhaseAfterPause(tt[1]);
        }
        break;
    case 2:
        SetCompressor(true);
        SetTimeout(tt[3]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 3:
        if (Await(CheckPressure(P1, GREATER, pp[2]), E51)) {
            SetCompressor(false);
            Close({V4});
            NextPhaseAfterPause(tt[1]);
        }
        break;
    case 4:
        Open({V2});
        SetValveL(true);
        SetTimeout(tt[4]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 5:
        if (Await(CheckPressure(P2, GREATER, pp[3]), E52)) {
            NextPhaseAfterPause(tt[5]);
        }
        break;
    case 6:
        StopIf(!CheckPressure(P5, GREATER, pp[4]), E53);
        SetTimeout(tt[16]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 7:
        StorePressure(P1);
        NextPhaseAfterPause(tt[17]);
        break;
    case 8:
        if (CheckPressureDeviationVal(CFG::JQ_d[1], P1, CFG::JQ_d[2])) {
            SetValveL(false);
            NextPhaseAfterPause(tt[1]);
        } else {
            StopIf(HasTimeout(), E61);
            GotoPhase(7);
        }
        break;
    case 9:
        Open({V3, V4});
        NextPhaseAfterPause(tt[18]);
        break;
    case 10:
        SetCompressor(true);
        Close({V3});
        SetTimeout(tt[3]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 11:
        if (Await(CheckPressure(P1, GREATER, pp[2]), E51)) {
            SetCompressor(false);
            Close({V4});
            SetTimeout(tt[4]);
            NextPhaseAfterPause(tt[1]);
        }
        break;
    case 12:
        if (Await(CheckPressure(P2, GREATER, pp[3]), E52)) {
            NextPhaseAfterPause(tt[5]);
        }
        break;
    case 13:
        StopIf(!CheckPressure(P5, GREATER, pp[4]), E53);
        Close({V2});
        StorePressure(P1);
        NextPhaseAfterPause(tt[6]);
        break;
    case 14:
        StopIf(!CheckPressureDeviationPerc(95, P1, 102), E54);
        NextPhaseAfterPause(tt[1]);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// Up to three top-ups bring the back side of the path to its pressure.
void JobStateMachine::DoQTopUp()
{
    switch (phase) {
    case 15:
        SetValveL(true);
        SetCounter(3);
        NextPhaseAfterPause(tt[7]);
        break;
    case 16:
        if (CheckPressure(P2, LESS, pp[3])) {
            NextPhaseAfterPause(tt[1]);
        } else {
            GotoPhase(19);
        }
        break;
    case 17:
        StopIf(IsCounterZero(), E55);
        Open({V4, V2});
        SetCompressor(true);
        SetTimeout(tt[8]);
        NextPhaseAfterPause(tt[15]);
        break;
    case 18:
        if (Await(CheckPressure(P2, GREATER, pp[3]), E56)) {
            SetCompressor(false);
            DecCounter();
            NextPhaseAfterPause(tt[1]);
        }
        break;
    case 19:
        IncPumpBackProcesses();
        NextPhaseAfterPause(tt[9]);
        break;
    case 20:
        if (CheckPressure(P5, GREATER, pp[4])) {
            Close({V4, V2});
            StorePressure(P5);
            NextPhaseAfterPause(tt[10]);
        } else {
            GotoPhase(17);
        }
        break;
    default:
        DoQDrying();
    }
}

/// Up to ten pulses dry the path, if it needs them.
void JobStateMachine::DoQDrying()
{
    switch (phase) {
    case 21:
        StopIf(!CheckPressureDeviationPerc(95, P5, 102), E57);
        StopIf(!CheckHumidity(GREATER, CFG::JQ_f[1]), H00);
        Open({V1, V2, V3, V5});
        SetCounter(10);
        NextPhaseAfterPause(tt[1]);
        break;
    case 22:
        Close({V4});
        SetCompressor(true);
        SetTimeout(tt[11]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 23:
        if (Await(CheckPressure(P1, GREATER, pp[5]), E58)) {
            SetCompressor(false);
            Open({V4});
            SetTimeout(tt[12]);
            NextPhaseAfterPause(tt[1]);
        }
        break;
    case 24:
        if (Await(CheckPressure(P1, LESS, pp[6]), E59)) {
            DecCounter();
            NextPhaseAfterPause(tt[13]);
        }
        break;
    case 25:
        if (CheckHumidity(LESS, CFG::JQ_f[2])) {
            Close({V1, V2, V4, V5});
            SetValveL(false);
            NextPhaseAfterPause(tt[14]);
        } else {
            StopIf(IsCounterZero(), E60);
            GotoPhase(22);
        }
        break;
    case 26:
        Close({V3});
        NextPhaseAfterPause(tt[1]);
        break;
    case 27:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// What the compressor can do: the vacuum on its suction side, then the end pressure against closed valves.
void JobStateMachine::DoR()
{
    switch (phase) {
    case 0:
        Open({V1, V2, V3, V4, V5});
        SetValveL(true);
        SetTimeout(tt[2]);
        NextPhaseAfterPause(tt[1]);
        break;
    case 1:
        if (Await(CheckPressure(P1, LESS, pp[1]), E50)) {
            Close({V1, V2, V3, V4, V5});
            SetValveL(false);
            NextPhaseAfterPause(tt[1]);
        }
        break;
    case 2: // high up in the mountains the vacuum says nothing
        if (CheckAirPressure(GREATER, pp[5])) {
            Open({V1, V2, V5});
            SetValveL(true);
            StorePressure(P3);
            SetCompressor(true);
            NextPhaseAfterPause(tt[3]);
        } else {
            GotoPhase(6);
        }
        break;
    case 3:
        SetCompressor(false);
        NextPhaseAfterPause(tt[11]);
        break;
    case 4:
        StopIf(!CheckPressureDeviationPerc(10, P3, 92), E62);
        StorePressure(P3);
        NextPhaseAfterPause(tt[4]);
        break;
    case 5:
        StopIf(!CheckPressureDeviationPerc(95, P3, 105), E63);
        NextPhaseAfterPause(tt[12]);
        break;
    case 6:
        Open({V3, V4});
        NextPhaseAfterPause(tt[13]);
        break;
    default:
        DoREndPressure();
    }
}

/// From phase 7: the end pressure must be reached and stay, before the depot is pumped empty.
void JobStateMachine::DoREndPressure()
{
    switch (phase) {
    case 7:
        Close({V1, V2, V3, V4});
        SetValveL(false);
        NextPhaseAfterPause(tt[14]);
        break;
    case 8:
        SetCompressor(true);
        NextPhaseAfterPause(tt[6]);
        break;
    case 9:
        StorePressure(P1);
        NextPhaseAfterPause(tt[7]);
        break;
    case 10:
        if (CheckPressure(P1, GREATER, pp[4]) && CheckPressureDeviationPerc(98, P1, 102)) {
            jobOutputNote = PrintPressure(tavorDev.GetPressure(P1));
            SetCompressor(false);
            Open({V2, V3});
            SetTimeout(tt[8]);
            NextPhaseAfterPause(tt[9]);
        } else if (CheckPressure(P4, GREATER, pp[3])) {
            GotoPhase(9);
        } else {
            Terminate(E52);
        }
        break;
    case 11:
        if (Await(CheckPressure(P1, LESS, pp[1]), E54)) {
            Close({V2});
            NextPhaseAfterPause(tt[10]);
        }
        break;
    case 12:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}
