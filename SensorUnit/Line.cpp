#include "SensorUnit/Line.h"

#include "SensorUnit/Log.h"
#include "SensorUnit/Protocol.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace SensorUnit {

namespace {

/// Start bit, 8 data bits, stop bit at 57600 baud.
constexpr Micros::rep nanosPerByte = 10 * 1'000'000'000LL / 57600;

/// A request broken off for so long is given up, so that the next one is not lost with it.
constexpr Micros giveUpAfter = std::chrono::seconds(1);

/// So much time on the line may be taken in advance, about what the buffer of a serial driver holds.
constexpr Micros readAhead = std::chrono::milliseconds(50);

/// Bytes are handed out in batches of about this time on the line.
constexpr Micros batch = std::chrono::milliseconds(2);

bool PointLink(const std::string& path, const std::string& target)
{
    struct stat found{};
    if (lstat(path.c_str(), &found) == 0 && !S_ISLNK(found.st_mode)) {
        Log("%s exists and is no link", path.c_str());
        return false;
    }
    const std::string fresh = path + ".new";
    unlink(fresh.c_str());
    if (symlink(target.c_str(), fresh.c_str()) != 0 || rename(fresh.c_str(), path.c_str()) != 0) {
        Log("can't make the link %s: %s", path.c_str(), std::strerror(errno));
        return false;
    }
    return true;
}

/// 57600 baud, 8 bits, no parity, no handshake, every byte as it is. False if that isn't a terminal.
bool MakeRaw(int descriptor)
{
    termios settings{};
    if (descriptor < 0 || tcgetattr(descriptor, &settings) != 0) {
        return false;
    }
    settings.c_iflag = IGNPAR;
    settings.c_oflag = 0;
    settings.c_lflag = 0;
    settings.c_cflag = B57600 | CS8 | CREAD | CLOCAL;
    return tcsetattr(descriptor, TCSANOW, &settings) == 0;
}

}

Line::Line(bool paced)
    : byteNanos(paced ? nanosPerByte : 0)
{
}

Line::~Line()
{
    char target[256];
    const ssize_t length = linkPath.empty() ? -1 : readlink(linkPath.c_str(), target, sizeof target);
    if (length > 0 && slavePath == std::string(target, std::size_t(length))) {
        unlink(linkPath.c_str());
    }
    for (const int descriptor : {slave, master}) {
        if (descriptor >= 0) {
            close(descriptor);
        }
    }
}

bool Line::Open(const std::string& path)
{
    master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    const char* name = master >= 0 && grantpt(master) == 0 && unlockpt(master) == 0 ? ptsname(master) : nullptr;
    if (name) {
        slavePath = name;
        slave = open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    }
    if (!MakeRaw(slave)) {
        Log("can't make a pseudo terminal: %s", std::strerror(errno));
        return false;
    }
    fcntl(master, F_SETFL, O_NONBLOCK);
    if (!PointLink(path, slavePath)) {
        return false;
    }
    linkPath = path;
    return true;
}

bool Line::OpenPort(const std::string& device)
{
    master = open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (!MakeRaw(master)) {
        Log("can't serve the serial port %s: %s", device.c_str(), std::strerror(errno));
        return false;
    }
    return true;
}

void Line::Receive(Micros now)
{
    char bytes[256];
    while (WantsInput(now)) {
        const ssize_t count = read(master, bytes, sizeof bytes);
        if (count <= 0) {
            return;
        }
        if (!plugged) {
            counters.vanishedIn += std::uint64_t(count);
            continue;
        }
        if ((!partial.empty() || partialOverlong) && now - lastByte > giveUpAfter) {
            Log("half a line: %s", Printable(partial).c_str());
            counters.half++;
            partial.clear();
            partialOverlong = false;
        }
        lastByte = now;
        receiverFree = std::max<std::chrono::nanoseconds>(receiverFree, now);
        for (ssize_t i = 0; i < count; i++) {
            receiverFree += std::chrono::nanoseconds(byteNanos);
            TakeByte(bytes[i]);
        }
        counters.bytesIn += std::uint64_t(count);
    }
}

bool Line::WantsInput(Micros now) const
{
    return receiverFree <= now + readAhead;
}

void Line::TakeByte(char byte)
{
    if (byte == '\r') {
        if (partialOverlong) {
            Log("overlong line: %s", Printable(partial).c_str());
            counters.overlong++;
        } else if (!partial.empty()) {
            incoming.push_back({partial, std::chrono::ceil<Micros>(receiverFree)});
        }
        partial.clear();
        partialOverlong = false;
    } else if (byte == '\n' && partial.empty() && !partialOverlong) {
        // The second half of a CR LF.
    } else if (partial.size() < maxRequestChars) {
        partial += byte;
    } else {
        partialOverlong = true;
    }
}

std::optional<std::string> Line::TakeLine(Micros now)
{
    if (incoming.empty() || incoming.front().due > now) {
        return std::nullopt;
    }
    std::string line = std::move(incoming.front().text);
    incoming.pop_front();
    return line;
}

void Line::Send(const std::string& text, Micros start)
{
    start = std::max(start, senderFree);
    senderFree = start + Micros(Micros::rep(text.size()) * byteNanos / 1000);
    outgoing.push_back({text, start});
}

void Line::Transmit(Micros now)
{
    while (!outgoing.empty() && outgoing.front().start <= now) {
        Outgoing& line = outgoing.front();
        std::size_t due = line.text.size();
        if (byteNanos > 0) {
            due = std::min(due, std::size_t((now - line.start).count() * 1000 / byteNanos));
        }
        if (due > line.sent) {
            Put(line.text.data() + line.sent, due - line.sent);
            line.sent = due;
        }
        if (line.sent < line.text.size()) {
            return;
        }
        outgoing.pop_front();
    }
}

void Line::Put(const char* bytes, std::size_t count)
{
    // A byte that finds no room is lost, as on a line that nobody reads.
    const ssize_t put = plugged ? write(master, bytes, count) : 0;
    const std::size_t passed = put > 0 ? std::size_t(put) : 0;
    counters.bytesOut += passed;
    counters.vanishedOut += count - passed;
}

std::optional<Micros> Line::NextDue() const
{
    std::optional<Micros> due;
    if (!outgoing.empty()) {
        const Outgoing& line = outgoing.front();
        const Micros whole = line.start + Micros(Micros::rep(line.text.size()) * byteNanos / 1000 + 1);
        const Micros sent = line.start + Micros(Micros::rep(line.sent) * byteNanos / 1000);
        due = std::min(whole, sent + batch);
    }
    if (!incoming.empty()) {
        due = std::min(due.value_or(incoming.front().due), incoming.front().due);
    }
    return due;
}

void Line::Drop()
{
    partial.clear();
    partialOverlong = false;
    incoming.clear();
    outgoing.clear();
    senderFree = Micros(0);
}

}
