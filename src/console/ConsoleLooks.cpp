#include "console/ConsoleLooks.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::array sizes{smallestLetters, 7, 8, 9, 10, 11, 12, 13, 14, 16, 18, 20, 22, 24, 28, 32, largestLetters};

}  // namespace

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
