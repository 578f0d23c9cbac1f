#include "ui/IconPixels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarnwick::ui {

namespace {

/// A colour with opacity, 0 to 1 each.
using Shade = std::array<double, 4>;

struct Spot {
  double x;
  double y;
};

constexpr Shade nothing{0, 0, 0, 0};
constexpr Shade skyTop{0.96, 0.62, 0.26, 1};
constexpr Shade skyLow{0.99, 0.87, 0.58, 1};
constexpr Shade farRidge{0.36, 0.49, 0.66, 1};
constexpr Shade peak{0.16, 0.27, 0.44, 1};
constexpr Shade snow{0.98, 0.99, 1.0, 1};
constexpr Shade water{0.11, 0.50, 0.62, 1};
constexpr Shade deepWater{0.06, 0.33, 0.47, 1};
constexpr Shade glint{0.62, 0.88, 0.92, 1};

constexpr double shore = 0.66;

Shade between(const Shade& from, const Shade& to, double part) {
  Shade result{};
  for (std::size_t i = 0; i < result.size(); ++i) result[i] = from[i] + (to[i] - from[i]) * part;
  return result;
}

bool insideFrame(const Spot& spot) {
  constexpr double corner = 0.2;
  const double dx = std::max({corner - spot.x, spot.x - (1 - corner), 0.0});
  const double dy = std::max({corner - spot.y, spot.y - (1 - corner), 0.0});
  return std::hypot(dx, dy) <= corner;
}

/// A triangle that stands on the shore.
bool insidePeak(const Spot& spot, const Spot& top, double halfWidth) {
  if (spot.y < top.y || spot.y > shore) return false;
  return std::abs(spot.x - top.x) <= halfWidth * (spot.y - top.y) / (shore - top.y);
}

bool isSnow(const Spot& spot, const Spot& top) {
  // The snow line runs in a zigzag.
  const double line = top.y + 0.17 + 0.05 * std::abs(std::fmod((spot.x - top.x) / 0.14 + 8.5, 1.0) - 0.5) * 2;
  return spot.y <= line;
}

bool isGlint(const Spot& spot) {
  const auto inBar = [&spot](double left, double right, double y) {
    return spot.x >= left && spot.x <= right && std::abs(spot.y - y) <= 0.022;
  };
  return inBar(0.2, 0.56, 0.755) || inBar(0.46, 0.8, 0.855);
}

Shade shadeAt(const Spot& spot) {
  if (!insideFrame(spot)) return nothing;
  if (spot.y > shore) {
    return isGlint(spot) ? glint : between(water, deepWater, (spot.y - shore) / (1 - shore));
  }
  constexpr Spot high{0.42, 0.14};
  constexpr Spot low{0.76, 0.34};
  if (insidePeak(spot, high, 0.42)) return isSnow(spot, high) ? snow : peak;
  if (insidePeak(spot, low, 0.34)) return farRidge;
  return between(skyTop, skyLow, spot.y / shore);
}

Shade averageOver(int column, int row, int side) {
  constexpr int fine = 6;  // samples along each side of a pixel
  Shade sum{};
  for (int i = 0; i < fine * fine; ++i) {
    const int across = i % fine;
    const int down = i / fine;
    const Spot spot{(column + (across + 0.5) / fine) / side, (row + (down + 0.5) / fine) / side};
    const Shade shade = shadeAt(spot);
    for (std::size_t part = 0; part < 3; ++part) sum[part] += shade[part] * shade[3];
    sum[3] += shade[3];
  }
  if (sum[3] > 0) {
    for (std::size_t part = 0; part < 3; ++part) sum[part] /= sum[3];
  }
  sum[3] /= fine * fine;
  return sum;
}

}  // namespace

std::vector<std::uint8_t> iconPixels(int side) {
  std::vector<std::uint8_t> pixels;
  pixels.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side) * 4);
  for (int row = 0; row < side; ++row) {
    for (int column = 0; column < side; ++column) {
      for (const double part : averageOver(column, row, side)) {
        pixels.push_back(static_cast<std::uint8_t>(std::lround(part * 255)));
      }
    }
  }
  return pixels;
}

}  // namespace tarnwick::ui
