#include "platform/FileHold.h"

#include "platform/posix/Descriptor.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

/// A pipe or a device that lies there does not make us wait.
Descriptor openToLook(const std::string& path) {
  return Descriptor(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
}

bool isOwnPlainFile(int descriptor) {
  struct stat own {};
  return ::fstat(descriptor, &own) == 0 && S_ISREG(own.st_mode) && own.st_uid == ::geteuid() && own.st_nlink == 1;
}

}  // namespace

struct FileHold::Mark {
  Descriptor file;
};

FileHold::FileHold() = default;

FileHold::FileHold(const std::string& path) : mark_(new Mark{openToLook(path)}) {
  // Another instance that has taken the same file over holds it too.
  if (mark_->file.number() >= 0) ::flock(mark_->file.number(), LOCK_SH | LOCK_NB);
}

FileHold::~FileHold() = default;
FileHold::FileHold(FileHold&&) noexcept = default;
FileHold& FileHold::operator=(FileHold&&) noexcept = default;

void deleteUnheld(const std::string& path) {
  const Descriptor file = openToLook(path);
  if (file.number() < 0 || !isOwnPlainFile(file.number())) return;
  if (::flock(file.number(), LOCK_EX | LOCK_NB) == 0) ::unlink(path.c_str());
}

}  // namespace tarnwick::platform
