#pragma once

#include <wx/textctrl.h>

#include <string>
#include <vector>

namespace tarnwick {
struct DialogItem;
}

namespace tarnwick::ui {

/// A field of one line, whatever is pasted or dropped. The keyboard reaches it even if it only shows: its text can be
/// scrolled and copied. It may offer entries, of which the user chooses one below it, by a small button in the field's
/// end or with Alt+Down: that sends the event of a combo box, and changes nothing else.
class Field : public wxTextCtrl {
 public:
  Field(wxWindow& parent, const DialogItem& item);

  bool AcceptsFocusFromKeyboard() const override { return AcceptsFocus(); }

  /// The button shows as long as there are entries.
  void offer(std::vector<std::string> entries);
  const std::vector<std::string>& offered() const { return offered_; }
  /// The entry that was chosen last; -1 for none.
  int chosen() const { return chosen_; }
  void setChosen(int index) { chosen_ = index; }
  /// Keeps its text to one line from now on. To be called behind all other handlers of its events.
  void keepOneLine();

 private:
  void letChoose(bool byKey);

  bool listsPaths_;
  std::vector<std::string> offered_;
  int chosen_ = -1;
};

}  // namespace tarnwick::ui
