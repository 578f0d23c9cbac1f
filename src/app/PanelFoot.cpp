#include "app/PanelFoot.h"

#include "app/PanelLayout.h"
#include "dialogbase/DialogWindow.h"
#include "resources/PanelLayouts.h"

#include <algorithm>

namespace tarnwick {

namespace {

constexpr int roomBelow = 4;

}  // namespace

PanelFoot::PanelFoot(const PanelPlaces& places, int lineHeight) : heightWithout_(places.topWindow.height()) {
  const int left = std::min(places.firstGroup.left, places.secondGroup.left);
  const int top = heightWithout_ - places.frameHeight;
  line_ = {left, top, places.topWindow.width() - places.frameWidth - left, top + lineHeight};
}

void PanelFoot::adjust(PanelLayout& layout, const DialogWindow& panel, const DialogWindow& mainWindow, bool on) const {
  const int height = heightWithout_ + (on ? line_.height() + roomBelow : 0);
  for (const DialogWindow* const window : {&panel, &mainWindow}) {
    LayoutItem& item = layout.findWindow(*window);
    item.resize(item.width(), height);
  }
}

void PanelFoot::show(DialogWindow& panel, bool on) const {
  panel.show(PANEL_STATUS_LINE, on);
  if (on) panel.setRect(PANEL_STATUS_LINE, line_);
}

}  // namespace tarnwick
