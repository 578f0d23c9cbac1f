#include "ui/KeysOfProgram.h"

#include <windows.h>
#include <wx/defs.h>
#include <wx/uiaction.h>

namespace tarnwick::test {

namespace {

/// The topmost window of this thread that takes input: while a message is shown, that is the message.
HWND frontWindow() {
  HWND front = nullptr;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM found) -> BOOL {
        if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&front));
  return front;
}

}  // namespace

void pressReturn() {
  HWND const front = frontWindow();
  if (front && GetForegroundWindow() != front) SetForegroundWindow(front);
  wxUIActionSimulator().Char(WXK_RETURN);
}

}  // namespace tarnwick::test
