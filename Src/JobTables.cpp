#include "JobTables.h"
#include "Config.h"

namespace CFG {

using RR::FixPnt3;

// Filled in at the start of the job; entry 4 of JB_p has no use.
static constexpr int runTime = RR::INVALID;
static constexpr FixPnt3 runTimeBar(RR::INVALID);

const int JB_t[10] = {0, 1, 3, 1, runTime, 3, runTime, 1, 10, 1};
const int JC_t[10] = {0, 1, 3, 1, runTime, 3, runTime, 1, 10, 1};
const int JD_t[6] = {0, 1, 1, 300, 3, 3};
const int JE_t[6] = {0, 1, 1, 300, 3, 3};
const int JF_t[5] = {0, 1, 300, 1, 5};
const int JH_t[8] = {0, 1, 5, 1, 25, 1, 10, 1};
const int JJ_t[10] = {0, 1, 1, 25, 1, 25, 1, 1, 10, 1};
const int JK_t[6] = {0, 1, 1, 3590, 3, 3};
const int JL_t[6] = {0, 1, 1, 3590, 3, 3};
const int JP_t[10] = {0, 1, 50, 10, 10, 60, 60, 10, 30, 5};
const int JQ_t[19] = {0, 1, 50, 10, 60, 10, 60, 5, 45, 5, 60, 25, 50, 5, 10, 6, 60, 2, 50};
const int JR_t[15] = {0, 1, 50, 10, 30, 2, 3, 2, 50, 5, 5, 3, 1, 15, 2};

const FixPnt3 JB_p[8] = {0, 1.5, 0.02, runTimeBar, runTimeBar, 1.15, runTimeBar, runTimeBar};
const FixPnt3 JC_p[7] = {0, 1.5, 0.02, runTimeBar, 1.15, runTimeBar, runTimeBar};
const FixPnt3 JD_p[4] = {0, MeaPumpBackLimit[Pressure::BAR], -0.06, 1.2};
const FixPnt3 JE_p[4] = {0, MeaPumpBackLimit[Pressure::BAR], -0.06, 1.2};
const FixPnt3 JF_p[3] = {0, 1.5, runTimeBar};
const FixPnt3 JH_p[3] = {0, 7, 1.2};
const FixPnt3 JJ_p[3] = {0, 9, 1.2};
const FixPnt3 JK_p[4] = {0, MeaPumpBackLimit[Pressure::BAR], -0.16, 1.2};
const FixPnt3 JL_p[4] = {0, MeaPumpBackLimit[Pressure::BAR], -0.16, 1.2};
const FixPnt3 JP_p[3] = {0, 1.2, 8};
const FixPnt3 JQ_p[7] = {0, 1.2, 8, 0.19, 0.21, 7.3, 1.2};
const FixPnt3 JR_p[6] = {0, 1.2, 8, -0.02, 8, 0.85};

const FixPnt3 JJ_f[3] = {0, -35, -20};
const FixPnt3 JJ_o[2] = {0, 10};
const FixPnt3 JQ_f[3] = {0, -20, -30};
const FixPnt3 JQ_d[3] = {0, -0.15, 0.05};

}
