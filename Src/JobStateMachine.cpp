#include "JobStateMachine.h"
#include "JobTables.h"
#include "RRx/RRService.h"
#include "Settings.h"

#include <algorithm>
#include <span>

using RR::FixPnt3;
using RR::Log;
using RR::SInt32;
using RR::SInt64;

JobStateMachine jobSTM;

/// One job: its constants and its script.
struct JobStateMachine::Job {
    Type type;
    std::span<const int> t;
    std::span<const FixPnt3> p;
    void (JobStateMachine::*script)();
};

const JobStateMachine::Job* JobStateMachine::FindJob(Type t)
{
    static const Job jobs[] = {
        {TYPE_B, CFG::JB_t, CFG::JB_p, &JobStateMachine::DoB},
        {TYPE_C, CFG::JC_t, CFG::JC_p, &JobStateMachine::DoC},
        {TYPE_D, CFG::JD_t, CFG::JD_p, &JobStateMachine::DoD},
        {TYPE_E, CFG::JE_t, CFG::JE_p, &JobStateMachine::DoE},
        {TYPE_F, CFG::JF_t, CFG::JF_p, &JobStateMachine::DoF},
        {TYPE_H, CFG::JH_t, CFG::JH_p, &JobStateMachine::DoH},
        {TYPE_J, CFG::JJ_t, CFG::JJ_p, &JobStateMachine::DoJ},
        {TYPE_K, CFG::JK_t, CFG::JK_p, &JobStateMachine::DoK},
        {TYPE_L, CFG::JL_t, CFG::JL_p, &JobStateMachine::DoL},
        {TYPE_P, CFG::JP_t, CFG::JP_p, &JobStateMachine::DoP},
        {TYPE_Q, CFG::JQ_t, CFG::JQ_p, &JobStateMachine::DoQ},
        {TYPE_R, CFG::JR_t, CFG::JR_p, &JobStateMachine::DoR},
    };
    const auto job = std::find_if(std::begin(jobs), std::end(jobs), [t](const Job& j) { return j.type == t; });
    return job == std::end(jobs) ? nullptr : job;
}

static JobStateMachine::StopCategory CategoryOf(JobStateMachine::StopCause cause)
{
    switch (cause) {
    case JobStateMachine::COMPLETED:
    case JobStateMachine::EXPLICIT:
        return JobStateMachine::PROPER_TERMINATION;
    case JobStateMachine::VALVE_FAILURE:
    case JobStateMachine::COMPRESSOR_FAILURE:
    case JobStateMachine::PRESSURE_FAILURE:
    case JobStateMachine::DEPOT_FAILURE:
    case JobStateMachine::HUMIDITY_FAILURE:
        return JobStateMachine::COMPONENT_FAILURE;
    default:
        return JobStateMachine::BOUNDARY_VIOLATION;
    }
}

JobStateMachine::JobStateMachine()
    : so2Limit(RR::INVALID), storedPressure(RR::INVALID), storedHumidity(RR::INVALID)
{
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, &JobStateMachine::OnSecTimeout);
    ResetData();
}

void JobStateMachine::Start(Type t)
{
    if (IsRunning()) {
        return;
    }
    ResetData();
    const Job* job = FindJob(t);
    if (!job) {
        return;
    }
    LoadTables(*job);
    if (t == TYPE_B || t == TYPE_C) {
        const SInt32 rangeMax = tavorDev.GetSensorProfile(TavorDev::SENSOR_SO2).rangeMax;
        so2Limit = FixPnt3(rangeMax * 95.0 / 100.0, RR::ROUND);
        mea = Mea();
    }
    const SInt32 maxDuration = PlannedDuration(t);
    Log("[ZARN] Job %c initiated\n", static_cast<char>(t));
    type = t;
    secsTotal = maxDuration;
    progress = 0;
    phase = 0;
    secsElapsed = 0;
    jobOutputNote.clear();
    timer.start(1000);
    tavorDev.HomePositions();
    emit Progress(0);
    emit Started();
}

void JobStateMachine::Stop()
{
    Terminate(EXPLICIT);
}

