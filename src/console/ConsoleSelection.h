#pragma once

#include "base/Geometry.h"
#include "console/ConsoleGrid.h"
#include "console/LineRows.h"
#include "console/TarnwickDoc.h"

#include <string>
#include <vector>

namespace tarnwick {

/// What of the text is selected, and the rectangles that show it inverted. User-interface thread only; what reads the
/// text wants the text lock held, and so does what makes rectangles where lines may be broken.
class ConsoleSelection {
 public:
  enum State {
    STATE_NONE = 0,
    STATE_DRAGGING = 1,
    STATE_STANDS = 2,
  };

  /// `rows` tells how lines are broken; null for lines that never are.
  explicit ConsoleSelection(const ConsoleGrid& grid, const LineRows* rows = nullptr) : grid_(grid), rows_(rows) {}

  State state() const { return state_; }
  /// First row, last row, the rows between; in pixels of the document.
  const std::vector<Rect>& rects() const { return rects_; }
  const ConsoleCell& start() const { return start_; }
  const ConsoleCell& end() const { return end_; }

  void clear();
  /// The rectangles go, the state stays.
  void dropRects() { rects_.clear(); }

  /// The left button went down here.
  void begin(const ConsoleCell& cell);
  /// The same with Shift, while a selection stands: moves its nearer end. `widestLine` as in the document.
  void extend(const ConsoleCell& cell, int widestLine);
  /// The mouse was dragged here. False if that is the cell it was in.
  bool drag(const ConsoleCell& cell, int widestLine);
  /// The button is up: the selection stands if there is anything in it.
  void finish();

  /// Selects the word at the cell: what lies between the blanks, or the line's ends, around it. False if there is none.
  bool selectWord(const TarnwickDoc& document, const ConsoleCell& cell);
  void selectAll(const TarnwickDoc& document);
  /// Selects these cells. `widestLine` as in the document.
  void select(const ConsoleCell& start, const ConsoleCell& end, int widestLine);

  /// The cells have another size: the rectangles follow. `widestLine` as in the document.
  void followGrid(int widestLine);

  /// The selected text, its lines parted by "\r\n".
  std::string text(const TarnwickDoc& document) const;

  /// The rows of the document in pixels between where the last drag step began and ended, a row more at both sides.
  Rect dragBand() const;

 private:
  void computeRects(int widestLine);

  bool broken() const { return rows_ && rows_->broken(); }

  const ConsoleGrid& grid_;
  const LineRows* rows_;
  State state_ = STATE_NONE;
  ConsoleCell start_;
  ConsoleCell end_;
  ConsoleCell lastMouseCell_;
  int stepFrom_ = 0;  ///< line in which the last drag step began
  std::vector<Rect> rects_;
};

}  // namespace tarnwick
