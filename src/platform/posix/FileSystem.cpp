#include "platform/FileSystem.h"

#include "platform/Path.h"
#include "platform/posix/TextInput.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace tarnwick::platform {

namespace {

std::optional<struct stat> statusOf(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

/// True for files that the kernel makes up: they call themselves regular and empty, and some never end.
bool isMadeUp(const std::string& path) {
  struct statfs system {};
  if (::statfs(path.c_str(), &system) != 0) return false;
  constexpr std::array<std::uint32_t, 3> types = {PROC_SUPER_MAGIC, DEBUGFS_MAGIC, TRACEFS_MAGIC};
  return std::find(types.begin(), types.end(), static_cast<std::uint32_t>(system.f_type)) != types.end();
}

int openDescriptor(const std::string& path, const std::string& mode) {
  const bool both = mode.find('+') != std::string::npos;
  // A pipe with nobody at its other end would otherwise keep us waiting for somebody.
  int flags = O_CLOEXEC | O_NONBLOCK;
  if (mode.starts_with('r')) flags |= both ? O_RDWR : O_RDONLY;
  if (mode.starts_with('w')) flags |= (both ? O_RDWR : O_WRONLY) | O_CREAT | O_TRUNC;
  if (mode.starts_with('a')) flags |= (both ? O_RDWR : O_WRONLY) | O_CREAT | O_APPEND;
  return ::open(path.c_str(), flags, 0666);
}

/// Whoever is at the other end of what was opened is waited for.
bool waitsFromNowOn(int descriptor) {
  const int flags = ::fcntl(descriptor, F_GETFL);
  return flags >= 0 && ::fcntl(descriptor, F_SETFL, flags & ~O_NONBLOCK) == 0;
}

/// Closes without losing the reason of the failure.
std::FILE* refused(int descriptor, int reason) {
  ::close(descriptor);
  errno = reason;
  return nullptr;
}

}  // namespace

std::FILE* openFile(const std::string& path, const char* mode) {
  const int descriptor = openDescriptor(path, mode);
  if (descriptor < 0) return nullptr;
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) return refused(descriptor, errno);
  if (S_ISDIR(status.st_mode)) return refused(descriptor, EISDIR);
  if (!waitsFromNowOn(descriptor)) return refused(descriptor, errno);
  if (std::string(mode) == "r") return openTextInput(descriptor);
  std::FILE* stream = ::fdopen(descriptor, mode);
  return stream ? stream : refused(descriptor, errno);
}

void leaveBytesAlone(std::FILE* /*stream*/) {}

const char lineEnd[] = "\n";

bool claimFile(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  return descriptor >= 0 && ::close(descriptor) == 0;
}

std::optional<std::time_t> lastChange(const std::string& path) {
  const auto status = statusOf(path);
  if (!status) return std::nullopt;
  return status->st_mtime;
}

bool deleteFile(const std::string& path) {
  return ::unlink(path.c_str()) == 0;
}

std::optional<std::uintmax_t> fileSize(const std::string& path) {
  const auto status = statusOf(path);
  if (!status) return std::nullopt;
  return static_cast<std::uintmax_t>(status->st_size);
}

bool isSpecial(const std::string& path) {
  const auto status = statusOf(path);
  if (!status || S_ISDIR(status->st_mode)) return false;
  return !S_ISREG(status->st_mode) || isMadeUp(path);
}

bool isFile(const std::string& path) {
  const auto status = statusOf(path);
  return status && S_ISREG(status->st_mode);
}

std::vector<std::string> filesIn(const std::string& folder) {
  namespace fs = std::filesystem;
  std::vector<std::string> names;
  std::error_code failure;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
    std::error_code unknown;
    if (entry->is_regular_file(unknown)) names.push_back(entry->path().filename().string());
  }
  return names;
}

bool isFolder(const std::string& path) {
  const auto status = statusOf(path);
  return status && S_ISDIR(status->st_mode);
}

bool makeFolders(const std::string& path) {
  std::error_code ignored;
  std::filesystem::create_directories(path, ignored);
  return isFolder(path);
}

bool flushToDisk(std::FILE* stream) {
  const bool failedBefore = std::ferror(stream) != 0;
  if (std::fflush(stream) != 0) return false;
  if (failedBefore) {
    // Nobody kept the reason of that failure; what refused one write refuses another, and tells it again.
    if (std::fputc('\n', stream) != EOF && std::fflush(stream) == 0) errno = EIO;
    return false;
  }
  // EINVAL: a device or pipe that knows no disk.
  return ::fsync(::fileno(stream)) == 0 || errno == EINVAL;
}

std::string resolvedPath(const std::string& path) {
  std::error_code failure;
  std::filesystem::path current = path;
  constexpr int mostLinks = 40;
  for (int i = 0; i < mostLinks; ++i) {
    const auto resolved = std::filesystem::canonical(current, failure);
    if (!failure) return resolved.string();
    const auto next = std::filesystem::read_symlink(current, failure);
    if (failure) return current.string();
    current = current.parent_path() / next;
  }
  return path;
}

std::string absolutePath(const std::string& path) {
  if (path.empty() || path.starts_with('/')) return path;
  const std::string folder = currentDirectory();
  if (folder.empty()) return path;
  return folder + (folder.ends_with('/') ? "" : "/") + path;
}

bool changeDirectory(const std::string& folder) {
  return ::chdir(folder.c_str()) == 0;
}

std::string currentDirectory() {
  std::error_code ignored;
  return std::filesystem::current_path(ignored).string();
}

}  // namespace tarnwick::platform
