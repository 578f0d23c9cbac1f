#pragma once

#include "platform/win32/StartChild.h"

namespace tarnwick::platform {

/// A console for a child: while the object lives it is our own process's, so that the child begins in it; then the
/// child has it alone. Without a title in the command it does nothing.
class ChildConsole {
 public:
  ChildConsole(const ChildCommand& command, StartCalls& calls, const StepFaults& faults);
  /// Leaves the console and gives our process the standard handles back that it had.
  ~ChildConsole();
  ChildConsole(const ChildConsole&) = delete;
  ChildConsole& operator=(const ChildConsole&) = delete;

  /// Makes the handle one of our process's standard ones.
  void use(DWORD which, HANDLE handle);
  /// The child runs.
  void childStarted() { childStarted_ = true; }

 private:
  static constexpr int standardHandles = 3;
  static void take(HANDLE (&handles)[standardHandles]);
  static void put(const HANDLE (&handles)[standardHandles]);

  StartCalls& calls_;
  const StepFaults& faults_;
  const bool wanted_;
  bool allocated_ = false;
  bool childStarted_ = false;
  HANDLE before_[standardHandles] = {};
  HANDLE consoles_[standardHandles] = {};  ///< those that came with the console
};

}  // namespace tarnwick::platform
