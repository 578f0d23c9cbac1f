// The system places a tip below the mouse's arrow, where it lies over the lower part of most controls.
#include "ui/TipPlace.h"

#include <windows.h>
#include <wx/window.h>

#include <algorithm>
#include <commctrl.h>
#include <optional>

namespace tarnwick::ui {

namespace {

constexpr UINT_PTR ours = 1;
constexpr int gap = 4;

bool isUnderMouse(HWND control) {
  POINT mouse{};
  RECT place{};
  return GetCursorPos(&mouse) && GetWindowRect(control, &place) && PtInRect(&place, mouse);
}

/// Left and top of a tip of this size; nothing if there is no room beside the control.
std::optional<POINT> besideControl(HWND control, SIZE tip, LONG left) {
  RECT place{};
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  if (!GetWindowRect(control, &place)) return std::nullopt;
  if (!GetMonitorInfoW(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &screen)) return std::nullopt;
  const RECT& room = screen.rcWork;
  const LONG below = place.bottom + gap;
  const LONG above = place.top - gap - tip.cy;
  const bool fitsBelow = below + tip.cy <= room.bottom;
  if (!fitsBelow && above < room.top) return std::nullopt;
  return POINT{std::max(room.left, std::min(left, room.right - tip.cx)), fitsBelow ? below : above};
}

SIZE sizeOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return {rect.right - rect.left, rect.bottom - rect.top};
}

/// Of the window of all tips. Whatever moves it, and with whatever size, it comes to stand beside the control.
LRESULT CALLBACK onTip(HWND tip, UINT message, WPARAM first, LPARAM second, UINT_PTR, DWORD_PTR data) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(tip, onTip, ours);
  if (message == WM_WINDOWPOSCHANGING) {
    auto& wanted = *reinterpret_cast<WINDOWPOS*>(second);
    const auto control = reinterpret_cast<HWND>(data);
    // The window serves others, too, that do not tell of it.
    if ((wanted.flags & SWP_NOMOVE) == 0 && IsWindow(control) && isUnderMouse(control)) {
      const SIZE size = (wanted.flags & SWP_NOSIZE) != 0 ? sizeOf(tip) : SIZE{wanted.cx, wanted.cy};
      if (const auto to = besideControl(control, size, wanted.x)) {
        wanted.x = static_cast<int>(to->x);
        wanted.y = static_cast<int>(to->y);
      }
    }
  }
  return DefSubclassProc(tip, message, first, second);
}

/// True if the tip has been moved, so that the system leaves it there.
bool moveBeside(HWND tip, HWND control) {
  SetWindowSubclass(tip, onTip, ours, reinterpret_cast<DWORD_PTR>(control));
  RECT now{};
  if (!isUnderMouse(control) || !GetWindowRect(tip, &now)) return false;
  POINT mouse{};
  GetCursorPos(&mouse);
  const auto to = besideControl(control, sizeOf(tip), mouse.x);
  return to && SetWindowPos(tip, nullptr, static_cast<int>(to->x), static_cast<int>(to->y), 0, 0,
                            SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CALLBACK onControl(HWND control, UINT message, WPARAM first, LPARAM second, UINT_PTR, DWORD_PTR) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(control, onControl, ours);
  if (message == WM_NOTIFY) {
    const auto& told = *reinterpret_cast<const NMHDR*>(second);
    if (told.code == static_cast<UINT>(TTN_SHOW) && moveBeside(told.hwndFrom, control)) return TRUE;
  }
  return DefSubclassProc(control, message, first, second);
}

}  // namespace

void keepTipBeside(wxWindow& control) {
  SetWindowSubclass(static_cast<HWND>(control.GetHandle()), onControl, ours, 0);
}

}  // namespace tarnwick::ui
