#pragma once

#include "SensorUnit/Loader.h"
#include "SensorUnit/Machine.h"

#include <string>

namespace SensorUnit {

/// Writes what outlives a power cycle to `file`, by way of a second file, so that a broken-off write never leaves
/// half a state: counters, clock, sensor memories, program memory, the gas in the path, ports and surroundings.
/// Faults are not kept. The form is text, one "key = values" a line.
bool SaveState(const std::string& file, const Machine& machine, const Loader& loader);

/// Takes over what `file` holds. Lines that say nothing sensible are logged and skipped; a file that isn't there
/// leaves the unit as new.
void LoadState(const std::string& file, Machine& machine, Loader& loader);

}
