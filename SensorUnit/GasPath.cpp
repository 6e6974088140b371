#include "SensorUnit/GasPath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace SensorUnit {

namespace {

constexpr double stepSeconds = 0.005;

// Conductances, litres per second and bar.
constexpr double valveConductance = 3;
constexpr double regulatorConductance = 0.04;
constexpr double tubeConductance = 20;
constexpr double portConductance = 1;
constexpr double freerunConductance = 0.5;

constexpr double regulatorBar = 0.25; ///< the regulator's outlet above ambient

// The compressor: litres per second at suction pressure; the share lost for each unit of pressure ratio above
// 1; what opens its check valves; where its relief valve sends gas back to the suction.
constexpr double compressorLitres = 0.08;
constexpr double compressorLoss = 0.03;
constexpr double checkValveBar = 0.02;
constexpr double reliefBar = 9.5;

/// Gas that changes sides through an open valve without a difference of pressure, litres per second.
constexpr double exchangeLitres = 0.005;

/// SF6 as it is filled into switchgear; its dew point at ambient pressure is -42 °C.
constexpr Gas goodGas = {99.2, 0, 0, 0, 0, 100.9};

}

GasPath::GasPath()
{
    constexpr double litres[NODE_NUM] = {50, 0.03, 0.025, 0.04, 0.16, 0.1, 1.5, 0.3, 0.2};
    for (int node = 0; node < NODE_NUM; node++) {
        volumes[std::size_t(node)] = {litres[node], 0, litres[node] * ambient, goodGas};
    }
    volumes[NODE_D].bagLitres = depotLitres;
    volumes[NODE_X].bagLitres = containerLitres;
    SetDepotLevel(30);
    SetPressure(NODE_C1, 5);
    SetAmbient(ambient, 12000);
}

double GasPath::PressureOf(const Volume& volume) const
{
    if (volume.bagLitres > 0) {
        if (volume.content >= ambient * (volume.litres + volume.bagLitres)) {
            return volume.content / (volume.litres + volume.bagLitres);
        }
        if (volume.content >= ambient * volume.litres) {
            return ambient;
        }
    }
    return volume.content / volume.litres;
}

/// Content gained for each bar of pressure.
double GasPath::Capacity(const Volume& volume) const
{
    if (volume.bagLitres > 0 && volume.content >= ambient * volume.litres) {
        const double whole = volume.litres + volume.bagLitres;
        return volume.content > ambient * whole ? whole : std::numeric_limits<double>::infinity();
    }
    return volume.litres;
}

double GasPath::Pressure(Node node) const
{
    return PressureOf(At(node));
}

double GasPath::DepotLevel() const
{
    const Volume& depot = At(NODE_D);
    return std::clamp((depot.content / ambient - depot.litres) / depot.bagLitres, 0.0, 1.0) * 100;
}

double GasPath::ContainerContent() const
{
    const Volume& container = At(NODE_X);
    return containerConnected ? std::clamp(container.content / ambient - container.litres, 0.0, container.bagLitres) : 0;
}

void GasPath::SetAmbient(double bar, double waterPpmv)
{
    // The bags give way to the air around them: their litres at ambient pressure stay what they were.
    for (Volume& volume : volumes) {
        if (volume.bagLitres > 0) {
            volume.content *= bar / ambient;
        }
    }
    ambient = bar;
    air = {0, 0, 0, 0, 0, waterPpmv};
}

void GasPath::SetPressure(Node node, double bar)
{
    volumes[std::size_t(node)].content = volumes[std::size_t(node)].litres * bar;
}

void GasPath::SetCompartment(double bar, double litres)
{
    volumes[NODE_C1].litres = litres;
    SetPressure(NODE_C1, bar);
}

void GasPath::SetPort2(double bar, double litres)
{
    volumes[NODE_E2].litres = litres;
    SetPressure(NODE_E2, bar);
}

void GasPath::SetDepotLevel(double percent)
{
    Volume& depot = volumes[NODE_D];
    depot.content = ambient * (depot.litres + depot.bagLitres * percent / 100);
}

void GasPath::SetContainer(bool connected, double contentLitres)
{
    Volume& container = volumes[NODE_X];
    containerConnected = connected;
    container.content = ambient * (container.litres + contentLitres);
}

void GasPath::Flush()
{
    for (Volume& volume : volumes) {
        volume.gas = volumes[NODE_C1].gas;
    }
}

void GasPath::Advance(double seconds)
{
    for (pending += seconds; pending >= stepSeconds; pending -= stepSeconds) {
        Step(stepSeconds);
    }
}

/// Moves `amount` from one volume to the other, against the arrow if it is negative; the gas takes its shares along.
void GasPath::Move(Volume& from, Volume& to, double amount)
{
    if (amount < 0) {
        Move(to, from, -amount);
        return;
    }
    amount = std::min(amount, from.content * 0.95);
    if (amount <= 0) {
        return;
    }
    from.content -= amount;
    const double whole = to.content + amount;
    for (std::size_t share = 0; share < SHARE_NUM; share++) {
        to.gas[share] += (from.gas[share] - to.gas[share]) * amount / whole;
    }
    to.content = whole;
}

