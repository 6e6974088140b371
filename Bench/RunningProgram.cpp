#include "JobStateMachine.h"
#include "Robot.h"
#include "Settings.h"
#include "TavorDev.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

// What the running program takes of a processor and of memory, told by itself: first with the link up and no job, then
// in the middle of a measurement. Between two looks the robot sleeps.

namespace {

using Jobs = JobStateMachine;

constexpr int patienceMs = 5 * 60 * 1000;

double ProcessorSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) { return time.tv_sec + time.tv_usec / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void Report(const char* when, int seconds)
{
    const double before = ProcessorSeconds();
    sleep(seconds);
    std::printf("processor time %s: %.2f %% of one core\n", when, 100 * (ProcessorSeconds() - before) / seconds);
}

int Watch()
{
    const char* given = std::getenv("ZARN_BENCH_SECONDS");
    const int seconds = given ? std::atoi(given) : 60;
    const auto isReady = [] { return tavorDev.GetMode() == TavorDev::MODE_APPL && !jobSTM.IsRunning(); };
    if (!Robot::WaitForShown("startMea", patienceMs) || !Robot::WaitFor(isReady, patienceMs)) {
        return 1;
    }
    // The preparation starts a moment behind the connection.
    sleep(3);
    if (!Robot::WaitFor(isReady, patienceMs)) {
        return 1;
    }
    sleep(5);
    Report("with the link up and no job", seconds);
    std::ifstream rollup("/proc/self/smaps_rollup");
    for (std::string line; std::getline(rollup, line);) {
        if (line.starts_with("Pss:")) {
            std::printf("program %s\n", line.c_str());
        }
    }
    Robot::OnGui([=] { settings.sensPassageTime = seconds + 60; });
    if (!Robot::Click("startMea") || !Robot::Click("buttonStartB") || !Robot::Click("buttonOk")
        || !Robot::WaitFor([] { return jobSTM.GetType() == Jobs::TYPE_B && jobSTM.GetPhase() == 4; }, patienceMs)) {
        return 1;
    }
    Report("during a measurement", seconds);
    return 0;
}

const Robot::Scenario scenario(Watch);

}
