#include "settings/WindowPosition.h"

#include "base/TokenString.h"

#include <cstdlib>
#include <optional>

namespace tarnwick {

namespace {

std::optional<Point> placementOf(const DialogWindow* window) {
  return window ? window->position() : std::optional<Point>();
}

}  // namespace

int WindowPosition::checked(int& coordinate) {
  if (coordinate == UNDEFINED) throw UndefinedE();
  if (coordinate < 0) coordinate = 0;
  return coordinate;
}

int WindowPosition::getLeft() {
  return checked(left_);
}
int WindowPosition::getTop() {
  return checked(top_);
}

void WindowPosition::setUndefined() {
  left_ = top_ = UNDEFINED;
}

void WindowPosition::refreshFromWindow() {
  if (const auto placement = placementOf(mainWindow_)) {
    left_ = placement->x;
    top_ = placement->y;
  }
}

bool WindowPosition::hasMoved() const {
  const auto placement = placementOf(mainWindow_);
  return placement && (placement->x != left_ || placement->y != top_);
}

void WindowPosition::applyToWindow() {
  const auto placement = placementOf(mainWindow_);
  if (!placement) return;
  try {
    const int left = getLeft();
    const int top = getTop();
    mainWindow_->moveTo({left, top});
  } catch (const UndefinedE&) {
    // Crosswise, and meant: the first start puts the window where its two coordinates are exchanged.
    left_ = placement->y;
    top_ = placement->x;
    mainWindow_->moveTo(*placement);
  }
}

std::string WindowPosition::toString() {
  if (left_ == UNDEFINED || top_ == UNDEFINED) return "";
  refreshFromWindow();
  TokenString text;
  text.add(left_);
  text.add(top_);
  return text.toString();
}

void WindowPosition::fromString(const std::string& text) {
  try {
    const TokenString pair(text, ';', ']');
    left_ = std::atoi(pair.element(0).c_str());
    top_ = std::atoi(pair.element(1).c_str());
  } catch (const TokenString::OutOfBoundsE&) {
    // A coordinate that was not reached keeps what it had.
  } catch (const InvalidDataE&) {
    // So it does here.
  }
}

}  // namespace tarnwick
