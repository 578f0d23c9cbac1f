#pragma once

#include "console/ConsoleSurface.h"
#include "resources/Menu.h"
#include "resources/Toolbar.h"

#include <string>

namespace tarnwick {

/// The rules of the console's frame: what its commands do and when they may be chosen.
class ConsoleFrame {
 public:
  virtual ~ConsoleFrame() = default;
  virtual const MenuBar& menuBar() const = 0;
  virtual const std::vector<Accelerator>& accelerators() const = 0;
  /// Null for a frame without one.
  virtual const Toolbar* toolbar() const { return nullptr; }
  virtual std::string title() const = 0;
  virtual bool commandEnabled(int command) const = 0;
  virtual void onCommand(int command) = 0;
  virtual ConsoleSurfaceClient& view() = 0;
};

/// Opens the one window of console mode.
class ConsoleFrameHost {
 public:
  virtual ~ConsoleFrameHost() = default;
  /// Returns when the frame has been closed.
  virtual void runConsoleFrame(ConsoleFrame& frame) = 0;
};

}  // namespace tarnwick
