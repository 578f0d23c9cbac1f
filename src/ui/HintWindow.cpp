#include "ui/HintWindow.h"

#include "resources/HintLayout.h"

namespace tarnwick::ui {

namespace {

constexpr int margin = 10;
constexpr int distance = 20;  // from the view's left top corner

}  // namespace

HintWindow::HintWindow(WindowStack& stack, wxWindow& view)
    : HintWindow(stack, view, std::make_unique<wxPopupWindow>(&view, wxBORDER_SIMPLE)) {}

HintWindow::HintWindow(WindowStack& stack, wxWindow& view, Popup popup)
    : WxDialogWindow(stack, *popup, hintLayout(), *this, margin), view_(view), popup_(std::move(popup)) {
  start();
  popup_->SetClientSize(contentSize());
}

void HintWindow::showWindow(bool on) {
  if (on) popup_->Move(view_.ClientToScreen(wxPoint(distance, distance)));
  popup_->Show(on);
}

}  // namespace tarnwick::ui
