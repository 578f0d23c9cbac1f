// Where the controls of a dialog stand: sizes first, from the leaves up, then places, from the root down.
#pragma once

#include "resources/DialogLayout.h"

#include <wx/gdicmn.h>

#include <functional>
#include <vector>

class wxWindow;

namespace tarnwick::ui {

/// The gaps between controls in pixels.
struct Gaps {
  int inRow = 6;
  int inColumn = 6;
  int apart = 12;   ///< beside a group or an icon, and above a row of buttons
  int inGroup = 8;  ///< between a group's frame and its content
};

/// One item of a layout with its window, if it has one.
struct Node {
  ItemKind kind = ItemKind::Column;
  bool stretch = false;
  bool equalWidths = false;
  bool collapses = false;  ///< takes no room while its window is hidden
  bool floats = false;     ///< takes no room, and is given its natural size
  wxWindow* window = nullptr;
  /// The size that the item needs by itself; unset for columns and rows.
  std::function<wxSize()> natural;
  /// What a group's frame takes on each side.
  int frameTop = 0;
  int frameOther = 0;
  std::vector<Node> children;
  wxSize least;  ///< filled by `measure`
};

/// Finds the least size of the node and of all below it.
wxSize measure(Node& node, const Gaps& gaps);

/// Puts the windows of a measured node into the rectangle.
void place(const Node& node, const wxRect& room, const Gaps& gaps);

}  // namespace tarnwick::ui
