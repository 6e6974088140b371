#include "UnitProcess.h"

#include "Fakes/UnitControl.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/wait.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

UnitProcess::UnitProcess(std::vector<std::string> unitOptions, std::vector<std::string> unitCommand)
    : folder((std::filesystem::temp_directory_path() / "zarn-unit-XXXXXX").string())
    , options(std::move(unitOptions))
    , command(std::move(unitCommand))
{
    if (mkdtemp(folder.data())) {
        Start();
    }
}

UnitProcess::~UnitProcess()
{
    End(SIGKILL);
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

void UnitProcess::Start()
{
    std::vector<std::string> words = {ZARN_UNIT};
    if (options.empty() || options[0] != "--serial") {
        words.insert(words.end(), {"--link", LinkPath()});
    }
    words.insert(words.end(), {"--control", folder + "/control", "--state", folder + "/state"});
    words.insert(words.end(), options.begin(), options.end());
    if (!command.empty()) {
        words.push_back("--");
        words.insert(words.end(), command.begin(), command.end());
    }
    std::vector<char*> arguments;
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    process = fork();
    if (process == 0) {
        const int log = open((folder + "/log").c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
        dup2(log, STDERR_FILENO);
        execv(arguments[0], arguments.data());
        _exit(126);
    }
}

bool UnitProcess::IsReady()
{
    for (int i = 0; i < 1000 && Control("get mode").starts_with("error"); i++) {
        std::this_thread::sleep_for(10ms);
    }
    Reopen();
    return line >= 0;
}

void UnitProcess::Reopen()
{
    if (line >= 0) {
        close(line);
    }
    line = open(LinkPath().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios settings{};
    settings.c_iflag = IGNPAR;
    settings.c_cflag = B57600 | CS8 | CREAD | CLOCAL;
    settings.c_cc[VTIME] = 10; // tenths of a second; the unit may have to wait for a processor
    tcflush(line, TCIFLUSH);
    tcsetattr(line, TCSAFLUSH, &settings);
}

int UnitProcess::End(int signal)
{
    if (line >= 0) {
        close(line);
        line = -1;
    }
    if (process <= 0) {
        return -1;
    }
    if (signal != 0) {
        kill(process, signal);
    }
    int status = 0;
    waitpid(process, &status, 0);
    process = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void UnitProcess::Restart()
{
    End(SIGTERM);
    Start();
}

void UnitProcess::Put(const std::string& text) const
{
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t count = write(line, text.data() + done, text.size() - done);
        if (count <= 0) {
            return;
        }
        done += std::size_t(count);
    }
}

std::optional<std::string> UnitProcess::Take() const
{
    std::string text;
    char byte = 0;
    while (read(line, &byte, 1) == 1) {
        if (byte == '\r') {
            return text;
        }
        text += byte;
    }
    return std::nullopt;
}

std::optional<std::string> UnitProcess::Ask(const std::string& request) const
{
    Put(request);
    Put("\r");
    return Take();
}

bool UnitProcess::Answers() const
{
    std::optional<std::string> answer = Ask("R FFFFFFF0 04");
    while (answer && answer->compare(0, 14, "r FFFFFFF0 04 ") != 0) {
        answer = Take();
    }
    return answer.has_value();
}

std::string UnitProcess::Control(const std::string& text) const
{
    const std::string answer = TellUnit(folder + "/control", text);
    return answer.ends_with("\nok\n") ? answer.substr(0, answer.size() - 4) : answer;
}

long UnitProcess::Counter(const std::string& name) const
{
    const std::string stats = "\n" + Control("stats");
    const std::size_t place = stats.find("\n" + name + " ");
    return place == std::string::npos ? -1 : std::atol(stats.c_str() + place + name.size() + 2);
}
