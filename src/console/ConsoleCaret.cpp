#include "console/ConsoleCaret.h"

#include <algorithm>

namespace tarnwick {

void ConsoleCaret::setColumn(int column) {
  column_ = column;
  if (!grid_.known()) return;
  const int oldY = y_;
  y_ = grid_.y(document_.lineCount() - 1);
  if (column == 0) changes_.leave({0, oldY, x_ + grid_.charWidth, y_ + grid_.charHeight});
  x_ = grid_.x(column);
}

void ConsoleCaret::forward(int columns) {
  const bool atStart = column_ < 1;
  column_ += columns;
  if (atStart && column_ > 0) {
    setColumn(column_);
  } else {
    x_ = grid_.x(column_);
  }
  changes_.ask(document_.lineCount(), std::max(column_ - std::max(columns, 1), 0), column_);
}

void ConsoleCaret::back(int columns) {
  column_ -= columns;
  x_ = grid_.x(column_);
  changes_.ask(document_.lineCount(), column_, column_ + std::max(columns, 1));
}

void ConsoleCaret::draw(ConsolePainter& painter, int drawnWidth, int height) const {
  painter.invert({x_, y_, x_ + drawnWidth, y_ + height});
}

}  // namespace tarnwick
