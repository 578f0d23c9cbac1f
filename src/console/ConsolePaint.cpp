#include "console/ConsolePaint.h"

#include "console/StyledColours.h"
#include "console/TextCells.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

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

/// A row of a line: where it stands, its columns that are to be painted, and the column with which it begins.
struct Row {
  int y = 0;
  Span visible;
  int begins = 0;
};

/// The beginning of the character that covers the column. One that begins in the row above shows there.
TextPlace characterFrom(std::string_view text, int columns, int column, bool beginsRow) {
  TextPlace start = characterAtColumn(text, columns, column);
  if (!beginsRow || start.column == column) return start;
  return {byteAtColumn(text, columns, column), column + 1};
}

void paintLine(ConsolePainter& painter, const ConsoleLine& line, const ConsoleGrid& grid, const Row& row,
               const ConsolePalette& palette) {
  int column = 0;
  for (const auto& segment : line.segments()) {
    const int from = std::max(row.visible.first - column, 0);
    const int to = std::min(row.visible.last - column, segment.columns);
    if (from < to) {
      const int left = column - row.begins;
      const bool beginsRow = row.begins > 0 && column + from == row.begins;
      const TextPlace start = characterFrom(segment.text, segment.columns, from, beginsRow);
      const std::size_t end = byteAtColumn(segment.text, segment.columns, to);
      const StyledColours colours = coloursOf(segment.style, palette.of(segment.kind));
      const Rect area = cells(grid, left + from, left + to, row.y);
      if (colours.ground != palette.ground) painter.fill(area, colours.ground);
      const std::string text = segment.text.substr(start.byte, std::max(end, start.byte) - start.byte);
      const int x = grid.x(left + start.column);
      painter.drawText(x, row.y, text, colours.ink);
      // Struck twice: another font's letters might not fit their cells.
      if (segment.style.bold) painter.drawText(x + 1, row.y, text, colours.ink);
      if (segment.style.underline) painter.fill({area.left, area.bottom - 2, area.right, area.bottom - 1}, colours.ink);
    }
    column += segment.columns;
  }
}

void paintMarks(ConsolePainter& painter, const ConsoleLine& line, const ConsoleGrid& grid, const Row& row,
                const std::vector<ColumnRange>& hits, const StyledColours& mark) {
  if (hits.empty()) return;
  const std::string text = line.text();
  for (const auto& hit : hits) {
    const int from = std::max(hit.start, row.visible.first);
    const int to = std::min(hit.end, row.visible.last);
    if (from >= to) continue;
    const TextPlace start = characterFrom(text, line.length(), from, row.begins > 0 && from == row.begins);
    const std::size_t end = byteAtColumn(text, line.length(), to);
    painter.fill(cells(grid, from - row.begins, to - row.begins, row.y), mark.ground);
    painter.drawText(grid.x(start.column - row.begins), row.y,
                     text.substr(start.byte, std::max(end, start.byte) - start.byte), mark.ink);
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
    const Row row{grid.y(number), visible};
    paintLine(painter, line, grid, row, palette);
    paintMarks(painter, line, grid, row, search.hitsIn(line), palette.mark);
  }
}

void paintBrokenText(ConsolePainter& painter, const TarnwickDoc& document, const ConsoleGrid& grid,
                     const LineRows& rows, const TextSearch& search, const ConsolePalette& palette) {
  const Rect clip = painter.clip();
  const int first = std::max(clip.top / grid.charHeight, 0);
  const int last = clip.bottom / grid.charHeight + 1;
  ConsoleCell at = rows.at(first);
  std::optional<std::vector<ColumnRange>> hits;
  for (int number = first; number < last && at.line < document.lineCount(); ++number) {
    const ConsoleLine& line = document.lines()[static_cast<std::size_t>(at.line)];
    // Looked for once in a line, however many rows it has.
    if (!hits) hits = search.hitsIn(line);
    const Row row{grid.y(number), {at.column, at.column + rows.width()}, at.column};
    paintLine(painter, line, grid, row, palette);
    paintMarks(painter, line, grid, row, *hits, palette.mark);
    at.column += rows.width();
    if (at.column < line.length()) continue;
    at = {0, at.line + 1};
    hits.reset();
  }
}

}  // namespace tarnwick
