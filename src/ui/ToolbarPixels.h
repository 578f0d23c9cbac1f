// Painting the toolbar's pictures.
#pragma once

#include "resources/ToolbarIcons.h"

#include <cstdint>
#include <vector>

namespace tarnwick::ui {

/// The pixels of a picture, row by row, four bytes each: red, green, blue, opacity. A spot of the picture becomes
/// `scale` pixels. `dark`: the ground that it will stand on is dark.
std::vector<std::uint8_t> toolbarPixels(const std::vector<IconShape>& shapes, double scale, bool dark);

/// Width or height in pixels.
int toolbarPixelCount(int spots, double scale);

}  // namespace tarnwick::ui
