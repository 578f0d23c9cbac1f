// How the text of the console of today looks, as far as its user may choose.
#include "console/TarnwickView.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

void TarnwickView::lookLike(const TextLook& look, LookListener changed) {
  look_ = look;
  lookChanged_ = std::move(changed);
}

const ConsolePalette& TarnwickView::palette() const {
  if (!screen_.today) return classicPalette;
  return surface_ && surface_->isDark() ? darkPalette : lightPalette;
}

bool TarnwickView::onZoom(int steps) {
  if (!screen_.today) return false;
  stepLetters(steps);
  return true;
}

void TarnwickView::stepLetters(int steps) {
  if (surface_) setLetters(steppedLetters(look_.letters, steps, surface_->usualLetters()));
}

bool TarnwickView::canStepLetters(int steps) const {
  return surface_ && steppedLetters(look_.letters, steps, surface_->usualLetters()) != look_.letters;
}

void TarnwickView::useUsualLetters() {
  setLetters(0);
}

void TarnwickView::setLetters(int letters) {
  if (!surface_ || letters == look_.letters || !screen_.grid.known()) return;
  hideHint();
  pointAt(std::nullopt);
  const bool held = holdsStill();
  noteTop();
  top_.pixels = 0;
  const int leftColumn = surface_->scrollPosition().x / screen_.grid.charWidth;
  surface_->setLetters(letters);
  measure();
  changeLook({letters, look_.wrapLines});
  layOutAnew(held, leftColumn);
}

void TarnwickView::setWrapLines(bool on) {
  if (!surface_ || on == look_.wrapLines || !screen_.grid.known()) return;
  hideHint();
  pointAt(std::nullopt);
  const bool held = holdsStill();
  noteTop();
  changeLook({look_.letters, on});
  layOutAnew(held, 0);
}

void TarnwickView::changeLook(const TextLook& look) {
  const TextLook before = std::exchange(look_, look);
  if (lookChanged_) lookChanged_(before, look_);
}

void TarnwickView::breakLines() {
  const ConsoleGrid& grid = screen_.grid;
  // A column stays free for a wide character that begins in the last one, and for the caret behind that.
  const int columns = grid.known() ? (surface_->clientSize().x - ConsoleGrid::leftMargin) / grid.charWidth - 1 : 1;
  screen_.rows.setWidth(look_.wrapLines ? std::max(columns, 1) : 0);
}

void TarnwickView::layOutAnew(bool held, int leftColumn) {
  const ConsoleGrid& grid = screen_.grid;
  {
    const TextGuard guard(screen_.lock());
    breakLines();
    selection_.followGrid(screen_.document.widestLine());
    scrollRows_ = screen_.rows.count();
  }
  const bool broken = screen_.rows.broken();
  // A scroll bar that comes or goes may lay out anew within this.
  surface_->setScrollSizes({broken ? 1 : grid.x(scrollColumns_), grid.y(scrollRows_)});
  followedTo_ = std::max(grid.y(scrollRows_) - surface_->clientSize().y, 0);
  surface_->scrollTo(
      {broken ? 0 : leftColumn * grid.charWidth, held ? std::min(topAgain(), followedTo_) : followedTo_});
  surface_->invalidateAll();
  showTitle();
}

void TarnwickView::noteTop() {
  if (!surface_ || !screen_.grid.known()) return;
  const int y = surface_->scrollPosition().y;
  const TextGuard guard(screen_.lock());
  const ConsoleCell row = screen_.rows.at(y / screen_.grid.charHeight);
  top_ = {screen_.document.linesGone() + static_cast<std::uint64_t>(row.line), row.column, y % screen_.grid.charHeight};
}

int TarnwickView::topAgain() {
  const TextGuard guard(screen_.lock());
  const std::uint64_t gone = screen_.document.linesGone();
  if (top_.line < gone) return 0;
  const ConsoleCell row = screen_.rows.shown({top_.column, static_cast<int>(top_.line - gone)}, false);
  return screen_.grid.y(row.line) + top_.pixels;
}

Rect TarnwickView::caretRect() const {
  // Behind a line that ends with its row, that is the end of this row.
  const ConsoleCell at = screen_.rows.shown({screen_.caret.column(), screen_.document.lineCount() - 1}, false);
  const int x = screen_.grid.x(at.column);
  return {x, screen_.grid.y(at.line), x + ConsoleCaret::width, screen_.grid.y(at.line + 1)};
}

}  // namespace tarnwick
