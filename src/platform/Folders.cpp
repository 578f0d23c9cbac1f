#include "platform/Folders.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"

namespace tarnwick::platform {

bool canEnter(const std::string& folder) {
  const std::string before = currentDirectory();
  if (!changeDirectory(folder)) return false;
  changeDirectory(before);
  return true;
}

std::string plainNameWord(const std::string& name) {
  const bool means = name.starts_with('-') || name.starts_with('@');
  const std::string plain = means ? std::string(".") + folderSeparator + name : name;
  const std::string word = commandWord(plain);
  // Elsewhere a blank in the first place does not count, but in a list of names it would be lost.
  return word == plain && plain.starts_with(' ') ? '"' + plain + '"' : word;
}

}  // namespace tarnwick::platform
