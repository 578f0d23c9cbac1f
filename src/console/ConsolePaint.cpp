#include "console/ConsolePaint.h"

#include "console/StyledColours.h"
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

void paintLine(ConsolePainter& painter, const ConsoleLine& line, const ConsoleGrid& grid, int y, const Span& visible,
               const ConsolePalette& palette) {
  int column = 0;
  for (const auto& segment : line.segments()) {
    const int from = std::max(visible.first - column, 0);
    const int to = std::min(visible.last - column, segment.columns);
    if (from < to) {
      const TextPlace start = characterAtColumn(segment.text, segment.columns, from);
      const std::size_t end = byteAtColumn(segment.text, segment.columns, to);
      const StyledColours colours = coloursOf(segment.style, palette.of(segment.kind));
      const Rect area = cells(grid, column + from, column + to, y);
      if (colours.ground != palette.ground) painter.fill(area, colours.ground);
      const std::string text = segment.text.substr(start.byte, end - start.byte);
      const int x = grid.x(column + start.column);
      painter.drawText(x, y, text, colours.ink);
      // Struck twice: another font's letters might not fit their cells.
      if (segment.style.bold) painter.drawText(x + 1, y, text, colours.ink);
      if (segment.style.underline) painter.fill({area.left, area.bottom - 2, area.right, area.bottom - 1}, colours.ink);
    }
    column += segment.columns;
  }
}

void paintMarks(ConsolePainter& painter, const ConsoleLine& line, const ConsoleGrid& grid, int y, const Span& visible,
                const std::vector<ColumnRange>& hits, const StyledColours& mark) {
  if (hits.empty()) return;
  const std::string text = line.text();
  for (const auto& hit : hits) {
    const int from = std::max(hit.start, visible.first);
    const int to = std::min(hit.end, visible.last);
    if (from >= to) continue;
    const TextPlace start = characterAtColumn(text, line.length(), from);
    const std::size_t end = byteAtColumn(text, line.length(), to);
    painter.fill(cells(grid, from, to, y), mark.ground);
    painter.drawText(grid.x(start.column), y, text.substr(start.byte, end - start.byte), mark.ink);
  }
}

}  // namespace

void paintText(ConsolePainter& painter, const TarnwickDoc& document, const ConsoleGrid& grid, const TextSearch& search,
               const ConsolePalette& palette) {
  // A line may be a million characters long: only what is seen is handed on.
  const Rect clip = painter.clip();
  const Span visible{(clip.left - ConsoleGrid::leftMargin) / grid.charWidth - 1,
                     (clip.right - ConsoleGrid::leftMargin) / grid.charWidth + 2};
  const int first = std::max(clip.top / grid.charHeight, 0);
  const int last = std::min(clip.bottom / grid.charHeight + 1, document.lineCount());
  for (int number = first; number < last; ++number) {
    const ConsoleLine& line = document.lines()[static_cast<std::size_t>(number)];
    paintLine(painter, line, grid, grid.y(number), visible, palette);
    paintMarks(painter, line, grid, grid.y(number), visible, search.hitsIn(line), palette.mark);
  }
}

}  // namespace tarnwick
