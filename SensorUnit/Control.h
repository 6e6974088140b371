#pragma once

#include <functional>
#include <string>
#include <vector>

#include <poll.h>

namespace SensorUnit {

/// The control socket: takes command lines from any number of clients and gives back what `execute` answers.
class Control {
public:
    using Execute = std::function<std::string(const std::string& line)>;

    explicit Control(Execute execute);
    ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Listens at `path`, in place of a socket that nobody listens at any more. False with a log line on failure.
    bool Open(const std::string& path);

    /// Adds the descriptors to be waited for.
    void Watch(std::vector<pollfd>& watched) const;

    /// Serves whoever has something; never blocks.
    void Turn();

private:
    struct Client {
        int descriptor;
        std::string input, output;
        bool leaving = false;
    };

    void Accept();
    void Receive(Client& client);
    static void Transmit(Client& client);

    Execute execute;
    std::string path;
    int listener = -1;
    std::vector<Client> clients;
};

/// Sends one command line to the unit that listens at `path` and prints its answer: 0 for "ok", 1 for an error,
/// 2 if no unit answers.
int RunControlClient(const std::string& path, const std::string& command);

}
