#include "ui/FileDialogs.h"

namespace tarnwick::ui {

const bool presetMayBePattern = true;

// The system's own dialogs ignore case.
std::string patternsIgnoringCase(const std::string& patterns) {
  return patterns;
}

}  // namespace tarnwick::ui
