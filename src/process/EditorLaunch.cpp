#include "process/EditorLaunch.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/Associations.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "process/WinApp.h"

#include <optional>
#include <vector>

namespace tarnwick {
namespace {

/// The system's sentence if the program could not be started.
std::optional<std::string> startFailure(const std::string& program, const std::vector<std::string>& arguments) {
  try {
    platform::startDetached(program, arguments);
    return std::nullopt;
  } catch (const platform::SystemError& error) {
    return error.reason;
  }
}

/// Starts an editor, given as the words of a command, on the log. Gives both reasons, a line each, if it can't be
/// started as it stands nor in double quotes.
std::optional<std::string> startFailures(const std::vector<std::string>& editor, const std::string& log) {
  const Filename program(editor.front());
  const std::string title = program.nameWithExtension();
  std::vector<std::string> arguments = {title.empty() ? "Logfile" : platform::detachedArgument(title)};
  arguments.insert(arguments.end(), editor.begin() + 1, editor.end());
  arguments.push_back(platform::detachedArgument(log));

  const auto first = startFailure(editor.front(), arguments);
  if (!first) return std::nullopt;
  const auto second = startFailure('"' + editor.front() + '"', arguments);
  if (!second) return std::nullopt;
  return *first + '\n' + *second;
}

/// The commands to try, best first. Where the system knows no editor for plain text, the name itself is tried.
std::vector<std::vector<std::string>> editorsFor(const std::string& editor, bool useNotepad) {
  if (!useNotepad) return {{editor}};
  auto editors = platform::plainTextEditors();
  if (editors.empty()) editors.push_back({editor});
  return editors;
}

}  // namespace

bool isJarEditor(const std::string& target) {
  const auto lastSeparator = target.rfind(platform::folderSeparator);
  const std::string name = lowerCase(target.substr(lastSeparator == std::string::npos ? 0 : lastSeparator + 1));
  const auto position = [&name](const char* ending) {
    const auto found = name.find(ending);
    return found == std::string::npos ? -1 : static_cast<long>(found);
  };
  // Standing behind either of the two is enough. So a name with ".jar" and without ".com" counts as a jar even when it
  // ends in ".exe", which is meant.
  return position(".jar") > position(".exe") || position(".jar") > position(".com");
}

void showLog(Desktop& desktop, const ToolLog& log, const EditorChoice& choice) {
  const Filename logFile(log.path());
  const bool useNotepad = choice.displayWithNotepad || choice.target.empty() || choice.editWithNotepad;
  const std::string editor = useNotepad ? "Notepad" : choice.target;

  if (!useNotepad && isJarEditor(choice.target)) {
    if (WinApp(desktop, ".jar").runApp(editor.c_str(), logFile.quoted().c_str(), 0) > 0) return;
    desktop.message("Unable to activate jar: " + editor + ' ' + logFile.quoted());
  }

  std::optional<std::string> failures;
  for (const auto& command : editorsFor(editor, useNotepad)) {
    const auto reasons = startFailures(command, logFile.fullName());
    if (!reasons) return;
    if (!failures) failures = reasons;
  }
  desktop.message("Unable to start " + editor + " for log file display.\n\n" + failures.value_or(""));
}

}  // namespace tarnwick
