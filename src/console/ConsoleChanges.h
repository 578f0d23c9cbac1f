#pragma once

#include "base/Geometry.h"

namespace tarnwick {

/// What has happened to the text since the window was last told, whatever thread did it. Requests add up, so that a
/// flood of output costs one refresh. Guarded by the text lock.
struct ConsoleChanges {
  bool show = false;        ///< the screen has to follow the text
  bool everything = false;  ///< all of it has to be painted again
  bool beep = false;
  bool close = false;  ///< nobody needs this console any longer

  // Of `show`: the last request decides where the window scrolls, all of them what is painted again.
  int rows = 0;
  int firstColumn = 0;
  int lastColumn = 0;
  int topRow = 0;      ///< the least count of rows in a request
  int leftColumn = 0;  ///< the leftmost first column
  Rect oldCaret;       ///< around all places that the caret has left

  /// The last of so many rows has changed between these columns, which should be in sight.
  void ask(int lines, int first, int last);
  /// The caret stood in this rectangle.
  void leave(const Rect& rect);
};

}  // namespace tarnwick
