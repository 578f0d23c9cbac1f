// What fails for a reason that passes is tried again.
#pragma once

#include <windows.h>

namespace tarnwick::platform {

/// True for the errors of a file that a program holds open.
inline bool isHeldOpen(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

/// What is told of a target that a program holds open, and of one that refuses altogether, too.
inline bool maybeHeldOpen(DWORD error) {
  return isHeldOpen(error) || error == ERROR_ACCESS_DENIED;
}

/// Tries for a second at most, until it succeeds or fails for a reason that does not pass: programs that look into a
/// file, such as a scanner for viruses or one of our own, hold it for a moment only. False with the system's last
/// error.
template <typename Attempt>
bool insist(bool (*passes)(DWORD error), Attempt attempt) {
  constexpr int mostTries = 50;
  constexpr DWORD pause = 20;
  for (int i = 1; !attempt(); ++i) {
    const DWORD error = GetLastError();
    if (!passes(error) || i == mostTries) {
      SetLastError(error);
      return false;
    }
    Sleep(pause);
  }
  return true;
}

}  // namespace tarnwick::platform
