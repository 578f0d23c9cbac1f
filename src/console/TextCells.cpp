#include "console/TextCells.h"

#include "platform/Characters.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr std::size_t strideBytes = 1024;

/// A border not far before the column: whole strides of a long text are measured at once.
TextPlace nearColumn(std::string_view text, int column) {
  TextPlace place;
  while (text.size() - place.byte > strideBytes) {
    std::string_view stride = text.substr(place.byte, strideBytes);
    stride.remove_suffix(platform::unfinishedTail(stride));
    const int columns = static_cast<int>(platform::columnsOf(stride));
    if (stride.empty() || place.column + columns >= column) break;
    place.byte += stride.size();
    place.column += columns;
  }
  return place;
}

std::string_view characterAt(std::string_view text, std::size_t position) {
  return text.substr(position, platform::characterLength(text, position));
}

/// No character takes more columns than bytes. So with as many of the one as of the other, each is one of both.
bool isOneToOne(std::string_view text, int columns) {
  return text.size() == static_cast<std::size_t>(columns);
}

}  // namespace

std::size_t byteAtColumn(std::string_view text, int columns, int column) {
  column = std::max(column, 0);
  if (isOneToOne(text, columns)) return std::min(text.size(), static_cast<std::size_t>(column));
  TextPlace place = nearColumn(text, column);
  while (place.byte < text.size()) {
    const auto character = characterAt(text, place.byte);
    const int width = static_cast<int>(platform::columnsOf(character));
    if (place.column >= column && width > 0) break;
    place.byte += character.size();
    place.column += width;
  }
  return place.byte;
}

TextPlace characterAtColumn(std::string_view text, int columns, int column) {
  column = std::clamp(column, 0, columns);
  if (isOneToOne(text, columns)) return {static_cast<std::size_t>(column), column};
  TextPlace place = nearColumn(text, column);
  while (place.byte < text.size()) {
    const auto character = characterAt(text, place.byte);
    const int width = static_cast<int>(platform::columnsOf(character));
    if (place.column + width > column) break;
    place.byte += character.size();
    place.column += width;
  }
  return place;
}

std::size_t previousCharacter(std::string_view text, std::size_t position) {
  // The longest that ends here: a byte from the middle of a character would pass for one of its own.
  for (std::size_t length = std::min<std::size_t>(4, position); length > 1; --length) {
    if (platform::characterLength(text, position - length) == length) return position - length;
  }
  return position - 1;
}

}  // namespace tarnwick
