#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>

namespace SensorUnit {

/// Time on the monotonic clock since the unit was switched on.
using Micros = std::chrono::microseconds;

/// What the line has seen; every byte and line that didn't become an answer is found here.
struct LineCounters {
    std::uint64_t bytesIn = 0, bytesOut = 0;
    std::uint64_t overlong = 0;     ///< lines longer than any request
    std::uint64_t half = 0;         ///< lines that were broken off by a second of silence
    std::uint64_t vanishedIn = 0;   ///< bytes that came while the line was cut or the unit was off
    std::uint64_t vanishedOut = 0;  ///< bytes not sent, since the line was cut or nobody took them
};

/// The unit's end of the serial line: a pseudo terminal behind a link of a fixed name, or a real serial port. Through
/// a pseudo terminal bytes pass in both directions at the pace of 57600 baud, 10 bits a byte; a real port has its own.
class Line {
public:
    explicit Line(bool paced);
    ~Line();
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    /// Makes the pseudo terminal and lets the link `path` point to it, in place of an older link.
    /// False with a log line if that fails or if `path` is something other than a link.
    bool Open(const std::string& path);
    /// Opens the serial port `device`. False with a log line if that fails or if it is no terminal.
    bool OpenPort(const std::string& device);

    int Descriptor() const { return master; }

    /// Takes what has come; a byte counts as received when its time on the line is over.
    void Receive(Micros now);

    /// Whether `Receive` would take bytes. While more is under way than a driver would hold, the writer waits.
    bool WantsInput(Micros now) const;

    /// The next line that is complete at `now`, without its CR. Empty lines are skipped.
    std::optional<std::string> TakeLine(Micros now);

    /// Queues `text`; its first byte starts at `start` or when the line is free.
    void Send(const std::string& text, Micros start);

    /// Hands out the bytes whose time on the line is over.
    void Transmit(Micros now);

    /// When the line next has something to do, if at all.
    std::optional<Micros> NextDue() const;

    /// A cut line swallows the bytes of both directions.
    void SetPlugged(bool on) { plugged = on; }
    bool IsPlugged() const { return plugged; }

    /// Drops what is under way in both directions, as a restart of the unit does.
    void Drop();

    const LineCounters& Counters() const { return counters; }

private:
    struct Incoming {
        std::string text;
        Micros due;
    };
    struct Outgoing {
        std::string text;
        Micros start;
        std::size_t sent = 0;
    };

    void TakeByte(char byte);
    void Put(const char* bytes, std::size_t count);

    const Micros::rep byteNanos;
    int master = -1;
    int slave = -1; ///< held open, so that the program may open and close the line at will
    std::string linkPath, slavePath;
    bool plugged = true;
    std::string partial;
    bool partialOverlong = false;
    Micros lastByte{0};
    std::chrono::nanoseconds receiverFree{0};
    Micros senderFree{0};
    std::deque<Incoming> incoming;
    std::deque<Outgoing> outgoing;
    LineCounters counters;
};

}
