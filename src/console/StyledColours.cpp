#include "console/StyledColours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace tarnwick {
namespace {

/// What is easily read stands so far apart.
constexpr double leastContrast = 4.5;

constexpr std::array<Colour, 16> named{{
    {0, 0, 0},
    {205, 0, 0},
    {0, 205, 0},
    {205, 205, 0},
    {0, 0, 238},
    {205, 0, 205},
    {0, 205, 205},
    {229, 229, 229},
    {127, 127, 127},
    {255, 0, 0},
    {0, 255, 0},
    {255, 255, 0},
    {92, 92, 255},
    {255, 0, 255},
    {0, 255, 255},
    {255, 255, 255},
}};

std::uint8_t byteOf(int value) {
  return static_cast<std::uint8_t>(value);
}

/// A colour of the cube of six steps in each direction.
Colour cubeColour(int place) {
  const auto step = [](int number) { return byteOf(number == 0 ? 0 : 55 + 40 * number); };
  return {step(place / 36), step(place / 6 % 6), step(place % 6)};
}

/// How bright one part of a colour is, from 0 to 1.
double lightOf(std::uint8_t part) {
  static const auto table = [] {
    std::array<double, 256> light{};
    for (std::size_t value = 0; value < light.size(); ++value) {
      const double share = static_cast<double>(value) / 255;
      light[value] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    }
    return light;
  }();
  return table[part];
}

double brightness(Colour colour) {
  return 0.2126 * lightOf(colour.red) + 0.7152 * lightOf(colour.green) + 0.0722 * lightOf(colour.blue);
}

Colour mixed(Colour from, Colour to, int sixteenths) {
  const auto part = [sixteenths](int one, int other) { return byteOf(one + (other - one) * sixteenths / 16); };
  return {part(from.red, to.red), part(from.green, to.green), part(from.blue, to.blue)};
}

/// The ink, or the nearest one to it that can be read on the ground.
Colour legible(Colour ink, Colour ground) {
  const Colour black{0, 0, 0};
  const Colour white{255, 255, 255};
  const Colour away = contrast(black, ground) > contrast(white, ground) ? black : white;
  for (int step = 0; step < 16; ++step) {
    const Colour tried = mixed(ink, away, step);
    if (contrast(tried, ground) >= leastContrast) return tried;
  }
  return away;
}

}  // namespace

double contrast(Colour one, Colour other) {
  const double first = brightness(one);
  const double second = brightness(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

Colour colourOfCode(TextStyle::Code code) {
  constexpr int cube = 16;
  constexpr int greys = 232;
  if (code >= TextStyle::trueColour) return {byteOf(code >> 16 & 255), byteOf(code >> 8 & 255), byteOf(code & 255)};
  if (code < cube) return named[static_cast<std::size_t>(code)];
  if (code < greys) return cubeColour(code - cube);
  const std::uint8_t grey = byteOf(8 + 10 * (code - greys));
  return {grey, grey, grey};
}

StyledColours coloursOf(const TextStyle& style, const StyledColours& plain) {
  if (style.ink == TextStyle::plain && style.ground == TextStyle::plain && !style.inverse) return plain;
  StyledColours colours = plain;
  if (style.ink != TextStyle::plain) colours.ink = colourOfCode(style.ink);
  if (style.ground != TextStyle::plain) colours.ground = colourOfCode(style.ground);
  if (style.inverse) std::swap(colours.ink, colours.ground);
  colours.ink = legible(colours.ink, colours.ground);
  return colours;
}

}  // namespace tarnwick
