#include "settings/OptionList.h"

#include "base/Text.h"

namespace tarnwick {

const OptionTable javacTargetOptions = {{{"1.1", 1, "-target 1.1"},
                                         {"1.2", 2, "-target 1.2"},
                                         {"1.3", 3, "-target 1.3"},
                                         {"1.4", 4, "-target 1.4"},
                                         {"1.5", 5, "-target 1.5"},
                                         {"User-defined", 6, "-target "}},
                                        6,
                                        0};

const OptionTable javacSourceOptions = {
    {{"1.3", 1, "-source 1.3"}, {"1.4", 2, "-source 1.4"}, {"1.5", 3, "-source 1.5"}, {"User-defined", 4, "-source "}},
    4,
    0};

// Index 0 is both the oldest version and the default; this list has no entry of its own for no choice.
const OptionTable javacVersionOptions = {{{"Pre-1.4", 0, ""}, {"1.4", 1, ""}, {"1.5", 2, ""}}, -1, 0};

const OptionTable garbageCollectorOptions = {
    {{"Disabled", 1, "-Xnoclassgc"}, {"Incremental", 2, "-Xincgc"}, {"Concurrent", 3, "-Xconcgc"}}, -1, 0};

OptionList::OptionList(const OptionTable& table, const std::string& text) : table_(table) {
  OptionList::fromString(text);
}

const OptionRow* OptionList::rowOf(int index) const {
  for (const auto& row : table_.rows) {
    if (row.index == index) return &row;
  }
  return nullptr;
}

void OptionList::fromString(const std::string& text) {
  text_ = trim(text);
  index_ = text_.empty() ? table_.defaultIndex : table_.userDefinedIndex;
  for (const auto& row : table_.rows) {
    if (text_ == row.label) index_ = row.index;
  }
}

void OptionList::selectIndex(int index) {
  index_ = index;
  const OptionRow* row = rowOf(index);
  if (!row)
    text_.clear();
  else if (index != table_.userDefinedIndex)
    text_ = row->label;
}

std::string OptionList::option() const {
  const OptionRow* row = rowOf(index_);
  if (!row) return "";
  return index_ == table_.userDefinedIndex ? row->option + text_ : row->option;
}

std::string OptionList::windowText() const {
  if (index_ == table_.defaultIndex) return "Default";
  if (index_ == table_.userDefinedIndex) return "User-defined";
  return text_;
}

}  // namespace tarnwick
