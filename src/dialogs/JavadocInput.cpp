#include "dialogs/JavadocInput.h"

#include "base/Tarnwickfile.h"
#include "base/Text.h"
#include "platform/FileArgument.h"
#include "platform/Process.h"

#include <algorithm>

namespace tarnwick {

namespace {

std::size_t pastWhite(const std::string& text, std::size_t at) {
  while (at < text.size() && isWhite(text[at])) ++at;
  return at;
}

bool isThere(const std::string& name, const std::string& sourcePath) {
  return canBeRead(name) || canBeRead(Filename(sourcePath, name).fullName());
}

/// The name as a word that means itself, whatever stands in it.
std::string wordOf(const std::string& name, bool isFile) {
  const std::string word = platform::commandWord(name);
  // Outside double quotes these would stand for other names.
  const bool stands = isFile && word == name && name.find_first_of("*?") != std::string::npos;
  return stands ? '"' + word + '"' : word;
}

}  // namespace

std::vector<std::string> inputNames(const std::string& list) {
  std::vector<std::string> names;
  std::size_t at = pastWhite(list, 0);
  while (at < list.size()) {
    char delimiter = ' ';
    if (list[at] == '"') {
      delimiter = '"';
      at = pastWhite(list, at + 1);
      if (at == list.size()) break;
    }
    const std::size_t end = std::min(list.find(delimiter, at), list.size());
    names.push_back(list.substr(at, end - at));
    at = pastWhite(list, std::min(end + 1, list.size()));
  }
  return names;
}

std::optional<std::string> inputElement(const std::string& path) {
  if (path.find('"') == std::string::npos) return '"' + path + "\" ";
  // A quote inside a name would close those around it.
  if (path.find(' ') == std::string::npos) return path + ' ';
  return std::nullopt;
}

std::string inputArgument(const std::string& name, const std::string& sourcePath) {
  const std::string plain = Filename(name).fullName();
  return isThere(plain, sourcePath) ? platform::fileArgument(plain) : plain;
}

std::string inputWords(const std::vector<std::string>& names, const std::string& sourcePath) {
  std::string words;
  for (const auto& name : names)
    words += wordOf(inputArgument(name, sourcePath), isThere(Filename(name).fullName(), sourcePath)) + '\t';
  return words;
}

}  // namespace tarnwick
