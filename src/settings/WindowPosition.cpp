#include "settings/WindowPosition.h"

#include "base/PlacedWindow.h"
#include "base/Text.h"
#include "base/TokenString.h"

#include <cstdint>
#include <optional>

namespace tarnwick {

namespace {

/// The number that a text begins with, as `atoi` reads it: white space and a sign may come first, what is no number
/// counts as 0. Too large a number wraps around in 32 bits, where `atoi` leaves open what happens.
int leadingNumber(const std::string& text) {
  const std::string digits = trimLeft(text);
  const bool negative = digits.starts_with('-');
  std::uint32_t number = 0;
  for (std::size_t i = negative || digits.starts_with('+') ? 1 : 0; i < digits.size(); ++i) {
    if (digits[i] < '0' || digits[i] > '9') break;
    number = number * 10 + static_cast<std::uint32_t>(digits[i] - '0');
  }
  return static_cast<int>(negative ? 0 - number : number);
}

std::optional<Point> placementOf(const PlacedWindow* window) {
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

void WindowPosition::setPlace(const Place& place) {
  left_ = place.left;
  top_ = place.top;
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
    // Deliberate: crosswise. The first start puts the window where its two coordinates are exchanged.
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
    left_ = leadingNumber(pair.element(0));
    top_ = leadingNumber(pair.element(1));
  } catch (const TokenString::OutOfBoundsE&) {
    // A coordinate that was not reached keeps what it had.
  } catch (const InvalidDataE&) {
    // So it does here.
  }
}

}  // namespace tarnwick
