#pragma once

namespace SensorUnit {

/// Writes one line to the standard error stream, with the unit's name in front.
[[gnu::format(printf, 1, 2)]] void Log(const char* format, ...);

}
