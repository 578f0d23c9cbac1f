#pragma once

#include "platform/posix/Descriptor.h"

#include <sys/types.h>

namespace tarnwick::platform {

/// A small process that ends a process group when it is told to, and also when our own process goes without a word.
/// It is a member of the group itself: so the group's number cannot be given to strangers while it may still signal.
class ChildGuard {
 public:
  /// `group` is a child of ours that nobody has waited for yet. Throws SystemError.
  explicit ChildGuard(pid_t group);
  /// Lets the group go its own way.
  ~ChildGuard() { release(); }
  ChildGuard(const ChildGuard&) = delete;
  ChildGuard& operator=(const ChildGuard&) = delete;

  void release();
  /// TERM to all, and KILL to what is left after two seconds. Returns at once.
  void endGroup() { line_.close(); }

 private:
  Descriptor line_;
};

}  // namespace tarnwick::platform
