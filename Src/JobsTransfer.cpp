// The transfer of the gas that a measurement left in the instrument, and the balance of the path behind it.

#include "Globals.h"
#include "JobStateMachine.h"

/// At the start of all pumping: is there anything to pump, and may the compressor run?
void JobStateMachine::CheckPumpStart()
{
    StopIf(CheckPressure(P4, LESS, pp[2]), H00);
    StopIf(CheckPressure(P1, GREATER, pp[1]), E09);
    StopIf(CheckPressure(P3, GREATER, pp[3]), E13);
    NextPhaseAfterPause(tt[1]);
}

void JobStateMachine::PumpUntilEmpty(std::initializer_list<TavorDev::Valve> path)
{
    if (Await(!CheckPressure(P4, GREATER, pp[2]), E16)) {
        Close(path);
        SetCompressor(false);
        NextPhaseAfterPause(tt[5]);
    }
}

/// The depot through port 1.
void JobStateMachine::DoD()
{
    switch (phase) {
    case 0:
        CheckPumpStart();
        break;
    case 1:
        SetCompressor(true);
        NextPhaseAfterPause(tt[2]);
        break;
    case 2:
        Open({V1, V4});
        SetTimeout(tt[3]);
        NextPhaseAfterPause(tt[4]);
        IncPumpBackProcesses();
        break;
    case 3:
        StopIf(CheckPressure(P1, GREATER, pp[1]), E09);
        PumpUntilEmpty({V1, V4});
        break;
    case 4:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// The same with the tables of an external compartment.
void JobStateMachine::DoK()
{
    DoD();
}

/// The depot through port 2.
void JobStateMachine::DoE()
{
    switch (phase) {
    case 0:
        CheckPumpStart();
        break;
    case 1:
        Open({V4});
        NextPhaseAfterPause(tt[2]);
        break;
    case 2:
        SetCompressor(true);
        Open({V5});
        SetTimeout(tt[3]);
        NextPhaseAfterPause(tt[4]);
        IncPumpBackProcesses();
        break;
    case 3:
        StopIf(CheckPressure(P1, GREATER, pp[1]), E09);
        StopIf(CheckPressure(P1, LESS, pp[3]), E07);
        PumpUntilEmpty({V4, V5});
        break;
    case 4:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// With an external compartment: the compressor starts first, and P1 may fall as low as it will.
void JobStateMachine::DoL()
{
    switch (phase) {
    case 0:
        CheckPumpStart();
        break;
    case 1:
        SetCompressor(true);
        NextPhaseAfterPause(tt[2]);
        break;
    case 2:
        Open({V4, V5});
        SetTimeout(tt[3]);
        NextPhaseAfterPause(tt[4]);
        IncPumpBackProcesses();
        break;
    case 3:
        StopIf(CheckPressure(P1, GREATER, pp[1]), E09);
        PumpUntilEmpty({V4, V5});
        break;
    case 4:
        Terminate(H00);
        break;
    default:
        Terminate(UNDEFINED);
    }
}

/// Lets the path into the depot until both of its ends are at rest.
void JobStateMachine::DoF()
{
    switch (phase) {
    case 0:
        StopIf(CheckPressure(P1, LESS, pp[1]) && CheckPressure(P2, LESS, pp[2]), H00);
        NextPhaseAfterPause(tt[1]);
        break;
    case 1:
        StatusMsg(tr("Druckausgleich"));
        Open({V2, V3, V4});
        SetTimeout(tt[2]);
        NextPhaseAfterPause(tt[3]);
        break;
    case 2:
        if (Await(!(CheckPressure(P1, GREATER, pp[1]) || CheckPressure(P2, GREATER, pp[2])), E17)) {
            Close({V2});
            NextPhaseAfterPause(tt[4]);
        }
        break;
    case 3:
        Terminate(H00); // V3 and V4 close with the home positions
        break;
    default:
        Terminate(UNDEFINED);
    }
}
