#pragma once

namespace tarnwick {

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

/// A rectangle in pixels; right and bottom lie just outside.
struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  int width() const { return right - left; }
  int height() const { return bottom - top; }
  bool operator==(const Rect&) const = default;
};

}  // namespace tarnwick
