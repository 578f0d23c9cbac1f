#include "process/ToolLog.h"

#include "platform/FileSystem.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tarnwick {

void ToolLog::open(FileMode mode) {
  const std::lock_guard lock(lock_);
  if (!file_) file_ = std::make_unique<TempFile>("Tarnwick_LOG", folder_());
  try {
    file_->openTemp(mode);
  } catch (const Tarnwickfile::FileNotOpenE&) {
    // The next run asks for the folder anew: the configuration may have moved to where a log can be written.
    file_.reset();
    throw;
  }
  // The tools end their lines as the system does; a text mode would do so once more.
  platform::leaveBytesAlone(file_->stream());
  fault_.clear();
}

std::size_t ToolLog::append(const char* bytes, std::size_t size) {
  const std::lock_guard lock(lock_);
  if (!file_) throw Tarnwickfile::FileNotOpenE("Attempt to access file that has not been opened.", "");
  const std::size_t written = std::fwrite(bytes, 1, size, file_->stream());
  // At once: who flushed it later might not notice that it failed, or might no longer know why.
  if (written < size || std::fflush(file_->stream()) != 0) noteFault();
  return written;
}

void ToolLog::close() {
  const std::lock_guard lock(lock_);
  if (file_) file_->close();
}

void ToolLog::noteFault() {
  if (fault_.empty()) fault_ = std::strerror(errno);
}

std::string ToolLog::fault() const {
  const std::lock_guard lock(lock_);
  return fault_;
}

std::string ToolLog::path() const {
  const std::lock_guard lock(lock_);
  return file_ ? file_->name().fullName() : "";
}

}  // namespace tarnwick
