#include "dialogbase/ToolTipDlg.h"

#include "base/StringableM.h"
#include "base/TagRow.h"
#include "base/Text.h"
#include "dialogbase/AddPathDlg.h"

#include <utility>

namespace tarnwick {

namespace {

/// Takes a text that a person may have written. A malformed one is dropped: the value keeps what it had, also one that
/// empties itself then.
void take(StringableM& value, const std::string& text) {
  const std::string before = value.toString();
  try {
    value.fromString(text);
  } catch (const StringableM::InvalidDataE&) {
    value.fromString(before);
  }
}

}  // namespace

void ToolTipDlg::initialise(DialogWindow& window) {
  window_ = &window;
  loadFromTags();
  // The first entry for a control wins, so the table is applied from its end.
  for (auto tip = toolTips_.rbegin(); tip != toolTips_.rend(); ++tip) window.setToolTip(tip->control, tip->text);
  initialised_ = true;
  updateControls();
}

void ToolTipDlg::detached() {
  initialised_ = false;
  window_ = nullptr;
}

void ToolTipDlg::onCommand(int control) {
  if (control == IDOK_CONTROL) onOk();
  if (control == IDCANCEL_CONTROL) onCancel();
}

void ToolTipDlg::close(int result) {
  if (window_) window_->close(result);
}

void ToolTipDlg::scrollFieldToEnd(int control) {
  if (window_) window_->scrollToEnd(control);
}

void ToolTipDlg::setFieldText(int control, const std::string& text) {
  if (window_) window_->setText(control, text);
  scrollFieldToEnd(control);
}

void ToolTipDlg::showControl(int control, bool show) {
  if (window_) window_->show(control, show);
}
void ToolTipDlg::enableControl(int control, bool enable) {
  if (window_) window_->enable(control, enable);
}
void ToolTipDlg::moveControl(int control, const Rect& rect) {
  if (window_) window_->setRect(control, rect);
}
bool ToolTipDlg::isControlVisible(int control) const {
  return window_ && window_->visible(control);
}
Rect ToolTipDlg::getControlRect(int control) const {
  return window_ ? window_->rect(control) : Rect();
}

void ToolTipDlg::loadFromTags() {
  if (!tags_) return;
  for (const TagRow* row = tags_; !row->isEnd(); ++row) {
    if (row->page != pageId_) continue;
    std::visit(Overloaded{[&](const std::string* text) { setText(row->control, *text); },
                          [&](const int* number) { setCheck(row->control, *number != 0); },
                          [&](const bool* flag) { setCheck(row->control, *flag); },
                          [&](StringableM* value) { setText(row->control, value->toString()); }, [](std::monostate) {}},
               row->variable);
  }
}

void ToolTipDlg::loadFrom(const TagRow* rows) {
  const TagRow* const own = std::exchange(tags_, rows);
  loadFromTags();
  tags_ = own;
}

void ToolTipDlg::updateControls() {
  if (!initialised_) return;
  for (const auto& row : bindings_) {
    std::visit(Overloaded{[&](const std::string* text) { setFieldText(row.control, *text); },
                          [&](const bool* flag) { window_->setChecked(row.control, *flag); },
                          [&](StringableM* value) { setFieldText(row.control, value->toString()); }},
               row.variable);
  }
}

const BindingRow* ToolTipDlg::binding(int control) const {
  for (const auto& row : bindings_) {
    if (row.control == control) return &row;
  }
  return nullptr;
}

void ToolTipDlg::setText(int control, const std::string& text) {
  const BindingRow* row = binding(control);
  if (!row) {
    if (window_) window_->setText(control, text);
    return;
  }
  updateVariables();
  if (auto* const bound = std::get_if<std::string*>(&row->variable)) **bound = text;
  if (auto* const bound = std::get_if<StringableM*>(&row->variable)) take(**bound, text);
  updateControls();
}

void ToolTipDlg::setCheck(int control, bool on) {
  const BindingRow* row = binding(control);
  if (!row) {
    if (window_) window_->setChecked(control, on);
    return;
  }
  updateVariables();
  if (auto* const bound = std::get_if<bool*>(&row->variable)) **bound = on;
  updateControls();
}

void ToolTipDlg::updateVariables() {
  if (!initialised_) return;
  for (const auto& row : bindings_) {
    std::visit(Overloaded{[&](std::string* text) { *text = fieldText(row.control); },
                          [&](bool* flag) { *flag = window_->checked(row.control); },
                          [&](StringableM* value) { take(*value, fieldText(row.control)); }},
               row.variable);
  }
}

void ToolTipDlg::storeToTags() {
  if (!initialised_ || !tags_) return;
  for (const TagRow* row = tags_; !row->isEnd(); ++row) {
    if (row->page != pageId_) continue;
    std::visit(Overloaded{[&](std::string* text) { *text = getText(row->control); },
                          [&](int* number) { *number = getCheck(row->control) ? 1 : 0; },
                          [&](bool* flag) { *flag = getCheck(row->control); },
                          [&](StringableM* value) { take(*value, getText(row->control)); }, [](std::monostate) {}},
               row->variable);
  }
}

bool ToolTipDlg::getCheck(int control) const {
  return window_ && window_->checked(control);
}
std::string ToolTipDlg::getText(int control) const {
  return fieldText(control);
}
std::string ToolTipDlg::fieldText(int control) const {
  return window_ ? onOneLine(window_->text(control)) : "";
}

void ToolTipDlg::askPathEntry(int control, const std::string& description) {
  if (!window_) return;
  appendPathEntry(control, AddPathDlg(desktop_, description, getText(control)).runModal());
}

void ToolTipDlg::addFolderToField(int control) {
  if (window_) appendPathEntry(control, chosenFolderElement(desktop_));
}

void ToolTipDlg::appendPathEntry(int control, const std::string& entry) {
  if (!window_ || entry.empty()) return;
  const std::string list = getText(control);
  setText(control, list.empty() ? entry : list + ";" + entry);
}

}  // namespace tarnwick
