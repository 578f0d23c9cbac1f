#include "tools/Relaunch.h"

#include "base/Tarnwickfile.h"
#include "dialogbase/Desktop.h"
#include "platform/Path.h"
#include "resources/SystemWords.h"
#include "settings/OpenProject.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/ToolsFolder.h"

namespace tarnwick {

namespace {

const char mark[] = "\\/";

/// A folder whose text holds the mark (on Linux a name may end in a backslash) would be cut there. The copy begins in
/// the folder of the file anyway, so it is told to stay.
std::string folderToEnter(const std::string& folder) {
  return folder.find(mark) == std::string::npos ? folder : std::string(".") + platform::folderSeparator;
}

}  // namespace

const char runSwitch[] = "\\/RUN=";

std::string switchText(const std::string& name, const std::string& value) {
  return mark + name + "=" + value + mark;
}

std::string relaunchConfiguration(const Settings& settings) {
  return settings.currentProject ? settings.currentProject->quotedPath() : settings.configPath();
}

void refuseSwitchMark(const std::string& path) {
  // Every path to what lies below such a folder holds the mark, and a link around it would have to outlive the panel.
  if (path.find(mark) == std::string::npos) return;
  throw Tarnwickexception("Can't pass on the path " + path + "\nThe name of a folder in it ends in a backslash.");
}

std::string jdkToolPath(const Settings& settings, const std::string& tool) {
  return settings.javaPath + platform::toolFileName(tool);
}

bool jdkToolReady(Settings& settings, const std::string& tool) {
  Desktop& desktop = settings.context().desktop;
  askForToolsFolder(settings);
  if (settings.javaPath.empty()) {
    desktop.message(inSystemWords("No path to javac.exe and other tools available from settings"));
    return false;
  }
  try {
    Tarnwickfile probe(jdkToolPath(settings, tool), FileMode::Read);
    return true;
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop.message("Can't access the JDK tool " + failure.file + "\n" + failure.message +
                    "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
    return false;
  }
}

bool relaunchReady(Settings& settings, const std::string& tool) {
  if (!jdkToolReady(settings, tool)) return false;
  try {
    for (const auto& path : {jdkToolPath(settings, tool), relaunchConfiguration(settings)}) refuseSwitchMark(path);
    return true;
  } catch (const Tarnwickexception& failure) {
    settings.context().desktop.message(failure.message);
    return false;
  }
}

std::vector<std::string> relaunchSwitches(const Settings& settings, const FileForSubprocess& file,
                                          const std::string& tool, bool debugging) {
  std::vector<std::string> switches = {"Tarnwick", switchText("DEFAULTDIR", folderToEnter(file.name().directory())),
                                       switchText("EXEFILE", jdkToolPath(settings, tool)),
                                       switchText("TITLE", file.name().baseName()),
                                       switchText("CFG", relaunchConfiguration(settings))};
  if (debugging) switches.push_back(std::string(mark) + "JDEBUG" + mark);
  switches.push_back(runSwitch);
  return switches;
}

}  // namespace tarnwick
