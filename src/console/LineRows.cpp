#include "console/LineRows.h"

#include <algorithm>
#include <cstddef>

namespace tarnwick {

int LineRows::rowsOf(int line) const {
  const int length = document_.lines()[static_cast<std::size_t>(line)].length();
  return std::max(length / width_ + (length % width_ > 0 ? 1 : 0), 1);
}

int LineRows::firstOf(int line) const {
  if (!broken()) return line;
  const int known = std::min(line, document_.lineCount());
  int rows = line - known;
  for (int above = 0; above < known; ++above) rows += rowsOf(above);
  return rows;
}

ConsoleCell LineRows::at(int row) const {
  if (!broken()) return {0, row};
  int line = 0;
  for (; line < document_.lineCount(); ++line) {
    const int rows = rowsOf(line);
    if (row < rows) return {row * width_, line};
    row -= rows;
  }
  return {0, line + row};
}

ConsoleCell LineRows::shown(const ConsoleCell& cell, bool behind) const {
  if (!broken()) return cell;
  const int rows = cell.line < document_.lineCount() ? rowsOf(cell.line) : 1;
  int row = cell.column / width_;
  if (behind && row > 0 && cell.column % width_ == 0) --row;
  // What lies behind the line's end is in its last row.
  row = std::min(row, rows - 1);
  return {cell.column - row * width_, firstOf(cell.line) + row};
}

}  // namespace tarnwick
