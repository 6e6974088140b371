#include "Conversions.h"
#include "Fakes/ScriptedTavorDev.h"
#include "JobStateMachine.h"
#include "SensorUnit/Machine.h"
#include "Settings.h"

#include <cmath>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

using namespace SensorUnit;
using testing::EndsWith;

void StatusMsg(const QString&) {}

namespace {

/// The program's jobs on the machine alone, without a line between them, in simulated time.
class Rig {
public:
    Rig() : machine([] { return std::int64_t(1'700'000'000); })
    {
        scripted.Reset();
        settings = Settings::def;
        settings.sensPassageTime = 60;
    }

    /// Runs a job and returns how it ended, "E03-16" for phase 3 and E16.
    std::string Run(char letter)
    {
        testing::internal::CaptureStdout();
        ShowReadings();
        jobs.Start(JobStateMachine::Type(letter));
        for (ticks = 0; jobs.IsRunning() && ticks < 4000; ++ticks) {
            Obey();
            machine.Advance(1);
            ShowReadings();
            QMetaObject::invokeMethod(&jobs, "OnSecTimeout", Qt::DirectConnection);
        }
        Obey();
        testing::internal::GetCapturedStdout();
        const auto end = jobs.GetSnapshot();
        return JobStateMachine::PrintStateTag(end.type, end.lastPhase, end.stopCause).toStdString();
    }

    void SetGas(double sf6, double so2, double dewPoint)
    {
        Gas gas = machine.path.At(NODE_C1).gas;
        gas[SHARE_SF6] = sf6;
        gas[SHARE_SO2] = so2;
        gas[SHARE_WATER] = machine.WaterOf(dewPoint);
        machine.path.SetCompartmentGas(gas);
    }

    Machine machine;
    JobStateMachine jobs;
    int ticks = 0; ///< seconds that the last job took

private:
    void ShowReadings()
    {
        for (int i = 0; i < PRESSURE_NUM; ++i) {
            scripted.pressure[i] = machine.sensors.Pressure(PressureSensor(i)) / 1000.0;
        }
        for (int i = 0; i < SENSOR_NUM; ++i) {
            scripted.amount[i] = machine.sensors.Value(Sensor(i)) / 1000.0;
        }
        const double water = machine.WaterOf(scripted.amount[SENSOR_HUM]);
        scripted.SetDewPoint(std::round(CalcPressurizedDP(water, 1.0)));
        scripted.airPressure = machine.AirPressureHPa();
        scripted.depotLevel = int(std::lround(machine.path.DepotLevel()));
    }

    void Obey()
    {
        std::istringstream commands(scripted.TakeCommands());
        for (std::string command; commands >> command;) {
            const bool on = command.back() == '+';
            if (command == "home") {
                machine.GoHome();
            } else if (command[0] == 'C') {
                machine.SetCompressor(on);
            } else if (command[0] == 'V') {
                machine.SetValve(command[1] == 'L' ? WAY_VL : Way(command[1] - '1'), on);
            }
        }
    }
};

struct Row {
    const char* name;
    std::function<void(Rig&)> prepare;
    std::string ends; ///< of the jobs that are run, each on a rig of its own
    int mostTicks;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.ends; }
};

class Jobs : public testing::TestWithParam<Row> {};

/// What all volumes hold together of a share, SHARE_NUM for the gas as such.
double Sum(const Machine& machine, int share)
{
    double sum = 0;
    for (int node = 0; node < NODE_NUM; ++node) {
        const Volume& volume = machine.path.At(Node(node));
        sum += volume.content * (share == SHARE_NUM ? 1 : volume.gas[std::size_t(share)]);
    }
    return sum;
}

/// The compartment's gas, and at once that of the whole path.
std::function<void(Rig&)> Gases(double so2, double dewPoint)
{
    return [=](Rig& rig) {
        rig.SetGas(99.2, so2, dewPoint);
        rig.machine.Flush();
    };
}

std::function<void(Rig&)> Stuck(Way way, bool open = false)
{
    return [=](Rig& rig) {
        rig.machine.faults.valve[way] = VALVE_STUCK;
        rig.machine.faults.stuckOpen[way] = open;
    };
}

std::function<void(Rig&)> Leak(Node node, double millilitres)
{
    return [=](Rig& rig) { rig.machine.faults.leak[node] = millilitres; };
}

std::function<void(Rig&)> Compressor(double share)
{
    return [=](Rig& rig) {
        rig.machine.faults.compressor = COMPRESSOR_WEAK;
        rig.machine.faults.compressorShare = share;
    };
}

std::function<void(Rig&)> Bottle(double bar)
{
    return [=](Rig& rig) { rig.machine.SetPort2(PORT_CONNECTED, bar); };
}

}

TEST_P(Jobs, StopAsTheGasPathDemands)
{
    std::istringstream ends(GetParam().ends);
    for (std::string end; ends >> end;) {
        Rig rig;
        // Self-tests run with capped ports.
        if (std::string("PQR").find(end[0]) != std::string::npos) {
            rig.machine.SetPort1(PORT_CAPPED);
        }
        GetParam().prepare(rig);
        rig.machine.Apply();
        EXPECT_EQ(rig.Run(end[0]), end) << "after " << rig.ticks;
        EXPECT_LE(rig.ticks, GetParam().mostTicks) << end;
    }
}

INSTANTIATE_TEST_SUITE_P(Path, Jobs, testing::Values(
    Row{"healthy", [](Rig& rig) { rig.machine.SetPort3(PORT_CONNECTED, 0); },
        "B07-00 C07-00 D04-00 F00-00 H05-00 K04-00 J07-00", 90},
    Row{"selfTests", [](Rig&) {}, "P15-00 Q21-00 R12-00", 240},
    Row{"bottle", Bottle(2), "E04-00 L04-00", 90},
    Row{"emptyBottle", Bottle(1), "E03-07", 20},
    Row{"closedPort2", [](Rig&) {}, "E03-16", 310},
    Row{"pressureInTheInlet", [](Rig& rig) { rig.machine.path.SetPressure(NODE_N1, 5); }, "B00-08 F03-00", 30},
    Row{"fullDepot", [](Rig& rig) { rig.machine.path.SetDepotLevel(80); }, "B00-06", 2},
    Row{"lowCompartment", [](Rig& rig) { rig.machine.SetCompartment(1.1, 50); }, "B02-07", 6},
    Row{"damp", Gases(5, -25), "J07-00", 300},
    Row{"wet", Gases(0, -15), "J05-20", 300},
    Row{"contaminated", Gases(11, -42), "J05-25", 300},
    Row{"heavilyContaminated", Gases(300, -42), "B04-25", 12},
    Row{"leakAtInlet", Leak(NODE_N1, 0.4), "P06-52 Q14-54", 240},
    Row{"leakBehindVL", Leak(NODE_L, 2), "Q13-53", 240},
    Row{"leakAtSuction", Leak(NODE_J, 10), "R05-63", 240},
    Row{"deadCompressor", Compressor(0), "P04-51 Q03-51 R04-62", 240},
    Row{"weakCompressor", Compressor(0.25), "P04-51 Q03-51", 240},
    Row{"v1Shut", Stuck(WAY_V1), "P07-53 R11-54", 240},
    Row{"v2Shut", Stuck(WAY_V2), "P14-58 Q05-52 R11-54", 240},
    Row{"v3Shut", Stuck(WAY_V3), "P14-58 R11-54", 240},
    Row{"v4Open", Stuck(WAY_V4, true), "R04-62", 240},
    Row{"v5Shut", Stuck(WAY_V5), "P11-56", 240},
    Row{"wetSensorPath", [](Rig& rig) { rig.machine.faults.wetDewPoint = -10; }, "Q25-60", 900}),
    [](const auto& row) { return row.param.name; });

TEST(GasPath, AMeasurementShowsTheCompartmentWhateverWasInThePath)
{
    const struct {
        double beforeSo2, before, so2, dewPoint;
    } rows[] = {{60, -10, 0, -42}, {0, -42, 60, -10}, {0, -42, 5, -55}};
    for (const auto& row : rows) {
        Rig rig;
        Gases(row.beforeSo2, row.before)(rig);
        rig.SetGas(97.4, row.so2, row.dewPoint);
        ASSERT_EQ(rig.Run('B'), "B07-00");
        const Mea& mea = rig.jobs.GetMea();
        EXPECT_NEAR(mea.amountSF6.ToDouble(), 97.4, 0.05);
        EXPECT_NEAR(mea.amountSO2.ToDouble(), row.so2, 0.3) << row.dewPoint;
        EXPECT_NEAR(mea.humidity[Humidity::CELS].ToDouble(), row.dewPoint, 1) << "whole degrees";
        EXPECT_NEAR(mea.pressureComp[Pressure::BAR].ToDouble(), 4.99, 0.01);
    }
}

TEST(GasPath, NoGasIsLostOrMadeWithoutALeak)
{
    Rig rig;
    Gases(8, -38)(rig);
    rig.machine.path.SetDepotLevel(10);
    rig.SetGas(99.2, 0, -38);
    const Machine before = rig.machine;
    for (const char job : std::string("BFJFDF")) {
        EXPECT_THAT(rig.Run(job), EndsWith("-00")) << job;
    }
    for (const int share : {int(SHARE_NUM), int(SHARE_SF6), int(SHARE_SO2), int(SHARE_WATER)}) {
        EXPECT_NEAR(Sum(rig.machine, share) / Sum(before, share), 1, 1e-9) << share;
    }
    EXPECT_GT(rig.machine.path.At(NODE_C1).gas[SHARE_SO2], 0.02) << "what was pumped back brought its SO2 along";
    EXPECT_GT(rig.machine.compressorSeconds, before.compressorSeconds + 20);

    rig.machine.faults.leak[NODE_C1] = 100;
    rig.machine.Apply();
    rig.machine.Advance(3600);
    EXPECT_NEAR(rig.machine.path.Pressure(NODE_C1), 1.013, 0.01);
    rig.machine.faults = {};
    rig.machine.SetAmbient(850, 23, 45);
    EXPECT_EQ(rig.Run('F'), "F03-00") << "into thinner air";
    rig.machine.faults.leak[NODE_S] = 100;
    rig.machine.Apply();
    rig.machine.path.SetPressure(NODE_S, 0.2);
    rig.machine.Advance(60);
    EXPECT_LT(rig.machine.sensors.Value(SENSOR_SF6), 60'000) << "a leak lets air into an evacuated path";
}

TEST(GasPath, AFilterAtTheCompressorMakesPurificationSucceed)
{
    Rig rig;
    Gases(40, -15)(rig);
    rig.machine.filter = 0.9;
    rig.machine.Apply();
    EXPECT_EQ(rig.Run('J'), "J07-00");
    EXPECT_LT(rig.ticks, 283) << "before the last of ten cycles";
}
