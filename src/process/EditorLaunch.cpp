#include "process/EditorLaunch.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/Associations.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "process/FileArgument.h"
#include "process/Subprocess.h"
#include "process/WinApp.h"

#include <optional>
#include <vector>

namespace tarnwick {
namespace {

using Words = std::vector<std::string>;

/// What the system says if the program could not be started.
std::optional<platform::SystemError> startFailure(const std::string& program, const Words& arguments) {
  try {
    platform::startDetached(program, arguments);
    return std::nullopt;
  } catch (const platform::SystemError& error) {
    return error;
  }
}

/// The vector of an editor that is given as the words of a command. `title` stands for an editor without a name.
Words vectorOf(const Words& editor, const std::string& title, const std::string& file) {
  const std::string name = Filename(editor.front()).nameWithExtension();
  Words arguments = {name.empty() ? title : platform::detachedArgument(name)};
  arguments.insert(arguments.end(), editor.begin() + 1, editor.end());
  arguments.push_back(platform::detachedArgument(fileArgument(file)));
  return arguments;
}

/// Starts an editor on the log. Gives both reasons, a line each, if it can't be started as it stands nor in double
/// quotes.
std::optional<std::string> startFailures(const Words& editor, const std::string& log) {
  const Words arguments = vectorOf(editor, "Logfile", log);
  const auto first = startFailure(editor.front(), arguments);
  if (!first) return std::nullopt;
  const auto second = startFailure('"' + editor.front() + '"', arguments);
  if (!second) return std::nullopt;
  return first->reason + '\n' + second->reason;
}

/// The commands to try, best first. Where the system knows no editor for plain text, the name itself is tried.
std::vector<Words> editorsFor(const std::string& editor, bool useNotepad) {
  if (!useNotepad) return {{editor}};
  auto editors = platform::plainTextEditors();
  if (editors.empty()) editors.push_back({editor});
  return editors;
}

/// Starts the first of the editors that can be started. A failure, which is shown, is that of the best one.
bool startOn(Desktop& desktop, const std::string& editor, bool useNotepad, const std::string& name) {
  if (!enterFolderOf(desktop, Filename(name))) return false;
  std::optional<platform::SystemError> failure;
  for (const auto& command : editorsFor(editor, useNotepad)) {
    const auto reason = startFailure(command.front(), vectorOf(command, "", name));
    if (!reason) return true;
    if (!failure) failure = reason;
  }
  desktop.message(detachedStartFailure(editor, *failure));
  return false;
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

bool openEditor(Desktop& desktop, const EditorSource& source, const std::string& name) {
  EditorChoice choice = source.choice();
  if (!choice.editWithNotepad && choice.target.empty()) {
    if (!source.askForEditor()) return false;
    choice = source.choice();
  }
  const std::string editor = choice.editWithNotepad ? "Notepad" : Filename(choice.target).fullName();
  if (editor.empty()) {
    desktop.message("No editor definition available from settings.");
    return false;
  }
  if (!choice.editWithNotepad && isJarEditor(choice.target)) {
    if (WinApp(desktop, ".jar").runApp(editor.c_str(), platform::commandWord(fileArgument(name)).c_str(), 0) > 0)
      return true;
    desktop.message("Unable to activate " + editor + ' ' + name);
    return false;
  }
  return startOn(desktop, editor, choice.editWithNotepad, name);
}

void showLog(Desktop& desktop, const ToolLog& log, const EditorChoice& choice) {
  const Filename logFile(log.path());
  const bool useNotepad = choice.displayWithNotepad || choice.target.empty() || choice.editWithNotepad;
  const std::string editor = useNotepad ? "Notepad" : choice.target;

  if (!useNotepad && isJarEditor(choice.target)) {
    if (WinApp(desktop, ".jar")
            .runApp(editor.c_str(), platform::commandWord(fileArgument(logFile.fullName())).c_str(), 0) > 0)
      return;
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
