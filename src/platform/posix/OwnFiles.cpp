#include "platform/OwnFiles.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::platform {

namespace {

std::optional<struct stat> ownStatusOf(const std::string& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

}  // namespace

bool isTaken(const std::string& path) {
  return ownStatusOf(path).has_value();
}

bool isPlainFile(const std::string& path) {
  const auto status = ownStatusOf(path);
  return status && S_ISREG(status->st_mode);
}

bool isOwnFile(const std::string& path) {
  const auto status = ownStatusOf(path);
  return status && S_ISREG(status->st_mode) && status->st_uid == ::geteuid() && status->st_nlink == 1;
}

bool isOwnFolder(const std::string& path) {
  const auto status = ownStatusOf(path);
  return status && S_ISDIR(status->st_mode) && status->st_uid == ::geteuid();
}

bool makeOwnFolder(const std::string& path) {
  return ::mkdir(path.c_str(), 0700) == 0;
}

bool removeFolder(const std::string& path) {
  return ::rmdir(path.c_str()) == 0;
}

std::vector<std::string> namesIn(const std::string& folder) {
  namespace fs = std::filesystem;
  std::vector<std::string> names;
  std::error_code failure;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure))
    names.push_back(entry->path().filename().string());
  return names;
}

bool moveToFreeName(const std::string& from, const std::string& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  // Not every disk knows the step in one.
  if (errno != EINVAL && errno != ENOSYS && errno != ENOTSUP) return false;
  if (isTaken(to)) {
    errno = EEXIST;
    return false;
  }
  return moveOver(from, to);
}

bool moveOver(const std::string& from, const std::string& to) {
  return ::rename(from.c_str(), to.c_str()) == 0;
}

}  // namespace tarnwick::platform
