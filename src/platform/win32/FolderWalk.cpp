#include "platform/win32/FolderWalk.h"

#include "platform/Path.h"

#include <cstring>

namespace tarnwick::platform {

std::vector<std::string> namesWhere(const std::string& folder,
                                    const std::function<bool(const WIN32_FIND_DATAA& entry)>& wanted) {
  std::vector<std::string> names;
  // Without a folder the search would go through the current one.
  if (folder.empty()) return names;
  const std::string whole = endsInSeparator(folder) ? folder : folder + folderSeparator;
  WIN32_FIND_DATAA found{};
  const HANDLE search = FindFirstFileA((whole + '*').c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const bool isDots = std::strcmp(found.cFileName, ".") == 0 || std::strcmp(found.cFileName, "..") == 0;
    if (!isDots && wanted(found)) names.emplace_back(found.cFileName);
  } while (FindNextFileA(search, &found));
  FindClose(search);
  return names;
}

bool isFolderEntry(const WIN32_FIND_DATAA& entry) {
  return (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace tarnwick::platform
