#pragma once

#include "RRx/RRFixPnt.h"

/// What the scripts of the jobs work with, one pair of tables for each job letter: `J<letter>_t` holds pauses
/// and supervision times in seconds, `J<letter>_p` pressures in bar. A script names the entries by index;
/// index 0 is a filler. An entry without value is filled in when the job starts, or isn't used.
namespace CFG {

extern const int JB_t[10];
extern const int JC_t[10];
extern const int JD_t[6];
extern const int JE_t[6];
extern const int JF_t[5];
extern const int JH_t[8];
extern const int JJ_t[10];
extern const int JK_t[6];
extern const int JL_t[6];
extern const int JP_t[10];
extern const int JQ_t[19];
extern const int JR_t[15];

extern const RR::FixPnt3 JB_p[8];
extern const RR::FixPnt3 JC_p[7];
extern const RR::FixPnt3 JD_p[4];
extern const RR::FixPnt3 JE_p[4];
extern const RR::FixPnt3 JF_p[3];
extern const RR::FixPnt3 JH_p[3];
extern const RR::FixPnt3 JJ_p[3];
extern const RR::FixPnt3 JK_p[4];
extern const RR::FixPnt3 JL_p[4];
extern const RR::FixPnt3 JP_p[3];
extern const RR::FixPnt3 JQ_p[7];
extern const RR::FixPnt3 JR_p[6];

extern const RR::FixPnt3 JJ_f[3];   ///< dew points, °C
extern const RR::FixPnt3 JJ_o[2];   ///< SO2, ppmv
extern const RR::FixPnt3 JQ_f[3];   ///< dew points, °C
extern const RR::FixPnt3 JQ_d[3];   ///< pressure differences, bar

/// The fullest depot with which a measurement into it may start, percent.
constexpr RR::SInt32 DepotLevelMax = 75;

}
