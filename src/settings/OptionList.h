#pragma once

#include "base/StringableM.h"
#include "dialogbase/DialogWindow.h"

#include <string>
#include <vector>

namespace tarnwick {

/// One choice: the text shown, its place in the combo box, and what goes on the command line.
struct OptionRow {
  const char* label;
  int index;
  const char* option;
};

/// The choices of one setting. `defaultIndex` is the entry that stands for no choice.
struct OptionTable {
  std::vector<OptionRow> rows;
  int userDefinedIndex;  ///< -1 for none
  int defaultIndex;
};

extern const OptionTable javacTargetOptions;
extern const OptionTable javacSourceOptions;
extern const OptionTable javacVersionOptions;
extern const OptionTable garbageCollectorOptions;

/// Turns a stored setting into a command-line option by a table, and ties the table to a combo box and, for the
/// user's own choice, to an edit field.
class OptionList : public StringableM {
 public:
  /// The choice that `text` stands for. The table outlives the list.
  explicit OptionList(const OptionTable& table, const std::string& text = "");

  /// A label of the table chooses its row, another text is the user's own choice, an empty one is none. White space at
  /// both ends goes.
  void fromString(const std::string& text) override;
  /// The text of the choice. Reads the edit field first if the user's own choice is shown in a window.
  std::string toString() override;
  /// Shows the current choice in the window, if there is one.
  virtual void updateControls();

  /// Makes the entry at this place of the combo box the choice. The text becomes its label, but stays for the user's
  /// own choice, and is empty where the table has no such row.
  void selectIndex(int index);
  int currentIndex() const { return index_; }
  /// The option of the current choice, with the user's text behind it where the choice is the user's own; empty for
  /// none.
  std::string option() const;
  /// The option of the entry that the combo box shows; empty without a window, or for an entry without a row.
  std::string shownOption() const;
  /// The text that the combo box gets when something was typed into it.
  std::string windowText() const;
  /// Ties the list to the controls of a window and shows the choice there. `editField` is -1 for none. A null window is
  /// ignored.
  void attach(DialogWindow* window, int comboBox, int editField);

 private:
  const OptionRow* rowOf(int index) const;

  const OptionTable& table_;
  DialogWindow* window_ = nullptr;
  int comboBox_ = 0;
  int editField_ = -1;
  int index_ = 0;
  std::string text_;
};

}  // namespace tarnwick
