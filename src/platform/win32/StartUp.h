#pragma once

#include <windows.h>

#include <vector>

namespace tarnwick::platform {

/// A start-up record that names the handles which a child inherits, and no others.
class StartUp {
 public:
  /// A handle may be null: the child then has nothing there. Throws SystemError.
  StartUp(HANDLE input, HANDLE output, HANDLE error);
  ~StartUp() { DeleteProcThreadAttributeList(record_.lpAttributeList); }
  StartUp(const StartUp&) = delete;
  StartUp& operator=(const StartUp&) = delete;

  STARTUPINFOA* get() { return &record_.StartupInfo; }
  /// False if there is nothing to inherit.
  bool inherits() const { return !handles_.empty(); }

 private:
  std::vector<HANDLE> handles_;
  std::vector<char> memory_;
  STARTUPINFOEXA record_{};
};

}  // namespace tarnwick::platform
