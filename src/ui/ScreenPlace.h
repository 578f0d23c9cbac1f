// Where a window can stand so that its user gets hold of it.
#pragma once

#include "base/Geometry.h"

#include <vector>

namespace tarnwick::ui {

/// The screens that there are now, each without the desktop's own bars.
std::vector<Rect> presentScreens();

/// The place of a window's left top as it is, while enough of its title bar shows on a screen to take hold of it. A
/// window that was left on a screen which is gone comes to the nearest one, where it shows whole if there is room.
Point withinReach(const Point& leftTop, int width, int height, const std::vector<Rect>& screens);

}  // namespace tarnwick::ui
