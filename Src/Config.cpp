#include "Config.h"

namespace CFG {

// Initialised before the program runs, so that no global object can come too early for them.
constinit const RR::FixPnt1 LimitMinSF6Lo(0.5);
constinit const RR::FixPnt1 LimitMinSF6Hi(99.9);
constinit const Humidity LimitMaxHumLo(-79, -110, 0.6, 0.08);
constinit const Humidity LimitMaxHumHi(20, 68, 23000, 2820);
constinit const Pressure LimitMaxBkPressLo(0.004, 0.4, 0.06, 0.001);
constinit const Pressure LimitMaxBkPressHi(0.03, 3, 0.45, 0.003);
constinit const Pressure LimitInletPressMin(1.2, 120, 17, 0.12);
constinit const Pressure LimitInletPressMax(33, 3300, 480, 3.3);

constinit const RR::FixPnt1 LowBattWarning(20.5);
constinit const RR::FixPnt1 LowBattLimit(20.0);
constinit const Pressure MeaPumpBackLimit(11, 1100, 160, 1.1);
constinit const Temperature InsideTempLimit(60, 140);
constinit const RR::FixPnt3 DryingThreshold(-10);
constinit const RR::FixPnt3 SysAirPressDevMin(-0.21);
constinit const RR::FixPnt3 SysAirPressDevMax(0.21);
constinit const RR::FixPnt3 DepotEvacPressMin(-0.1);

}
