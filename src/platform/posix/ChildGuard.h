#pragma once

#include "platform/posix/Descriptor.h"

#include <sys/types.h>

namespace tarnwick::platform {

/// A small process that ends a process group when it is told to, and also when our own process goes without a word.
/// It begins the group, before there is anybody else to end, and is a member of it: so the group's number cannot be
/// given to strangers while it may still signal.
class ChildGuard {
 public:
  /// Throws SystemError.
  ChildGuard();
  /// Lets the group go its own way.
  ~ChildGuard() { release(); }
  ChildGuard(const ChildGuard&) = delete;
  ChildGuard& operator=(const ChildGuard&) = delete;

  /// The group that the children join.
  pid_t group() const { return group_; }

  void release();
  /// TERM to all, and KILL to what is left after two seconds. Returns at once.
  void endGroup() { line_.close(); }

 private:
  pid_t group_ = -1;
  Descriptor line_;
};

}  // namespace tarnwick::platform
