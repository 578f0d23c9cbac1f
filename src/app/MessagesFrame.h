// The window that shows what the tools have said, as its rules and its toolkit see each other.
#pragma once

#include "console/ConsoleSurface.h"
#include "dialogbase/DialogWindow.h"

#include <memory>
#include <optional>
#include <string>

namespace tarnwick {

enum class MessagesCommand { Next, Previous, Copy, SelectAll, Clear, LargerLetters, SmallerLetters, UsualLetters };

/// What the window's rules say.
class MessagesFrame {
 public:
  virtual ~MessagesFrame() = default;
  virtual ConsoleSurfaceClient& view() = 0;
  virtual void onCommand(MessagesCommand command) = 0;
  /// What stands in the place of messages; empty if there are some.
  virtual std::string wordsInPlace() const = 0;
  /// Where the window stood when it was last open; nothing before.
  virtual std::optional<Rect> place() const = 0;
  /// The window is about to go from there; nothing where the window system does not tell.
  virtual void onClosed(const std::optional<Rect>& place) = 0;
};

/// The window. It goes with its user's close box or with this object.
class MessagesWindow {
 public:
  virtual ~MessagesWindow() = default;
  /// What stands above the text.
  virtual void setSummary(const std::string& text) = 0;
  /// Opens the window if it is not open. Either way it takes the focus from nobody.
  virtual void show() = 0;
  /// Lets its user see it where it is open: not as an icon, nor behind other windows.
  virtual void bringForward() = 0;
  virtual bool isOpen() const = 0;
  /// True if the desktop wants light letters on dark ground.
  virtual bool isDark() const = 0;
  /// Closes the window if it is open.
  virtual void close() = 0;
};

}  // namespace tarnwick
