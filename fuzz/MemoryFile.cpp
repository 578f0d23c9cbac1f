#include "MemoryFile.h"

#include "Property.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::fuzz {

MemoryFile::MemoryFile(const std::string& content) : descriptor_(::memfd_create("input", MFD_CLOEXEC)) {
  require(descriptor_ >= 0, "a file in memory can be made");
  path_ = "/proc/self/fd/" + std::to_string(descriptor_);
  const auto written = ::pwrite(descriptor_, content.data(), content.size(), 0);
  require(written == static_cast<ssize_t>(content.size()), "a file in memory can be written");
}

MemoryFile::~MemoryFile() {
  ::close(descriptor_);
}

std::string MemoryFile::content() const {
  struct stat status {};
  require(::fstat(descriptor_, &status) == 0, "a file in memory has a size");
  std::string text(static_cast<std::size_t>(status.st_size), '\0');
  const auto count = ::pread(descriptor_, text.data(), text.size(), 0);
  require(count == static_cast<ssize_t>(text.size()), "a file in memory can be read");
  return text;
}

}  // namespace tarnwick::fuzz
