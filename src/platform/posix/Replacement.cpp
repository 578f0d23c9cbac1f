#include "platform/Replacement.h"

#include "platform/posix/Descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::platform {

namespace {

bool isStillAt(int descriptor, const std::string& path) {
  struct stat own {};
  struct stat there {};
  return ::fstat(descriptor, &own) == 0 && ::lstat(path.c_str(), &there) == 0 && own.st_dev == there.st_dev &&
         own.st_ino == there.st_ino;
}

/// Folders for temporary files are open to all: a file that another user has laid there is not taken, and none that has
/// a second name somewhere.
bool isOwnFile(int descriptor) {
  struct stat own {};
  return ::fstat(descriptor, &own) == 0 && S_ISREG(own.st_mode) && own.st_uid == ::geteuid() && own.st_nlink == 1;
}

/// True with the lock, and where the file system knows no locks; false with EBUSY in `errno`.
bool lock(int descriptor, int operation) {
  int result = 0;
  do result = ::flock(descriptor, operation);
  while (result != 0 && errno == EINTR);
  if (result == 0 || errno != EWOULDBLOCK) return true;
  errno = EBUSY;
  return false;
}

/// Copies the bytes from `begin` to `end` to the same place. False with `errno`.
bool copyBytes(int from, int to, off_t begin, off_t end) {
  std::array<char, 8192> block;
  while (begin < end) {
    const auto wanted = std::min<off_t>(end - begin, static_cast<off_t>(block.size()));
    const ssize_t count = ::pread(from, block.data(), static_cast<std::size_t>(wanted), begin);
    if (count <= 0) {
      if (count == 0) errno = EIO;
      return false;
    }
    for (ssize_t written = 0; written < count;) {
      const ssize_t step =
          ::pwrite(to, block.data() + written, static_cast<std::size_t>(count - written), begin + written);
      if (step < 0) return false;
      written += step;
    }
    begin += count;
  }
  return true;
}

off_t sizeOf(int descriptor) {
  struct stat status {};
  return ::fstat(descriptor, &status) == 0 ? status.st_size : 0;
}

/// Puts the content of `from` into the file that is there. What grows comes first: a full disk is met, and what was
/// added is cut off again, before anything of the old content is gone.
bool writeOver(int from, const std::string& target) {
  const Descriptor to(::open(target.c_str(), O_WRONLY | O_CLOEXEC));
  if (to.number() < 0) return false;
  if (!lock(to.number(), LOCK_EX)) return false;
  const off_t before = sizeOf(to.number());
  const off_t after = sizeOf(from);
  if (!copyBytes(from, to.number(), before, after)) {
    const int reason = errno;
    const bool cutOff = ::ftruncate(to.number(), before) == 0;
    if (cutOff) errno = reason;
    return false;
  }
  return copyBytes(from, to.number(), 0, std::min(before, after)) && ::ftruncate(to.number(), after) == 0 &&
         ::fsync(to.number()) == 0;
}

/// Gives the file the owner and the permissions of what it will replace. False if it would change hands: changing the
/// owner is the superuser's right.
bool takeOver(int descriptor, const std::string& target) {
  struct stat before {};
  struct stat fresh {};
  if (::stat(target.c_str(), &before) != 0) return true;
  if (::fstat(descriptor, &fresh) != 0) return false;
  const bool sameOwner = before.st_uid == fresh.st_uid && before.st_gid == fresh.st_gid;
  if (!sameOwner && ::fchown(descriptor, before.st_uid, before.st_gid) != 0) return false;
  return ::fchmod(descriptor, before.st_mode & 07777) == 0;
}

}  // namespace

std::FILE* openReplacement(const std::string& path, const char* mode, bool ownerOnly) {
  constexpr int mostTries = 10;
  for (int i = 0; i < mostTries; ++i) {
    Descriptor file(::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, ownerOnly ? 0600 : 0666));
    if (file.number() < 0) return nullptr;
    if (!isOwnFile(file.number())) {
      errno = EACCES;
      return nullptr;
    }
    if (!lock(file.number(), LOCK_EX | LOCK_NB)) return nullptr;
    // Between opening and locking, its last user may have put it in its target's place.
    if (!isStillAt(file.number(), path)) continue;
    if (::ftruncate(file.number(), 0) != 0) return nullptr;
    std::FILE* stream = ::fdopen(file.number(), mode);
    if (stream) static_cast<void>(file.release());
    return stream;
  }
  errno = EBUSY;
  return nullptr;
}

bool isWritable(const std::string& path) {
  return Descriptor(::open(path.c_str(), O_WRONLY | O_CLOEXEC)).number() >= 0;
}

bool putInPlace(std::FILE* replacement, const std::string& path, const std::string& target) {
  const int descriptor = ::fileno(replacement);
  // The lock is held until the file has left this path, so that nobody takes it for a left-over.
  if (takeOver(descriptor, target) && ::rename(path.c_str(), target.c_str()) == 0) return true;
  if (!writeOver(descriptor, target)) return false;
  discardReplacement(replacement, path);
  return true;
}

void discardReplacement(std::FILE* /*replacement*/, const std::string& path) {
  ::unlink(path.c_str());
}

std::string temporaryFolder() {
  std::error_code ignored;
  const auto folder = std::filesystem::temp_directory_path(ignored).string();
  return folder.ends_with('/') ? folder : folder + '/';
}

}  // namespace tarnwick::platform
