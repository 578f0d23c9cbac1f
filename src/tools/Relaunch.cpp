#include "tools/Relaunch.h"

#include "platform/Path.h"

namespace tarnwick {

namespace {

const char mark[] = "\\/";

std::string switchText(const std::string& name, const std::string& value) {
  return mark + name + "=" + value + mark;
}

/// A folder whose text holds the mark (on Linux a name may end in a backslash) would be cut there. The copy begins in
/// the folder of the file anyway, so it is told to stay.
std::string folderToEnter(const std::string& folder) {
  return folder.find(mark) == std::string::npos ? folder : std::string(".") + platform::folderSeparator;
}

/// What the second copy reads its settings from.
std::string configurationOf(const Settings& settings) {
  return settings.currentProject ? settings.currentProject->quotedPath() : settings.configPath();
}

}  // namespace

std::string jdkToolPath(const Settings& settings, const std::string& tool) {
  return settings.javaPath + platform::toolFileName(tool);
}

bool jdkToolReady(Settings& settings, const std::string& tool) {
  Desktop& desktop = settings.context().desktop;
  if (settings.javaPath.empty()) settings.runModal(0);
  if (settings.javaPath.empty()) {
    desktop.message(platform::localText("No path to javac.exe and other tools available from settings"));
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
  // Every path to what lies below such a folder holds the mark, and a link around it would have to outlive the panel.
  for (const auto& path : {jdkToolPath(settings, tool), configurationOf(settings)}) {
    if (path.find(mark) == std::string::npos) continue;
    settings.context().desktop.message("Can't pass on the path " + path +
                                       "\nThe name of a folder in it ends in a backslash.");
    return false;
  }
  return true;
}

std::vector<std::string> relaunchSwitches(const Settings& settings, const FileForSubprocess& file,
                                          const std::string& tool, bool debugging) {
  std::vector<std::string> switches = {"Tarnwick", switchText("DEFAULTDIR", folderToEnter(file.name().directory())),
                                       switchText("EXEFILE", jdkToolPath(settings, tool)),
                                       switchText("TITLE", file.name().baseName()),
                                       switchText("CFG", configurationOf(settings))};
  if (debugging) switches.push_back(std::string(mark) + "JDEBUG" + mark);
  switches.push_back(std::string(mark) + "RUN=");
  return switches;
}

}  // namespace tarnwick
