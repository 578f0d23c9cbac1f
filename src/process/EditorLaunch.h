#pragma once

#include "dialogbase/Desktop.h"
#include "process/ToolLog.h"

#include <functional>
#include <string>

namespace tarnwick {

/// The three settings that decide which editor opens what.
struct EditorChoice {
  bool editWithNotepad = false;    ///< EDITOR=NOTEPAD
  bool displayWithNotepad = true;  ///< DISPLAY=NOTEPAD
  std::string target;              ///< EDITOR_TARGET
};

/// True if the editor is a .jar archive, which its association has to start.
bool isJarEditor(const std::string& target);

/// How the launch of an editor gets at the user's choice.
struct EditorSource {
  std::function<EditorChoice()> choice;
  std::function<bool()> askForEditor;  ///< lets the user choose; false if that was not done
};

/// Starts the user's editor on a file, or on none with the empty text; the file's folder becomes the current one. False
/// when no editor could be chosen or started. Shows failures itself.
bool openEditor(Desktop& desktop, const EditorSource& source, const std::string& name);

/// Shows the tool log in Notepad or the user's editor. Shows failures itself.
void showLog(Desktop& desktop, const ToolLog& log, const EditorChoice& choice);

}  // namespace tarnwick
