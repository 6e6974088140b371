#pragma once

#include "Board/Board.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// Says `command` to the sensor unit behind the control socket at `path`. Returns its whole answer,
/// whose last line is "ok" or begins with "error".
inline std::string TellUnit(const std::string& path, const std::string& command)
{
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    if (connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        close(fd);
        return "error no unit at " + path;
    }
    const std::string line = command + "\n";
    std::string answer;
    char c;
    if (write(fd, line.data(), line.size()) == static_cast<ssize_t>(line.size())) {
        while (read(fd, &c, 1) == 1) {
            answer += c;
            const std::string last = answer.substr(answer.rfind('\n', answer.size() - 2) + 1);
            if (c == '\n' && (last == "ok\n" || last.starts_with("error"))) {
                break;
            }
        }
    }
    close(fd);
    return answer;
}

/// Says one command, or several with semicolons between them, to the unit of the board; the test fails if one is refused.
inline void Tell(const std::string& commands)
{
    std::istringstream list(commands);
    for (std::string command; std::getline(list >> std::ws, command, ';');) {
        const std::string answer = TellUnit(Board::Root() + "/unit.ctl", command);
        ASSERT_TRUE(answer.ends_with("ok\n")) << command << ": " << answer;
    }
}
