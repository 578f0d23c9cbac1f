#include "platform/Folders.h"

#include "platform/Path.h"

#include <windows.h>

namespace tarnwick::platform {

std::vector<std::string> foldersIn(const std::string& folder) {
  std::vector<std::string> names;
  // Without a folder the search would go through the current one.
  if (folder.empty()) return names;
  const std::string whole = endsInSeparator(folder) ? folder : folder + folderSeparator;
  WIN32_FIND_DATAA found{};
  const HANDLE search = FindFirstFileA((whole + '*').c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const std::string name = found.cFileName;
    const bool isDots = name == "." || name == "..";
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && !isDots) names.push_back(name);
  } while (FindNextFileA(search, &found));
  FindClose(search);
  return names;
}

std::string withNamesFilledIn(const std::string& commandText) {
  return commandText;
}

std::size_t longestCommandLine() {
  // What CreateProcess takes, less the closing zero.
  return 32766;
}

}  // namespace tarnwick::platform
