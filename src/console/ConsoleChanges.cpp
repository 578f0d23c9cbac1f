#include "console/ConsoleChanges.h"

#include <algorithm>

namespace tarnwick {

void ConsoleChanges::ask(int lines, int first, int last) {
  topRow = show ? std::min(topRow, lines) : lines;
  leftColumn = show ? std::min(leftColumn, first) : first;
  rows = lines;
  firstColumn = first;
  lastColumn = last;
  show = true;
}

void ConsoleChanges::leave(const Rect& rect) {
  if (oldCaret == Rect{}) {
    oldCaret = rect;
    return;
  }
  oldCaret = {std::min(oldCaret.left, rect.left), std::min(oldCaret.top, rect.top),
              std::max(oldCaret.right, rect.right), std::max(oldCaret.bottom, rect.bottom)};
}

}  // namespace tarnwick
