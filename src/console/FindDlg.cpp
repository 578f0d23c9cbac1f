#include "console/FindDlg.h"

#include "dialogbase/Desktop.h"
#include "resources/DialogLayout.h"

#include <utility>

namespace tarnwick {

const DialogLayout& findLayout() {
  using namespace layout;
  static const DialogLayout dialog = {
      205, "Find", false,
      column({
          row({label("Text"), edit(FIND_TEXT, 36).stretched()}),
          row({space(), button(IDOK_CONTROL, "Find").asDefault(), button(IDCANCEL_CONTROL, "Cancel")}).closing(),
      }),
      FIND_TEXT};
  return dialog;
}

FindDlg::FindDlg(Desktop& desktop, std::string text)
    : ToolTipDlg(desktop, findLayout().resource, 0), text_(std::move(text)) {
  toolTips_ = {
      {FIND_TEXT, "What to look for in the console's text, in capitals or small letters; nothing removes the marks"}};
}

bool FindDlg::runModal() {
  return desktop_.runDialog(findLayout(), *this) == IDOK_CONTROL;
}

void FindDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  setFieldText(FIND_TEXT, text_);
}

void FindDlg::onOk() {
  text_ = getText(FIND_TEXT);
  ToolTipDlg::onOk();
}

}  // namespace tarnwick
