#pragma once

#include "platform/posix/Descriptor.h"

namespace tarnwick::platform {

/// Something that happens once and that threads can wait for, together with what else a descriptor tells.
class Event {
 public:
  /// Throws SystemError.
  Event();
  void set();
  int descriptor() const { return descriptor_.number(); }

 private:
  Descriptor descriptor_;
};

/// Waits until `descriptor` has one of `events` for us, at most so many milliseconds (-1: as long as it takes).
/// False if the event came; a descriptor of -1 never has anything. With both there, `stop` counts.
bool waitFor(int descriptor, short events, const Event& stop, int milliseconds = -1);

}  // namespace tarnwick::platform
