#include "RRx/RRService.h"

namespace RR {

SInt32 TransLinear(SInt32 value, SInt32 srcA, SInt32 srcB, SInt32 dstA, SInt32 dstB)
{
    const SInt32 srcMin = Min(srcA, srcB);
    const SInt32 srcMax = Max(srcA, srcB);
    const SInt32 dstMin = Min(dstA, dstB);
    const SInt32 dstMax = Max(dstA, dstB);

    if (srcMin == srcMax) {
        if (value == srcMin) {
            return static_cast<SInt32>((SInt64{dstMin} + dstMax) / 2);
        }
        return value < srcMin ? dstMin : dstMax;
    }

    const UInt32 deltaSrc = Dist(srcMin, srcMax);
    const UInt32 deltaDst = Dist(dstMin, dstMax);
    if (deltaDst == 0) {
        return dstMin;
    }

    const bool wasPositive = value > 0;
    value = WrapAdd(value, static_cast<SInt32>(deltaSrc / deltaDst / 2));
    if ((wasPositive && value < 0) || value >= srcMax) {
        return dstMax;
    }
    if (value <= srcMin) {
        return dstMin;
    }
    const UInt64 scaled = UInt64{Dist(srcMin, value)} * deltaDst / deltaSrc;
    return WrapAdd(dstMin, static_cast<SInt32>(static_cast<UInt32>(scaled)));
}

}
