#pragma once

#include <array>
#include <cstddef>

namespace SensorUnit {

/// Shares in a gas. SF6 in Vol.-%, everything else in ppm by volume.
enum Share { SHARE_SF6, SHARE_SO2, SHARE_HF, SHARE_CO, SHARE_H2S, SHARE_WATER, SHARE_NUM };
using Gas = std::array<double, SHARE_NUM>;

/// The volumes of the gas path.
enum Node {
    NODE_C1, ///< gas compartment or capped hose at port 1
    NODE_N1, ///< inlet block between V1, V2, V5 and the compressor's delivery
    NODE_E2, ///< port 2, with a bottle or shut
    NODE_S,  ///< sensor cell, the part of the sensor path that V2 flushes first
    NODE_T,  ///< rest of the sensor path, up to V3 and VL
    NODE_L,  ///< dead branch behind VL
    NODE_J,  ///< buffer at the compressor's suction, between V3, V4 and port 3
    NODE_D,  ///< depot: a bag in front of a dead volume
    NODE_X,  ///< external container at port 3, likewise a bag
    NODE_NUM
};

/// V1 to V6 in the order of the valve service, then VL.
enum Way { WAY_V1, WAY_V2, WAY_V3, WAY_V4, WAY_V5, WAY_V6, WAY_VL, WAY_NUM };

struct Volume {
    double litres = 0;    ///< rigid part
    double bagLitres = 0; ///< slack part: at ambient pressure until it is full or empty
    double content = 0;   ///< bar times litre, absolute
    Gas gas{};
};

/// The plumbing of the instrument: lumped volumes joined by conductances, at one constant temperature.
/// Contents are counted in bar times litre, flows in bar times litre per second.
class GasPath {
public:
    static constexpr double depotLitres = 10;
    static constexpr double containerLitres = 100;

    /// The path of a unit that comes from the shelf: good gas at rest, the depot 30 % full.
    GasPath();

    /// Lets `seconds` go by, in steps of a few milliseconds; what is left over counts next time.
    void Advance(double seconds);

    double Pressure(Node node) const; ///< absolute, bar
    double DepotLevel() const;        ///< percent of the bag
    double ContainerContent() const;  ///< litres in the external container's bag
    bool IsOpen(Way way) const { return open[std::size_t(way)]; }
    const Volume& At(Node node) const { return volumes[std::size_t(node)]; }

    void SetOpen(Way way, bool isOpen) { open[std::size_t(way)] = isOpen; }
    /// `strength` is the share of its full throughput: 0 is off, 1 a healthy compressor that runs.
    void SetCompressor(double strength) { compressor = strength; }
    void SetAmbient(double bar, double waterPpmv);
    void SetCompartment(double bar, double litres);
    void SetCompartmentGas(const Gas& gas) { volumes[NODE_C1].gas = gas; }
    void SetPort2(double bar, double litres);
    void SetDepotLevel(double percent);
    void SetContainer(bool connected, double contentLitres);
    void SetPressure(Node node, double bar);
    /// A hole to ambient, in litres per second and bar; 0 closes it.
    void SetLeak(Node node, double conductance) { leaks[std::size_t(node)] = conductance; }
    /// Something wet in the sensor path: its gas never holds less water than this, ppmv.
    void SetWetSensorPath(double waterPpmv) { wetPpmv = waterPpmv; }
    /// Share of water and decomposition products that the filter at the compressor keeps, 0 to 1.
    void SetFilter(double share) { filter = share; }
    /// The compartment's gas everywhere, pressures unchanged.
    void Flush();
    /// For a restored state.
    void Restore(Node node, const Volume& volume) { volumes[std::size_t(node)] = volume; }

private:
    void Step(double seconds);
    double Capacity(const Volume& volume) const;
    double PressureOf(const Volume& volume) const;
    void Move(Volume& from, Volume& to, double amount);
    void Relax(Node a, Node b, double conductance, double seconds);
    void Exchange(Node a, Node b, double seconds);
    void RunRegulator(double seconds);
    void RunCompressor(double seconds);
    void Breathe(Node node, double conductance, double seconds);

    std::array<Volume, NODE_NUM> volumes;
    std::array<bool, WAY_NUM> open{};
    std::array<double, NODE_NUM> leaks{};
    Gas air{};
    double ambient = 1.013;
    double compressor = 0;
    double wetPpmv = 0;
    double filter = 0;
    bool containerConnected = false;
    double pending = 0;
};

}
