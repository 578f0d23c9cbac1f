#pragma once

#include "console/ConsoleChanges.h"
#include "console/ConsoleGrid.h"
#include "console/ConsoleSurface.h"
#include "console/TarnwickDoc.h"

namespace tarnwick {

/// The caret, which always stands on the last line. Guarded by the text lock.
class ConsoleCaret {
 public:
  static constexpr int width = 2;

  ConsoleCaret(const TarnwickDoc& document, const ConsoleGrid& grid, ConsoleChanges& changes)
      : document_(document), grid_(grid), changes_(changes) {}

  void setColumn(int column);
  /// Past a character of so many columns.
  void forward(int columns = 1);
  /// Before a character of so many columns.
  void back(int columns = 1);
  /// Inverts a rectangle of this size at the caret's place.
  void draw(ConsolePainter& painter, int drawnWidth, int height) const;

  /// Flips the phase. Nothing depends on it: the caret shows steadily.
  void blink() { blinkPhase_ = !blinkPhase_; }
  bool blinkPhase() const { return blinkPhase_; }

  int column() const { return column_; }
  int x() const { return x_; }
  int y() const { return y_; }

 private:
  const TarnwickDoc& document_;
  const ConsoleGrid& grid_;
  ConsoleChanges& changes_;
  bool blinkPhase_ = false;
  int column_ = 0;
  int x_ = ConsoleGrid::leftMargin;
  int y_ = 0;
};

}  // namespace tarnwick
