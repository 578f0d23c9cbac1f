#include "app/HelpFileDlg.h"

#include "base/Filename.h"
#include "dialogbase/Desktop.h"
#include "resources/DialogLayout.h"
#include "resources/HelpLayouts.h"

namespace tarnwick {

namespace {

enum Control { FIND = 1173, EXPECTED = 1174 };

}  // namespace

HelpFileDlg::HelpFileDlg(Desktop& desktop, std::string expectedPath)
    : ToolTipDlg(desktop, helpFileLayout().resource, 0), expectedPath_(std::move(expectedPath)) {}

int HelpFileDlg::runModal() {
  return desktop_.runDialog(helpFileLayout(), *this);
}

void HelpFileDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  window.setText(EXPECTED, "Could not open usersguide.htm at expected location:\n" + expectedPath_);
}

void HelpFileDlg::onCommand(int control) {
  if (control == FIND)
    find();
  else
    ToolTipDlg::onCommand(control);
}

void HelpFileDlg::find() {
  FileRequest request;
  request.filter = "html files|*.htm*||";
  request.startFolder = Filename(expectedPath_).directory();
  request.name = "usersguide.htm";
  request.mustExist = true;
  const auto chosen = desktop_.openFile(request);
  if (!chosen) return;
  chosenPath_ = *chosen;
  close(DIALOG_OK);
}

}  // namespace tarnwick
