// The view's mouse: selecting text and copying it straight into the input.
#include "console/TarnwickView.h"
#include "console/TextCells.h"

#include <algorithm>
#include <cstddef>

namespace tarnwick {
namespace {

/// True for a column in the middle of a character that takes several.
bool isWithinCharacter(const ConsoleLine& line, int column) {
  for (const auto& segment : line.segments()) {
    if (column < segment.columns) return characterAtColumn(segment.text, segment.columns, column).column != column;
    column -= segment.columns;
  }
  return false;
}

}  // namespace

ConsoleCell TarnwickView::cellAt(const Point& at) const {
  const ConsoleGrid& grid = screen_.grid;
  const Point scroll = surface_->scrollPosition();
  // The border between two columns lies half-way through a character. Outside the window's left top there is no text.
  const int column = std::max((at.x + scroll.x + grid.charWidth / 2 - ConsoleGrid::leftMargin) / grid.charWidth, 0);
  const LineRows& rows = screen_.rows;
  const ConsoleCell row = rows.at(std::max((at.y + scroll.y) / grid.charHeight, 0));
  return {row.column + (rows.broken() ? std::min(column, rows.width()) : column), row.line};
}

/// A selection begins and ends between characters: what shows as selected is what will be copied.
ConsoleCell TarnwickView::borderAt(const Point& at) {
  const TextGuard guard(screen_.lock());
  ConsoleCell cell = cellAt(at);
  const auto& lines = screen_.document.lines();
  const auto line = static_cast<std::size_t>(cell.line);
  if (line >= lines.size() || !isWithinCharacter(lines[line], cell.column)) return cell;
  const int border = screen_.grid.x(screen_.rows.shown(cell, false).column);
  cell.column += at.x + surface_->scrollPosition().x < border ? -1 : 1;
  return cell;
}

void TarnwickView::onLeftDown(const MouseState& mouse) {
  if (!surface_ || !screen_.grid.known()) return;
  hideHint();
  if (!selection_.rects().empty()) surface_->invalidateAll();
  selection_.dropRects();
  if (mouse.otherButtonDown) return;
  if (mouse.control) {
    openTraceUnder(mouse.at);
    return;
  }
  const ConsoleCell cell = borderAt(mouse.at);
  if (mouse.shift && selection_.state() == ConsoleSelection::STATE_STANDS) {
    {
      const TextGuard guard(screen_.lock());
      selection_.extend(cell, screen_.document.widestLine());
    }
    surface_->invalidateAll();
  } else {
    clearSelection();
    selection_.begin(cell);
  }
}

void TarnwickView::onMouseMove(const MouseState& mouse) {
  if (!surface_) return;
  if (selection_.state() != ConsoleSelection::STATE_DRAGGING) return pointAt(mouse);
  if (!mouse.leftDown) {
    selection_.finish();
    return;
  }
  const ConsoleCell cell = borderAt(mouse.at);
  {
    const TextGuard guard(screen_.lock());
    if (!selection_.drag(cell, screen_.document.widestLine())) return;
    if (screen_.rows.broken()) return surface_->invalidateAll();
  }
  const Point scroll = surface_->scrollPosition();
  const Point client = surface_->clientSize();
  const Rect band = selection_.dragBand();
  surface_->invalidate(
      {scroll.x, std::max(band.top, scroll.y), scroll.x + client.x, std::min(band.bottom, scroll.y + client.y)});
}

void TarnwickView::onLeftUp(const MouseState& /*mouse*/) {
  selection_.finish();
}

void TarnwickView::onDoubleClick(const MouseState& mouse) {
  if (!surface_ || !screen_.grid.known()) return;
  hideHint();
  clearSelection();
  bool found = false;
  {
    const TextGuard guard(screen_.lock());
    found = selection_.selectWord(screen_.document, cellAt(mouse.at));
  }
  if (found) surface_->invalidateAll();
}

void TarnwickView::onRightDown(const MouseState& /*mouse*/) {
  if (!surface_) return;
  hideHint();
  if (selection_.state() == ConsoleSelection::STATE_STANDS) {
    appendInput(selectedText());
  } else {
    showHint();
  }
}

}  // namespace tarnwick
