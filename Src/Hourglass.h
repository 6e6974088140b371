#pragma once

#include "RRx/RRTypeDefs.h"

#include <array>

/// The sign of waiting.
namespace Hourglass {

constexpr int WIDTH = 41;
constexpr int HEIGHT = 60;

/// One grey byte a pixel, line by line from the top.
extern const std::array<RR::UInt08, WIDTH * HEIGHT> picture;

}
