#pragma once

#include "base/StringableM.h"

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

/// Turns a stored setting into a command-line option by a table.
class OptionList : public StringableM {
 public:
  /// The choice that `text` stands for. The table outlives the list.
  explicit OptionList(const OptionTable& table, const std::string& text = "");

  /// A label of the table chooses its row, another text is the user's own choice, an empty one is none. White space at
  /// both ends goes.
  void fromString(const std::string& text) override;
  /// The text of the choice.
  std::string toString() override { return text_; }

  /// Makes the entry with this index the choice. The text becomes its label, but stays for the user's
  /// own choice, and is empty where the table has no such row.
  virtual void selectIndex(int index);
  int currentIndex() const { return index_; }
  /// The option of the current choice, with the user's text behind it where the choice is the user's own; empty for
  /// none.
  std::string option() const;
  /// The text that a combo box gets when something was typed into it.
  std::string windowText() const;

 protected:
  const OptionTable& table() const { return table_; }
  bool isUsersOwn() const { return index_ == table_.userDefinedIndex; }
  void setUsersOwn(const std::string& text) { text_ = text; }

 private:
  const OptionRow* rowOf(int index) const;

  const OptionTable& table_;
  int index_ = 0;
  std::string text_;
};

}  // namespace tarnwick
