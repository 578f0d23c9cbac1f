#include "ui/ScreenPlace.h"

#include <wx/display.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace tarnwick::ui {

namespace {

// What must show of a title bar, in pixels.
constexpr int graspWidth = 48;
constexpr int graspHeight = 12;
constexpr int titleBarHeight = 24;

/// From a saved place anything may come, so its sums need room.
using Wide = std::int64_t;

struct Span {
  Wide begin;
  Wide end;
};

Wide common(const Span& first, const Span& second) {
  return std::min(first.end, second.end) - std::max(first.begin, second.begin);
}

bool holdsTitleBar(const Rect& screen, const Point& leftTop, int width) {
  const Span across{leftTop.x, Wide{leftTop.x} + width};
  const Span down{leftTop.y, Wide{leftTop.y} + titleBarHeight};
  return common(across, {screen.left, screen.right}) >= std::min(graspWidth, width) &&
         common(down, {screen.top, screen.bottom}) >= graspHeight;
}

Wide distance(const Rect& screen, const Point& place) {
  const Wide across = place.x - std::clamp<Wide>(place.x, screen.left, screen.right);
  const Wide down = place.y - std::clamp<Wide>(place.y, screen.top, screen.bottom);
  return std::abs(across) + std::abs(down);
}

}  // namespace

std::vector<Rect> presentScreens() {
  std::vector<Rect> screens;
  for (unsigned i = 0; i < wxDisplay::GetCount(); ++i) {
    const wxRect room = wxDisplay(i).GetClientArea();
    screens.push_back({room.x, room.y, room.x + room.width, room.y + room.height});
  }
  return screens;
}

Point withinReach(const Point& leftTop, int width, int height, const std::vector<Rect>& screens) {
  const auto holds = [&](const Rect& screen) { return holdsTitleBar(screen, leftTop, width); };
  if (screens.empty() || std::any_of(screens.begin(), screens.end(), holds)) return leftTop;
  const Rect& nearest = *std::min_element(screens.begin(), screens.end(), [&](const Rect& first, const Rect& second) {
    return distance(first, leftTop) < distance(second, leftTop);
  });
  return {std::clamp(leftTop.x, nearest.left, std::max(nearest.left, nearest.right - width)),
          std::clamp(leftTop.y, nearest.top, std::max(nearest.top, nearest.bottom - height))};
}

}  // namespace tarnwick::ui
