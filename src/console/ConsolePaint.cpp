#include "console/ConsolePaint.h"

#include "console/TextCells.h"

#include <algorithm>
#include <cstddef>

namespace tarnwick {
namespace {

/// Columns from `first` to just before `last`.
struct Span {
  int first = 0;
  int last = 0;
};

/// The cells of a line whose top is `y`, from column `first` to just before `last`.
Rect cells(const ConsoleGrid& grid, int first, int last, int y) {
  return {grid.x(first), y, grid.x(last), y + grid.charHeight};
}

void paintLine(ConsolePainter& painter, const ConsoleLine& line, const ConsoleGrid& grid, int y, const Span& visible) {
  int column = 0;
  for (const auto& segment : line.segments()) {
    const int from = std::max(visible.first - column, 0);
    const int to = std::min(visible.last - column, segment.columns);
    if (from < to) {
      const TextPlace start = characterAtColumn(segment.text, segment.columns, from);
      const std::size_t end = byteAtColumn(segment.text, segment.columns, to);
      const Colour background = backgroundOf(segment.kind);
      if (background != consoleBackground) painter.fill(cells(grid, column + from, column + to, y), background);
      painter.drawText(grid.x(column + start.column), y, segment.text.substr(start.byte, end - start.byte),
                       colourOf(segment.kind));
    }
    column += segment.columns;
  }
}

}  // namespace

Colour colourOf(int kind) {
  switch (kind) {
    case KIND_OUTPUT:
      return {0, 0, 255};
    case KIND_ERROR:
      return {255, 0, 0};
    case KIND_BANNER:
      return {0, 255, 0};
    default:
      return {0, 0, 0};
  }
}

Colour backgroundOf(int kind) {
  // The banner's light green could hardly be read on white.
  return kind == KIND_BANNER ? Colour{0, 0, 0} : consoleBackground;
}

void paintText(ConsolePainter& painter, const TarnwickDoc& document, const ConsoleGrid& grid) {
  // A line may be a million characters long: only what is seen is handed on.
  const Rect clip = painter.clip();
  const Span visible{(clip.left - ConsoleGrid::leftMargin) / grid.charWidth - 1,
                     (clip.right - ConsoleGrid::leftMargin) / grid.charWidth + 2};
  const int first = std::max(clip.top / grid.charHeight, 0);
  const int last = std::min(clip.bottom / grid.charHeight + 1, document.lineCount());
  for (int line = first; line < last; ++line) {
    paintLine(painter, document.lines()[static_cast<std::size_t>(line)], grid, grid.y(line), visible);
  }
}

}  // namespace tarnwick
