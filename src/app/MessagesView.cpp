#include "app/MessagesView.h"

#include "app/MessagesPaint.h"
#include "console/TextCells.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

namespace {

/// Lines that stay in sight above a message that was gone to.
constexpr int linesAbove = 2;

bool before(const ConsoleCell& left, const ConsoleCell& right) {
  return left.line != right.line ? left.line < right.line : left.column < right.column;
}

}  // namespace

MessagesView::MessagesView(std::function<bool()> isDark, std::function<void(const ToolMessage&)> open)
    : isDark_(std::move(isDark)), open_(std::move(open)) {}

void MessagesView::onStart(ConsoleSurface& surface) {
  surface_ = &surface;
  if (letters_ != 0) surface_->setLetters(letters_);
  fitSurface();
  showNewest();
}

void MessagesView::onClose() {
  surface_ = nullptr;
}

void MessagesView::setText(MessagesText text) {
  text_ = std::move(text);
  widest_ = text_.widest();
  current_.reset();
  selection_.clear();
  if (!surface_) return;
  fitSurface();
  showNewest();
  surface_->invalidateAll();
}

std::string MessagesView::wordsInPlace() const {
  return text_.lines.empty() ? noMessagesYet : "";
}

void MessagesView::scrollTo(const Point& position) {
  surface_->scrollTo(position);
  onScrolled();
}

void MessagesView::onScrolled() {
  if (surface_) top_ = surface_->scrollPosition().y;
}

void MessagesView::showNewest() {
  scrollTo({0, newestTop()});
}

void MessagesView::fitSurface() {
  const Point cell = surface_->cell();
  grid_.charWidth = cell.x;
  grid_.charHeight = cell.y;
  int height = grid_.y(static_cast<int>(text_.lines.size()));
  // A short one, too, can stand at the top, with what was said earlier out of sight.
  if (text_.newestLine > 0) height = std::max(height, newestTop() + surface_->clientSize().y);
  surface_->setScrollSizes({grid_.x(width()), height});
}

void MessagesView::onResized() {
  if (!surface_) return;
  fitSurface();
  // In a larger window the surface has gone back meanwhile, as far as there was room.
  if (top_ == newestTop()) scrollTo({surface_->scrollPosition().x, newestTop()});
  surface_->invalidateAll();
}

void MessagesView::useLetters(int letters, std::function<void(int letters)> changed) {
  letters_ = letters;
  lettersChanged_ = std::move(changed);
}

bool MessagesView::onZoom(int steps) {
  stepLetters(steps);
  return true;
}

void MessagesView::stepLetters(int steps) {
  if (surface_) setLetters(steppedLetters(letters_, steps, surface_->usualLetters()));
}

void MessagesView::setLetters(int letters) {
  if (!surface_ || letters == letters_) return;
  letters_ = letters;
  const Point position = surface_->scrollPosition();
  const int line = position.y / grid_.charHeight;
  const int column = position.x / grid_.charWidth;
  surface_->setLetters(letters_);
  fitSurface();
  selection_.followGrid(width());
  scrollTo({column * grid_.charWidth, grid_.y(line)});
  surface_->invalidateAll();
  lettersChanged_(letters_);
}

Colour MessagesView::ground() const {
  return messageColours(isDark_()).ground;
}

void MessagesView::paint(ConsolePainter& painter) {
  if (!surface_) return;
  if (!grid_.known()) fitSurface();
  paintMessages(painter, text_, grid_, messageColours(isDark_()), current_);
  for (const auto& rect : selection_.rects()) painter.invert(rect);
}

const ToolMessage* MessagesView::step(bool forward) {
  const auto& messages = text_.messages;
  const auto first = static_cast<std::ptrdiff_t>(text_.newestMessage);
  const auto count = static_cast<std::ptrdiff_t>(messages.size());
  // Where the user is at none, the first one comes next, and the last one came before. All earlier ones are before the
  // first.
  std::ptrdiff_t at = forward ? first - 1 : count;
  if (current_) at = std::max(static_cast<std::ptrdiff_t>(*current_), first - 1);
  do {
    at += forward ? 1 : -1;
    if (at < first || at >= count) return nullptr;
  } while (!messages[static_cast<std::size_t>(at)].place);
  moveTo(static_cast<std::size_t>(at));
  return &messages[*current_];
}

void MessagesView::moveTo(std::optional<std::size_t> message) {
  current_ = message;
  selection_.clear();
  if (!surface_) return;
  if (current_) showCurrent();
  surface_->invalidateAll();
}

