#include "settingsdialog/AppletviewerPage.h"

#include "settings/SettingsResources.h"
#include "settingsdialog/SettingsPageLayouts.h"

namespace tarnwick {

AppletviewerPage::AppletviewerPage(Desktop& desktop, const TagRow* rows, JdkVersion jdk)
    : MarkedPage(desktop, APPLETVIEWER_PAGE, SETTINGS_DIALOG, appletviewerPageLayout(), std::move(jdk)) {
  tags_ = rows;
  toolTips_ = {{1033, "String passed to the java virtual machine"},
               {1034, "Specifies the input HTML file encoding name"}};
  marks_ = {{1033, Mark::APPLETVIEWER, "appletviewer", ""}, {1034, Mark::APPLETVIEWER, "appletviewer", ""}};
}

}  // namespace tarnwick
