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
  int indent = 12;  ///< of a group's content below its heading
  int inTabs = 8;   ///< on both sides of what tabs contain
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
  /// Of a group.
  int headingHeight = 0;
  bool asInTabs = false;
  std::vector<Node> children;
  wxSize least;  ///< filled by `measure`
};

/// Finds the least size of the node and of all below it.
wxSize measure(Node& node, const Gaps& gaps);

/// Puts the windows of a measured node into the rectangle.
void place(const Node& node, const wxRect& room, const Gaps& gaps);

}  // namespace tarnwick::ui
