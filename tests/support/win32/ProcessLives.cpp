#include "support/Children.h"

#include <windows.h>

namespace tarnwick::test {

bool processLives(int process) {
  const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
  if (handle == nullptr) return false;
  const bool lives = WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
  CloseHandle(handle);
  return lives;
}

void endProcess(int process) {
  const HANDLE handle = OpenProcess(PROCESS_TERMINATE, FALSE, static_cast<DWORD>(process));
  if (handle == nullptr) return;
  TerminateProcess(handle, 1);
  CloseHandle(handle);
}

}  // namespace tarnwick::test
