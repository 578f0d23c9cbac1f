#pragma once

#include "app/MessagesFrame.h"
#include "console/ConsoleSurface.h"
#include "resources/Menu.h"
#include "resources/Toolbar.h"

#include <memory>
#include <string>
#include <vector>

namespace tarnwick {

/// One of those who may get what is typed.
struct InputChoice {
  std::string label;
  std::string toolTip;
  Colour colour;    ///< of what it says
  int command = 0;  ///< chooses it
  bool chosen = false;
};

/// The rules of the console's frame: what its commands do and when they may be chosen.
class ConsoleFrame {
 public:
  virtual ~ConsoleFrame() = default;
  virtual const MenuBar& menuBar() const = 0;
  virtual const std::vector<Accelerator>& accelerators() const = 0;
  /// Null for a frame without one.
  virtual const Toolbar* toolbar() const { return nullptr; }
  /// Empty where what is typed goes to one alone.
  virtual std::vector<InputChoice> inputChoices() const { return {}; }
  virtual std::string title() const = 0;
  /// True for a console of today, whose window looks after some things in its own way.
  virtual bool isOfToday() const { return false; }
  virtual bool commandEnabled(int command) const = 0;
  /// Of a menu entry that is a mark: what it stands for is on.
  virtual bool commandMarked(int /*command*/) const { return false; }
  virtual void onCommand(int command) = 0;
  virtual ConsoleSurfaceClient& view() = 0;
};

/// Opens the one window of console mode, and the one beside the panel.
class ConsoleFrameHost {
 public:
  virtual ~ConsoleFrameHost() = default;
  /// Returns when the frame has been closed.
  virtual void runConsoleFrame(ConsoleFrame& frame) = 0;
  /// The window of what the tools have said, which is not open yet; null where there are no windows. While it is open
  /// F4 and Shift+F4 are commands in the main window, too. `frame` outlives it.
  virtual std::unique_ptr<MessagesWindow> makeMessagesWindow(MessagesFrame& /*frame*/) { return nullptr; }
};

}  // namespace tarnwick
