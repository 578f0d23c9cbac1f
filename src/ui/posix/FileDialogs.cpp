#include "ui/FileDialogs.h"

#include <cctype>

namespace tarnwick::ui {

// The dialog for opening has no name field that a pattern could stand in.
const bool presetMayBePattern = false;

std::string patternsIgnoringCase(const std::string& patterns) {
  // "*.*" means every file to whoever wrote the filter; here it would leave out names without a dot.
  if (patterns == "*.*") return "*";
  std::string result;
  for (const char c : patterns) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 128 && std::isalpha(byte)) {
      result += {'[', static_cast<char>(std::tolower(byte)), static_cast<char>(std::toupper(byte)), ']'};
    } else {
      result += c;
    }
  }
  return result;
}

}  // namespace tarnwick::ui