/// Copies the job's constants and fills in what the settings say today.
void JobStateMachine::LoadTables(const Job& job)
{
    tt.SetSize(static_cast<SInt32>(job.t.size()));
    std::copy(job.t.begin(), job.t.end(), tt.Adr());
    pp.SetSize(static_cast<SInt32>(job.p.size()));
    std::copy(job.p.begin(), job.p.end(), pp.Adr());
    if (job.type == TYPE_B || job.type == TYPE_C) {
        const SInt32 shift = job.type == TYPE_B ? 0 : -1;
        tt[4] = settings.sensPassageTime;
        tt[6] = tt[4] / 4;
        pp[3] = settings.limitMaxInletPress[Pressure::BAR];
        pp[6 + shift] = settings.limitMaxBkPress[Pressure::BAR];
        pp[7 + shift] = settings.limitMinInletPress[Pressure::BAR];
    } else if (job.type == TYPE_F) {
        pp[2] = settings.limitMaxBkPress[Pressure::BAR];
    }
}

/// Seconds. In 64 bits, since the passage time comes unchecked from a file.
SInt32 JobStateMachine::PlannedDuration(Type t)
{
    const auto sum = [this](SInt32 first, SInt32 last) {
        SInt64 secs = 0;
        for (SInt32 i = first; i <= last; ++i) {
            secs += tt[i];
        }
        return secs;
    };
    SInt64 secs = sum(0, tt.GetSize() - 1);
    switch (t) {
    case TYPE_B:
    case TYPE_C:
        secs -= tt[6];
        break;
    case TYPE_J:
        secs = 10 * secs - 30;
        break;
    case TYPE_P:
        secs = 9 * tt[1] + 2 * (tt[2] + tt[3]) + sum(4, 9);
        break;
    case TYPE_Q:
        secs = 36 * tt[1] + tt[2] + 2 * sum(3, 5) + tt[6] + tt[7] + 3 * (tt[8] + tt[9] + tt[15]) + tt[10]
            + 10 * sum(11, 13) + tt[14] + tt[16] + tt[18];
        break;
    case TYPE_R:
        secs = 2 * tt[1] + sum(2, 6) + sum(8, 14);
        break;
    default:
        break;
    }
    return static_cast<SInt32>(secs);
}

void JobStateMachine::OnSecTimeout()
{
    if (!IsRunning()) {
        return;
    }
    ++secsElapsed;
    if (pause != 0) {
        Log("[ZARN]       Pause: %d\n", static_cast<int>(pause));
        --pause;
    } else {
        char elapsed[] = "mm:ss";
        GetElapsed().Export(elapsed);
        Log("[ZARN] %s --- P%02d ----------\n", elapsed, phase);
        if (timeout > 0) {
            --timeout;
        }
        CheckComponents();
        if (!IsRunning()) {
            return;
        }
        (this->*FindJob(type)->script)();
    }
    // A step that ended the job comes here too: the time has then jumped to its end, and 100 is sent once more.
    const SInt32 newPrgr = RR::TransLinear(secsElapsed, 0, secsTotal, 0, 100);
    if (progress < newPrgr) {
        progress = newPrgr;
        emit Progress(newPrgr);
    }
}

void JobStateMachine::Terminate(StopCause cause)
{
    if (!IsRunning()) {
        return;
    }
    timer.stop();
    snapshot.type = type;
    snapshot.stopCause = cause;
    snapshot.stopCategory = CategoryOf(cause);
    snapshot.lastPhase = phase;
    std::copy(std::begin(pressure), std::end(pressure), std::begin(snapshot.pressure));
    if (cause == EXPLICIT && (type == TYPE_B || type == TYPE_C) && phase == 4 && timeout < tt[4] / 2) {
        RecordMeasurement();
    }
    emit Progress(100);
    ResetData();
    tavorDev.HomePositions();
    emit Stopped();
    Log("[ZARN] Job %c terminated (%c%02d)\n", static_cast<char>(snapshot.type), cause > EXPLICIT ? 'E' : 'H', cause);
}

/// Idle. What the last job left for its viewers stays until the next start.
void JobStateMachine::ResetData()
{
    secsElapsed = secsTotal;
    type = TYPE_0;
    phase = RR::INVALID;
    timeout = RR::INVALID;
    pause = 0;
    progress = RR::INVALID;
    storedPressure = FixPnt3(RR::INVALID);
    std::fill(std::begin(pressure), std::end(pressure), Pressure());
}

RR::Time JobStateMachine::GetElapsed() const
{
    return RR::Time(static_cast<RR::UInt32>(secsElapsed));
}

