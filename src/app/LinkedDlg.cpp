#include "app/LinkedDlg.h"

#include "app/UsersGuide.h"
#include "resources/HelpLayouts.h"

namespace tarnwick {

void LinkedDlg::onCommand(int control) {
  if (control == HOME_LINK || control == MIRROR_LINK)
    openInBrowser(desktop_, window()->text(control));
  else
    ToolTipDlg::onCommand(control);
}

}  // namespace tarnwick
