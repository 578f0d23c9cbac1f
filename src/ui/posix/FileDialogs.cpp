#include "ui/FileDialogs.h"

#include "base/Text.h"

namespace tarnwick::ui {

// The dialog for opening has no name field that a pattern could stand in.
const bool presetMayBePattern = false;

namespace {

std::string eitherCase(const std::string& pattern) {
  std::string result;
  for (const char c : pattern) {
    const std::string letter(1, c);
    const std::string lower = lowerCase(letter);
    const std::string upper = upperCase(letter);
    if (lower == upper) {
      result += letter;
    } else {
      result.append(1, '[').append(lower).append(upper).append(1, ']');
    }
  }
  return result;
}

}  // namespace

std::string patternsIgnoringCase(const std::string& patterns) {
  // "*.*" means every file to whoever wrote the filter; here it would leave out names without a dot.
  if (patterns == "*.*") return "*";
  const std::string expanded = eitherCase(patterns);
  if (expanded == patterns) return patterns;
  // The toolkit takes the extension that it adds to a saved file's name from the first pattern, so that one is plain.
  return lowerCase(patterns.substr(0, patterns.find(';'))) + ';' + expanded;
}

}  // namespace tarnwick::ui
