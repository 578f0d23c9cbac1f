#include "settingsdialog/OptionBox.h"

#include "base/Text.h"
#include "dialogbase/DialogWindow.h"

namespace tarnwick {

void OptionBox::fromString(const std::string& text) {
  OptionList::fromString(text);
  updateControls();
}

std::string OptionBox::toString() {
  if (window_ && editField_ >= 0 && isUsersOwn()) setUsersOwn(onOneLine(window_->text(editField_)));
  return OptionList::toString();
}

void OptionBox::selectIndex(int index) {
  OptionList::selectIndex(index);
  updateControls();
}

void OptionBox::updateControls() {
  if (!window_) return;
  window_->select(comboBox_, currentIndex());
  if (editField_ < 0) return;
  window_->enable(editField_, isUsersOwn());
  window_->setText(editField_, isUsersOwn() ? OptionList::toString() : "");
}

std::string OptionBox::shownOption() const {
  if (!window_) return "";
  const auto entries = window_->entries(comboBox_);
  const int index = currentIndex();
  if (index < 0 || index >= static_cast<int>(entries.size())) return "";
  for (const auto& row : table().rows) {
    if (entries[static_cast<std::size_t>(index)] == row.label) return row.option;
  }
  return "";
}

void OptionBox::attach(DialogWindow* window, int comboBox, int editField) {
  if (!window) return;
  window_ = window;
  comboBox_ = comboBox;
  editField_ = editField;
  updateControls();
}

}  // namespace tarnwick
