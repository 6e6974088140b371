#include "JobRig.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>

using namespace SensorUnit;

namespace {

struct Row {
    const char* name;
    std::string jobs;
    std::function<void(Machine&)> prepare;
    std::string causes; ///< one for each job
    int mostTicks;
};

class Jobs : public testing::TestWithParam<Row> {};

/// What all volumes hold together of a share, SHARE_NUM for the gas as such.
double Sum(const Machine& machine, int share)
{
    double sum = 0;
    for (int node = 0; node < NODE_NUM; node++) {
        const Volume& volume = machine.path.At(Node(node));
        sum += volume.content * (share == SHARE_NUM ? 1 : volume.gas[std::size_t(share)]);
    }
    return sum;
}

void Contaminate(Machine& machine, double dewPoint, double so2)
{
    Gas gas = machine.path.At(NODE_C1).gas;
    gas[SHARE_WATER] = machine.WaterOf(dewPoint);
    gas[SHARE_SO2] = so2;
    machine.path.SetCompartmentGas(gas);
    machine.Flush();
}

}

TEST_P(Jobs, StopAsTheGasPathDemands)
{
    const Row& row = GetParam();
    for (std::size_t i = 0; i < row.jobs.size(); i++) {
        JobRig rig;
        if (std::string("PQR").find(row.jobs[i]) != std::string::npos) {
            rig.Cap();
        }
        row.prepare(rig.machine);
        rig.machine.Apply();
        EXPECT_EQ(rig.Run(row.jobs[i]), row.causes.substr(4 * i, 3)) << row.jobs[i] << " after " << rig.ticks;
        EXPECT_LE(rig.ticks, row.mostTicks) << row.jobs[i];
    }
}

const auto nothing = [](Machine&) {};

INSTANTIATE_TEST_SUITE_P(Path, Jobs, testing::Values(
    Row{"healthy", "BCDFHKJ", [](Machine& m) { m.SetPort3(PORT_CONNECTED, 0); }, "H00 H00 H00 H00 H00 H00 H00", 90},
    Row{"bottle", "EL", [](Machine& m) { m.SetPort2(PORT_CONNECTED, 2); }, "H00 H00", 90},
    Row{"emptyBottle", "E", [](Machine& m) { m.SetPort2(PORT_CONNECTED, 1); }, "E07", 20},
    Row{"pressureInTheInlet", "BF", [](Machine& m) { m.path.SetPressure(NODE_N1, 5); }, "E08 H00", 30},
    Row{"selfTests", "PQR", nothing, "H00 H00 H00", 240},
    Row{"fullDepot", "B", [](Machine& m) { m.path.SetDepotLevel(80); }, "E06", 2},
    Row{"lowCompartment", "B", [](Machine& m) { m.SetCompartment(1.1, 50); }, "E07", 6},
    Row{"closedPort2", "E", nothing, "E16", 310},
    Row{"damp", "J", [](Machine& m) { Contaminate(m, -25, 5); }, "H00", 300},
    Row{"wet", "J", [](Machine& m) { Contaminate(m, -15, 0); }, "E20", 300},
    Row{"contaminated", "J", [](Machine& m) { Contaminate(m, -42, 11); }, "E25", 300},
    Row{"heavilyContaminated", "B", [](Machine& m) { Contaminate(m, -42, 300); }, "E25", 12},
    Row{"leakAtInlet", "PQ", [](Machine& m) { m.faults.leak[NODE_N1] = 0.4; }, "E52 E54", 240},
    Row{"deadCompressor", "PQR", [](Machine& m) { m.faults.compressor = COMPRESSOR_WEAK; m.faults.compressorShare = 0; }, "E51 E51 E62", 240},
    Row{"weakCompressor", "PQ", [](Machine& m) { m.faults.compressor = COMPRESSOR_WEAK; m.faults.compressorShare = 0.25; }, "E51 E51", 240},
    Row{"v1Shut", "PR", [](Machine& m) { m.faults.valve[WAY_V1] = VALVE_STUCK; }, "E53 E54", 240},
    Row{"v2Shut", "PQR", [](Machine& m) { m.faults.valve[WAY_V2] = VALVE_STUCK; }, "E58 E52 E54", 240},
    Row{"v3Shut", "PR", [](Machine& m) { m.faults.valve[WAY_V3] = VALVE_STUCK; }, "E58 E54", 240},
    Row{"v4Open", "R", [](Machine& m) { m.faults.valve[WAY_V4] = VALVE_STUCK; m.faults.stuckOpen[WAY_V4] = true; }, "E62", 240},
    Row{"v5Shut", "P", [](Machine& m) { m.faults.valve[WAY_V5] = VALVE_STUCK; }, "E56", 240},
    Row{"leakBehindVL", "Q", [](Machine& m) { m.faults.leak[NODE_L] = 2; }, "E53", 240},
    Row{"leakAtSuction", "R", [](Machine& m) { m.faults.leak[NODE_J] = 10; }, "E63", 240},
    Row{"wetSensorPath", "Q", [](Machine& m) { m.faults.wetDewPoint = -10; }, "E60", 900}),
    [](const auto& row) { return row.param.name; });

