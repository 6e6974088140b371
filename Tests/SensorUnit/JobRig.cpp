#include "JobRig.h"

#include <cmath>

using namespace SensorUnit;

namespace {
const std::string done = "H00";
}

double JobRig::Humidity() const
{
    const double dewPoint = Reading(SENSOR_HUM);
    const double a = dewPoint < 0 ? 22.46 : 17.62, b = dewPoint < 0 ? 272.62 : 243.12;
    const double ppmv = 6.112 * std::exp(a * dewPoint / (b + dewPoint)) / (machine.AirPressureHPa() / 1000.0) * 1000;
    double l = std::log(ppmv / 10 / 610.714);
    double tenths = l * 272.44 * 10 / (22.44294 - l);
    if (tenths > 0) {
        l = std::log(ppmv / 10 / 610.78);
        tenths = l * 234.175 * 10 / (17.08085 - l);
    }
    return std::round((tenths > 0 && ppmv > 10600 ? tenths : tenths + 1) / 10);
}

std::string JobRig::Run(char job)
{
    ticks = 0;
    machine.GoHome();
    Next();
    std::string cause;
    switch (job) {
    case 'B': case 'C': cause = Measure(job == 'B'); break;
    case 'D': case 'K': cause = Transfer(false, job == 'K'); break;
    case 'E': case 'L': cause = Transfer(true, job == 'L'); break;
    case 'F': cause = Balance(); break;
    case 'H': cause = FlushOnce(); break;
    case 'J': cause = Purify(); break;
    case 'P': cause = SelfTest1(); break;
    case 'Q': cause = SelfTest2(); break;
    case 'R': cause = SelfTest3(); break;
    default: cause = "no such job";
    }
    machine.GoHome();
    return cause;
}

std::string JobRig::Measure(bool depot)
{
    if (P(1) > 1.5) return "E08";
    if (P(3) > 1.5) return "E13";
    if (depot && P(4) > 0.02) return "E15";
    if (depot && machine.path.DepotLevel() > 75) return "E06";
    Next();
    Open({1});
    Next(3);
    if (P(1) < 1.2) return "E07";
    if (P(1) > 33) return "E08";
    Next();
    Open({2, 3});
    Switch(depot, {4});
    Next(3);
    std::string cause;
    highestBack = 0;
    Await(60, [&] {
        highestBack = std::max(highestBack, P(2));
        cause = P(1) < 1.15 ? "E07" : P(2) > 0.015 ? "E11" : depot && P(4) > 0.015 ? "E15" : Reading(SENSOR_SO2) > 95 ? "E25" : "";
        return !cause.empty();
    });
    if (!cause.empty()) return cause;
    record = {Reading(SENSOR_SF6), Reading(SENSOR_SO2), Humidity(), Reading(SENSOR_P6)};
    Next();
    Shut({1});
    Next(10);
    Shut({2, 3, 4});
    Next();
    return done;
}

std::string JobRig::Transfer(bool port2, bool external)
{
    const double end = external ? -0.16 : -0.06;
    if (P(4) < end) return done;
    if (P(1) > 11) return "E09";
    if (P(3) > 1.2) return "E13";
    Next();
    if (port2 && !external) {
        Open({4});
        Next();
        Pump(true);
        Open({5});
    } else {
        Pump(true);
        Next();
        Open({port2 ? 5 : 1, 4});
    }
    machine.pumpBacks++;
    Next(3);
    std::string cause;
    const bool reached = Await(external ? 3590 : 300, [&] {
        cause = P(1) > 11 ? "E09" : port2 && !external && P(1) < 1.2 ? "E07" : "";
        return !cause.empty() || P(4) <= end;
    });
    if (!cause.empty()) return cause;
    if (!reached) return "E16";
    Shut({1, 4, 5});
    Pump(false);
    Next(3);
    return done;
}

std::string JobRig::Balance()
{
    if (P(1) < 1.5 && P(2) < 0.015) return done;
    Next();
    Open({2, 3, 4});
    Next();
    if (!Await(300, [&] { return P(1) <= 1.5 && P(2) <= 0.015; })) return "E17";
    Shut({2});
    Next(5);
    return done;
}

std::string JobRig::FlushOnce()
{
    Open({2, 3});
    Next();
    Pump(true);
    Next();
    Await(5, [&] { return P(1) > 7; });
    Pump(false);
    Next();
    Await(25, [&] { return P(1) < 1.2; });
    Shut({2});
    Next(10);
    Shut({3});
    Next();
    return done;
}

std::string JobRig::Purify()
{
    Open({VL});
    Next();
    Open({2, 3});
    Next();
    for (int cycle = 10;; Next()) {
        Pump(true);
        Next();
        Await(25, [&] { return P(1) > 9; });
        Pump(false);
        Next();
        Await(25, [&] { return P(1) < 1.2; });
        cycle--;
        Next();
        if (Humidity() <= -35 && Reading(SENSOR_SO2) <= 10) break;
        if (cycle > 0) continue;
        if (Reading(SENSOR_SO2) > 10) return "E25";
        if (Humidity() > -20) return "E20";
        break;
    }
    Shut({2, VL});
    Next();
    Shut({3});
    Next(10);
    return done;
}

