#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tarnwick {

/// A place in the text, in character cells.
struct ConsoleCell {
  int column = 0;
  int line = 0;
  bool operator==(const ConsoleCell&) const = default;
};

/// The fixed grid of character cells, in pixels of the document. A line may be so long that its pixels can't be
/// counted: the numbers then stay at their greatest.
struct ConsoleGrid {
  static constexpr int leftMargin = 4;

  int charWidth = 0;  ///< 0 until it has been measured
  int charHeight = 0;

  bool known() const { return charWidth > 0 && charHeight > 0; }
  int x(int column) const { return bounded(std::int64_t{column} * charWidth + leftMargin); }
  int y(int line) const { return bounded(std::int64_t{line} * charHeight); }

 private:
  static int bounded(std::int64_t pixels) {
    constexpr std::int64_t greatest = std::numeric_limits<int>::max() / 2;
    return static_cast<int>(std::clamp(pixels, -greatest, greatest));
  }
};

}  // namespace tarnwick
