#pragma once

#include <functional>
#include <string>

namespace tarnwick {

/// The settings that decide which editor opens what.
struct EditorChoice {
  bool editWithNotepad = false;    ///< EDITOR=NOTEPAD
  bool displayWithNotepad = true;  ///< DISPLAY=NOTEPAD
  std::string target;              ///< EDITOR_TARGET
  std::string placePattern = {};   ///< EDITOR_PLACE
  /// With DISPLAY_MESSAGES: shows the log in a window of our own. `said`: there is something in it.
  std::function<void(bool said)> showMessages = {};
};

}  // namespace tarnwick
