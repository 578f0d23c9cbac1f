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
  explicit OptionList(const OptionTable& table, const std::string& text = "");

  void fromString(const std::string& text) override;
  /// Reads the edit field first if the user's own choice is shown in a window.
  std::string toString() override;
  virtual void updateControls();

  void selectIndex(int index);
  int currentIndex() const { return index_; }
  /// The option of the current choice, with the user's text behind it where the choice is the user's own.
  std::string option() const;
  /// The option of the entry that the combo box shows.
  std::string shownOption() const;
  /// The text that the combo box gets when something was typed into it.
  std::string windowText() const;
  /// `editField` is -1 for none. A null window is ignored.
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
