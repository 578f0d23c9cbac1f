#include "ui/Link.h"

#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/dcclient.h>
#include <wx/settings.h>

namespace tarnwick::ui {

namespace {

struct LinkColours {
  wxColour usual = *wxBLUE;
  wxColour underPointer = *wxRED;
};

/// Blue and red, pure wherever they can be read: on a dark theme they need some light.
LinkColours linkColours() {
  if (!wxSystemSettings::GetAppearance().IsUsingDarkBackground()) return {};
  return {wxColour(110, 160, 255), wxColour(255, 120, 120)};
}

/// What the frame of a link that has the focus takes on both sides, and above and below.
const wxSize roomForFrame(6, 2);

}  // namespace

Link::Link(wxWindow& parent, const std::string& address)
    : wxGenericHyperlinkCtrl(&parent, wxID_ANY, toWx(address), toWx(address), wxDefaultPosition, wxDefaultSize,
                             wxHL_ALIGN_LEFT | wxNO_BORDER) {
  InvalidateBestSize();  // it was asked for before this was a Link
  const LinkColours colours = linkColours();
  SetNormalColour(colours.usual);
  SetVisitedColour(colours.usual);
  SetHoverColour(colours.underPointer);
  describeLink(*this, address);
  Bind(wxEVT_PAINT, [this](wxPaintEvent&) { paint(); });
  Bind(wxEVT_CHAR_HOOK, &Link::onKey, this);
}

wxSize Link::DoGetBestClientSize() const {
  return wxGenericHyperlinkCtrl::DoGetBestClientSize() + roomForFrame;
}

// The toolkit's own mark of the focus is none that could be seen in every theme.
void Link::paint() {
  wxPaintDC dc(this);
  dc.SetFont(GetFont());
  dc.SetTextForeground(GetForegroundColour());
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  const wxPoint leftTop = GetLabelRect().GetTopLeft();
  dc.DrawText(GetLabel(), leftTop.x + roomForFrame.x / 2, leftTop.y + roomForFrame.y / 2);
  if (!HasFocus()) return;
  dc.SetPen(wxPen(GetForegroundColour(), 1, wxPENSTYLE_DOT));
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.DrawRectangle(GetLabelRect());
}

void Link::onKey(wxKeyEvent& event) {
  const int code = event.GetKeyCode();
  const bool presses = code == WXK_RETURN || code == WXK_NUMPAD_ENTER || code == WXK_SPACE;
  if (presses && event.GetModifiers() == wxMOD_NONE) {
    SendEvent();  // left alone, Return would press the dialog's default button
  } else {
    event.Skip();
  }
}

}  // namespace tarnwick::ui
