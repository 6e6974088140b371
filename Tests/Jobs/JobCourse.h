#pragma once

#include "Fakes/ScriptedTavorDev.h"
#include "JobStateMachine.h"

#include <gtest/gtest.h>
#include <string>

/// Runs jobs on the scripted sensor unit, tick by tick, without waiting.
class JobCourse : public testing::Test {
public:
    JobCourse() { scripted.Reset(); }

    /// Runs a job to its end and returns where, why and when that was: "B04-08@9" is phase 4, E08, tick 9; "B runs on"
    /// if it has no end.
    ///
    /// The scenario is a text of words. "@9" and "p4" say when those behind them happen: before tick 9, or before
    /// each tick in phase 4; those in front happen before the start. "P1=1.2" (bar), "SO2=11", "Hum=-25", "Air=850",
    /// "Depot=75", "Range=100" (SO2) and "Count=5" (pump backs) are readings, with "-" for none; "V3=-" and "C=-"
    /// components that read failure; "!V1+" is a command that fails, "T=61" the passage time, "insp" the
    /// inspection mode, "stop" the user's stop.
    std::string Run(char letter, const std::string& scenario = "");

    void Tick();

    JobStateMachine machine;
    std::string trace;  ///< of the last run: the commands and status texts by tick, "0:home 2:V1+"
    std::string log;    ///< of the last run
};

/// One run and its expected end, whose first letter is that of the job.
struct CourseRow {
    const char *scenario, *end;
};
