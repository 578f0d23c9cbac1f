#pragma once

#include "app/PanelArrangement.h"
#include "base/Geometry.h"

namespace tarnwick {

class DialogWindow;
class PanelLayout;

/// The status line below what one arrangement of a panel has placed. With it the window is higher, and nothing else.
class PanelFoot {
 public:
  PanelFoot() = default;
  /// Below these places, for a line of this height.
  PanelFoot(const PanelPlaces& places, int lineHeight);

  /// Gives the main window and the panel in the arrangement their heights with or without the line.
  void adjust(PanelLayout& layout, const DialogWindow& panel, const DialogWindow& mainWindow, bool on) const;
  /// Shows the line in its place, or hides it.
  void show(DialogWindow& panel, bool on) const;

 private:
  Rect line_;
  int heightWithout_ = 0;  ///< of the main window
};

}  // namespace tarnwick
