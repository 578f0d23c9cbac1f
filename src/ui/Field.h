// A field for one line of text.
#pragma once

#include <wx/textctrl.h>

#include <string>

namespace tarnwick::ui {

/// A field that the keyboard reaches even if it only shows: its text can be scrolled and copied. A path that is longer
/// than the field shows its end, the file's name, while nobody works in it, and the whole in the tool tip.
class Field : public wxTextCtrl {
 public:
  Field(wxWindow& parent, const wxString& text, bool showsOnly);

  bool AcceptsFocusFromKeyboard() const override { return AcceptsFocus(); }
  /// Keeps the field to one line: what is pasted is changed on its way in, and what comes in another way, such as a
  /// drop or the middle mouse button, as soon as it stands there.
  void keepOneLine(bool listsPaths);
  /// In the place of what stands there. No listener hears of it.
  void set(const wxString& text);
  /// What the tool tip tells apart from the text.
  void setTip(const wxString& tip);

 private:
  bool isLongPath() const;
  void showRightPart();
  void onFocus();
  void onFocusLost();
  void showTip();

  wxString tip_;
  /// Where the caret stood when the focus went, and in which text.
  long caret_ = -1;
  wxString left_;
};

}  // namespace tarnwick::ui
