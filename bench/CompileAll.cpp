// What "javac  all" does with a project, without its window: compileall CONFIGURATION-FOLDER TOOLS DESTINATION PROJECT
// [each], with the newer way of reading; all sources in one run, or each in a run of its own. Fails if anything was
// said.
#include "app/ProjectBuild.h"
#include "base/ProgramInfo.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "process/ToolLog.h"
#include "project/ProjectContext.h"
#include "settings/Settings.h"
#include "settingsdialog/SettingsOnDesktop.h"
#include "support/QuietDesktop.h"

#include <cstdio>
#include <memory>
#include <string>

int main(int argc, char** argv) {
  using namespace tarnwick;
  if (argc < 5) return 2;
  platform::prepareProcess();
  const std::string folder = std::string(argv[1]) + platform::folderSeparator;
  platform::setEnvironment("TARNWICK_CFGDIR=" + folder);
  test::QuietDesktop desktop;
  const ProgramInfo program;
  ToolLog log(folder);
  SettingsContext context = settingsOnDesktop(desktop, program, log);
  Settings settings(context);
  settings.javaPath = std::string(argv[2]) + platform::folderSeparator;
  settings.javacDestination = argv[3];
  // Old libraries make the compiler say that they are old, and then the log would be shown.
  settings.javacOptions = "-XDsuppressNotes";
  settings.newerJava = true;
  settings.javacOneRun = argc == 5;
  settings.saveDefaultConfiguration();
  settings.currentProject = openedProject(settings, argv[4], false);
  compileProject(settings, static_cast<ProjectContext&>(*settings.currentProject), true);
  settings.currentProject.reset();
  for (const auto& message : desktop.messages) std::fprintf(stderr, "%s\n", message.c_str());
  return desktop.messages.empty() ? 0 : 1;
}
