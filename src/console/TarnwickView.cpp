#include "console/TarnwickView.h"

#include "base/NoThreadE.h"
#include "console/ConsolePaint.h"
#include "platform/FileSystem.h"
#include "platform/Process.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

namespace tarnwick {
namespace {

constexpr int blinkPeriod = 700;
constexpr int hintTime = 8000;
constexpr std::size_t longestReason = 512;

/// 0 to 7 for F5 to F12.
std::optional<int> functionKeyIndex(ConsoleKey key) {
  if (key < ConsoleKey::F5 || key > ConsoleKey::F12) return std::nullopt;
  return static_cast<int>(key) - static_cast<int>(ConsoleKey::F5);
}

bool editsInput(ConsoleKey key) {
  return key <= ConsoleKey::Down || key == ConsoleKey::Delete;
}

/// The text, whose lines end in CR LF, as the programs of this system exchange it.
std::string withSystemLineEnds(const std::string& text) {
  std::string converted;
  for (std::size_t start = 0;;) {
    const std::size_t end = text.find("\r\n", start);
    converted.append(text, start, end - start);
    if (end == std::string::npos) return converted;
    converted += platform::lineEnd;
    start = end + 2;
  }
}

}  // namespace

TarnwickView::TarnwickView(TarnwickDoc& document, Desktop& desktop, ConsoleProgram program,
                           FunctionKeyLookup functionKeys)
    : desktop_(desktop),
      functionKeys_(std::move(functionKeys)),
      screen_(document, program.today),
      program_(std::move(program)),
      shownTitle_(document.title()),
      editors_{InputEditor(screen_, [this](std::string bytes) { child_->write(std::move(bytes)); },
                           {[this] { endChildsInput(); }}),
               InputEditor(screen_, [this](std::string bytes) { debugged_->program().write(std::move(bytes)); },
                           {[this] { endChildsInput(); }})} {
  makeChild();
}

TarnwickView::~TarnwickView() {
  TarnwickView::onClose();
}

void TarnwickView::makeChild() {
  consoleSearch_ = std::make_unique<ConsoleWindowSearch>(desktop_, program_, [this] { return child_->childState(); });
  child_.reset();
  debugged_.reset();
  if (program_.debugged) debugged_ = std::make_unique<DebuggedRun>(screen_, desktop_, program_, [this] { wake(); });
  child_ = std::make_unique<ConsoleChild>(screen_, desktop_, debugged_ ? debugged_->debuggersPart() : program_,
                                          [this] { wake(); });
}

void TarnwickView::startChildren() {
  try {
    if (debugged_) debugged_->watchOver(*child_);
  } catch (const std::system_error&) {
    return desktop_.message(NoThreadE().message);
  }
  child_->start();
}

void TarnwickView::closeChildren() {
  if (debugged_) debugged_->close();
  child_->close([this] { return consoleSearch_->close(); });
}

void TarnwickView::onStart(ConsoleSurface& surface) {
  surface_ = &surface;
  if (look_.letters != 0) surface_->setLetters(look_.letters);
  if (!surface_->hasFont()) desktop_.message("Error creating font");
  if (!measure()) desktop_.message("Error getting font metrics");
  if (child_->childState() == -1) startChildren();
  {
    const TextGuard guard(screen_.lock());
    breakLines();
  }
  surface_->setScrollSizes({1, 1});
  blinkTimer_ = startTimer(blinkPeriod, [this] {
    const TextGuard guard(screen_.lock());
    screen_.caret.blink();
  });
}

void TarnwickView::onClose() {
  if (!surface_) return;
  stopTimer(blinkTimer_);
  stopTimer(continueTimer_);
  stopTimer(hintTimer_);
  consoleSearch_->stop();
  closeChildren();
  surface_ = nullptr;
  const std::string fault = screen_.document.stopRecording();
  if (!fault.empty()) desktop_.message(fault);
}

bool TarnwickView::measure() {
  const Point cell = surface_->cell();
  const TextGuard guard(screen_.lock());
  screen_.grid.charWidth = cell.x;
  screen_.grid.charHeight = cell.y;
  screen_.caret.setColumn(screen_.caret.column());
  return screen_.grid.known();
}

void TarnwickView::paint(ConsolePainter& painter) {
  if (!surface_ || (!screen_.grid.known() && !measure())) return;
  {
    const TextGuard guard(screen_.lock());
    if (screen_.rows.broken())
      paintBrokenText(painter, screen_.document, screen_.grid, screen_.rows, search_, palette());
    else
      paintText(painter, screen_.document, screen_.grid, search_, palette());
    if (pointed_) {
      for (const auto& line : underlinesOf(*pointed_)) painter.fill(line, palette().link);
    }
    if (screen_.rows.broken())
      painter.invert(caretRect());
    else
      screen_.caret.draw(painter, ConsoleCaret::width, screen_.grid.charHeight);
  }
  for (const auto& rect : selection_.rects()) painter.invert(rect);
}

void TarnwickView::wake() {
  if (!wakePending_.exchange(true)) surface_->wake();
}

void TarnwickView::onWake() {
  // First, so that what is noted from here on wakes again.
  wakePending_ = false;
  if (!surface_) return;
  // With the news that the child runs, and not while painting: it moves windows.
  consoleSearch_->begin(*surface_);
  apply(takeChanges());
  showTitle();
}

void TarnwickView::onResized() {
  if (!surface_) return;
  measure();
  if (screen_.rows.broken()) {
    const int last = std::max(screen_.grid.y(scrollRows_) - surface_->clientSize().y, 0);
    return layOutAnew(surface_->scrollPosition().y < std::min(followedTo_, last), 0);
  }
  surface_->invalidateAll();
  // A window that showed the end goes on showing it.
  const Point position = surface_->scrollPosition();
  const int end = std::max(screen_.grid.y(scrollRows_) - surface_->clientSize().y, 0);
  if (position.y < std::min(followedTo_, end)) return;
  followedTo_ = end;
  if (position.y != end) surface_->scrollTo({position.x, end});
}

TarnwickView::Snapshot TarnwickView::takeChanges() {
  const TextGuard guard(screen_.lock());
  TarnwickDoc& document = screen_.document;
  return {std::exchange(screen_.changes, {}),
          document.widestLine(),
          document.linesDropped(),
          document.linesGone(),
          document.takeRecordFailure(),
          screen_.rows.broken() ? screen_.rows.count() : 0};
}

void TarnwickView::refresh(int rows, int firstColumn, int lastColumn) {
  if (!surface_) return;
  {
    const TextGuard guard(screen_.lock());
    screen_.changes.ask(rows, firstColumn, lastColumn);
  }
  apply(takeChanges());
}

void TarnwickView::apply(const Snapshot& snapshot) {
  const ConsoleChanges& changes = snapshot.changes;
  if (!snapshot.recordFailure.empty()) {
    // Later: the text goes on being shown under the message.
    desktop_.post([&desktop = desktop_, text = snapshot.recordFailure] { desktop.message(text); });
  }
  if (changes.beep) desktop_.alert(AlertSound::Beep);
  if (changes.show) {
    // Any new output or key drops the selection.
    clearSelection();
    hideHint();
    follow(snapshot);
  }
  if (changes.everything) surface_->invalidateAll();
  if (changes.close) surface_->close();
}

void TarnwickView::follow(const Snapshot& snapshot) {
  const ConsoleChanges& changes = snapshot.changes;
  const ConsoleGrid& grid = screen_.grid;
  if (!grid.known()) return;
  if (snapshot.rowCount > 0) return followBroken(snapshot);
  const int shownRows = std::exchange(scrollRows_, changes.rows);
  const int shownColumns = std::exchange(scrollColumns_, snapshot.widestLine + 1);
  if (shownColumns != scrollColumns_ || shownRows != scrollRows_) {
    surface_->setScrollSizes({grid.x(scrollColumns_), grid.y(scrollRows_)});
  }

  const Point position = surface_->scrollPosition();
  const Point client = surface_->clientSize();
  Point wanted = position;
  if (grid.x(changes.firstColumn) < wanted.x) wanted.x = grid.x(changes.firstColumn) - client.x;
  if (grid.x(changes.lastColumn + 1) > wanted.x + client.x) wanted.x = grid.x(changes.lastColumn + 1) - client.x;
  wanted.x = std::max(wanted.x, 0);
  const int end = std::max(grid.y(changes.rows) - client.y, 0);
  wanted.y = end;
  if (holdsStill()) wanted = heldPosition(position, snapshot.linesGone);
  followedTo_ = end;
  goneAtRefresh_ = snapshot.linesGone;

  if (wanted != position) surface_->scrollTo(wanted);
  if (wanted != position || snapshot.linesDropped) {
    surface_->invalidateAll();
    return;
  }
  ConsoleChanges tail = changes;
  tail.topRow = std::min(tail.topRow, std::max(shownRows, 1));
  invalidateTail(tail, position, client);
}

// So many rows may have moved by whatever was written that all of them are painted again.
void TarnwickView::followBroken(const Snapshot& snapshot) {
  const bool held = holdsStill();
  scrollRows_ = snapshot.rowCount;
  scrollColumns_ = snapshot.widestLine + 1;
  surface_->setScrollSizes({1, screen_.grid.y(scrollRows_)});
  followedTo_ = std::max(screen_.grid.y(scrollRows_) - surface_->clientSize().y, 0);
  goneAtRefresh_ = snapshot.linesGone;
  surface_->scrollTo({0, held ? topAgain() : followedTo_});
  surface_->invalidateAll();
}

void TarnwickView::invalidateTail(const ConsoleChanges& changes, const Point& position, const Point& client) {
  const ConsoleGrid& grid = screen_.grid;
  // Requests for several rows were merged: then whole rows are concerned.
  const int left = changes.topRow < changes.rows ? 0 : grid.x(changes.leftColumn);
  surface_->invalidate({left, grid.y(changes.topRow - 1), position.x + client.x, grid.y(changes.rows)});
  if (changes.oldCaret != Rect{}) surface_->invalidate(changes.oldCaret);
}

void TarnwickView::closeIfEnded() {
  if (surface_ && child_->childState() == 0) surface_->close();
}

void TarnwickView::closeWindow() {
  if (surface_) surface_->close();
}

bool TarnwickView::onKey(ConsoleKey key, int modifiers) {
  if (screen_.today && onTodaysKey(key)) return true;
  if (screen_.today && key == ConsoleKey::Modifier) return false;
  // Alt alone makes it a system key, which is looked up as a function key and nothing else.
  const bool systemKey = (modifiers & ALT_BIT) != 0 && (modifiers & CTRL_BIT) == 0;
  if (!systemKey) closeIfEnded();
  if (!surface_) return false;
  if (const auto index = functionKeyIndex(key)) {
    sendKeys(functionKeys_(modifiers & (SHIFT_BIT | CTRL_BIT | ALT_BIT), *index));
    return true;
  }
  if (systemKey || !editsInput(key)) return false;
  followAgain();
  {
    const TextGuard guard(screen_.lock());
    editor().navigate(key);
  }
  apply(takeChanges());
  return true;
}

void TarnwickView::onCharacter(const std::string& character, int repeatCount) {
  if (character != std::string(1, '\0')) {
    for (int count = 0; count < repeatCount; ++count) editor().append(character);
  }
  continueInput();
}

void TarnwickView::continueInput() {
  closeIfEnded();
  if (!surface_) return;
  clearSelection();
  hideHint();
  followAgain();
  bool more = false;
  {
    const TextGuard guard(screen_.lock());
    more = editor().drain();
  }
  apply(takeChanges());
  if (!more) turnBack();
  if (!more || !surface_) return;
  // The child's answer to a line has time to appear before the next one goes.
  stopTimer(continueTimer_);
  continueTimer_ = startTimer(continuePause, [this] { resumeInput(); });
}

void TarnwickView::resumeInput() {
  stopTimer(continueTimer_);
  continueInput();
}

void TarnwickView::appendInput(const std::string& text) {
  editor().append(text);
  continueInput();
}

void TarnwickView::sendKeys(const std::string& text) {
  std::string keys;
  for (std::size_t place = 0; place < text.size(); ++place) {
    if (text.compare(place, 2, "\\n") == 0) {
      keys += '\r';
      ++place;
    } else {
      keys += text[place];
    }
  }
  if (debugged_ && target_ == InputTarget::Program && !text.empty()) {
    turnsBack_ = true;
    turnInput(InputTarget::Debugger);
  }
  appendInput(keys);
}

std::string TarnwickView::selectedText() {
  const TextGuard guard(screen_.lock());
  return selection_.text(screen_.document);
}

void TarnwickView::selectAll() {
  if (!surface_) return;
  clearSelection();
  {
    const TextGuard guard(screen_.lock());
    selection_.selectAll(screen_.document);
  }
  surface_->invalidateAll();
}

std::string clipboardFailure(const std::string& reason) {
  return "Unable to set clipboard data.\n" + reason.substr(0, longestReason);
}

void TarnwickView::copy() {
  setClipboard(selectedText());
}

void TarnwickView::setClipboard(const std::string& text) {
  if (desktop_.setClipboardText(withSystemLineEnds(text))) return;
  desktop_.message(clipboardFailure(platform::lastSystemError("").reason));
}

void TarnwickView::paste() {
  const auto text = desktop_.clipboardText();
  if (!text) return;
  // However a line ends on the clipboard, that is one press of the key that ends a line here.
  std::string keys;
  char before = '\0';
  for (const char character : *text) {
    if (character != '\n') {
      keys += character;
    } else if (before != '\r') {
      keys += '\r';
    }
    before = character;
  }
  appendInput(keys);
}

void TarnwickView::clearSelection() {
  const bool cleared = selection_.state() != ConsoleSelection::STATE_NONE || !selection_.rects().empty();
  selection_.clear();
  if (cleared) surface_->invalidateAll();
}

void TarnwickView::showHint() {
  surface_->showHint(true);
  hintVisible_ = true;
  stopTimer(hintTimer_);
  hintTimer_ = startTimer(hintTime, [this] { hideHint(); });
}

void TarnwickView::hideHint() {
  stopTimer(hintTimer_);
  if (std::exchange(hintVisible_, false)) surface_->showHint(false);
}

int TarnwickView::startTimer(int milliseconds, std::function<void()> tick) {
  const int timer = desktop_.startTimer(milliseconds, std::move(tick));
  if (timer < 1) desktop_.message("Error creating timer");
  return timer;
}

void TarnwickView::stopTimer(int& timer) {
  if (timer > 0) desktop_.stopTimer(timer);
  timer = 0;
}

}  // namespace tarnwick
