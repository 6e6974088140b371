#include "Conversions.h"

#include <cmath>

using RR::INVALID_DOUBLE;

namespace {

constexpr double psiPerBar = 14.503773773;
constexpr double ppmvPerPpmw = 8.1111;      // in SF6
constexpr double referencePressure = 1.013; // bar

/// `factored` unless `value` is the invalid one.
double PassInvalid(double value, double factored)
{
    return value == INVALID_DOUBLE ? INVALID_DOUBLE : factored;
}

}

double ConvBarToKPa(double bar)
{
    return PassInvalid(bar, bar * 100.0);
}

double ConvBarToPsi(double bar)
{
    return PassInvalid(bar, bar * psiPerBar);
}

double ConvBarToMPa(double bar)
{
    return PassInvalid(bar, bar * 0.1);
}

double ConvKPaToBar(double kPa)
{
    return PassInvalid(kPa, kPa / 100.0);
}

double ConvKPaToPsi(double kPa)
{
    return ConvBarToPsi(ConvKPaToBar(kPa));
}

double ConvKPaToMPa(double kPa)
{
    return ConvBarToMPa(ConvKPaToBar(kPa));
}

double ConvPsiToBar(double psi)
{
    return PassInvalid(psi, psi / psiPerBar);
}

double ConvPsiToKPa(double psi)
{
    return ConvBarToKPa(ConvPsiToBar(psi));
}

double ConvPsiToMPa(double psi)
{
    return ConvBarToMPa(ConvPsiToBar(psi));
}

double ConvMPaToBar(double mpa)
{
    return PassInvalid(mpa, mpa * 10.0);
}

double ConvMPaToKPa(double mpa)
{
    return ConvBarToKPa(ConvMPaToBar(mpa));
}

double ConvMPaToPsi(double mpa)
{
    return ConvBarToPsi(ConvMPaToBar(mpa));
}

Pressure ConvBarToPressure(RR::FixPnt3 bar)
{
    if (bar.Eject() == RR::INVALID) {
        return Pressure();
    }
    const double value = bar.ToDouble();
    return Pressure(bar, RR::FixPnt3(ConvBarToKPa(value)), RR::FixPnt3(ConvBarToPsi(value)),
                    RR::FixPnt3(ConvBarToMPa(value)));
}

double ConvPPMvToPPMw(double ppmv)
{
    return PassInvalid(ppmv, ppmv / ppmvPerPpmw);
}

double ConvPPMwToPPMv(double ppmw)
{
    return PassInvalid(ppmw, ppmw * ppmvPerPpmw);
}

double ConvCelsToFahr(double cels)
{
    if (cels < -999.9 || cels > 999999.9) {
        return INVALID_DOUBLE;
    }
    return cels * 9.0 / 5.0 + 32.0;
}

double ConvFahrToCels(double fahr)
{
    if (fahr < -1767.0 || fahr > 1800031.0) {
        return INVALID_DOUBLE;
    }
    return (fahr - 32.0) * 5.0 / 9.0;
}

double ConvCelsDPToPPMv(double celsDp)
{
    const double t = celsDp;
    if (t < -80.0 || t > 45.0) {
        return INVALID_DOUBLE;
    }
    const double e = t < 0.0 ? std::exp(22.46 * t / (t + 272.62)) : std::exp(17.62 * t / (t + 243.12));
    return e * 6.112 / referencePressure * 1000.0;
}

double ConvPPMvToCelsDP(double ppmv)
{
    if (ppmv < 0.5 || ppmv > 94000.0) {
        return INVALID_DOUBLE;
    }
    const double l = std::log(ppmv * referencePressure / 6112.0);
    const double overIce = l * 272.62 / (22.46 - l);
    return overIce > 0.0 ? l * 243.12 / (17.62 - l) : overIce;
}

double ConvFahrDPToPPMv(double fahr)
{
    return ConvCelsDPToPPMv(ConvFahrToCels(fahr));
}

double ConvCelsDPToPPMw(double celsDp)
{
    return ConvPPMvToPPMw(ConvCelsDPToPPMv(celsDp));
}

double ConvFahrDPToPPMw(double fahr)
{
    return ConvCelsDPToPPMw(ConvFahrToCels(fahr));
}

double ConvPPMwToCelsDP(double ppmw)
{
    return ConvPPMvToCelsDP(ConvPPMwToPPMv(ppmw));
}

double ConvPPMvToFahrDP(double ppmv)
{
    return ConvCelsToFahr(ConvPPMvToCelsDP(ppmv));
}

double ConvPPMwToFahrDP(double ppmw)
{
    return ConvPPMvToFahrDP(ConvPPMwToPPMv(ppmw));
}

double CalcPressurizedDP(double ppmv, double refPress)
{
    if (refPress <= 0.0 || refPress > 100.0 || ppmv <= 0.0 || ppmv > 30000.0) {
        return INVALID_DOUBLE;
    }
    const double p = refPress * ppmv / 10.0;
    double l = std::log(p / 610.714);
    double tenths = l * 272.44 * 10.0 / (22.44294 - l);
    if (tenths > 0.0) {
        l = std::log(p / 610.78);
        tenths = l * 234.175 * 10.0 / (17.08085 - l);
    }
    if (!(tenths > 0.0 && ppmv > 10600.0)) {
        tenths += 1.0;
    }
    if (tenths < RR::FixPnt3::Min().ToDouble() || tenths > RR::FixPnt3::Max().ToDouble()) {
        return INVALID_DOUBLE;
    }
    return tenths / 10.0;
}
