#pragma once

#include "SensorUnit/Line.h"
#include "SensorUnit/Loader.h"
#include "SensorUnit/Machine.h"
#include "SensorUnit/Registers.h"

#include <cstdint>
#include <optional>
#include <random>
#include <string>

namespace SensorUnit {

enum Mode { MODE_APPLICATION, MODE_LOADER, MODE_OFF };

/// What became of the lines that came.
struct RequestCounters {
    std::uint64_t answered = 0;
    std::uint64_t malformed = 0; ///< not a request in its exact form
    std::uint64_t unserved = 0;  ///< no such service, not allowed, not in this mode, or an unknown value
    std::uint64_t withheld = 0;  ///< would have been served, but a fault or a restart kept the unit silent
};

/// The controller of the sensor unit: takes requests from the line, serves them in the application or in the
/// program loader, and answers. Time is handed in and never goes back.
class Unit {
public:
    /// `paced`: keep the pace of the real line. `stateFile`: what outlives a power cycle; empty for nothing.
    Unit(bool paced, std::string stateFile);
    ~Unit();

    /// Lets everything happen that is due at `now`.
    void Turn(Micros now);

    /// When `Turn` has something to do next, at the latest.
    Micros NextDue(Micros now) const;

    /// Starts the unit afresh, as its watchdog would: actuators home, a moment of silence, then the
    /// application, or the loader if there is no good image.
    void Reset(Micros now);
    void PowerOff();
    void PowerOn(Micros now);

    /// Something that outlives a power cycle has changed.
    void Touch(Micros now);
    void Save();

    Mode GetMode() const { return mode; }
    /// The four bytes of the device info service.
    std::vector<std::uint8_t> DeviceInfo() const;
    const RequestCounters& Counters() const { return counters; }

    Line line;
    Machine machine;
    Loader loader;

private:
    void Handle(const std::string& text, Micros now);
    std::optional<std::string> Serve(const Request& request, Micros now);
    std::optional<std::string> ServeMemory(const Request& request, Micros now);
    void Answer(const std::string& response, Micros now);
    std::string Garbled(std::string line);
    void StartImage();

    Registers registers;
    Mode mode = MODE_OFF;
    std::optional<ImageInfo> running; ///< the application, as it was when it started
    std::string stateFile;
    Micros machineTime{0};
    Micros silentUntil{0};
    std::optional<Micros> saveAt;
    std::string previousAnswer;
    std::minstd_rand random{1};
    RequestCounters counters;
};

}
