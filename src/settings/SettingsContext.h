#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class Desktop;
class PlacedWindow;
class ToolLog;
struct FileNotOpenE;
struct Jdk;
struct ProgramInfo;
namespace platform {
class ShortcutShell;
}

/// What every Settings object of the process stands on, and what those find there who are handed one. Desktop and log
/// are for the latter alone: the settings show nothing themselves.
struct SettingsContext {
  using SaveFailure = std::function<void(const FileNotOpenE& failure, const std::function<void()>& saveAgain)>;

  /// Everything else is as it is for the program on this machine, with nobody who listens.
  SettingsContext(Desktop& itsDesktop, const ProgramInfo& itsProgram, ToolLog& itsLog);

  Desktop& desktop;
  const ProgramInfo& program;
  ToolLog& log;
  /// The program's main window; null while there is none.
  PlacedWindow* mainWindow = nullptr;
  /// Hears what the settings have to say to the user.
  std::function<void(const std::string& text)> tell = [](const std::string&) {};
  /// Hears of a save that failed; `saveAgain` saves to the default configuration, wherever that is by then. Where
  /// nobody listens the failure is thrown.
  SaveFailure onSaveFailed;
  /// Opens the user's guide at an anchor such as "#paths"; at its top for the empty text. The application sets it.
  std::function<void(const std::string& anchor)> showHelp = [](const std::string&) {};
  /// Runs the About dialog. The application sets it.
  std::function<void()> showAbout = [] {};
  /// Shows the log in the messages' window; one that stays silent is only told of in a window that is open. The
  /// application sets it.
  std::function<void(bool said)> showMessages = {};
  /// Brings the messages' window to the front, with the last log. The application sets it.
  std::function<void()> bringMessages = {};
  /// Hears what a tool begins to work on, as in "javac Greeter.java"; `sources` counts those that it compiles.
  std::function<void(const std::string& what, std::size_t sources)> onRunBegins = [](const std::string&, std::size_t) {
  };
  /// Hears that a command has ended, and whether its tools had something to say; nothing if it has not come so far.
  std::function<void(std::optional<bool> said)> onRunEnds = [](std::optional<bool>) {};
  /// Makes this program the opener of project files. The application sets it.
  std::function<void()> registerProjectType = [] {};
  /// The warning before a source is split; stands in no file, so each run of the program begins with it.
  bool warnAboutSplitting = true;
  /// The JDKs of this machine, the newest first.
  std::function<std::vector<Jdk>()> installedJdks;
  std::function<bool()> isWindows98;
  /// What the system knows of shortcuts.
  std::function<std::unique_ptr<platform::ShortcutShell>()> shortcutShells;
};

}  // namespace tarnwick
