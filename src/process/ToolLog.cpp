#include "process/ToolLog.h"

#include "platform/FileSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

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
  beginPart(mode);
}

void ToolLog::beginPart(FileMode mode) {
  if (mode != FileMode::Append) {
    parts_.clear();
    size_ = 0;
    elapsed_ = {};
  }
  parts_.push_back({size_, platform::currentDirectory(), RunEnd::ByItself, true});
  ++runs_;
  opened_ = std::chrono::steady_clock::now();
  isOpen_ = true;
}

std::size_t ToolLog::append(const char* bytes, std::size_t size) {
  const std::lock_guard lock(lock_);
  if (!file_) throw Tarnwickfile::FileNotOpenE("Attempt to access file that has not been opened.", "");
  const std::size_t written = std::fwrite(bytes, 1, size, file_->stream());
  size_ += written;
  // At once: who flushed it later might not notice that it failed, or might no longer know why.
  if (written < size || std::fflush(file_->stream()) != 0) noteFault();
  return written;
}

void ToolLog::close() {
  const std::lock_guard lock(lock_);
  if (file_) file_->close();
  if (std::exchange(isOpen_, false)) elapsed_ += std::chrono::steady_clock::now() - opened_;
}

void ToolLog::noteEnd(RunEnd end) {
  const std::lock_guard lock(lock_);
  if (isOpen_) parts_.back().end = end;
}

void ToolLog::addNotes(FileMode mode, const std::vector<std::string>& notes, RunEnd end) {
  const std::lock_guard lock(lock_);
  open(mode);
  parts_.back().hasCommand = false;
  std::string text = platform::lineEnd;
  for (const auto& note : notes) text += platform::lineEnd + note + platform::lineEnd;
  append(text.data(), text.size());
  noteEnd(end);
  close();
}

int ToolLog::runs() const {
  const std::lock_guard lock(lock_);
  return runs_;
}

std::vector<LoggedPart> ToolLog::parts() const {
  const std::lock_guard lock(lock_);
  return parts_;
}

std::chrono::milliseconds ToolLog::elapsed() const {
  const std::lock_guard lock(lock_);
  return std::chrono::duration_cast<std::chrono::milliseconds>(elapsed_);
}

RunEnd ToolLog::end() const {
  const std::lock_guard lock(lock_);
  const auto early =
      std::find_if(parts_.rbegin(), parts_.rend(), [](const auto& part) { return part.end != RunEnd::ByItself; });
  return early == parts_.rend() ? RunEnd::ByItself : early->end;
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
