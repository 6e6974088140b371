#include "SensorUnit/Commands.h"
#include "SensorUnit/Control.h"
#include "SensorUnit/Log.h"
#include "SensorUnit/Unit.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace SensorUnit;

constexpr const char* usage =
    "zarn-unit --link PATH|--serial DEVICE [--state FILE] [--control PATH] [--fast] [-- COMMAND ...]\n"
    "zarn-unit ctl PATH WORD...\n"
    "zarn-unit image MAJOR MINOR\n"
    "\n"
    "  --link PATH     the serial line: a link to a pseudo terminal that the unit serves\n"
    "  --serial DEVICE a real serial port that the unit serves instead\n"
    "  --state FILE    keeps what outlives a power cycle; without it each start is a new unit\n"
    "  --control PATH  listens for control commands; \"zarn-unit ctl PATH help\" lists them\n"
    "  --fast          answers at once instead of at the pace of 57600 baud\n"
    "  COMMAND ...     is run when the line is ready; the unit ends with it and returns its result\n"
    "  ctl             sends one command to a running unit and prints its answer\n"
    "  image           writes a program image of that version to the standard output\n";

struct Options {
    std::string link, serial, state, control;
    bool fast = false;
    char** command = nullptr;
};

bool ReadOptions(int argc, char** argv, Options& options)
{
    for (int i = 1; i < argc; i++) {
        const std::string word = argv[i];
        if (word == "--") {
            options.command = i + 1 < argc ? argv + i + 1 : nullptr;
            return !options.link.empty() && options.command;
        }
        if (word == "--fast") {
            options.fast = true;
            continue;
        }
        std::string* value = word == "--link" ? &options.link
            : word == "--serial"              ? &options.serial
            : word == "--state"               ? &options.state
            : word == "--control"             ? &options.control
                                              : nullptr;
        if (!value || i + 1 >= argc) {
            return false;
        }
        *value = argv[++i];
    }
    return options.link.empty() != options.serial.empty();
}

int signalPipe[2] = {-1, -1};

void OnSignal(int number)
{
    const int before = errno;
    const char byte = char(number);
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
    errno = before;
}

bool CatchSignals()
{
    if (pipe(signalPipe) != 0) {
        return false;
    }
    for (const int end : signalPipe) {
        fcntl(end, F_SETFL, O_NONBLOCK);
        fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    struct sigaction action{};
    action.sa_handler = OnSignal;
    for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGCHLD}) {
        sigaction(number, &action, nullptr);
    }
    return true;
}

/// The program that runs under the unit, if any.
class Companion {
public:
    bool Start(char** command)
    {
        process = fork();
        if (process == 0) {
            execvp(command[0], command);
            std::fprintf(stderr, "can't run %s: %s\n", command[0], std::strerror(errno));
            _exit(127);
        }
        return process > 0;
    }

    bool IsRunning() const { return process > 0; }
    void Forward(int number) const { kill(process, number); }

    /// Whether it has ended; `result` is then what a shell would report.
    bool HasEnded(int& result)
    {
        int status = 0;
        if (process <= 0 || waitpid(process, &status, WNOHANG) != process) {
            return false;
        }
        process = 0;
        result = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        return true;
    }

private:
    pid_t process = 0;
};

/// Waits until `wait` has passed or one of `watched` is ready. Only long waits are left to `poll`, whose
/// whole milliseconds would shrink to nothing on a clock that is sped up; short ones are slept in slices.
void Wait(std::vector<pollfd>& watched, Micros wait)
{
    constexpr Micros longWait = std::chrono::milliseconds(40);
    constexpr Micros slice = std::chrono::milliseconds(2);
    if (wait >= longWait) {
        poll(watched.data(), nfds_t(watched.size()), int(wait.count() / 1000));
    } else if (wait.count() > 0) {
        const timespec pause{0, long(std::min(wait, slice).count()) * 1000};
        nanosleep(&pause, nullptr);
    }
}

/// Serves until the companion or a signal ends it; returns the exit code.
int Run(Unit& unit, Control& control, Companion& companion, const std::chrono::steady_clock::time_point start)
{
    std::vector<pollfd> watched;
    for (;;) {
        const Micros now = std::chrono::duration_cast<Micros>(std::chrono::steady_clock::now() - start);
        unit.Turn(now);
        control.Turn();
        char number = 0;
        while (read(signalPipe[0], &number, 1) == 1) {
            if (number == SIGCHLD) {
                int result = 0;
                if (companion.HasEnded(result)) {
                    return result;
                }
            } else if (companion.IsRunning()) {
                companion.Forward(number);
            } else {
                return 0;
            }
        }
        watched.assign({{signalPipe[0], POLLIN, 0}});
        if (unit.line.WantsInput(now)) {
            watched.push_back({unit.line.Descriptor(), POLLIN, 0});
        }
        control.Watch(watched);
        Wait(watched, unit.NextDue(now) - now);
    }
}

/// The delivered image comes from here, so that a unit runs what the program gives it.
int WriteImage(int major, int minor)
{
    if (major < 0 || major > 15 || minor < 0 || minor > 15) {
        std::fputs("a version has two numbers from 0 to 15\n", stderr);
        return 2;
    }
    ImageInfo info;
    info.version = std::uint8_t(major << 4 | minor);
    const std::vector<std::uint8_t> image = MakeImage(info);
    return std::fwrite(image.data(), 1, image.size(), stdout) == image.size() && std::fflush(stdout) == 0 ? 0 : 1;
}

}

int main(int argc, char** argv)
{
    if (argc >= 4 && std::strcmp(argv[1], "ctl") == 0) {
        std::string command = argv[3];
        for (int i = 4; i < argc; i++) {
            command += std::string(" ") + argv[i];
        }
        return RunControlClient(argv[2], command);
    }
    if (argc == 4 && std::strcmp(argv[1], "image") == 0) {
        return WriteImage(std::atoi(argv[2]), std::atoi(argv[3]));
    }
    Options options;
    if (!ReadOptions(argc, argv, options)) {
        std::fputs(usage, stderr);
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    const auto now = [start] { return std::chrono::duration_cast<Micros>(std::chrono::steady_clock::now() - start); };
    const bool pseudo = options.serial.empty();
    Unit unit(pseudo && !options.fast, options.state);
    Control control([&unit, now](const std::string& line) { return ExecuteCommand(unit, line, now()); });
    Companion companion;
    const auto openLine = [&] { return pseudo ? unit.line.Open(options.link) : unit.line.OpenPort(options.serial); };
    if (!CatchSignals() || !openLine() || (!options.control.empty() && !control.Open(options.control))
        || (options.command && !companion.Start(options.command))) {
        return 2;
    }
    return Run(unit, control, companion, start);
}
