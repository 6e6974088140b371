#pragma once

#include "SensorUnit/Unit.h"

#include <string>

namespace SensorUnit {

/// Carries out one line of the control protocol at `now`. The answer is any number of lines and a last one, "ok" or
/// "error TEXT"; each ends with a line feed. After an error nothing has changed.
std::string ExecuteCommand(Unit& unit, const std::string& line, Micros now);

}
