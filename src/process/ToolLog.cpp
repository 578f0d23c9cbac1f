#include "process/ToolLog.h"

#include <cstdio>

namespace tarnwick {

void ToolLog::open(FileMode mode) {
  const std::lock_guard lock(lock_);
  if (!file_) file_ = std::make_unique<TempFile>("Tarnwick_LOG", folder_());
  file_->openTemp(mode);
}

std::size_t ToolLog::append(const char* bytes, std::size_t size) {
  const std::lock_guard lock(lock_);
  if (!file_) throw Tarnwickfile::FileNotOpenE("Attempt to access file that has not been opened.", "");
  return std::fwrite(bytes, 1, size, file_->stream());
}

void ToolLog::close() {
  const std::lock_guard lock(lock_);
  if (file_) file_->close();
}

std::string ToolLog::path() const {
  const std::lock_guard lock(lock_);
  return file_ ? file_->name().fullName() : "";
}

}  // namespace tarnwick
