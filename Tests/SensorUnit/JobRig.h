#pragma once

#include "SensorUnit/Machine.h"

#include <algorithm>
#include <initializer_list>
#include <string>

/// The gas handling sequences that the unit has to stand, run against the machine alone in simulated time.
/// Each returns how it stops: "H00" for a proper end.
class JobRig {
public:
    JobRig() : machine([] { return std::int64_t(1'700'000'000); }) {}

    std::string Run(char job);

    /// Self-tests run with capped ports.
    void Cap()
    {
        machine.SetPort1(SensorUnit::PORT_CAPPED);
        machine.SetPort2(SensorUnit::PORT_CAPPED, 0);
    }

    /// Dew point in °C as the program works it out of the humidity sensor's reading.
    double Humidity() const;
    double Reading(SensorUnit::Sensor sensor) const { return machine.sensors.Value(sensor) / 1000.0; }
    /// P1 to P5 in bar.
    double P(int number) const { return machine.sensors.Pressure(SensorUnit::PressureSensor(number - 1)) / 1000.0; }

    SensorUnit::Machine machine;
    int ticks = 0;          ///< seconds since the start
    /// What a measurement records at the end of its passage time.
    struct Record {
        double sf6 = 0, so2 = 0, humidity = 0, compartment = 0;
    } record;
    double highestBack = 0; ///< the highest P2 of a measurement's passage time, bar

private:
    void Next(int pause = 1)
    {
        for (int tick = 0; tick < std::max(1, pause); tick++, ticks++) {
            for (int i = 0; i < 10; i++) {
                machine.Advance(0.1);
            }
        }
    }

    /// Waits tick by tick, at most `timeout` of them, as a script with a supervision time does.
    template <typename Condition>
    bool Await(int timeout, Condition condition)
    {
        while (!condition()) {
            if (--timeout <= 0) {
                return false;
            }
            Next();
        }
        return true;
    }

    void Switch(bool on, std::initializer_list<int> valves)
    {
        for (const int valve : valves) {
            machine.SetValve(valve == VL ? SensorUnit::WAY_VL : SensorUnit::Way(valve - 1), on);
        }
    }
    void Open(std::initializer_list<int> valves) { Switch(true, valves); }
    void Shut(std::initializer_list<int> valves) { Switch(false, valves); }
    void Pump(bool on) { machine.SetCompressor(on); }
    void Store(double reading) { stored = reading; }
    bool Within(int low, double reading, int high) const
    {
        const int percent = int(100 * reading / stored);
        return percent > low && percent < high;
    }

    std::string Measure(bool depot);
    std::string Transfer(bool port2, bool external);
    std::string Balance();
    std::string FlushOnce();
    std::string Purify();
    std::string SelfTest1();
    std::string SelfTest2();
    std::string DryTest2();
    std::string SelfTest3();

    static constexpr int VL = 7;
    double stored = 0;
};
