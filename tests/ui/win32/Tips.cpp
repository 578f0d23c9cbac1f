#include "ui/Tips.h"

#include <windows.h>

#include <commctrl.h>
#include <string>

namespace tarnwick::test {

namespace {

BOOL CALLBACK noteTip(HWND window, LPARAM data) {
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  RECT rect{};
  if (std::wstring(name) != TOOLTIPS_CLASSW || !IsWindowVisible(window) || !GetWindowRect(window, &rect)) return TRUE;
  *reinterpret_cast<std::optional<wxRect>*>(data) =
      wxRect(wxPoint(static_cast<int>(rect.left), static_cast<int>(rect.top)),
             wxPoint(static_cast<int>(rect.right) - 1, static_cast<int>(rect.bottom) - 1));
  return FALSE;
}

}  // namespace

std::optional<wxRect> shownTip() {
  std::optional<wxRect> found;
  EnumThreadWindows(GetCurrentThreadId(), noteTip, reinterpret_cast<LPARAM>(&found));
  return found;
}

}  // namespace tarnwick::test
