#pragma once

#include "platform/Process.h"

#include <string>
#include <sys/types.h>
#include <vector>

namespace tarnwick::platform {

/// A call that failed with this number.
SystemError systemError(const std::string& label, int code);

/// What a process is made from.
struct Launch {
  std::string executable;
  std::vector<std::string> arguments;  ///< its own name first
  int input = -1;                      ///< -1: nothing to read
  int output = -1;                     ///< -1: where ours goes
  int error = -1;                      ///< -1: where ours goes
  bool searchPath = false;             ///< look for a name without a folder in PATH
  bool ownSession = false;             ///< lives on when our terminal goes; otherwise in a process group
  pid_t group = 0;                     ///< the group to join; 0: one of its own
};

/// Starts the process with default signals and none of our open files. Gives 0, or the system's error number.
int launch(const Launch& what, pid_t& process);

/// Takes care that the process leaves nothing behind when it ends, however long that may be.
void reapLater(pid_t process);

}  // namespace tarnwick::platform
