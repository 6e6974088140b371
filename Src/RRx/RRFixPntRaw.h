#pragma once

#include "RRx/RRService.h"

/// The scaling of raw fixed-point integers between numbers of decimal places, 0 to 6.
namespace RR::FixPntRaw {

constexpr int PLACES = 7;

/// What converting from one number of places (first index) to another (second index) takes.
struct Tables {
    /// 10 to the power of the difference.
    SInt32 mult[PLACES][PLACES] = {};
    /// The range that can be scaled up, or that takes a rounding term when scaled down. Never read on the diagonal.
    SInt32 min[PLACES][PLACES] = {};
    SInt32 max[PLACES][PLACES] = {};

    constexpr Tables()
    {
        for (int s = 0; s < PLACES; ++s) {
            for (int d = 0; d < PLACES; ++d) {
                SInt32 m = 1;
                for (int i = Dist(s, d); i > 0; --i) {
                    m *= 10;
                }
                mult[s][d] = m;
                if (s == d) {
                    min[s][d] = max[s][d] = INVALID;
                } else {
                    max[s][d] = s < d ? INT32_MAX / m : INT32_MAX - m;
                    min[s][d] = s < d ? INT32_MIN / m : INT32_MIN + m;
                }
            }
        }
    }
};

inline constexpr Tables TABLES;

/// `INVALID` stays `INVALID`. Returns false, with `dstVal` invalid, if the value doesn't fit; scaling down always fits.
constexpr bool Scale(int src, SInt32 srcVal, int dst, SInt32& dstVal, Bias bias)
{
    if (srcVal == INVALID || src == dst) {
        dstVal = srcVal;
        return true;
    }
    const bool within = srcVal >= TABLES.min[src][dst] && srcVal <= TABLES.max[src][dst];
    if (src < dst) {
        dstVal = within ? srcVal * TABLES.mult[src][dst] : INVALID;
        return within;
    }

    SInt32 v = srcVal;
    if (!within && src > 0) {
        // No room for the rounding term: one digit goes beforehand.
        v /= 10;
        --src;
    }
    const SInt32 m = TABLES.mult[src][dst];
    if (bias == ROUND) {
        v += v >= 0 ? m / 2 : -(m / 2);
    } else if (bias == CEIL && v >= 1) {
        v += m - 1;
    } else if (bias == FLOOR && v < 0) {
        v += 1 - m;
    }
    dstVal = v / m;
    return true;
}

/// `INVALID_DOUBLE` becomes `INVALID`. Returns false, with `dstVal` invalid, if the value doesn't fit or is no number.
constexpr bool FromDouble(double src, SInt32 base, SInt32& dstVal, Bias bias)
{
    dstVal = INVALID;
    if (src == INVALID_DOUBLE) {
        return true;
    }
    if (!(src >= -2147483648.0 && src <= 2147483647.0)) {
        return false;
    }
    const double v = src * base;
    if (v < -2147483648.0 || v > 2147483647.0) {
        return false;
    }
    if (bias == ROUND) {
        dstVal = Round(v);
        return true;
    }
    dstVal = static_cast<SInt32>(v);
    if (bias == FLOOR && dstVal > v) {
        --dstVal;
    } else if (bias == CEIL && dstVal < v) {
        ++dstVal;
    }
    return true;
}

}
