#include "console/ConsoleLooks.h"

#include "console/ConsoleSegment.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::array sizes{smallestLetters, 7, 8, 9, 10, 11, 12, 13, 14, 16, 18, 20, 22, 24, 28, 32, largestLetters};

constexpr Colour white{255, 255, 255};
constexpr Colour black{0, 0, 0};
constexpr Colour darkGround{30, 30, 30};
constexpr Colour brightGreen{0, 255, 0};
constexpr Colour yellow{255, 224, 102};

}  // namespace

// The banner's light green could hardly be read on white: it has a dark ground of its own.
const ConsolePalette classicPalette{
    white, black, {0, 0, 255}, {255, 0, 0}, {125, 0, 150}, {brightGreen, black}, {black, yellow}, {0, 102, 204}};
const ConsolePalette lightPalette{
    white, black, {0, 0, 255}, {176, 0, 0}, {125, 0, 150}, {brightGreen, black}, {black, yellow}, {0, 88, 176}};
const ConsolePalette darkPalette{darkGround,      {222, 222, 222}, {130, 180, 255},
                                 {255, 140, 140}, {220, 165, 255}, {{90, 220, 90}, darkGround},
                                 {black, yellow}, {130, 180, 255}};

StyledColours ConsolePalette::of(int kind) const {
  switch (kind) {
    case KIND_OUTPUT:
      return {output, ground};
    case KIND_ERROR:
      return {error, ground};
    case KIND_DEBUGGER:
      return {debugger, ground};
    case KIND_BANNER:
      return banner;
    default:
      return {typed, ground};
  }
}

int steppedLetters(int points, int steps) {
  for (; steps > 0; --steps) {
    const auto* const larger = std::upper_bound(sizes.begin(), sizes.end(), points);
    if (larger == sizes.end()) break;
    points = *larger;
  }
  for (; steps < 0; ++steps) {
    const auto* const here = std::lower_bound(sizes.begin(), sizes.end(), points);
    if (here == sizes.begin()) break;
    points = *(here - 1);
  }
  return points;
}

int steppedLetters(int letters, int steps, int usual) {
  const int points = steppedLetters(letters == 0 ? usual : letters, steps);
  return points == usual ? 0 : points;
}

}  // namespace tarnwick
