#include "dialogbase/ToolTipDlg.h"

#include "base/Text.h"
#include "dialogbase/AddPathDlg.h"

#include <utility>

namespace tarnwick {

namespace {

std::string& textOf(const BindingRow& row) {
  return *static_cast<std::string*>(row.variable);
}
int& checkOf(const BindingRow& row) {
  return *static_cast<int*>(row.variable);
}
StringableM& stringableOf(const BindingRow& row) {
  return *static_cast<StringableM*>(row.variable);
}

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
  for (const TagRow* row = tags_; row->kind != TAG_END; ++row) {
    if (row->page != pageId_) continue;
    switch (row->kind) {
      case TAG_STRING:
        setText(row->control, *static_cast<std::string*>(row->variable));
        break;
      case TAG_INT:
      case TAG_BOOL:
        setCheck(row->control, *static_cast<int*>(row->variable));
        break;
      case TAG_STRINGABLE:
        setText(row->control, static_cast<StringableM*>(row->variable)->toString());
        break;
      default:
        break;
    }
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
    if (row.kind == BIND_TEXT) setFieldText(row.control, textOf(row));
    if (row.kind == BIND_CHECK) window_->setChecked(row.control, checkOf(row) != 0);
    if (row.kind == BIND_STRINGABLE) setFieldText(row.control, stringableOf(row).toString());
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
  if (row->kind == BIND_TEXT)
    textOf(*row) = text;
  else if (row->kind == BIND_STRINGABLE)
    take(stringableOf(*row), text);
  updateControls();
}

void ToolTipDlg::setCheck(int control, int value) {
  const BindingRow* row = binding(control);
  if (!row) {
    if (window_) window_->setChecked(control, value != 0);
    return;
  }
  updateVariables();
  checkOf(*row) = value;
  updateControls();
}

void ToolTipDlg::updateVariables() {
  if (!initialised_) return;
  for (const auto& row : bindings_) {
    if (row.kind == BIND_TEXT) textOf(row) = fieldText(row.control);
    if (row.kind == BIND_CHECK) checkOf(row) = window_->checked(row.control) ? 1 : 0;
    if (row.kind == BIND_STRINGABLE) take(stringableOf(row), fieldText(row.control));
  }
}

void ToolTipDlg::storeToTags() {
  if (!initialised_ || !tags_) return;
  for (const TagRow* row = tags_; row->kind != TAG_END; ++row) {
    if (row->page != pageId_) continue;
    switch (row->kind) {
      case TAG_STRING:
        *static_cast<std::string*>(row->variable) = getText(row->control);
        break;
      case TAG_INT:
      case TAG_BOOL:
        *static_cast<int*>(row->variable) = getCheck(row->control);
        break;
      case TAG_STRINGABLE:
        take(*static_cast<StringableM*>(row->variable), getText(row->control));
        break;
      default:
        break;
    }
  }
}

int ToolTipDlg::getCheck(int control) const {
  return window_ && window_->checked(control) ? 1 : 0;
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