/// Lets two volumes approach each other by the exact solution for the pair, which is stable for any step.
void GasPath::Relax(Node a, Node b, double conductance, double seconds)
{
    Volume& left = volumes[std::size_t(a)];
    Volume& right = volumes[std::size_t(b)];
    const double difference = PressureOf(left) - PressureOf(right);
    if (std::abs(difference) < 1e-9) {
        return;
    }
    const double pair = 1 / (1 / Capacity(left) + 1 / Capacity(right));
    Move(left, right, difference * pair * (1 - std::exp(-conductance * seconds / pair)));
}

void GasPath::Exchange(Node a, Node b, double seconds)
{
    Volume& left = volumes[std::size_t(a)];
    Volume& right = volumes[std::size_t(b)];
    const double amount = exchangeLitres * seconds * std::min(PressureOf(left), PressureOf(right));
    for (std::size_t share = 0; share < SHARE_NUM; share++) {
        const double difference = left.gas[share] - right.gas[share];
        left.gas[share] -= difference * amount / left.content;
        right.gas[share] += difference * amount / right.content;
    }
}

void GasPath::RunRegulator(double seconds)
{
    const double inlet = Pressure(NODE_N1);
    const double outlet = Pressure(NODE_S);
    const double limited = std::min(inlet, ambient + regulatorBar);
    if (limited > outlet) {
        Move(volumes[NODE_N1], volumes[NODE_S], (limited - outlet) * regulatorConductance * seconds);
    } else if (inlet < outlet) {
        Relax(NODE_S, NODE_N1, regulatorConductance, seconds);
    }
}

void GasPath::RunCompressor(double seconds)
{
    const double suction = Pressure(NODE_J);
    const double delivery = Pressure(NODE_N1);
    if (suction > delivery + checkValveBar) {
        const double passing = (suction - delivery - checkValveBar) / (suction - delivery);
        Relax(NODE_J, NODE_N1, valveConductance * passing, seconds);
    }
    if (compressor > 0) {
        const double yield = std::max(0.0, 1 - compressorLoss * (delivery / suction - 1));
        Volume drawn = volumes[NODE_J];
        for (std::size_t share = SHARE_SO2; share < SHARE_NUM; share++) {
            drawn.gas[share] *= share == SHARE_CO ? 1 : 1 - filter;
        }
        const double before = drawn.content;
        Move(drawn, volumes[NODE_N1], compressor * compressorLitres * suction * yield * seconds);
        volumes[NODE_J].content -= before - drawn.content;
    }
    if (Pressure(NODE_N1) > reliefBar) {
        Move(volumes[NODE_N1], volumes[NODE_J], (Pressure(NODE_N1) - reliefBar) * volumes[NODE_N1].litres);
    }
}

/// Flow between a volume and the air around the instrument.
void GasPath::Breathe(Node node, double conductance, double seconds)
{
    Volume& volume = volumes[std::size_t(node)];
    if (conductance <= 0 || std::isinf(Capacity(volume))) {
        return;
    }
    const double capacity = Capacity(volume);
    const double amount = (PressureOf(volume) - ambient) * capacity * (1 - std::exp(-conductance * seconds / capacity));
    Volume around;
    around.content = 1000 * ambient;
    around.gas = air;
    Move(volume, around, amount);
}

void GasPath::Step(double seconds)
{
    struct Joint {
        Way way;
        Node a, b;
    };
    static constexpr Joint joints[] = {
        {WAY_V1, NODE_C1, NODE_N1}, {WAY_V3, NODE_T, NODE_J}, {WAY_V4, NODE_J, NODE_D},
        {WAY_V5, NODE_N1, NODE_E2}, {WAY_VL, NODE_T, NODE_L},
    };
    for (const Joint& joint : joints) {
        if (IsOpen(joint.way)) {
            Relax(joint.a, joint.b, valveConductance, seconds);
            Exchange(joint.a, joint.b, seconds);
        }
    }
    if (IsOpen(WAY_V2)) {
        RunRegulator(seconds);
    }
    Relax(NODE_S, NODE_T, tubeConductance, seconds);
    RunCompressor(seconds);
    if (containerConnected) {
        Relax(NODE_J, NODE_X, portConductance, seconds);
    }
    if (IsOpen(WAY_V6)) {
        Breathe(NODE_J, freerunConductance, seconds);
    }
    for (int node = 0; node < NODE_NUM; node++) {
        Breathe(Node(node), leaks[std::size_t(node)], seconds);
    }
    volumes[NODE_S].gas[SHARE_WATER] = std::max(volumes[NODE_S].gas[SHARE_WATER], wetPpmv);
}

}
