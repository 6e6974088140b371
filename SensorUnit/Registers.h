#pragma once

#include "SensorUnit/Machine.h"
#include "SensorUnit/Protocol.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace SensorUnit {

enum Service {
    SERVICE_SUPPLY, SERVICE_CLOCK, SERVICE_HOME, SERVICE_CLIMATE, SERVICE_VALVES, SERVICE_COMPRESSOR, SERVICE_PRESSURES,
    SERVICE_DEPOT, SERVICE_FANS, SERVICE_SF6, SERVICE_SO2, SERVICE_HUM, SERVICE_HF, SERVICE_CO, SERVICE_SPARE, SERVICE_H2S,
    SERVICE_P6, SERVICE_STORINGS, SERVICE_DEVICE_INFO, SERVICE_ENTER_APPLICATION, SERVICE_ENTER_LOADER, SERVICE_POWERDOWN,
    SERVICE_NUM
};

struct ServiceEntry {
    const char* name; ///< as the control socket calls it
    std::uint32_t location;
    int size; ///< bytes
    bool readable, writable;
};

const ServiceEntry& EntryOf(Service service);

/// The service that contains all bytes of `request` and allows its kind; SERVICE_NUM if there is none.
Service ServiceFor(const Request& request);

/// The services that act on the machine: all but device info, the two entries and power-down.
/// Fields of more than one byte are big-endian.
class Registers {
public:
    explicit Registers(Machine& machine) : machine(machine) {}

    /// The whole payload of a readable service.
    std::vector<std::uint8_t> Read(Service service) const;

    /// Carries out the part of `service` that `request` covers. False, with nothing changed, if a value isn't one
    /// that the service knows.
    bool Write(Service service, const Request& request);

private:
    std::vector<std::uint8_t> ReadSensor(Sensor sensor) const;
    bool WriteSwitches(Service service, int first, const Request& request);
    bool WriteSensor(Sensor sensor, const std::vector<std::uint8_t>& payload);

    Machine& machine;
};

}
