#include "platform/posix/TextInput.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <memory>
#include <unistd.h>

namespace tarnwick::platform {

namespace {

/// Reads a file as text that may come from a system with two-character line ends. Readers use the standard stream
/// functions directly, so the conversion sits below the stream.
class TextInput {
 public:
  explicit TextInput(int descriptor) : descriptor_(descriptor) {}
  ~TextInput() { ::close(descriptor_); }
  TextInput(const TextInput&) = delete;
  TextInput& operator=(const TextInput&) = delete;

  ssize_t read(char* buffer, std::size_t size) {
    std::size_t count = 0;
    // What is in hand goes out before the next block is waited for.
    while (count < size && (count == 0 || at_ < end_)) {
      if (!fill()) break;
      const char c = block_[at_++];
      if (c == '\r' && fill() && block_[at_] == '\n') continue;
      buffer[count++] = c;
    }
    position_ += static_cast<off64_t>(count);
    return count == 0 && failed_ ? -1 : static_cast<ssize_t>(count);
  }

  /// Only the way from the beginning tells how many characters were dropped, so every move takes it.
  bool seek(off64_t* offset, int origin) {
    off64_t goal = *offset;
    if (origin == SEEK_CUR) goal += position_;
    if (origin == SEEK_END) {
      while (skip(static_cast<off64_t>(block_.size()))) {
      }
      goal += position_;
    }
    if (goal < 0) {
      errno = EINVAL;
      return false;
    }
    if (goal < position_ && !restart()) return false;
    while (position_ < goal && skip(goal - position_)) {
    }
    *offset = position_;
    return !failed_;
  }

 private:
  /// True if there is a character at `at_`.
  bool fill() {
    if (at_ < end_) return true;
    ssize_t count = 0;
    do count = ::read(descriptor_, block_.data(), block_.size());
    while (count < 0 && errno == EINTR);
    failed_ = count < 0;
    at_ = 0;
    end_ = failed_ ? 0 : static_cast<std::size_t>(count);
    return end_ > 0;
  }

  bool skip(off64_t most) {
    std::array<char, 1024> ignored;
    const auto size = most < static_cast<off64_t>(ignored.size()) ? static_cast<std::size_t>(most) : ignored.size();
    return read(ignored.data(), size) > 0;
  }

  bool restart() {
    if (::lseek(descriptor_, 0, SEEK_SET) != 0) return false;
    at_ = end_ = 0;
    position_ = 0;
    failed_ = false;
    return true;
  }

  int descriptor_;
  std::array<char, 8192> block_;
  std::size_t at_ = 0;
  std::size_t end_ = 0;
  off64_t position_ = 0;
  bool failed_ = false;
};

TextInput& inputOf(void* cookie) {
  return *static_cast<TextInput*>(cookie);
}

ssize_t readText(void* cookie, char* buffer, std::size_t size) {
  return inputOf(cookie).read(buffer, size);
}

int seekText(void* cookie, off64_t* offset, int origin) {
  return inputOf(cookie).seek(offset, origin) ? 0 : -1;
}

int closeText(void* cookie) {
  delete &inputOf(cookie);
  return 0;
}

}  // namespace

std::FILE* openTextInput(int descriptor) {
  auto input = std::make_unique<TextInput>(descriptor);
  std::FILE* stream = ::fopencookie(input.get(), "r", {readText, nullptr, seekText, closeText});
  if (stream) static_cast<void>(input.release());  // closeText deletes it
  return stream;
}

}  // namespace tarnwick::platform
