#include "platform/Trash.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/TrashSystem.h"

#include <cerrno>

namespace tarnwick::platform {

namespace {

constexpr int lastNumber = 1000;

/// An empty file of ours beside the file, with a free name; the empty text if it can't be made.
std::string placeForCopy(const std::string& path) {
  const PathParts parts = splitPath(path);
  for (int number = 1; number <= lastNumber; ++number) {
    const std::string mark = number == 1 ? " (copy)" : " (copy " + std::to_string(number) + ")";
    const std::string candidate = parts.drive + parts.folder + parts.base + mark + parts.extension;
    if (claimFile(candidate)) return candidate;
    if (errno != EEXIST) return "";
  }
  return "";
}

}  // namespace

bool copyToTrash(const std::string& path) {
  const std::string copy = placeForCopy(path);
  if (copy.empty()) return false;
  if (copyBytes(path, copy) && moveToTrash(copy)) return true;
  deleteFile(copy);
  return false;
}

}  // namespace tarnwick::platform
