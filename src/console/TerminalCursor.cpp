#include "console/TerminalCursor.h"

#include <algorithm>
#include <string>

namespace tarnwick {
namespace {

/// Beyond it a form feed goes to the left: no terminal is so wide, and what fills the lines takes memory.
constexpr int widestTerminal = 1000;

std::string blanks(int count) {
  return std::string(static_cast<std::size_t>(std::max(count, 0)), ' ');
}

}  // namespace

int TerminalCursor::column() const {
  const int end = document_.lastLineLength();
  return line_ == document_.linesBegun() ? std::min(column_, end) : end;
}

void TerminalCursor::moveTo(int column) {
  // The end stays the end, whatever else comes to stand there.
  line_ = column < document_.lastLineLength() ? document_.linesBegun() : 0;
  column_ = column;
}

ColumnRange TerminalCursor::write(std::string_view text, int kind, const TextStyle& style) {
  const ColumnRange range = document_.write(column(), text, kind, style);
  moveTo(range.end);
  return range;
}

void TerminalCursor::tab(int kind, const TextStyle& style) {
  const int stop = (column() / TarnwickDoc::tabWidth + 1) * TarnwickDoc::tabWidth;
  const int end = document_.lastLineLength();
  if (stop > end) document_.write(end, blanks(stop - end), kind, style);
  moveTo(stop);
}

void TerminalCursor::backspace() {
  moveTo(std::max(column() - 1, 0));
}

void TerminalCursor::formFeed(int kind) {
  const int place = column();
  document_.newLine();
  if (place > 0 && place <= widestTerminal) document_.write(0, blanks(place), kind, {});
}

}  // namespace tarnwick
