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

/// Shows the tool log in Notepad or the user's editor. Shows failures itself.
void showLog(Desktop& desktop, const ToolLog& log, const EditorChoice& choice);

}  // namespace tarnwick
