// The view's mouse: selecting text and copying it straight into the input.
#include "console/TarnwickView.h"

#include <algorithm>

namespace tarnwick {

ConsoleCell TarnwickView::cellAt(const Point& at) const {
  const ConsoleGrid& grid = screen_.grid;
  const Point scroll = surface_->scrollPosition();
  // The border between two columns lies half-way through a character. Outside the window's left top there is no text.
  const int column = (at.x + scroll.x + grid.charWidth / 2 - ConsoleGrid::leftMargin) / grid.charWidth;
  return {std::max(column, 0), std::max((at.y + scroll.y) / grid.charHeight, 0)};
}

int TarnwickView::widestLine() {
  const TextGuard guard(screen_.lock());
  return screen_.document.widestLine();
}

void TarnwickView::onLeftDown(const MouseState& mouse) {
  if (!surface_ || !screen_.grid.known()) return;
  hideHint();
  if (!selection_.rects().empty()) surface_->invalidateAll();
  selection_.dropRects();
  if (mouse.otherButtonDown || mouse.control) return;
  const ConsoleCell cell = cellAt(mouse.at);
  if (mouse.shift && selection_.state() == ConsoleSelection::STATE_STANDS) {
    selection_.extend(cell, widestLine());
    surface_->invalidateAll();
  } else {
    clearSelection();
    selection_.begin(cell);
  }
}

void TarnwickView::onMouseMove(const MouseState& mouse) {
  if (!surface_ || selection_.state() != ConsoleSelection::STATE_DRAGGING) return;
  if (!mouse.leftDown) {
    selection_.finish();
    return;
  }
  if (!selection_.drag(cellAt(mouse.at), widestLine())) return;
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
