#pragma once

#include "app/ConsoleFrameHost.h"
#include "ui/WindowStack.h"

#include <wx/frame.h>

#include <map>
#include <memory>

namespace tarnwick {
class Desktop;
}

namespace tarnwick::ui {

class InputBar;
class WxConsoleSurface;

/// The one window of console mode.
class WxConsoleFrame {
 public:
  WxConsoleFrame(WindowStack& stack, Desktop& desktop, ConsoleFrame& rules);
  ~WxConsoleFrame();
  WxConsoleFrame(const WxConsoleFrame&) = delete;
  WxConsoleFrame& operator=(const WxConsoleFrame&) = delete;

  /// Shows the frame and returns when it has been closed.
  void run();

  wxFrame& frame() { return *frame_; }
  WxConsoleSurface& surface() { return *surface_; }
  /// Null where what is typed goes to one alone.
  InputBar* inputBar() { return inputBar_; }

 private:
  void buildMenus();
  void buildToolbar();
  void buildInputBar();
  void updateMenus();
  void command(int number);
  void onKey(wxKeyEvent& event);
  void requestClose();
  void stop();

  WindowStack& stack_;
  ConsoleFrame& rules_;
  std::unique_ptr<wxFrame> frame_;
  WxConsoleSurface* surface_;
  InputBar* inputBar_ = nullptr;
  std::map<int, int> commandOfId_;
  WindowStack::Place* place_ = nullptr;
  bool stopped_ = false;
};

}  // namespace tarnwick::ui
