#include "ui/HintWindow.h"

#include "resources/HintLayout.h"

#include <wx/dcclient.h>
#include <wx/settings.h>

namespace tarnwick::ui {

namespace {

constexpr int margin = 10;
constexpr int distance = 20;  // from the view's left top corner

}  // namespace

HintWindow::HintWindow(WindowStack& stack, wxWindow& view)
    : HintWindow(stack, view, std::make_unique<wxPopupWindow>(&view, wxBORDER_NONE)) {}

HintWindow::HintWindow(WindowStack& stack, wxWindow& view, Popup popup)
    : WxDialogWindow(stack, *popup, hintLayout(), *this, margin), view_(view), popup_(std::move(popup)) {
  start();
  // The toolkit draws no border around such a window everywhere.
  popup_->Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
    wxPaintDC dc(popup_.get());
    dc.SetPen(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    dc.DrawRectangle(popup_->GetClientSize());
  });
  popup_->SetClientSize(contentSize());
}

void HintWindow::showWindow(bool on) {
  if (on) popup_->Move(view_.ClientToScreen(wxPoint(distance, distance)));
  popup_->Show(on);
}

}  // namespace tarnwick::ui
