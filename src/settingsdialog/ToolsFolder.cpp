#include "settingsdialog/ToolsFolder.h"

#include "settings/Settings.h"
#include "settingsdialog/SettingsDialog.h"

namespace tarnwick {

void askForToolsFolder(Settings& settings) {
  if (settings.javaPath.empty()) SettingsDialog(settings).runModal(0);
}

}  // namespace tarnwick
