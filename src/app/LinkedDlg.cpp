#include "app/LinkedDlg.h"

#include "app/UsersGuide.h"
#include "resources/HelpLayouts.h"

namespace tarnwick {

void LinkedDlg::onCommand(int control) {
  if (control != HOME_LINK && control != MIRROR_LINK) return ToolTipDlg::onCommand(control);
  const std::string address = window()->text(control);
  openInBrowser(desktop_, address, address);
}

}  // namespace tarnwick