void MessagesView::showCurrent() {
  const ToolMessage& message = text_.messages[*current_];
  const int top = grid_.y(static_cast<int>(message.logLine));
  const int bottom = grid_.y(static_cast<int>(message.lastLine) + 1);
  const Point scroll = surface_->scrollPosition();
  if (top >= scroll.y && bottom <= scroll.y + surface_->clientSize().y) return;
  scrollTo({0, std::max(top - linesAbove * grid_.charHeight, 0)});
}

std::optional<std::size_t> MessagesView::messageAt(int line) const {
  const auto& messages = text_.messages;
  const auto at = static_cast<std::size_t>(std::max(line, 0));
  const auto found = std::find_if(messages.begin(), messages.end(), [at](const ToolMessage& message) {
    return message.logLine <= at && at <= message.lastLine;
  });
  if (found == messages.end()) return std::nullopt;
  return static_cast<std::size_t>(found - messages.begin());
}

void MessagesView::openCurrent() {
  if (current_ && text_.messages[*current_].place) open_(text_.messages[*current_]);
}

bool MessagesView::onKey(ConsoleKey key, int modifiers) {
  if (!surface_ || modifiers != 0) return false;
  const Point scroll = surface_->scrollPosition();
  switch (key) {
    case ConsoleKey::Down:
    case ConsoleKey::Up:
      step(key == ConsoleKey::Down);
      return true;
    case ConsoleKey::Home:
      scrollTo({0, 0});
      return true;
    case ConsoleKey::End:
      scrollTo({0, grid_.y(static_cast<int>(text_.lines.size()))});
      return true;
    case ConsoleKey::Left:
    case ConsoleKey::Right:
      scrollTo({scroll.x + (key == ConsoleKey::Right ? grid_.charWidth : -grid_.charWidth), scroll.y});
      return true;
    default:
      return false;
  }
}

void MessagesView::onCharacter(const std::string& character, int /*repeatCount*/) {
  if (character == "\r" || character == "\n") openCurrent();
}

ConsoleCell MessagesView::cellAt(const Point& at) const {
  const Point scroll = surface_->scrollPosition();
  const int column = (at.x + scroll.x + grid_.charWidth / 2 - ConsoleGrid::leftMargin) / grid_.charWidth;
  return {std::max(column, messageGutter), std::max((at.y + scroll.y) / grid_.charHeight, 0)};
}

void MessagesView::onLeftDown(const MouseState& mouse) {
  if (!surface_ || mouse.otherButtonDown || mouse.control) return;
  const ConsoleCell cell = cellAt(mouse.at);
  if (mouse.shift && selection_.state() == ConsoleSelection::STATE_STANDS) {
    selection_.extend(cell, width());
  } else {
    selection_.clear();
    if (const auto message = messageAt(cell.line)) current_ = message;
    selection_.begin(cell);
  }
  surface_->invalidateAll();
}

void MessagesView::onMouseMove(const MouseState& mouse) {
  if (!surface_ || selection_.state() != ConsoleSelection::STATE_DRAGGING) return;
  if (!mouse.leftDown)
    selection_.finish();
  else if (selection_.drag(cellAt(mouse.at), width()))
    surface_->invalidateAll();
}

void MessagesView::onLeftUp(const MouseState& /*mouse*/) {
  selection_.finish();
}

void MessagesView::onDoubleClick(const MouseState& mouse) {
  if (!surface_) return;
  selection_.clear();
  current_ = messageAt((mouse.at.y + surface_->scrollPosition().y) / grid_.charHeight);
  surface_->invalidateAll();
  openCurrent();
}

void MessagesView::selectAll() {
  if (!surface_ || text_.lines.empty()) return;
  selection_.clear();
  selection_.begin({messageGutter, 0});
  selection_.drag({width(), static_cast<int>(text_.lines.size()) - 1}, width());
  selection_.finish();
  surface_->invalidateAll();
}

std::string MessagesView::selectedText() const {
  if (selection_.state() == ConsoleSelection::STATE_NONE) return "";
  const auto [first, last] = std::minmax(selection_.start(), selection_.end(), before);
  const int lines = std::min(last.line + 1, static_cast<int>(text_.lines.size()));
  std::string selected;
  for (int number = first.line; number < lines; ++number) {
    const auto& line = text_.lines[static_cast<std::size_t>(number)];
    const int from = number == first.line ? first.column - messageGutter : 0;
    const int to = number == last.line ? last.column - messageGutter : line.columns;
    const std::size_t begin = byteAtColumn(line.text, line.columns, std::min(from, line.columns));
    const std::size_t end = byteAtColumn(line.text, line.columns, std::clamp(to, 0, line.columns));
    if (number != first.line) selected += "\r\n";
    if (begin < end) selected.append(line.text, begin, end - begin);
  }
  return selected;
}

}  // namespace tarnwick
