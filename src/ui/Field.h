// A field for one line of text.
#pragma once

#include <wx/textctrl.h>

#include <string>
#include <vector>

namespace tarnwick {
struct DialogItem;
}

namespace tarnwick::ui {

/// A field of one line, whatever is pasted or dropped. The keyboard reaches it even if it only shows: its text can be
/// scrolled and copied. A path that is longer than the field shows its end, the file's name, while nobody works in it,
/// and the whole in the tool tip. It may offer entries, of which the user chooses one below it, by a small button in
/// the field's end or with Alt+Down: that sends the event of a combo box, and changes nothing else.
class Field : public wxTextCtrl {
 public:
  Field(wxWindow& parent, const DialogItem& item);

  bool AcceptsFocusFromKeyboard() const override { return AcceptsFocus(); }

  /// In the place of what stands there. No listener hears of it.
  void set(const wxString& text);
  /// What the tool tip tells apart from the text.
  void setTip(const wxString& tip);
  /// The button shows as long as there are entries.
  void offer(std::vector<std::string> entries);
  const std::vector<std::string>& offered() const { return offered_; }
  /// The entry that was chosen last; -1 for none.
  int chosen() const { return chosen_; }
  void setChosen(int index) { chosen_ = index; }
  /// Keeps its text to one line from now on. To be called behind all other handlers of its events.
  void keepOneLine();

 private:
  void offerByKey();
  void letChoose(bool byKey);
  bool isLongPath() const;
  void showRightPart();
  void onFocus();
  void onFocusLost();
  void showTip();

  bool listsPaths_;
  std::vector<std::string> offered_;
  int chosen_ = -1;
  wxString tip_;
  /// Where the caret stood when the focus went, and in which text.
  long caret_ = -1;
  wxString left_;
};

}  // namespace tarnwick::ui
