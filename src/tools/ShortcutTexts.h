#pragma once

#include <string>

namespace tarnwick {

class FileForSubprocess;
class Settings;

/// What a shortcut to a Java application starts, and how.
struct ShortcutTexts {
  std::string target;
  std::string arguments;
  std::string workingFolder;
};

/// A shortcut that starts the application in a console of this program's, with the java options of the settings.
/// Throws Tarnwickexception if a path can't be passed on.
ShortcutTexts shortcutUnderControl(const Settings& settings, const FileForSubprocess& application);

/// A shortcut that starts the application by itself, with the same options.
ShortcutTexts shortcutWithoutControl(const Settings& settings, const FileForSubprocess& application);

}  // namespace tarnwick
