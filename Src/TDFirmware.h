#pragma once

#include "TavorDev.h"

/// Names the sensor unit firmware that is delivered with the program.
extern const TavorDev::Info TDFW_INFO;
