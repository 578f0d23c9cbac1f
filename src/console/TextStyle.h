#pragma once

#include <cstdint>

namespace tarnwick {

/// How a program wants a piece of its output to look.
struct TextStyle {
  /// A colour of the program's own choice: `plain` for none, up to 255 by its number, above `trueColour` by its parts.
  using Code = std::int32_t;
  static constexpr Code plain = -1;
  static constexpr Code trueColour = 0x1000000;

  Code ink = plain;
  Code ground = plain;
  bool bold = false;
  bool underline = false;
  bool inverse = false;

  bool operator==(const TextStyle&) const = default;
};

}  // namespace tarnwick
