#include "platform/ConsoleWindows.h"

#include <windows.h>

#include <algorithm>

namespace tarnwick::platform {
namespace {

HWND handleOf(WindowNumber window) {
  return reinterpret_cast<HWND>(window);
}

WindowNumber numberOf(HWND window) {
  return reinterpret_cast<WindowNumber>(window);
}

BOOL CALLBACK collect(HWND window, LPARAM all) {
  reinterpret_cast<std::vector<WindowNumber>*>(all)->push_back(numberOf(window));
  return TRUE;
}

class SystemsWindows final : public ConsoleWindows {
 public:
  bool exist() const override { return true; }

  WindowNumber titled(const std::string& title) const override {
    return title.empty() ? 0 : numberOf(FindWindowA(nullptr, title.c_str()));
  }

  std::vector<WindowNumber> below(WindowNumber window) const override {
    // All at once: a walk from window to window might never end while they change their places.
    std::vector<WindowNumber> all;
    EnumWindows(collect, reinterpret_cast<LPARAM>(&all));
    const auto found = std::find(all.begin(), all.end(), window);
    if (found == all.end()) return {};
    all.erase(all.begin(), found + 1);
    return all;
  }

  std::string title(WindowNumber window) const override {
    char text[256] = "";
    const int length = GetWindowTextA(handleOf(window), text, sizeof text);
    return {text, static_cast<std::size_t>(length)};
  }

  bool lives(WindowNumber window) const override { return IsWindow(handleOf(window)) != FALSE; }
  bool isIconic(WindowNumber window) const override { return IsIconic(handleOf(window)) != FALSE; }

  bool askToMinimise(WindowNumber window) override {
    return PostMessageA(handleOf(window), WM_SYSCOMMAND, SC_MINIMIZE, 0) != FALSE;
  }

  void restore(WindowNumber window) override {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(handleOf(window), &placement);
    placement.showCmd = SW_SHOWNORMAL;
    // Wine places no window of another program, but shows it.
    if (!SetWindowPlacement(handleOf(window), &placement)) ShowWindowAsync(handleOf(window), SW_SHOWNORMAL);
  }

  bool askToClose(WindowNumber window) override { return PostMessageA(handleOf(window), WM_CLOSE, 0, 0) != FALSE; }
};

}  // namespace

ConsoleWindows& ConsoleWindows::ofSystem() {
  static SystemsWindows windows;
  return windows;
}

}  // namespace tarnwick::platform
