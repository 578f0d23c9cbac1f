#pragma once

#include "console/TarnwickDoc.h"
#include "console/TextStyle.h"

#include <cstdint>
#include <string_view>

namespace tarnwick {

/// Where output goes on within the last line: at its end, unless a program has moved there to write over what it wrote.
/// Both outputs share it, as on a terminal. The caller holds the text lock.
class TerminalCursor {
 public:
  explicit TerminalCursor(TarnwickDoc& document) : document_(document) {}

  /// Writes over what stands there and beyond.
  ColumnRange write(std::string_view text, int kind, const TextStyle& style);
  /// To the next tab stop, over what stands there.
  void tab(int kind, const TextStyle& style);
  void carriageReturn() { moveTo(0); }
  void backspace();
  /// To the line below, in the same column.
  void formFeed(int kind);

  bool atEnd() const { return column() >= document_.lastLineLength(); }

 private:
  int column() const;
  void moveTo(int column);

  TarnwickDoc& document_;
  std::uint64_t line_ = 0;  ///< on which the column counts; on any other it is the end, 0 stands for none
  int column_ = 0;
};

}  // namespace tarnwick
