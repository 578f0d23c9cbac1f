// How the text of the console of today looks, as far as its user may choose.
#include "console/TarnwickView.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

void TarnwickView::lookLike(const TextLook& look, std::function<void(const TextLook&)> changed) {
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
  look_.letters = letters;
  hideHint();
  pointAt(std::nullopt);
  const bool atEnd = !holdsStill();
  const Point before = surface_->scrollPosition();
  const ConsoleCell corner{before.x / screen_.grid.charWidth, before.y / screen_.grid.charHeight};
  surface_->setLetters(letters);
  measure();
  const ConsoleGrid& grid = screen_.grid;
  selection_.followGrid(widestLine());
  surface_->setScrollSizes({grid.x(scrollColumns_), grid.y(scrollRows_)});
  followedTo_ = std::max(grid.y(scrollRows_) - surface_->clientSize().y, 0);
  // What stood in the corner stands there still, but the end stays in sight.
  const int top = atEnd ? followedTo_ : std::min(grid.y(corner.line), followedTo_);
  surface_->scrollTo({corner.column * grid.charWidth, top});
  surface_->invalidateAll();
  showTitle();
  if (lookChanged_) lookChanged_(look_);
}

}  // namespace tarnwick
