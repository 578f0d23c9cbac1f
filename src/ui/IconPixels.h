// The program's picture: a peak over a mountain lake.
#pragma once

#include <cstdint>
#include <vector>

namespace tarnwick::ui {

/// A square picture of so many pixels a side; red, green, blue and opacity of each pixel, row by row.
std::vector<std::uint8_t> iconPixels(int side);

}  // namespace tarnwick::ui
