#include "platform/Folders.h"

#include "platform/win32/FolderWalk.h"

namespace tarnwick::platform {

std::vector<std::string> foldersIn(const std::string& folder) {
  return namesWhere(folder, isFolderEntry);
}

std::string withNamesFilledIn(const std::string& commandText) {
  return commandText;
}

std::size_t longestCommandLine() {
  // What CreateProcess takes, less the closing zero.
  return 32766;
}

}  // namespace tarnwick::platform
