// What only the console of today has: the end of the input, stopping and running again, all of the text at once, and a
// view that holds still.
#include "console/FindDlg.h"
#include "console/TarnwickView.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

void TarnwickView::showTitle() {
  if (!screen_.today || !surface_) return;
  std::string title = screen_.document.title();
  if (childState() == 0) {
    const bool program = debugged_ && debugged_->programEndedFirst();
    title = titleAtEnd(title, program ? debugged_->program().howItEnded() : child_->howItEnded());
  }
  if (holdsStill()) title += " - scrolled back";
  if (title == shownTitle_) return;
  shownTitle_ = title;
  surface_->setTitle(title);
}

void TarnwickView::onScrolled() {
  pointAt(std::nullopt);
  noteTop();
  showTitle();
}

bool TarnwickView::onTodaysKey(ConsoleKey key) {
  if (!surface_ || (key != ConsoleKey::PageUp && key != ConsoleKey::PageDown)) return false;
  const Point position = surface_->scrollPosition();
  const int line = screen_.grid.charHeight;
  // A line of what was seen stays in sight.
  const int page = std::max(surface_->clientSize().y - line, line);
  const int wanted = position.y + (key == ConsoleKey::PageDown ? page : -page);
  surface_->scrollTo({position.x, std::clamp(wanted, 0, std::max(followedTo_, 0))});
  onScrolled();
  return true;
}

bool TarnwickView::holdsStill() const {
  return screen_.today && surface_->scrollPosition().y < followedTo_;
}

Point TarnwickView::heldPosition(const Point& position, std::uint64_t linesGone) {
  // What the user looks at moves up by the lines that have fallen off the top.
  const auto gone = static_cast<int>(linesGone - goneAtRefresh_);
  return {position.x, std::max(position.y - screen_.grid.y(gone), 0)};
}

void TarnwickView::followAgain() {
  if (!holdsStill()) return;
  surface_->scrollTo({surface_->scrollPosition().x, followedTo_});
  showTitle();
}

void TarnwickView::find() {
  if (!surface_) return;
  FindDlg dialog(desktop_, search_.text());
  const bool wanted = dialog.runModal();
  // The console may have closed meanwhile.
  if (!wanted || !surface_) return;
  search_.lookFor(dialog.text());
  surface_->invalidateAll();
  if (search_.active()) findNext(false);
}

void TarnwickView::findNext(bool back) {
  if (!surface_) return;
  if (!search_.active()) return find();
  std::optional<TextSearch::Hit> hit;
  {
    const TextGuard guard(screen_.lock());
    hit = search_.step(screen_.document, back);
  }
  if (hit) {
    showFound(*hit);
  } else {
    desktop_.hint("There is no \"" + search_.text() + "\" in the console.");
  }
}

void TarnwickView::showFound(const TextSearch::Hit& hit) {
  const ConsoleGrid& grid = screen_.grid;
  ConsoleCell first{hit.first, hit.line};
  ConsoleCell last{hit.last, hit.line};
  {
    const TextGuard guard(screen_.lock());
    selection_.select(first, last, screen_.document.widestLine());
    first = screen_.rows.shown(first, false);
    last = screen_.rows.shown(last, true);
  }
  const Point client = surface_->clientSize();
  const Point position = surface_->scrollPosition();
  Point wanted = position;
  if (grid.y(first.line) < position.y || grid.y(last.line + 1) > position.y + client.y) {
    wanted.y = std::clamp(grid.y(first.line) - client.y / 2, 0, followedTo_);
  }
  if (grid.x(first.column) < position.x || grid.x(last.column) > position.x + client.x) {
    wanted.x = std::max(grid.x(last.column + 1) - client.x, 0);
  }
  if (screen_.rows.broken()) wanted.x = 0;
  if (wanted != position) surface_->scrollTo(wanted);
  noteTop();
  surface_->invalidateAll();
  showTitle();
}

void TarnwickView::copyAll() {
  std::string all;
  {
    const TextGuard guard(screen_.lock());
    for (const auto& line : screen_.document.lines()) all += line.text() + "\r\n";
  }
  // The last line has no end yet.
  all.erase(all.size() - 2);
  setClipboard(all);
}

void TarnwickView::clear() {
  if (!surface_) return;
  clearSelection();
  followAgain();
  {
    const TextGuard guard(screen_.lock());
    screen_.document.clear();
    screen_.caret.setColumn(screen_.caret.column());
    screen_.changes.everything = true;
    screen_.changes.ask(screen_.document.lineCount(), 0, screen_.caret.column());
  }
  apply(takeChanges());
}

void TarnwickView::endInput() {
  if (!canEndInput()) return;
  editor().endInput();
  continueInput();
}

void TarnwickView::endChildsInput() {
  if (canEndInput()) reader().endInput();
}

void TarnwickView::askToStop() {
  if (!canStop() || !desktop_.askYesNo("Stop the program?")) return;
  // It may have ended by itself meanwhile, and the window with it.
  if (surface_) child_->stop([this] { return consoleSearch_->close(); });
}

void TarnwickView::runAgain() {
  if (!surface_ || !canRunAgain()) return;
  stopTimer(continueTimer_);
  for (auto& editor : editors_) editor.dropPending();
  consoleSearch_->stop();
  if (debugged_) debugged_->close();
  child_->close();
  // The window shows what was said before, so it stays however quiet the program is this time.
  program_.closesSilently = false;
  makeChild();
  followAgain();
  showTitle();
  startChildren();
}

}  // namespace tarnwick
