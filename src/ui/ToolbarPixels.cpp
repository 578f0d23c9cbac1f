#include "ui/ToolbarPixels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarnwick::ui {

namespace {

using Tone = std::array<double, 3>;

Tone toneOf(IconColour colour, bool dark) {
  switch (colour) {
    case IconColour::Green:
      return dark ? Tone{90, 205, 105} : Tone{20, 140, 45};
    case IconColour::Red:
      return dark ? Tone{255, 105, 95} : Tone{205, 30, 30};
    case IconColour::Blue:
      return dark ? Tone{110, 175, 255} : Tone{25, 90, 190};
    case IconColour::Amber:
      return dark ? Tone{255, 190, 80} : Tone{215, 125, 0};
    case IconColour::White:
      return dark ? Tone{20, 20, 20} : Tone{255, 255, 255};
    case IconColour::Ink:
      break;
  }
  return dark ? Tone{225, 225, 225} : Tone{60, 60, 65};
}

double distanceToLine(const IconSpot& spot, const IconSpot& from, const IconSpot& to) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double length = dx * dx + dy * dy;
  const double part = length > 0 ? std::clamp(((spot.x - from.x) * dx + (spot.y - from.y) * dy) / length, 0.0, 1.0) : 0;
  return std::hypot(spot.x - from.x - part * dx, spot.y - from.y - part * dy);
}

bool onLine(const IconShape& shape, const IconSpot& spot) {
  for (std::size_t i = 1; i < shape.spots.size(); ++i) {
    if (distanceToLine(spot, shape.spots[i - 1], shape.spots[i]) <= shape.width / 2) return true;
  }
  return false;
}

bool inArea(const std::vector<IconSpot>& border, const IconSpot& spot) {
  bool inside = false;
  for (std::size_t i = 0, before = border.size() - 1; i < border.size(); before = i++) {
    const IconSpot& a = border[i];
    const IconSpot& b = border[before];
    if ((a.y > spot.y) != (b.y > spot.y) && spot.x < (b.x - a.x) * (spot.y - a.y) / (b.y - a.y) + a.x) inside = !inside;
  }
  return inside;
}

bool covers(const IconShape& shape, const IconSpot& spot) {
  constexpr double ringWidth = 1.5;
  switch (shape.kind) {
    case IconShape::Kind::Area:
      return inArea(shape.spots, spot);
    case IconShape::Kind::Line:
      return onLine(shape, spot);
    case IconShape::Kind::Disc:
    case IconShape::Kind::Ring:
      break;
  }
  const double distance = std::hypot(spot.x - shape.spots[0].x, spot.y - shape.spots[0].y);
  const double radius = shape.width / 2;
  return distance <= radius && (shape.kind == IconShape::Kind::Disc || distance >= radius - ringWidth);
}

/// Red, green, blue and opacity of one pixel.
std::array<double, 4> averageOver(const std::vector<IconShape>& shapes, int column, int row, double scale, bool dark) {
  constexpr int fine = 4;  // samples along each side of a pixel
  std::array<double, 4> sum{};
  for (int i = 0; i < fine * fine; ++i) {
    const int across = i % fine;
    const int down = i / fine;
    const IconSpot spot{(column + (across + 0.5) / fine) / scale, (row + (down + 0.5) / fine) / scale};
    const auto top =
        std::find_if(shapes.rbegin(), shapes.rend(), [&](const auto& shape) { return covers(shape, spot); });
    if (top == shapes.rend()) continue;
    const Tone tone = toneOf(top->colour, dark);
    for (std::size_t part = 0; part < tone.size(); ++part) sum[part] += tone[part];
    sum[3] += 1;
  }
  if (sum[3] > 0) {
    for (std::size_t part = 0; part < 3; ++part) sum[part] /= sum[3];
  }
  sum[3] *= 255.0 / (fine * fine);
  return sum;
}

}  // namespace

int toolbarPixelCount(int spots, double scale) {
  return static_cast<int>(std::lround(spots * scale));
}

std::vector<std::uint8_t> toolbarPixels(const std::vector<IconShape>& shapes, double scale, bool dark) {
  std::vector<std::uint8_t> pixels;
  const int width = toolbarPixelCount(toolbarIconWidth, scale);
  const int height = toolbarPixelCount(toolbarIconHeight, scale);
  for (int row = 0; row < height; ++row) {
    for (int column = 0; column < width; ++column) {
      for (const double part : averageOver(shapes, column, row, scale, dark)) {
        pixels.push_back(static_cast<std::uint8_t>(std::lround(part)));
      }
    }
  }
  return pixels;
}

}  // namespace tarnwick::ui
