#pragma once

#include "base/ProgramInfo.h"
#include "dialogbase/Desktop.h"
#include "platform/SystemVersion.h"
#include "process/ToolLog.h"
#include "settings/JdkDiscovery.h"

#include <functional>
#include <string>
#include <vector>

namespace tarnwick {

/// What every Settings object of the process stands on.
struct SettingsContext {
  Desktop& desktop;
  const ProgramInfo& program;
  ToolLog& log;
  /// The program's main window; null while there is none.
  DialogWindow* mainWindow = nullptr;
  /// Opens the user's guide at an anchor such as "#paths"; at its top for the empty text. The application sets it.
  std::function<void(const std::string& anchor)> showHelp = [](const std::string&) {};
  /// Runs the About dialog. The application sets it.
  std::function<void()> showAbout = [] {};
  /// Makes this program the opener of project files. The application sets it.
  std::function<void()> registerProjectType = [] {};
  /// The warning before a source is split; stands in no file, so each run of the program begins with it.
  bool warnAboutSplitting = true;
  /// The JDKs of this machine, the newest first.
  std::function<std::vector<Jdk>()> installedJdks = tarnwick::installedJdks;
  std::function<bool()> isWindows98 = platform::isWindows98;
};

}  // namespace tarnwick
