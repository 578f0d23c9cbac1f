#include "settings/AppletviewerPage.h"

#include "resources/SettingsPageLayouts.h"
#include "settings/SettingsValues.h"

namespace tarnwick {

AppletviewerPage::AppletviewerPage(Desktop& desktop, const TagRow* rows)
    : TabPage(desktop, APPLETVIEWER_PAGE, SETTINGS_DIALOG, appletviewerPageLayout()) {
  tags_ = rows;
  toolTips_ = {{1033, "String passed to the java virtual machine"},
               {1034, "Specifies the input HTML file encoding name"}};
}

}  // namespace tarnwick
