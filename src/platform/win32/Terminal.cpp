#include "platform/Terminal.h"

#include <windows.h>

namespace tarnwick::platform {

const char endOfInputMark = '\x1A';  // Ctrl+Z

bool writeToTerminal(const std::string& text) {
  // A program with windows has a standard output only where somebody has redirected it.
  HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  if (output == nullptr || output == INVALID_HANDLE_VALUE) {
    if (!AttachConsole(ATTACH_PARENT_PROCESS)) return false;
    output = CreateFileA("CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (output == INVALID_HANDLE_VALUE) return false;
  }
  DWORD written = 0;
  return WriteFile(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) && written == text.size();
}

}  // namespace tarnwick::platform
