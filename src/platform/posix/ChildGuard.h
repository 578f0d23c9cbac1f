#pragma once

#include "platform/posix/Descriptor.h"
#include "platform/posix/Launch.h"

#include <sys/types.h>

namespace tarnwick::platform {

/// Two small processes that end a child with all that it has started when they are told to, and also when our own
/// process goes without a word. The holder is the child's parent and a member of its group; the watcher, in a group of
/// its own, is the holder's. What the child starts stays below them, even in a session of its own and when those
/// between have ended. A guard that is stopped is set going again; one that is killed takes the child with it.
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
  /// How a child has ended: by a signal, or by itself with a code.
  struct End {
    int signal = 0;
    int code = 0;
  };
  /// To be called once, when the child has ended. If it is the guards that have gone, the child ends now.
  End settle();

 private:
  pid_t group_ = -1;
  Descriptor line_;
  Descriptor report_;
};

}  // namespace tarnwick::platform
