#pragma once

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

/// A running zarn-unit in a folder of its own, with its line and its control socket. All calls block.
class UnitProcess {
public:
    /// `options` come between the unit's own ones and `command`.
    explicit UnitProcess(std::vector<std::string> options = {}, std::vector<std::string> command = {});
    ~UnitProcess();

    /// Waits until the line is there, and opens it as the display board does.
    bool IsReady();
    std::string LinkPath() const { return folder + "/line"; }
    std::string Folder() const { return folder; }

    /// Ends the unit, by a signal if it is to be told so, and returns its exit code; -1 if it was killed.
    int End(int signal = 0);
    /// Starts it again in the same folder, so with the same state.
    void Restart();

    /// Writes `text` to the line as it is.
    void Put(const std::string& text) const;
    /// The next line from the unit without its end; nothing after 200 ms of silence.
    std::optional<std::string> Take() const;
    /// Writes `request` and CR, in two writes, and takes one line.
    std::optional<std::string> Ask(const std::string& request) const;
    /// Whether the unit answers at all, left aside what else comes.
    bool Answers() const;
    void Reopen();

    /// Sends a control command; what came back without its closing "ok", or the line that says "error ...".
    std::string Control(const std::string& command) const;
    /// One of the counters that "stats" lists.
    long Counter(const std::string& name) const;

private:
    void Start();

    std::string folder;
    std::vector<std::string> options, command;
    pid_t process = 0;
    int line = -1;
};
