#pragma once

#include "settings/OptionList.h"

#include <string>

namespace tarnwick {

class DialogWindow;

/// An option list that is tied to a combo box and, for the user's own choice, to an edit field.
class OptionBox : public OptionList {
 public:
  using OptionList::OptionList;

  void fromString(const std::string& text) override;
  /// Reads the edit field first if the user's own choice is shown in a window.
  std::string toString() override;
  void selectIndex(int index) override;

  /// Shows the current choice in the window, if there is one.
  void updateControls();
  /// The option of the entry that the combo box shows; empty without a window, or for an entry without a row.
  std::string shownOption() const;
  /// Ties the list to the controls of a window and shows the choice there. `editField` is -1 for none. A null window is
  /// ignored.
  void attach(DialogWindow* window, int comboBox, int editField);

 private:
  DialogWindow* window_ = nullptr;
  int comboBox_ = 0;
  int editField_ = -1;
};

}  // namespace tarnwick
