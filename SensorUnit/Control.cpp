#include "SensorUnit/Control.h"

#include "SensorUnit/Log.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace SensorUnit {

namespace {

constexpr std::size_t longestCommand = 1000;

bool MakeAddress(const std::string& path, sockaddr_un& address)
{
    address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) {
        Log("the path of a socket may have %zu characters: %s", sizeof address.sun_path - 1, path.c_str());
        return false;
    }
    std::memcpy(address.sun_path, path.c_str(), path.size());
    return true;
}

int Connect(const sockaddr_un& address)
{
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (descriptor >= 0 && connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        close(descriptor);
        return -1;
    }
    return descriptor;
}

}

Control::Control(Execute executor)
    : execute(std::move(executor))
{
}

Control::~Control()
{
    for (const Client& client : clients) {
        close(client.descriptor);
    }
    if (listener >= 0) {
        close(listener);
        unlink(path.c_str());
    }
}

bool Control::Open(const std::string& socketPath)
{
    sockaddr_un address{};
    if (!MakeAddress(socketPath, address)) {
        return false;
    }
    const int other = Connect(address);
    if (other >= 0) {
        close(other);
        Log("another unit listens at %s", socketPath.c_str());
        return false;
    }
    struct stat found{};
    if (lstat(socketPath.c_str(), &found) == 0 && S_ISSOCK(found.st_mode)) {
        unlink(socketPath.c_str());
    }
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (descriptor < 0 || bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 || listen(descriptor, 8) != 0) {
        Log("can't listen at %s: %s", socketPath.c_str(), std::strerror(errno));
        if (descriptor >= 0) {
            close(descriptor);
        }
        return false;
    }
    listener = descriptor;
    path = socketPath;
    return true;
}

void Control::Watch(std::vector<pollfd>& watched) const
{
    if (listener >= 0) {
        watched.push_back({listener, POLLIN, 0});
    }
    for (const Client& client : clients) {
        watched.push_back({client.descriptor, short(client.output.empty() ? POLLIN : POLLOUT), 0});
    }
}

void Control::Turn()
{
    if (listener < 0) {
        return;
    }
    Accept();
    for (Client& client : clients) {
        Receive(client);
        Transmit(client);
    }
    const auto gone = std::stable_partition(clients.begin(), clients.end(), [](const Client& client) { return !client.leaving; });
    std::for_each(gone, clients.end(), [](const Client& client) { close(client.descriptor); });
    clients.erase(gone, clients.end());
}

void Control::Accept()
{
    for (;;) {
        const int descriptor = accept(listener, nullptr, nullptr);
        if (descriptor < 0) {
            return;
        }
        fcntl(descriptor, F_SETFL, O_NONBLOCK);
        fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        clients.push_back({descriptor, {}, {}});
    }
}

void Control::Receive(Client& client)
{
    if (!client.output.empty()) {
        return;
    }
    char bytes[512];
    const ssize_t count = recv(client.descriptor, bytes, sizeof bytes, 0);
    if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR)) {
        client.leaving = true;
        return;
    }
    client.input.append(bytes, count > 0 ? std::size_t(count) : 0);
    for (std::size_t end = client.input.find('\n'); end != std::string::npos; end = client.input.find('\n')) {
        client.output += execute(client.input.substr(0, end));
        client.input.erase(0, end + 1);
    }
    if (client.input.size() > longestCommand) {
        client.output += "error the line is too long\n";
        client.input.clear();
    }
}

void Control::Transmit(Client& client)
{
    if (client.output.empty()) {
        return;
    }
    const ssize_t count = send(client.descriptor, client.output.data(), client.output.size(), MSG_NOSIGNAL);
    if (count > 0) {
        client.output.erase(0, std::size_t(count));
    } else if (errno != EAGAIN && errno != EINTR) {
        client.leaving = true;
    }
}

int RunControlClient(const std::string& path, const std::string& command)
{
    sockaddr_un address{};
    const int descriptor = MakeAddress(path, address) ? Connect(address) : -1;
    if (descriptor < 0) {
        std::fprintf(stderr, "no unit listens at %s\n", path.c_str());
        return 2;
    }
    const std::string line = command + "\n";
    std::string answer;
    int result = 2;
    if (send(descriptor, line.data(), line.size(), MSG_NOSIGNAL) == ssize_t(line.size())) {
        char bytes[4096];
        for (ssize_t count = 0; result == 2 && (count = recv(descriptor, bytes, sizeof bytes, 0)) > 0;) {
            answer.append(bytes, std::size_t(count));
            for (std::size_t end = answer.find('\n'); result == 2 && end != std::string::npos; end = answer.find('\n')) {
                const std::string text = answer.substr(0, end);
                answer.erase(0, end + 1);
                if (text == "ok") {
                    result = 0;
                } else if (text.compare(0, 6, "error ") == 0) {
                    result = 1;
                    std::fprintf(stderr, "%s\n", text.c_str());
                } else {
                    std::printf("%s\n", text.c_str());
                }
            }
        }
    }
    close(descriptor);
    return result;
}

}
