#include "settings/SettingsContext.h"

#include "base/FileNotOpenE.h"
#include "platform/Shortcuts.h"
#include "platform/SystemVersion.h"
#include "settings/JdkDiscovery.h"

namespace tarnwick {

SettingsContext::SettingsContext(Desktop& itsDesktop, const ProgramInfo& itsProgram, ToolLog& itsLog)
    : desktop(itsDesktop),
      program(itsProgram),
      log(itsLog),
      onSaveFailed([](const FileNotOpenE& failure, const auto&) { throw FileNotOpenE(failure); }),
      installedJdks(tarnwick::installedJdks),
      isWindows98(platform::isWindows98),
      shortcutShells(platform::openShortcutShell) {}

}  // namespace tarnwick
