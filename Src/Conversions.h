#pragma once

#include "Types.h"

// Conversions between the units of one quantity. `RR::INVALID_DOUBLE` goes in and comes out as no value;
// the dew point functions and those between Celsius and Fahrenheit also give it outside their ranges.

// Pressures. Bar is the pivot: the others run through it, so that results are the same on every way.
double ConvBarToKPa(double bar);
double ConvBarToPsi(double bar);
double ConvBarToMPa(double bar);
double ConvKPaToBar(double kPa);
double ConvKPaToPsi(double kPa);
double ConvKPaToMPa(double kPa);
double ConvPsiToBar(double psi);
double ConvPsiToKPa(double psi);
double ConvPsiToMPa(double psi);
double ConvMPaToBar(double mpa);
double ConvMPaToKPa(double mpa);
double ConvMPaToPsi(double mpa);
/// The pressure `bar` in all units.
Pressure ConvBarToPressure(RR::FixPnt3 bar);

// Water content of SF6.
double ConvPPMvToPPMw(double ppmv);
double ConvPPMwToPPMv(double ppmw);

/// From -999.9 to 999999.9 degrees Celsius.
double ConvCelsToFahr(double cels);
/// From -1767 to 1800031 degrees Fahrenheit.
double ConvFahrToCels(double fahr);

// Dew points at 1.013 bar, by the Magnus formulas over ice below 0 degrees Celsius and over water above.
/// From -80 to 45 degrees Celsius.
double ConvCelsDPToPPMv(double celsDp);
/// From 0.5 to 94000 ppmv.
double ConvPPMvToCelsDP(double ppmv);
double ConvFahrDPToPPMv(double fahr);
double ConvCelsDPToPPMw(double celsDp);
double ConvFahrDPToPPMw(double fahr);
double ConvPPMwToCelsDP(double ppmw);
double ConvPPMvToFahrDP(double ppmv);
double ConvPPMwToFahrDP(double ppmw);

/// The dew point in degrees Celsius of gas with the water content `ppmv` at `refPress` bar, for above 0 to
/// 30000 ppmv and above 0 to 100 bar. Tuned apart from the conversions above, with coefficients of its own.
double CalcPressurizedDP(double ppmv, double refPress);
