#include "platform/Folders.h"

#include "platform/FileArgument.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <glob.h>
#include <unistd.h>

namespace tarnwick::platform {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

/// The end of the word that begins at `begin`: double quotes group, and a backslash takes a quote's meaning away.
std::size_t endOfWord(const std::string& text, std::size_t begin) {
  bool inQuotes = false;
  std::size_t at = begin;
  for (; at < text.size() && (inQuotes || !isBlank(text[at])); ++at) {
    if (text[at] == '\\' && at + 1 < text.size() && text[at + 1] == '"')
      ++at;
    else if (text[at] == '"')
      inQuotes = !inQuotes;
  }
  return at;
}

/// The names that fit, sorted by their bytes; none if there are none.
std::vector<std::string> fitting(const std::string& word) {
  std::string pattern;
  // Only "*" and "?" mean something.
  for (const char c : word) pattern += c == '[' ? "[[]" : std::string(1, c);
  glob_t found{};
  std::vector<std::string> names;
  if (::glob(pattern.c_str(), GLOB_NOSORT | GLOB_NOESCAPE, nullptr, &found) == 0)
    names.assign(found.gl_pathv, found.gl_pathv + found.gl_pathc);
  ::globfree(&found);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

std::vector<std::string> foldersIn(const std::string& folder) {
  namespace fs = std::filesystem;
  std::vector<std::string> names;
  std::error_code failure;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
    std::error_code unknown;
    if (entry->is_directory(unknown)) names.push_back(entry->path().filename().string());
  }
  return names;
}

std::string withNamesFilledIn(const std::string& commandText) {
  std::string filled;
  for (std::size_t at = 0; at < commandText.size();) {
    if (isBlank(commandText[at])) {
      filled += commandText[at++];
      continue;
    }
    const std::size_t end = endOfWord(commandText, at);
    const std::string word = commandText.substr(at, end - at);
    at = end;
    const bool hasMark = word.find_first_of("*?") != std::string::npos && word.find('"') == std::string::npos;
    const auto names = hasMark ? fitting(word) : std::vector<std::string>();
    std::string list;
    for (const auto& name : names) list += (list.empty() ? "" : " ") + fileWord(name);
    filled += names.empty() ? word : list;
  }
  return filled;
}

std::size_t longestCommandLine() {
  constexpr std::size_t reserve = 65536;
  const long most = ::sysconf(_SC_ARG_MAX);
  std::size_t taken = reserve;
  // The environment shares the room.
  for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable)
    taken += std::strlen(*variable) + 1 + sizeof *variable;
  return most < 0 || static_cast<std::size_t>(most) < taken ? reserve : static_cast<std::size_t>(most) - taken;
}

}  // namespace tarnwick::platform
