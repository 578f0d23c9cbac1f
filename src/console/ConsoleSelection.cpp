#include "console/ConsoleSelection.h"

#include "console/TextCells.h"
#include "platform/Characters.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tarnwick {
namespace {

bool before(const ConsoleCell& left, const ConsoleCell& right) {
  return left.line != right.line ? left.line < right.line : left.column < right.column;
}

std::size_t byteAt(const ConsoleLine& line, const std::string& text, int column) {
  // At the very start nothing is skipped, not even a mark that has no character before it.
  return column <= 0 ? 0 : byteAtColumn(text, line.length(), column);
}

}  // namespace

void ConsoleSelection::clear() {
  rects_.clear();
  state_ = STATE_NONE;
}

void ConsoleSelection::begin(const ConsoleCell& cell) {
  rects_.clear();
  start_ = end_ = lastMouseCell_ = cell;
  state_ = STATE_DRAGGING;
}

void ConsoleSelection::extend(const ConsoleCell& cell, int widestLine) {
  (before(end_, cell) ? end_ : start_) = cell;
  lastMouseCell_ = cell;
  state_ = STATE_DRAGGING;
  computeRects(widestLine);
}

bool ConsoleSelection::drag(const ConsoleCell& cell, int widestLine) {
  if (cell == lastMouseCell_) return false;
  stepFrom_ = end_.line;
  end_ = lastMouseCell_ = cell;
  computeRects(widestLine);
  return true;
}

void ConsoleSelection::finish() {
  state_ = rects_.empty() ? STATE_NONE : STATE_STANDS;
}

bool ConsoleSelection::selectWord(const TarnwickDoc& document, const ConsoleCell& cell) {
  if (cell.line >= document.lineCount()) return false;
  const ConsoleLine& line = document.lines()[static_cast<std::size_t>(cell.line)];
  if (cell.column >= line.length()) return false;
  const std::string text = line.text();
  const TextPlace at = characterAtColumn(text, line.length(), cell.column);
  const std::size_t blank = at.byte == 0 ? std::string::npos : text.rfind(' ', at.byte - 1);
  const std::size_t first = blank == std::string::npos ? 0 : blank + 1;
  const std::size_t last = std::min(text.find(' ', at.byte), text.size());
  if (first >= last) return false;
  const int firstColumn = static_cast<int>(platform::columnsOf(std::string_view(text).substr(0, first)));
  const int columns = static_cast<int>(platform::columnsOf(std::string_view(text).substr(first, last - first)));
  start_ = {firstColumn, cell.line};
  end_ = {firstColumn + columns, cell.line};
  computeRects(document.widestLine());
  state_ = STATE_STANDS;
  return true;
}

void ConsoleSelection::selectAll(const TarnwickDoc& document) {
  start_ = {0, 0};
  end_ = {document.widestLine(), document.lineCount()};
  rects_ = {{grid_.x(0), 0, grid_.x(broken() ? rows_->width() : end_.column),
             grid_.y(broken() ? rows_->count() : end_.line)}};
  state_ = STATE_STANDS;
}

void ConsoleSelection::select(const ConsoleCell& start, const ConsoleCell& end, int widestLine) {
  start_ = start;
  end_ = end;
  computeRects(widestLine);
  finish();
}

void ConsoleSelection::followGrid(int widestLine) {
  if (!rects_.empty()) computeRects(widestLine);
}

std::string ConsoleSelection::text(const TarnwickDoc& document) const {
  const auto [first, last] = before(end_, start_) ? std::pair(end_, start_) : std::pair(start_, end_);
  std::string selected;
  const int lines = std::min(last.line + 1, document.lineCount());
  for (int number = first.line; number < lines; ++number) {
    const ConsoleLine& line = document.lines()[static_cast<std::size_t>(number)];
    const std::string whole = line.text();
    const std::size_t from = number == first.line ? byteAt(line, whole, first.column) : 0;
    const std::size_t to = number == last.line ? byteAt(line, whole, last.column) : whole.size();
    if (number != first.line) selected += "\r\n";
    if (from < to) selected.append(whole, from, to - from);
  }
  return selected;
}

void ConsoleSelection::computeRects(int widestLine) {
  rects_.clear();
  if (start_ == end_) return;
  auto [first, last] = before(end_, start_) ? std::pair(end_, start_) : std::pair(start_, end_);
  if (broken()) {
    const bool empty = first == last;
    first = rows_->shown(first, false);
    last = empty ? first : rows_->shown(last, true);
  }
  const int right = grid_.x(broken() ? rows_->width() : widestLine);
  if (first.line == last.line) {
    rects_.push_back({grid_.x(first.column), grid_.y(first.line), grid_.x(last.column), grid_.y(first.line + 1)});
    return;
  }
  rects_.push_back({grid_.x(first.column), grid_.y(first.line), right, grid_.y(first.line + 1)});
  rects_.push_back({grid_.x(0), grid_.y(last.line), grid_.x(last.column), grid_.y(last.line + 1)});
  if (last.line - first.line > 1) {
    rects_.push_back({grid_.x(0), grid_.y(first.line + 1), right, grid_.y(last.line)});
  }
}

Rect ConsoleSelection::dragBand() const {
  const auto [top, bottom] = std::minmax(stepFrom_, end_.line);
  return {0, grid_.y(top - 1), 0, grid_.y(bottom + 2)};
}

}  // namespace tarnwick
