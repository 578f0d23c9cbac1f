#include "app/AboutDlg.h"

#include "base/ProgramInfo.h"
#include "dialogbase/Desktop.h"
#include "resources/DialogLayout.h"
#include "resources/HelpLayouts.h"

namespace tarnwick {

AboutDlg::AboutDlg(Desktop& desktop, const ProgramInfo& program)
    : LinkedDlg(desktop, aboutLayout().resource, 0), program_(program) {}

void AboutDlg::runModal() {
  desktop_.runDialog(aboutLayout(), *this);
}

void AboutDlg::initialise(DialogWindow& window) {
  LinkedDlg::initialise(window);
  window.setText(1112, program_.version);
}

}  // namespace tarnwick
