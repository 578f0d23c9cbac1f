#include "platform/Folders.h"

#include "platform/FileSystem.h"

namespace tarnwick::platform {

bool canEnter(const std::string& folder) {
  const std::string before = currentDirectory();
  if (!changeDirectory(folder)) return false;
  changeDirectory(before);
  return true;
}

}  // namespace tarnwick::platform
