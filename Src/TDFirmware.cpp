#include "TDFirmware.h"

const TavorDev::Info TDFW_INFO = {55, SVersion("V6.0"), 17, SVersion("V2.0")};
