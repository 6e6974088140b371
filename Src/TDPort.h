#pragma once

#include "RRx/RRTypeDefs.h"

/// One request to the sensor unit and, after the exchange, its response.
class TDMsg {
public:
    enum Type { READ = 1, WRITE = 2 };

    /// The most data bytes of one message.
    static constexpr int CAPACITY = 64;

    /// A discarded message without data.
    TDMsg() = default;
    TDMsg(const TDMsg& other) { *this = other; }
    TDMsg& operator=(const TDMsg& other);

    /// Makes a read request of `n` bytes at location `l`; 0 <= n <= CAPACITY. The data stay as they are.
    void Setup(RR::UInt32 l, RR::SInt32 n);
    /// Makes a write request of the `n` bytes at `d`, or of the data held if `d` is null; 0 <= n <= CAPACITY.
    void Setup(RR::UInt32 l, RR::SInt32 n, const RR::UInt08* d);

    /// A discarded message holds no valid exchange; its data are undefined.
    bool IsDiscarded() const { return discarded; }
    void Discard() { discarded = true; }

    Type GetType() const { return type; }
    RR::UInt32 GetLoc() const { return loc; }
    RR::SInt32 GetNum() const { return num; }
    const RR::UInt08* Data() const { return data; }
    RR::UInt08* Data() { return data; }
    RR::UInt08 operator[](int index) const;
    RR::UInt08& operator[](int index);

private:
    bool discarded = true;
    Type type = READ;
    RR::UInt32 loc = 0xFFFFFFFF;
    RR::UInt08 num = 0;
    RR::UInt08 data[CAPACITY];
};

/// The serial line to the sensor unit: opens the device and runs exchanges on it.
/// Not safe for concurrent use, not even of two ports; whoever owns the line serialises the calls.
class TDPort {
public:
    TDPort() = default;
    ~TDPort() { Close(); }
    TDPort(const TDPort&) = delete;
    TDPort& operator=(const TDPort&) = delete;

    /// Opens the device at `name`, a path on the board, with 57600 baud, 8N1, raw.
    bool Open(const char* name);
    void Close();
    bool IsOpen() const { return serFd >= 0; }

    /// Sends `msg` and waits for the line that answers it; a read's data then stand in `msg`.
    /// Lines that don't fit the request are skipped. Fails after 200 ms of silence, with `msg` discarded.
    /// A message that is already discarded isn't sent, but an answer to it is waited for all the same.
    bool Transceive(TDMsg& msg) const;

    /// Takes one pending line off the port, or waits out 200 ms of silence.
    void Flush() const;

private:
    void PutRequest(const TDMsg& msg) const;
    bool GetResponse(TDMsg& msg) const;

    int serFd = -1;
};
