#include "app/UsersGuide.h"

#include "app/HelpFileDlg.h"
#include "base/ReplacingFile.h"
#include "dialogbase/Messages.h"
#include "platform/Path.h"
#include "process/WinApp.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

namespace tarnwick {

namespace {

/// Saves the object as it stands. The usual save would take the guide's place from the file again.
void saveAsItStands(Settings& stored) {
  try {
    ReplacingFile fresh(stored.configPath());
    stored.write(fresh);
    fresh.commit();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    stored.context().desktop.message(failure.message + "\nCan't save configuration data in " + failure.file);
  }
}

}  // namespace

void openInBrowser(Desktop& desktop, const std::string& address, const std::string& place) {
  const WinApp browser(".htm");
  constexpr int checkOnly = 1;
  const LaunchResult found = browser.runApp(address.c_str(), nullptr, checkOnly);
  showEach(desktop, found.failures);
  if (found.started)
    showEach(desktop, browser.runApp(address.c_str(), nullptr, 0).failures);
  else
    desktop.message("There is no browser on this computer. It would show:\n" + place);
}

void showUsersGuide(SettingsContext& context, const std::string& anchor,
                    const std::function<void(const std::string& address, const std::string& place)>& browser) {
  Settings stored(context);
  int status = 0;  // whatever it is: without a configuration, the guide's default place holds
  stored.readDefaultConfiguration(status);
  while (!canBeRead(stored.helpFile)) {
    HelpFileDlg dialog(context.desktop, stored.helpFile);
    if (dialog.runModal() != DIALOG_OK) return;
    stored.helpFile = dialog.chosenPath();
    saveAsItStands(stored);
  }
  const std::string place = Filename(stored.helpFile).fullName();
  browser(platform::documentAddress(place, anchor), place);
}

}  // namespace tarnwick
