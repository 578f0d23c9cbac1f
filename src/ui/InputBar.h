#pragma once

#include <wx/panel.h>

#include <functional>
#include <vector>

class wxRadioButton;
class wxStaticText;

namespace tarnwick {
class ConsoleFrame;
}

namespace tarnwick::ui {

/// The bar below the console's text that shows who gets what is typed, and lets the user choose.
class InputBar : public wxPanel {
 public:
  /// `choose` is given the command of the choice that was pressed.
  InputBar(wxWindow* parent, ConsoleFrame& rules, std::function<void(int)> choose);

  /// As the rules tell it now.
  void showChoice();

  const std::vector<wxRadioButton*>& buttons() const { return buttons_; }

 private:
  ConsoleFrame& rules_;
  std::function<void(int)> choose_;
  wxStaticText* label_;
  wxStaticText* key_;
  std::vector<wxRadioButton*> buttons_;
};

}  // namespace tarnwick::ui
