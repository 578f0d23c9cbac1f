#include "platform/posix/ChildPipes.h"

#include "platform/Process.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

/// The same file under a number that no standard stream of a child can collide with.
Descriptor aboveStandardStreams(Descriptor low) {
  if (low.number() > STDERR_FILENO) return low;
  Descriptor high(fcntl(low.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
  if (high.number() < 0) throw lastSystemError("CreatePipe()");
  return high;
}

}  // namespace

Pipe makePipe() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw lastSystemError("CreatePipe()");
  Descriptor read(ends[0]);
  Descriptor write(ends[1]);
  return {aboveStandardStreams(std::move(read)), aboveStandardStreams(std::move(write))};
}

std::size_t OutputPipe::bytesInPipe() const {
  int count = 0;
  return ioctl(end_.number(), FIONREAD, &count) == 0 && count > 0 ? static_cast<std::size_t>(count) : 0;
}

std::uint64_t OutputPipe::arrived() {
  const std::lock_guard lock(takeLock_);
  return taken_ + bytesInPipe();
}

std::size_t OutputPipe::read(char* buffer, std::size_t size) {
  if (!stopped_ && !waitFor(end_.number(), POLLIN, stop_)) {
    // From here on only what lies in the pipe now: somebody who goes on writing must not keep us for ever.
    stopped_ = true;
    remaining_ = bytesInPipe();
  }
  if (stopped_) size = std::min(size, remaining_);
  if (size == 0) return 0;
  const std::lock_guard lock(takeLock_);
  ssize_t count = 0;
  do {
    count = ::read(end_.number(), buffer, size);
  } while (count < 0 && errno == EINTR);
  if (count <= 0) return 0;
  taken_ += static_cast<std::uint64_t>(count);
  if (stopped_) remaining_ -= static_cast<std::size_t>(count);
  return static_cast<std::size_t>(count);
}

InputPipe::InputPipe(Descriptor end, const Event& stop) : end_(std::move(end)), stop_(stop) {
  // Our end alone: the child's reads wait as it expects them to.
  if (end_.number() >= 0) fcntl(end_.number(), F_SETFL, fcntl(end_.number(), F_GETFL) | O_NONBLOCK);
}

std::ptrdiff_t InputPipe::write(const char* bytes, std::size_t size) {
  std::size_t written = 0;
  while (written < size && waitFor(end_.number(), POLLOUT, stop_)) {
    const ssize_t count = ::write(end_.number(), bytes + written, size - written);
    if (count < 0 && errno != EINTR && errno != EAGAIN) return -1;
    if (count > 0) written += static_cast<std::size_t>(count);
  }
  return static_cast<std::ptrdiff_t>(written);
}

}  // namespace tarnwick::platform
