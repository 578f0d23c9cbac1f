// Where a column of the console lies in a text, and where characters begin.
#pragma once

#include <cstddef>
#include <string_view>

namespace tarnwick {

/// The first character border at or behind the column. Marks of no width belong to the character before them.
/// `columns` is the whole text's width.
std::size_t byteAtColumn(std::string_view text, int columns, int column);

/// A character border and its column.
struct TextPlace {
  std::size_t byte = 0;
  int column = 0;
};

/// The beginning of the character that covers the column.
TextPlace characterAtColumn(std::string_view text, int columns, int column);

/// The beginning of the character that ends at `position`, which is above 0.
std::size_t previousCharacter(std::string_view text, std::size_t position);

}  // namespace tarnwick
