#include "settings/PathRules.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/Path.h"

namespace tarnwick {

std::string normalisedClasspath(const std::string& classpath) {
  if (classpath.empty() || classpath == ".") return classpath;
  // Only the first occurrence of each is looked at: "a;.b;." gets its prefix although "." ends it, harmlessly.
  const auto inside = classpath.find(";.;");
  const auto first = classpath.find(";.");
  const bool begins = classpath.compare(0, 2, ".;") == 0;
  const bool within = inside != std::string::npos && inside > 0;
  const bool ends = first != std::string::npos && first + 2 == classpath.size();
  return begins || within || ends ? classpath : ".;" + classpath;
}

std::string assertionOptions(const std::string& list, const std::string& prefix) {
  const std::string separators = " ,;";
  const auto separates = [&](char c) { return separators.find(c) != std::string::npos; };
  std::string text = trim(list);
  for (std::size_t i = 0; i + 1 < text.size();) {
    if (separates(text[i]) && separates(text[i + 1]))
      text.erase(i, 1);
    else
      ++i;
  }
  std::string result;
  while (!text.empty()) {
    const auto end = text.find_first_of(separators);
    std::string word = text.substr(0, end);
    text = end == std::string::npos ? "" : text.substr(end + 1);
    // Deliberate: an empty word, from a separator in the first place, becomes an option like any other.
    word = word.substr(0, lowerCase(word).find(".class"));
    result += prefix + word + " ";
  }
  return result;
}

bool classesFollowPackages(const std::string& destination) {
  const std::string folder = Filename(destination).fullName();
  return folder.empty() || folder == ".";
}

std::string classFolder(const std::string& destination, const std::string& sourceFolder) {
  if (classesFollowPackages(destination)) return sourceFolder;
  const std::string folder = Filename(destination).fullName();
  const auto parts = platform::splitPath(folder);
  const bool fromRoot = !parts.folder.empty() && platform::endsInSeparator(parts.folder.substr(0, 1));
  if (fromRoot || !parts.drive.empty()) return folder;
  const bool startsHere = folder.size() > 1 && folder[0] == '.' && platform::endsInSeparator(folder.substr(1, 1));
  return Filename(sourceFolder, startsHere ? folder.substr(2) : folder).fullName();
}

}  // namespace tarnwick
