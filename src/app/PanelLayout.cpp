#include "app/PanelLayout.h"

#include "base/Geometry.h"
#include "dialogbase/DialogWindow.h"

#include <algorithm>

namespace tarnwick {

LayoutItem LayoutItem::of(DialogWindow& owner, int control) {
  const Rect rect = control == 0 ? owner.windowRect() : owner.rect(control);
  return {rect.left, rect.top, rect.right, rect.bottom, control, AS_IT_IS, &owner};
}

void LayoutItem::moveTo(int x, int y) {
  right = x + width();
  bottom = y + height();
  left = x;
  top = y;
}

void LayoutItem::resize(int w, int h) {
  right = left + w;
  bottom = top + h;
}

void LayoutItem::apply() const {
  if (flags & (SHOW | HIDE)) {
    const bool shown = (flags & HIDE) == 0;
    if (control == 0)
      owner->showWindow(shown);
    else
      owner->show(control, shown);
    if (!shown) return;
  }
  const Rect rect{left, top, right, bottom};
  if (control == 0)
    owner->setWindowRect(rect);
  else
    owner->setRect(control, rect);
}

void PanelLayout::add(const LayoutItem& item, int flags) {
  items_.push_back(std::make_unique<LayoutItem>(item));
  items_.back()->flags = flags;
}

void PanelLayout::addShown(const LayoutItem& item, bool shown) {
  add(item, shown ? LayoutItem::SHOW : LayoutItem::HIDE);
}

LayoutItem& PanelLayout::findControl(int number) {
  const auto found =
      std::find_if(items_.rbegin(), items_.rend(), [&](const auto& item) { return item->control == number; });
  return found == items_.rend() ? *items_.front() : **found;
}

LayoutItem& PanelLayout::findWindow(const DialogWindow& window) {
  const auto found = std::find_if(items_.rbegin(), items_.rend(),
                                  [&](const auto& item) { return item->owner == &window && item->control == 0; });
  return found == items_.rend() ? *items_.front() : **found;
}

void PanelLayout::apply() const {
  std::for_each(items_.rbegin(), items_.rend(), [](const auto& item) { item->apply(); });
}

}  // namespace tarnwick
