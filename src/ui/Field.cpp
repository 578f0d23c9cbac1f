#include "ui/Field.h"

#include "base/Text.h"
#include "ui/Text.h"

#include <wx/clipbrd.h>
#include <wx/settings.h>

namespace tarnwick::ui {

namespace {

std::string textOnClipboard() {
  const wxClipboardLocker lock;
  wxTextDataObject text;
  if (!lock || !wxTheClipboard->GetData(text)) return "";
  return fromWx(text.GetText());
}

/// What a field takes of a text with several lines.
std::string fieldLine(const std::string& text, bool listsPaths) {
  return listsPaths ? pathsOnOneLine(text) : onOneLine(text);
}

template <typename Action>
auto after(Action action) {
  return [action](auto& event) {
    event.Skip();
    action();
  };
}

}  // namespace

Field::Field(wxWindow& parent, const wxString& text, bool showsOnly)
    : wxTextCtrl(&parent, wxID_ANY, text, wxDefaultPosition, wxDefaultSize, showsOnly ? wxTE_READONLY : 0) {
  if (showsOnly) SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
  Bind(wxEVT_SET_FOCUS, after([this] { onFocus(); }));
  Bind(wxEVT_KILL_FOCUS, after([this] { onFocusLost(); }));
  Bind(wxEVT_SIZE, after([this] { showRightPart(); }));
  Bind(wxEVT_ENTER_WINDOW, after([this] { showTip(); }));
}

void Field::keepOneLine(bool listsPaths) {
  Bind(wxEVT_TEXT_PASTE, [this, listsPaths](wxClipboardTextEvent& event) {
    const std::string pasted = textOnClipboard();
    if (!IsEditable() || !holdsLineEnd(pasted)) return event.Skip();
    WriteText(toWx(fieldLine(pasted, listsPaths)));
  });
  Bind(wxEVT_TEXT, [this, listsPaths](wxCommandEvent& event) {
    event.Skip();
    const std::string text = fromWx(GetValue());
    if (!holdsLineEnd(text)) return;
    ChangeValue(toWx(fieldLine(text, listsPaths)));
    SetInsertionPointEnd();
  });
}

void Field::set(const wxString& text) {
  ChangeValue(text);
  showRightPart();
}

void Field::setTip(const wxString& tip) {
  tip_ = tip;
  SetToolTip(tip);
}

bool Field::isLongPath() const {
  const wxString text = GetValue();
  return text.find_first_of("/\\") != wxString::npos && GetTextExtent(text).x > GetClientSize().x - FromDIP(12);
}

void Field::showRightPart() {
  // A selection stays: it may be wanted elsewhere.
  if (HasFocus() || !GetStringSelection().empty()) return;
  // The beginning first: Windows leaves a text scrolled that has got room.
  SetInsertionPoint(0);
  if (isLongPath()) SetInsertionPointEnd();
}

void Field::onFocus() {
  // Who comes back from another window goes on where he was.
  if (caret_ >= 0 && GetStringSelection().empty() && GetValue() == left_) SetInsertionPoint(caret_);
  caret_ = -1;
}

void Field::onFocusLost() {
  if (!GetStringSelection().empty() || !isLongPath()) return;
  caret_ = GetInsertionPoint();
  left_ = GetValue();
  SetInsertionPointEnd();
}

void Field::showTip() {
  const wxString tip = isLongPath() ? GetValue() + "\n\n" + tip_ : tip_;
  if (tip != GetToolTipText()) SetToolTip(tip);
}

}  // namespace tarnwick::ui