RR::Time JobStateMachine::GetRemaining() const
{
    if (secsTotal == RR::INVALID || secsElapsed == RR::INVALID) {
        return RR::Time();
    }
    // A job that repeats its steps may outlast its plan.
    return RR::Time(static_cast<RR::UInt32>(std::max<SInt64>(SInt64{secsTotal} - secsElapsed, 0)));
}

static const char* const valveNames[TavorDev::VALVE_NUM] = {
    "V1 (main)", "V2 (inlet)", "V3 (outlet)", "V4 (depot)", "V5 (pr-outlet)", "V6 (freerun)"};

// "Close value" is the established wording of the log.
void JobStateMachine::SetValve(TavorDev::Valve valve, bool open)
{
    if (!IsRunning()) {
        return;
    }
    const bool done = tavorDev.SetValve(valve, open);
    const char* name = valve >= 0 && valve < TavorDev::VALVE_NUM ? valveNames[valve] : "???";
    Log("[ZARN]       %s %s%s\n", open ? "Open valve" : "Close value", name, done ? " [ok]" : " [failed]");
    if (!done) {
        Terminate(VALVE_FAILURE);
    }
}

void JobStateMachine::SetValveL(bool open)
{
    if (!IsRunning()) {
        return;
    }
    const bool done = tavorDev.SetFan1(open);
    Log("[ZARN]       %s VL%s\n", open ? "Open valve" : "Close value", done ? " [ok]" : " [failed]");
    if (!done) {
        Terminate(VALVE_FAILURE);
    }
}

void JobStateMachine::SetCompressor(bool start)
{
    if (!IsRunning()) {
        return;
    }
    const bool done = tavorDev.SetCompressor(start);
    Log("[ZARN]       %s Compressor %s\n", start ? "Start" : "Stop", done ? "[ok]" : "[failed]");
    if (!done) {
        Terminate(COMPRESSOR_FAILURE);
    }
}

void JobStateMachine::Open(std::initializer_list<TavorDev::Valve> valves)
{
    for (const TavorDev::Valve valve : valves) {
        SetValve(valve, true);
    }
}

void JobStateMachine::Close(std::initializer_list<TavorDev::Valve> valves)
{
    for (const TavorDev::Valve valve : valves) {
        SetValve(valve, false);
    }
}

void JobStateMachine::GotoPhase(SInt32 phase)
{
    if (!IsRunning()) {
        return;
    }
    Log("[ZARN]       Goto phase %d\n", phase);
    this->phase = phase;
}

// A pause of n ticks is n - 1 ticks to skip.
static RR::UInt32 TicksToSkip(SInt32 pause)
{
    return pause >= 2 && pause <= 3600 ? pause - 1 : 0;
}

void JobStateMachine::NextPhaseAfterPause(SInt32 pause)
{
    if (!IsRunning()) {
        return;
    }
    ++phase;
    this->pause = TicksToSkip(pause);
    if (this->pause != 0) {
        Log("[ZARN]       Pause: %d\n", pause);
    }
}

void JobStateMachine::GotoPhaseAfterPause(SInt32 pause, SInt32 phase)
{
    if (!IsRunning()) {
        return;
    }
    this->phase = phase;
    this->pause = TicksToSkip(pause);
    if (this->pause != 0) {
        Log("[ZARN]       Continue with phase %d after pause: %d\n", phase, pause);
    }
}

static bool IsSupervisionTime(SInt32 secs)
{
    return secs >= 0 && secs <= 3599;
}

void JobStateMachine::SetTimeout(SInt32 t)
{
    if (!IsRunning()) {
        return;
    }
    if (IsSupervisionTime(t)) {
        Log("[ZARN]       Set timeout to %d s\n", t);
        timeout = t;
    } else {
        Log("[ZARN]       Set timeout to EXPIRED\n");
        timeout = RR::INVALID;
    }
}

bool JobStateMachine::HasTimeout() const
{
    if (!IsRunning()) {
        return false;
    }
    if (timeout == RR::INVALID) {
        Log("[ZARN]       Timeout: ---\n");
    } else {
        Log("[ZARN]       Timeout: %d\n", timeout);
    }
    return timeout == 0;
}

