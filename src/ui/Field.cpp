#include "ui/Field.h"

#include "base/Text.h"
#include "resources/DialogLayout.h"
#include "ui/DropButton.h"
#include "ui/PopupMenu.h"
#include "ui/Text.h"

#include <wx/clipbrd.h>
#include <wx/dcclient.h>
#include <wx/settings.h>

#include <algorithm>
#include <utility>

namespace tarnwick::ui {

namespace {

/// A longer entry is shown without its middle: a path's end tells most.
constexpr int charactersInEntry = 80;

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

Field::Field(wxWindow& parent, const DialogItem& item)
    : wxTextCtrl(&parent, wxID_ANY, toWx(item.text), wxDefaultPosition, wxDefaultSize,
                 item.readOnly ? wxTE_READONLY : 0),
      listsPaths_(item.listsPaths) {
  if (item.readOnly) SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
  Bind(wxEVT_SET_FOCUS, after([this] { onFocus(); }));
  Bind(wxEVT_KILL_FOCUS, after([this] { onFocusLost(); }));
  Bind(wxEVT_SIZE, after([this] { showRightPart(); }));
  Bind(wxEVT_ENTER_WINDOW, after([this] { showTip(); }));
  if (item.offersEntries) offerByKey();
}

void Field::offerByKey() {
  prepareDropButton(*this, [this] { letChoose(false); });
  Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    // The system hears of the key all the same: an Alt that it believes to be pressed alone leads to the menus.
    event.Skip();
    if (event.GetKeyCode() == WXK_DOWN && event.GetModifiers() == wxMOD_ALT && !offered_.empty()) letChoose(true);
  });
}

void Field::offer(std::vector<std::string> entries) {
  if (entries.empty() != offered_.empty()) showDropButton(*this, !entries.empty());
  offered_ = std::move(entries);
  chosen_ = -1;
}

void Field::letChoose(bool byKey) {
  const wxClientDC dc(this);
  const int room = std::max(GetSize().x, GetCharWidth() * charactersInEntry);
  std::vector<wxString> labels;
  for (const auto& entry : offered_)
    labels.push_back(Ellipsize(toWx(entry), dc, wxELLIPSIZE_MIDDLE, room, wxELLIPSIZE_FLAGS_NONE));
  SetFocus();
  openMenu(*this, wxRect(GetSize()), labels, byKey, [this](int index) {
    chosen_ = index;
    wxCommandEvent event(wxEVT_COMBOBOX, GetId());
    event.SetEventObject(this);
    event.SetInt(index);
    ProcessWindowEvent(event);
  });
}

// What is pasted is changed on its way in, and what comes in another way, such as a drop or the middle mouse button, as
// soon as it stands there.
void Field::keepOneLine() {
  Bind(wxEVT_TEXT_PASTE, [this](wxClipboardTextEvent& event) {
    const std::string pasted = textOnClipboard();
    if (!IsEditable() || !holdsLineEnd(pasted)) return event.Skip();
    WriteText(toWx(fieldLine(pasted, listsPaths_)));
  });
  Bind(wxEVT_TEXT, [this](wxCommandEvent& event) {
    event.Skip();
    const std::string text = fromWx(GetValue());
    if (!holdsLineEnd(text)) return;
    ChangeValue(toWx(fieldLine(text, listsPaths_)));
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
