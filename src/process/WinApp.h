#pragma once

#include "process/RunResult.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// The program that the user's system has for a type of files, and how it is started.
class WinApp {
 public:
  /// Asks the system for the extension, for example ".ZIP".
  explicit WinApp(const std::string& extension);
  /// With a command text that is already known.
  static WinApp withCommand(const std::string& commandText);

  /// Starts the program with `file` in the place that its command text has for it, and with a further argument behind
  /// all others; both may be null. `checkOnly` 1 only takes the command text apart. The failures tell why a program
  /// could not be started, and of a command text with too many words; where there is no program they are none.
  LaunchResult runApp(const char* file, const char* extraArgument, int checkOnly) const;

  const std::string& commandText() const { return commandText_; }

 private:
  struct Command {
    std::string program;  ///< perhaps in double quotes
    std::vector<std::string> arguments;
  };

  WinApp() = default;
  /// Nothing where there is no program, and after the failure that there are too many words.
  std::optional<Command> takenApart(const char* file, const char* extraArgument, LaunchResult& result) const;
  static void start(const Command& command, LaunchResult& result);

  std::string commandText_;
};

}  // namespace tarnwick