TEST(GasPath, AMeasurementShowsTheCompartmentWhateverWasInThePath)
{
    const struct {
        double before, beforeSo2, dewPoint, so2;
    } rows[] = {{-10, 60, -42, 0}, {-42, 0, -10, 60}, {-42, 0, -55, 5}};
    for (const auto& row : rows) {
        JobRig rig;
        Contaminate(rig.machine, row.before, row.beforeSo2);
        Gas gas = rig.machine.path.At(NODE_C1).gas;
        gas[SHARE_SF6] = 97.4;
        gas[SHARE_SO2] = row.so2;
        gas[SHARE_WATER] = rig.machine.WaterOf(row.dewPoint);
        rig.machine.path.SetCompartmentGas(gas);
        ASSERT_EQ(rig.Run('B'), "H00");
        EXPECT_NEAR(rig.record.sf6, 97.4, 0.05);
        EXPECT_NEAR(rig.record.so2, row.so2, 0.3) << row.dewPoint;
        EXPECT_NEAR(rig.record.humidity, row.dewPoint, 1) << "whole degrees";
        EXPECT_NEAR(rig.record.compartment, 4.99, 0.01);
        EXPECT_GT(rig.highestBack, 0.003);
    }
}

TEST(GasPath, NoGasIsLostOrMadeWithoutALeak)
{
    JobRig rig;
    Contaminate(rig.machine, -38, 8);
    rig.machine.path.SetDepotLevel(10);
    Gas clean = rig.machine.path.At(NODE_C1).gas;
    clean[SHARE_SO2] = 0;
    rig.machine.path.SetCompartmentGas(clean);
    const Machine before = rig.machine;
    for (const char job : std::string("BFJFDF")) {
        EXPECT_EQ(rig.Run(job), "H00") << job;
    }
    for (const int share : {int(SHARE_NUM), int(SHARE_SF6), int(SHARE_SO2), int(SHARE_WATER)}) {
        EXPECT_NEAR(Sum(rig.machine, share) / Sum(before, share), 1, 1e-9) << share;
    }
    EXPECT_GT(rig.machine.path.At(NODE_C1).gas[SHARE_SO2], 0.02) << "what was pumped back brought its SO2 along";
    EXPECT_EQ(rig.machine.pumpBacks, before.pumpBacks + 1);
    EXPECT_GT(rig.machine.compressorSeconds, before.compressorSeconds + 20);

    rig.machine.faults.leak[NODE_C1] = 100;
    rig.machine.Apply();
    rig.machine.Advance(3600);
    EXPECT_NEAR(rig.machine.path.Pressure(NODE_C1), 1.013, 0.01);
    rig.machine.faults = {};
    rig.machine.SetAmbient(850, 23, 45);
    EXPECT_EQ(rig.Run('F'), "H00") << "into thinner air";
    rig.machine.faults.leak[NODE_S] = 100;
    rig.machine.Apply();
    rig.machine.path.SetPressure(NODE_S, 0.2);
    rig.machine.Advance(60);
    EXPECT_LT(rig.Reading(SENSOR_SF6), 60) << "a leak lets air into an evacuated path";
}

TEST(GasPath, AFilterAtTheCompressorMakesPurificationSucceed)
{
    JobRig rig;
    Contaminate(rig.machine, -15, 40);
    rig.machine.filter = 0.9;
    rig.machine.Apply();
    EXPECT_EQ(rig.Run('J'), "H00");
    EXPECT_LT(rig.ticks, 283) << "before the last of ten cycles";
}
