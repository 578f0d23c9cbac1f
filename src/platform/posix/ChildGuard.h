#pragma once

#include "platform/posix/Descriptor.h"
#include "platform/posix/Launch.h"

#include <sys/types.h>

namespace tarnwick::platform {

/// A small process that starts a child, and ends it with all that it has started when it is told to, and also when our
/// own process goes without a word. What the child starts stays below the guard, even in a session of its own and when
/// those between have ended. It is a member of the child's process group: so the group's number cannot be given to
/// strangers while it may still be signalled.
class ChildGuard {
 public:
  /// Starts the child in a group of its own. Throws SystemError.
  explicit ChildGuard(Launch what);
  /// Lets the child go its own way.
  ~ChildGuard() { release(); }
  ChildGuard(const ChildGuard&) = delete;
  ChildGuard& operator=(const ChildGuard&) = delete;

  /// Can be read from once the child has ended.
  int ended() const { return report_.number(); }

  void release();
  /// TERM to all, and KILL to what is left after two seconds. Returns at once.
  void endTree() { line_.close(); }
  /// To be called when the child seems to have ended: if it is the guard that has gone, the child ends now.
  void settle();

 private:
  pid_t group_ = -1;
  Descriptor line_;
  Descriptor report_;
};

}  // namespace tarnwick::platform
