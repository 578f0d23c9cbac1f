#include "platform/posix/Event.h"

#include "platform/Process.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>

namespace tarnwick::platform {

Event::Event() : descriptor_(eventfd(0, EFD_CLOEXEC)) {
  if (descriptor_.number() < 0) throw lastSystemError("CreatePipe()");
}

void Event::set() {
  const std::uint64_t one = 1;
  [[maybe_unused]] const ssize_t ignored = write(descriptor_.number(), &one, sizeof one);
}

bool waitFor(int descriptor, short events, const Event& stop, int milliseconds) {
  std::array<pollfd, 2> waiting{pollfd{descriptor, events, 0}, pollfd{stop.descriptor(), POLLIN, 0}};
  while (poll(waiting.data(), waiting.size(), milliseconds) < 0 && errno == EINTR) {
  }
  return waiting[1].revents == 0;
}

}  // namespace tarnwick::platform
