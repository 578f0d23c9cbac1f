#pragma once

#include "console/ConsoleGrid.h"
#include "console/TarnwickDoc.h"

namespace tarnwick {

/// The rows in which a document's lines show: one for each line, or several where long lines are broken. A character
/// keeps its column in its line, and each row of a line holds as many of these; where a character of two columns begins
/// in the last of them, it stands out of its row. Guarded by the text lock.
class LineRows {
 public:
  explicit LineRows(const TarnwickDoc& document) : document_(document) {}

  /// Breaks lines into rows of so many columns; 0 leaves them whole.
  void setWidth(int columns) { width_ = columns; }
  int width() const { return width_; }
  bool broken() const { return width_ > 0; }

  int count() const { return firstOf(document_.lineCount()); }
  /// The line that shows in a row, and the column with which it begins there. Below the text each row counts as a line.
  ConsoleCell at(int row) const;
  /// The row in which a cell shows, as its line, and the cell's column there. Between two rows that is the beginning of
  /// the second one, or the end of the first if what matters is `behind` what stands there.
  ConsoleCell shown(const ConsoleCell& cell, bool behind) const;

 private:
  int firstOf(int line) const;
  int rowsOf(int line) const;

  const TarnwickDoc& document_;
  int width_ = 0;
};

}  // namespace tarnwick
