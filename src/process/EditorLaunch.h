#pragma once

#include "process/EditorForms.h"
#include "process/RunResult.h"
#include "process/ToolLog.h"

#include <functional>
#include <string>
#include <vector>

namespace tarnwick {

struct EditorChoice;

/// True if the editor is a .jar archive, which its association has to start.
bool isJarEditor(const std::string& target);

/// How the launch of an editor gets at the user's choice.
struct EditorSource {
  std::function<EditorChoice()> choice;
  std::function<bool()> askForEditor;  ///< lets the user choose; false if that was not done
};

/// Starts the user's editor on a file, or on none with the empty text; the file's folder becomes the current one. An
/// editor that could not be chosen is not started, and is no failure. It opens the file at the place if it is told how.
LaunchResult openEditor(const EditorSource& source, const std::string& name, const EditorPlace& place = {});

/// Shows the tool log in Notepad, the user's editor or a window of our own. Gives what has failed; an editor may show
/// it all the same.
[[nodiscard]] std::vector<std::string> showLog(const ToolLog& log, const EditorChoice& choice);

/// Lets a window of our own that is open know that the last run had nothing to say.
void showSilence(const EditorChoice& choice);

}  // namespace tarnwick
