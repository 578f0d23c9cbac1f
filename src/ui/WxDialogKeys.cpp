// What keys come to in a dialog's window: the controls that they stand for.
#include "ui/WxDialogWindow.h"

#include <wx/window.h>

namespace tarnwick::ui {

bool WxDialogWindow::hasUsable(int control) const {
  const auto found = controls_.find(control);
  return found != controls_.end() && found->second.window->IsEnabled() && found->second.window->IsShown();
}

void WxDialogWindow::command(int control) {
  guard([&] { handler_.onCommand(control); });
}

std::function<void()> WxDialogWindow::controlReturnOf(const wxWindow* field) const {
  for (const auto& [number, control] : controls_)
    if (control.window == field) return handler_.controlReturn(number);
  for (const auto& child : children_)
    if (auto action = child->controlReturnOf(field)) return action;
  return {};
}

void WxDialogWindow::askChildrenToClose() {
  for (const auto& child : children_) {
    if (!child->surface_.IsShownOnScreen()) continue;
    child->askChildrenToClose();
    guard([&child] { child->handler_.onCloseRequest(); });
  }
}

}  // namespace tarnwick::ui
