#include "process/EditorLaunch.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/Associations.h"
#include "platform/FileArgument.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "process/Subprocess.h"
#include "process/WinApp.h"
#include "resources/SystemWords.h"
#include "settings/EditorChoice.h"

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
Words vectorOf(const Words& editor, const std::string& title, const Words& further) {
  const std::string name = Filename(editor.front()).nameWithExtension();
  Words arguments = {name.empty() ? title : platform::detachedArgument(name)};
  arguments.insert(arguments.end(), editor.begin() + 1, editor.end());
  for (const auto& argument : further) arguments.push_back(platform::detachedArgument(argument));
  return arguments;
}

/// Starts an editor on the log. Gives both reasons, a line each, if it can't be started as it stands nor in double
/// quotes.
std::optional<std::string> startFailures(const Words& editor, const std::string& log) {
  const Words arguments = vectorOf(editor, "Logfile", {platform::fileArgument(log)});
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

/// What is told of an editor that does not start.
std::string unableToStart(const std::string& editor, bool isNotepad) {
  return isNotepad ? inSystemWords("Unable to start Notepad") : "Unable to start " + editor;
}

/// A file to be edited.
struct Edited {
  std::string name;
  EditorPlace place;
  std::string pattern;  ///< of the user's for his editor

  Words argumentsFor(const std::string& editor) const { return editorArguments(editor, pattern, name, place); }
};

/// Starts the first of the editors that can be started. The failure is that of the best one.
LaunchResult startOn(const std::string& editor, bool useNotepad, const Edited& edited) {
  if (const auto fault = enterFolderOf(Filename(edited.name))) return {false, {*fault}};
  std::optional<platform::SystemError> failure;
  for (const auto& command : editorsFor(editor, useNotepad)) {
    const auto reason = startFailure(command.front(), vectorOf(command, "", edited.argumentsFor(command.front())));
    if (!reason) return {true, {}};
    if (!failure) failure = reason;
  }
  return {false, {withReason(unableToStart(editor, useNotepad), *failure)}};
}

/// One word of a command text. Names in it have been made such that they mislead nobody.
std::string wordOf(const std::string& argument) {
  const bool plain = platform::fileArgument(argument) == argument;
  return plain ? platform::fileWord(argument) : platform::commandWord(argument);
}

/// Has its association start an editor that is an archive. `failed` comes behind what the association says.
LaunchResult startJar(const std::string& editor, const Words& arguments, const std::string& failed) {
  std::string text;
  for (const auto& argument : arguments) text += (text.empty() ? "" : " ") + wordOf(argument);
  LaunchResult result = WinApp(".jar").runApp(editor.c_str(), text.c_str(), 0);
  if (!result.started) result.failures.push_back(failed);
  return result;
}

}  // namespace

bool isJarEditor(const std::string& target) {
  const auto lastSeparator = target.rfind(platform::folderSeparator);
  const std::string name = lowerCase(target.substr(lastSeparator == std::string::npos ? 0 : lastSeparator + 1));
  const auto position = [&name](const char* ending) {
    const auto found = name.find(ending);
    return found == std::string::npos ? -1 : static_cast<long>(found);
  };
  // Deliberate: standing behind either of the two is enough. So a name with ".jar" and without ".com" counts as a jar
  // even when it ends in ".exe".
  return position(".jar") > position(".exe") || position(".jar") > position(".com");
}

LaunchResult openEditor(const EditorSource& source, const std::string& name, const EditorPlace& place) {
  EditorChoice choice = source.choice();
  if (!choice.editWithNotepad && choice.target.empty()) {
    if (!source.askForEditor()) return {};
    choice = source.choice();
  }
  const std::string editor = choice.editWithNotepad ? "Notepad" : Filename(choice.target).fullName();
  if (editor.empty()) return {false, {"No editor definition available from settings."}};
  const Edited edited{name, place, choice.editWithNotepad ? "" : choice.placePattern};
  if (!choice.editWithNotepad && isJarEditor(choice.target))
    return startJar(editor, edited.argumentsFor(editor), "Unable to activate " + editor + ' ' + name);
  return startOn(editor, choice.editWithNotepad, edited);
}

void showSilence(const EditorChoice& choice) {
  if (choice.showMessages) choice.showMessages(false);
}

std::vector<std::string> showLog(const ToolLog& log, const EditorChoice& choice) {
  if (choice.showMessages) {
    choice.showMessages(true);
    return {};
  }
  const Filename logFile(log.path());
  const bool useNotepad = choice.displayWithNotepad || choice.target.empty() || choice.editWithNotepad;
  const std::string editor = useNotepad ? "Notepad" : choice.target;

  LaunchResult result;
  if (!useNotepad && isJarEditor(choice.target)) {
    result = startJar(editor, {platform::fileArgument(logFile.fullName())},
                      "Unable to activate jar: " + editor + ' ' + logFile.quoted());
    if (result.started) return result.failures;
  }

  std::optional<std::string> reasons;
  for (const auto& command : editorsFor(editor, useNotepad)) {
    const auto failures = startFailures(command, logFile.fullName());
    if (!failures) return result.failures;
    if (!reasons) reasons = failures;
  }
  result.failures.push_back(unableToStart(editor, useNotepad) + " for log file display.\n\n" + reasons.value_or(""));
  return result.failures;
}

}  // namespace tarnwick
