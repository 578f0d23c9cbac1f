#pragma once

#include "base/Geometry.h"

#include <optional>

namespace tarnwick {

/// A window that knows its place on the screen.
class PlacedWindow {
 public:
  virtual ~PlacedWindow() = default;

  /// Left and top of the top window on the screen; nothing where the window system does not tell.
  virtual std::optional<Point> position() const = 0;
  virtual void moveTo(const Point& leftTop) = 0;
};

}  // namespace tarnwick
