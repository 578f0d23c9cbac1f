#pragma once

#include "platform/Process.h"

#include <windows.h>

#include <memory>

namespace tarnwick::platform {

/// The system's calls that may fail while a child is started and do not keep it from starting. Tests let them fail.
class StartCalls {
 public:
  virtual ~StartCalls() = default;

  virtual bool allocateConsole() { return AllocConsole() != FALSE; }
  /// Our end of a pipe.
  virtual HANDLE createPipe(const char* name, DWORD access, SECURITY_ATTRIBUTES& security);
  virtual bool setStandardHandle(DWORD which, HANDLE handle) { return SetStdHandle(which, handle) != FALSE; }
  /// A copy with the same access that nobody inherits.
  virtual bool duplicateHandle(HANDLE handle, HANDLE& copy) {
    return DuplicateHandle(GetCurrentProcess(), handle, GetCurrentProcess(), &copy, 0, FALSE, DUPLICATE_SAME_ACCESS) !=
           FALSE;
  }
  /// As the system's call of this name.
  virtual bool createProcess(const char* executable, char* line, bool inherits, DWORD flags, STARTUPINFOA* startUp,
                             PROCESS_INFORMATION& made) {
    return CreateProcessA(executable, line, nullptr, nullptr, inherits, flags, nullptr, nullptr, startUp, &made) !=
           FALSE;
  }
};

/// Tells whoever starts a child of the steps that failed.
class StepFaults {
 public:
  explicit StepFaults(const ChildCommand& command) : report_(command.report) {}

  /// The call of this name has just failed.
  void note(const char* label) const {
    const SystemError fault = lastSystemError(label);
    if (report_) report_(fault);
  }

 private:
  const std::function<void(const SystemError&)>& report_;
};

/// As `ChildProcess::start`, by these calls.
std::unique_ptr<ChildProcess> startChild(const ChildCommand& command, StartCalls& calls);

}  // namespace tarnwick::platform
