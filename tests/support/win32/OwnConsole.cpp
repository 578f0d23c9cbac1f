#include "support/OwnConsole.h"

#include <windows.h>

#include <cstdio>

namespace tarnwick::test {

bool leaveOwnConsole() {
  DWORD mode = 0;
  if (GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode)) {
    std::printf("These tests give up their console: let their output go to a file or a pipe.\n");
    return false;
  }
  FreeConsole();
  return true;
}

}  // namespace tarnwick::test