std::string JobRig::SelfTest1()
{
    const auto high = [&] { return P(1) > 8; };
    const auto low = [&] { return P(1) < 1.2; };
    Open({1, 5});
    for (int tries = 2;;) {
        Next();
        Open({2, 3, 4, VL});
        Next();
        if (!Await(50, low)) return "E50";
        Shut({1, 2, 3, 5, VL});
        Next();
        Pump(true);
        Next();
        const bool reached = Await(10, high);
        Pump(false);
        if (reached) break;
        if (--tries == 0) return "E51";
    }
    Shut({4});
    Next();
    Store(P(1));
    Next(60);
    if (!Within(97, P(1), 102)) return "E52";
    Store(P(1));
    Open({1});
    Next(10);
    if (!Within(40, P(1), 90)) return "E53";
    Store(P(1));
    Next(30);
    if (!Within(97, P(1), 102)) return "E54";
    Open({4});
    Shut({1});
    Pump(true);
    Next();
    if (!Await(10, high)) return "E55";
    Pump(false);
    Shut({4});
    Next();
    Store(P(1));
    Open({5});
    Next(10);
    if (!Within(40, P(1), 70)) return "E56";
    Store(P(1));
    Next(30);
    if (!Within(97, P(1), 102)) return "E57";
    Open({1, 5});
    Next();
    Open({2, 3, 4});
    Next();
    if (!Await(60, low)) return "E58";
    Shut({2});
    Next(5);
    return done;
}

std::string JobRig::SelfTest2()
{
    const auto high = [&] { return P(1) > 8; };
    const auto back = [&] { return P(2) > 0.19; };
    Open({1, 2, 3, 4, 5, VL});
    Next();
    if (!Await(50, [&] { return P(1) < 1.2; })) return "E50";
    Shut({1, 2, 3, VL});
    Next();
    Pump(true);
    Next();
    if (!Await(10, high)) return "E51";
    Pump(false);
    Shut({4});
    Next();
    Open({2, VL});
    Next();
    if (!Await(60, back)) return "E52";
    Next(10);
    if (P(5) <= 0.21) return "E53";
    Next();
    // Every try takes two active ticks of the supervision time.
    for (int left = 60;; left -= 2) {
        Store(P(1));
        Next(2);
        if (stored - P(1) > -0.15 && stored - P(1) < 0.05) break;
        if (left <= 2) return "E61";
        Next();
    }
    Shut({VL});
    Next();
    Open({3, 4});
    Next(50);
    Pump(true);
    Shut({3});
    Next();
    if (!Await(10, high)) return "E51";
    Pump(false);
    Shut({4});
    Next();
    if (!Await(60, back)) return "E52";
    Next(10);
    if (P(5) <= 0.21) return "E53";
    Shut({2});
    Store(P(1));
    Next(60);
    if (!Within(95, P(1), 102)) return "E54";
    Next();
    Open({VL});
    int topUps = 3;
    Next(5);
    for (bool enough = back(); ; enough = false) {
        Next();
        if (!enough) {
            if (topUps-- == 0) return "E55";
            Open({4, 2});
            Pump(true);
            Next(6);
            if (!Await(45, back)) return "E56";
            Pump(false);
            Next();
        }
        Next(5);
        if (P(5) > 0.21) break;
    }
    Shut({4, 2});
    Store(P(5));
    Next(60);
    if (!Within(95, P(5), 102)) return "E57";
    return Humidity() > -20 ? DryTest2() : done;
}

std::string JobRig::DryTest2()
{
    Open({1, 2, 3, 5});
    for (int cycle = 10;;) {
        Next();
        Shut({4});
        Pump(true);
        Next();
        if (!Await(25, [&] { return P(1) > 7.3; })) return "E58";
        Pump(false);
        Open({4});
        Next();
        if (!Await(50, [&] { return P(1) < 1.2; })) return "E59";
        cycle--;
        Next(5);
        if (Humidity() < -30) break;
        if (cycle == 0) return "E60";
    }
    Shut({1, 2, 4, 5, VL});
    Next(10);
    Shut({3});
    Next();
    return done;
}

std::string JobRig::SelfTest3()
{
    Open({1, 2, 3, 4, 5, VL});
    Next();
    if (!Await(50, [&] { return P(1) < 1.2; })) return "E50";
    Shut({1, 2, 3, 4, 5, VL});
    Next();
    if (machine.AirPressureHPa() > 850) {
        Open({1, 2, 5, VL});
        Store(P(3));
        Pump(true);
        Next(10);
        Pump(false);
        Next(3);
        if (!Within(10, P(3), 92)) return "E62";
        Store(P(3));
        Next(30);
        if (!Within(95, P(3), 105)) return "E63";
        Next();
    }
    Open({3, 4});
    Next(15);
    Shut({1, 2, 3, 4, VL});
    Next(2);
    Pump(true);
    Next(3);
    do {
        if (P(4) <= -0.02) return "E52";
        Store(P(1));
        Next(2);
    } while (P(1) <= 8 || !Within(98, P(1), 102));
    Pump(false);
    Open({2, 3});
    Next(5);
    if (!Await(50, [&] { return P(1) < 1.2; })) return "E54";
    Shut({2});
    Next(5);
    return done;
}
