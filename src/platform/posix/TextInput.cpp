#include "platform/posix/TextInput.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
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
      if (at_ == end_ && size - count >= block_.size()) {
        count += readStraight(buffer + count, size - count);
        break;
      }
      if (!fill()) break;
      count += take(buffer + count, size - count);
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
    end_ = readBlock(block_.data(), block_.size());
    at_ = 0;
    return end_ > 0;
  }

  /// The number of bytes; 0 at the end and in failure.
  std::size_t readBlock(char* block, std::size_t size) {
    ssize_t count = 0;
    do count = ::read(descriptor_, block, size);
    while (count < 0 && errno == EINTR);
    failed_ = count < 0;
    return failed_ ? 0 : static_cast<std::size_t>(count);
  }

  /// Takes from the block in hand up to and including the next carriage return.
  std::size_t take(char* buffer, std::size_t size) {
    const char* const from = block_.data() + at_;
    const std::size_t most = std::min(size, end_ - at_);
    const void* const found = std::memchr(from, '\r', most);
    if (!found) {
      std::memcpy(buffer, from, most);
      at_ += most;
      return most;
    }
    const auto before = static_cast<std::size_t>(static_cast<const char*>(found) - from);
    std::memcpy(buffer, from, before);
    at_ += before + 1;
    if (fill() && block_[at_] == '\n') return before;
    buffer[before] = '\r';
    return before + 1;
  }

  /// A large block goes to where it is wanted without a stop on the way.
  std::size_t readStraight(char* buffer, std::size_t size) {
    for (;;) {
      std::size_t count = readBlock(buffer, size);
      if (count == 0) return 0;
      // Behind the last character only the next block tells.
      if (buffer[count - 1] == '\r' && fill() && block_[at_] == '\n') --count;
      count = withoutReturns(buffer, count);
      if (count > 0) return count;
    }
  }

  /// Drops each carriage return before a line feed; tells how many characters are left.
  static std::size_t withoutReturns(char* text, std::size_t size) {
    char* const end = text + size;
    char* to = static_cast<char*>(std::memchr(text, '\r', size));
    if (!to) return size;
    for (const char* from = to; from < end;) {
      if (from + 1 < end && from[0] == '\r' && from[1] == '\n') ++from;
      // The character here stays, and so does all up to the next carriage return.
      const void* const next = std::memchr(from + 1, '\r', static_cast<std::size_t>(end - from - 1));
      const char* const stop = next ? static_cast<const char*>(next) : end;
      std::memmove(to, from, static_cast<std::size_t>(stop - from));
      to += stop - from;
      from = stop;
    }
    return static_cast<std::size_t>(to - text);
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
