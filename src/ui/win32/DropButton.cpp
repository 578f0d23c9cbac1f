#include "ui/DropButton.h"

#include "ui/Toolkit.h"

#include <windows.h>
#include <wx/dcclient.h>
#include <wx/renderer.h>
#include <wx/settings.h>
#include <wx/textctrl.h>
#include <wx/window.h>

#include <utility>

namespace tarnwick::ui {

namespace {

/// Drawn as that of a combo box, in the field's end.
class DropButton : public wxWindow {
 public:
  DropButton(wxTextCtrl& field, std::function<void()> pressed)
      : wxWindow(&field, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE),
        field_(field),
        pressed_(std::move(pressed)) {
    SetCursor(*wxSTANDARD_CURSOR);
    SetToolTip("Last files (Alt+Down)");
    nameBySpeech(*this, "Last files");
    Bind(wxEVT_PAINT, &DropButton::onPaint, this);
    Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent&) { pressed_(); });
    Bind(wxEVT_ENTER_WINDOW, &DropButton::onMouse, this);
    Bind(wxEVT_LEAVE_WINDOW, &DropButton::onMouse, this);
    field.Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
      event.Skip();
      place();
    });
    Hide();
  }

  bool AcceptsFocus() const override { return false; }

  void appear(bool on) {
    Show(on);
    place();
  }

 private:
  void place() {
    const int width = IsShown() ? wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this) : 0;
    const wxSize room = field_.GetClientSize();
    SetSize(room.x - width, 0, width, room.y);
    // The text ends before it.
    SendMessageW(static_cast<HWND>(field_.GetHandle()), EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, width));
  }

  void onPaint(wxPaintEvent&) {
    wxPaintDC dc(this);
    wxRendererNative::Get().DrawComboBoxDropButton(this, dc, wxRect(GetClientSize()),
                                                   hot_ ? int{wxCONTROL_CURRENT} : 0);
  }

  void onMouse(wxMouseEvent& event) {
    event.Skip();
    hot_ = event.Entering();
    Refresh();
  }

  wxTextCtrl& field_;
  std::function<void()> pressed_;
  bool hot_ = false;
};

DropButton* buttonOf(const wxTextCtrl& field) {
  for (auto* const child : field.GetChildren()) {
    if (auto* const button = dynamic_cast<DropButton*>(child)) return button;
  }
  return nullptr;
}

}  // namespace

void prepareDropButton(wxTextCtrl& field, const std::function<void()>& pressed) {
  const auto handle = static_cast<HWND>(field.GetHandle());
  // The field would paint over what stands in it.
  SetWindowLongPtrW(handle, GWL_STYLE, GetWindowLongPtrW(handle, GWL_STYLE) | WS_CLIPCHILDREN);
  new DropButton(field, pressed);
}

void showDropButton(wxTextCtrl& field, bool on) {
  if (auto* const button = buttonOf(field)) button->appear(on);
}

}  // namespace tarnwick::ui
