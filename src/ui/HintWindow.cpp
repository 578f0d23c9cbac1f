#include "ui/HintWindow.h"

#include "resources/HintLayout.h"
#include "ui/Toolkit.h"

#include <wx/dcclient.h>
#include <wx/settings.h>
#include <wx/stattext.h>

#include <algorithm>

namespace tarnwick::ui {

namespace {

constexpr int margin = 10;
constexpr int distance = 20;  // from the view's left top corner

std::vector<wxStaticText*> labelsBelow(const wxWindow& window) {
  std::vector<wxStaticText*> labels;
  for (wxWindow* const child : window.GetChildren()) {
    if (auto* const label = dynamic_cast<wxStaticText*>(child)) labels.push_back(label);
  }
  return labels;
}

}  // namespace

HintWindow::HintWindow(WindowStack& stack, wxWindow& view)
    : HintWindow(stack, view, std::make_unique<wxPopupWindow>(&view, wxBORDER_NONE)) {}

HintWindow::HintWindow(WindowStack& stack, wxWindow& view, Popup popup)
    : WxDialogWindow(stack, *popup, hintLayout(), *this, margin), view_(view), popup_(std::move(popup)) {
  start();
  describeHint(*popup_, "Hint");
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

void HintWindow::fitWidth(int width) {
  const auto labels = labelsBelow(*popup_);
  const auto breakAt = [&](int pixels) {
    for (auto* const label : labels) {
      wxString words = label->GetLabelText();
      words.Replace("\n", " ");
      label->SetLabelText(words);
      label->Wrap(std::max(pixels, 1));
    }
    return contentSize();
  };
  // Whatever stands beside the words keeps its width.
  const wxSize whole = breakAt(width);
  int words = 0;
  for (const auto* const label : labels) words = std::max(words, label->GetBestSize().x);
  const wxSize size = whole.x <= width ? whole : breakAt(width - (whole.x - words));
  popup_->SetClientSize(std::min(size.x, width), size.y);
  arrange(size);
}

void HintWindow::showAwayFrom(const wxPoint& point, int lineHeight) {
  const wxSize room = view_.GetClientSize();
  fitWidth(std::max(room.x - 2 * distance, 1));
  const int height = popup_->GetSize().y;
  // In the half of the view where the mouse is not, and outside rather than over the line that it points to.
  const int y = point.y < room.y / 2 ? std::max(room.y - distance - height, point.y + lineHeight)
                                     : std::min(distance, point.y - lineHeight - height);
  popup_->Move(view_.ClientToScreen(wxPoint(distance, y)));
  popup_->Show();
}

}  // namespace tarnwick::ui