bool JobStateMachine::CheckTimeout(Compare cmp, SInt32 resttime) const
{
    if (!IsRunning()) {
        return false;
    }
    if (timeout == RR::INVALID) {
        Log("[ZARN]       Check timeout ---\n");
        return false;
    }
    Log("[ZARN]       Check timeout %d ", timeout);
    if (!IsSupervisionTime(resttime)) {
        Log(" </> %d [error]\n", resttime);
        return false;
    }
    const bool holds = cmp == LESS ? timeout < resttime : timeout > resttime;
    Log("%s %d %s\n", cmp == LESS ? "<" : ">", resttime, holds ? "[yes]" : "[no]");
    return holds;
}

void JobStateMachine::SetCounter(SInt32 c)
{
    if (IsRunning()) {
        counter = c >= 0 && c <= 9999 ? c : RR::INVALID;
    }
}

void JobStateMachine::DecCounter()
{
    if (IsRunning() && counter > 0) {
        --counter;
    }
}

bool JobStateMachine::IsCounterZero() const
{
    if (!IsRunning()) {
        return false;
    }
    if (counter == RR::INVALID) {
        Log("[ZARN]       Counter: ...\n");
    } else {
        Log("[ZARN]       Counter: %d\n", counter);
    }
    return counter == 0;
}

void JobStateMachine::RecordMeasurement()
{
    Log("[ZARN]       Record Measurement\n");
    mea.Snapshot(static_cast<char>(type));
}

void JobStateMachine::StopIf(bool condition, StopCause cause)
{
    if (condition) {
        Terminate(cause);
    }
}

bool JobStateMachine::Await(bool condition, StopCause timeoutCause)
{
    if (!condition) {
        StopIf(HasTimeout(), timeoutCause);
    }
    return condition;
}

QString JobStateMachine::PrintStopCause(StopCause stopCause)
{
    // Those without a mark are the same in all languages.
    static const char* const texts[] = {
        "",
        "",
        QT_TR_NOOP("Ventil-Fehler"),
        QT_TR_NOOP("Kompressor-Fehler"),
        QT_TR_NOOP("Drucksensor fehlerhaft"),
        QT_TR_NOOP("Fehler in Depot-Einheit"),
        QT_TR_NOOP("Gasdepot zu voll"),
        QT_TR_NOOP("Eingangsdruck zu niedrig"),
        QT_TR_NOOP("Eingangsdruck zu hoch"),
        QT_TR_NOOP("Eingangsdruck zu hoch für Rückpumpvorgang"),
        QT_TR_NOOP("Gegendruck zu niedrig"),
        QT_TR_NOOP("Gegendruck zu hoch"),
        QT_TR_NOOP("Betriebsdruck zu niedrig"),
        QT_TR_NOOP("Betriebsdruck zu hoch"),
        QT_TR_NOOP("Depotdruck zu niedrig"),
        QT_TR_NOOP("Depotdruck zu hoch"),
        QT_TR_NOOP("Zeitüberschreitung bei Rückpumpvorgang"),
        QT_TR_NOOP("Zeitüberschreitung bei Druckausgleich"),
        QT_TR_NOOP("k.a."),
        QT_TR_NOOP("Feuchtesensor fehlerhaft"),
        QT_TR_NOOP("Bereitstellung ist fehlgeschlagen"),
        "---",
        "---",
        "---",
        "---",
        QT_TR_NOOP("Gas stark kontaminiert\nSelbstreinigung wurde eingeleitet"),
    };
    if (stopCause < 0 || stopCause >= static_cast<SInt32>(std::size(texts))) {
        return QStringLiteral("UNDEFINED");
    }
    const char* text = texts[stopCause];
    return text[0] == '\0' || text[0] == '-' ? QString::fromLatin1(text) : tr(text);
}

QString JobStateMachine::PrintStateTag(Type type, SInt32 phase, StopCause stopCause)
{
    QString tag = QStringLiteral("%1%2").arg(QLatin1Char(static_cast<char>(type))).arg(phase, 2, 10, QLatin1Char('0'));
    if (stopCause != UNDEFINED) {
        tag += QStringLiteral("-%1").arg(static_cast<int>(stopCause), 2, 10, QLatin1Char('0'));
    }
    return tag;
}

void IncPumpBackProcesses()
{
    const SInt32 num = tavorDev.GetPumpBackProcesses();
    tavorDev.SetPumpBackProcesses(num == RR::INVALID ? 0 : std::min(num + 1, 30000));
}
