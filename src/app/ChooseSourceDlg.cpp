#include "app/ChooseSourceDlg.h"

#include "dialogbase/Desktop.h"
#include "resources/DialogLayout.h"

#include <utility>

namespace tarnwick {

const DialogLayout& chooseSourceLayout() {
  using namespace layout;
  static const DialogLayout dialog = {
      206, "Which source?", false,
      column({
          listBox(SOURCE_HITS, 60).linesHigh(6).named("Sources").stretched(),
          row({space(), button(IDOK_CONTROL, "Open").asDefault(), button(IDCANCEL_CONTROL, "Cancel")}).closing(),
      }),
      SOURCE_HITS};
  return dialog;
}

ChooseSourceDlg::ChooseSourceDlg(Desktop& desktop, std::vector<std::string> files)
    : ToolTipDlg(desktop, chooseSourceLayout().resource, 0), files_(std::move(files)) {
  toolTips_ = {{SOURCE_HITS, "The sources of that name where the class's package may lie"}};
}

std::string ChooseSourceDlg::runModal() {
  return desktop_.runDialog(chooseSourceLayout(), *this) == IDOK_CONTROL ? chosen_ : "";
}

void ChooseSourceDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  window.setEntries(SOURCE_HITS, files_);
  window.select(SOURCE_HITS, 0);
}

void ChooseSourceDlg::onDoubleClick(int) {
  onOk();
}

void ChooseSourceDlg::onOk() {
  const int chosen = window()->selection(SOURCE_HITS);
  if (chosen >= 0) chosen_ = files_.at(static_cast<std::size_t>(chosen));
  ToolTipDlg::onOk();
}

}  // namespace tarnwick
