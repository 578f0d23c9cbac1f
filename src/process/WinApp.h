#pragma once

#include "dialogbase/Desktop.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// The program that the user's system has for a type of files, and how it is started.
class WinApp {
 public:
  /// Asks the system for the extension, for example ".ZIP". `desktop` outlives the object.
  WinApp(Desktop& desktop, const std::string& extension);
  /// With a command text that is already known.
  static WinApp withCommand(Desktop& desktop, const std::string& commandText);

  /// Starts the program with `file` in the place that its command text has for it, and with a further argument behind
  /// all others; both may be null. `checkOnly` 1 only takes the command text apart. Above 0 on success.
  /// Tells the user why a program could not be started, and of a command text with too many words.
  int runApp(const char* file, const char* extraArgument, int checkOnly) const;

  const std::string& commandText() const { return commandText_; }

 private:
  struct Command {
    std::string program;  ///< perhaps in double quotes
    std::vector<std::string> arguments;
  };

  explicit WinApp(Desktop& desktop) : desktop_(&desktop) {}
  std::optional<Command> takenApart(const char* file, const char* extraArgument) const;
  bool addWord(std::vector<std::string>& arguments, const std::string& word, int faultNumber) const;
  int start(const Command& command) const;

  Desktop* desktop_;
  std::string commandText_;
};

}  // namespace tarnwick
