#include "ui/StatusLine.h"

#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/dcclient.h>

#include <algorithm>

namespace tarnwick::ui {

StatusLine::StatusLine(wxWindow& parent)
    : wxButton(&parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
               wxBORDER_NONE | wxBU_LEFT | wxBU_EXACTFIT) {
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    fit();
  });
}

void StatusLine::set(const std::string& text) {
  text_ = text;
  // The whole of it, whatever there is room for.
  nameBySpeech(*this, text);
  fit();
}

void StatusLine::fit() {
  const wxString whole = toWx(text_);
  const int room = std::max(0, GetSize().x - 3 * GetCharWidth());
  const wxString shown = Ellipsize(whole, wxClientDC(this), wxELLIPSIZE_END, room, wxELLIPSIZE_FLAGS_NONE);
  const wxString label = EscapeMnemonics(shown);
  // A label that is set anew makes the toolkit arrange it anew, which would come back here.
  if (label != GetLabel()) SetLabel(label);
  const wxString tip = shown == whole ? wxString() : whole;
  if (tip != GetToolTipText()) SetToolTip(tip);
}

}  // namespace tarnwick::ui
