#pragma once

#include "base/Geometry.h"
#include "platform/ConsoleWindows.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarnwick {

/// Red, green, blue, 0 to 255 each.
struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Colour&) const = default;
};

/// What the console view paints with. Positions are pixels of the document, not of the window.
class ConsolePainter {
 public:
  virtual ~ConsolePainter() = default;
  /// The part of the document that has to be painted.
  virtual Rect clip() const = 0;
  /// Draws text in fixed-pitch cells from this left top corner on.
  virtual void drawText(int x, int y, const std::string& text, Colour colour) = 0;
  /// Fills a rectangle with one colour.
  virtual void fill(const Rect& rect, Colour colour) = 0;
  /// Inverts what has been painted in the rectangle.
  virtual void invert(const Rect& rect) = 0;
};

/// What the console view needs from its window. Only `wake` may be called by any thread.
class ConsoleSurface {
 public:
  virtual ~ConsoleSurface() = default;

  /// False if the system had no fixed-pitch font; the text then shows in the window's own.
  virtual bool hasFont() const = 0;
  /// True if the desktop wants light letters on dark ground.
  virtual bool isDark() const = 0;
  /// The fixed-pitch character cell in pixels: width and height.
  virtual Point cell() const = 0;
  /// The usual size of the letters, in points.
  virtual int usualLetters() const = 0;
  /// Gives the letters this size in points, or the usual one for 0, and so the cells another. Nothing else changes by
  /// it.
  virtual void setLetters(int points) = 0;
  /// Width and height of the visible part in pixels.
  virtual Point clientSize() const = 0;
  /// Document pixel at the window's left top corner.
  virtual Point scrollPosition() const = 0;
  /// Size of the whole document in pixels.
  virtual void setScrollSizes(const Point& size) = 0;
  virtual void scrollTo(const Point& position) = 0;
  /// In document pixels.
  virtual void invalidate(const Rect& rect) = 0;
  virtual void invalidateAll() = 0;

  /// Asks for one call of the view's `onWake` on the user-interface thread; calls that come before it has run are
  /// merged into one, and successive calls keep some distance, so that a flood of output costs one refresh a frame.
  virtual void wake() = 0;

  /// Shows or hides the hint about quick copying (`hintLayout`), 20 pixels right of and below the view's left top
  /// corner. It never takes the focus.
  virtual void showHint(bool on) = 0;

  /// Shows the pointer over a link, or again the one over text.
  virtual void showHand(bool on) = 0;

  /// Brings the view to the top and the frame that it is in to the foreground. Gives the frame.
  virtual platform::WindowNumber bringToFront() = 0;

  /// Shows who gets what is typed, where there is a choice.
  virtual void showInputTarget() {}

  /// Gives the frame that the view is in another title.
  virtual void setTitle(const std::string& title) = 0;

  /// Closes the console's window. The client's `onClose` may come before this returns.
  virtual void close() = 0;
};

/// A mouse event's circumstances.
struct MouseState {
  Point at;  ///< in the window's client coordinates
  bool leftDown = false;
  bool otherButtonDown = false;
  bool shift = false;
  bool control = false;
};

/// Keys that the view tells apart beside characters. A modifier is a key that does nothing by itself.
enum class ConsoleKey {
  End,
  Home,
  Left,
  Right,
  Up,
  Down,
  PageUp,
  PageDown,
  Delete,
  F5,
  F6,
  F7,
  F8,
  F9,
  F10,
  F11,
  F12,
  Modifier,
  Other
};

/// Modifiers as the function keys' groups count them.
enum KeyModifier { SHIFT_BIT = 1, CTRL_BIT = 2, ALT_BIT = 4 };

/// What the window tells the view; all on the user-interface thread.
class ConsoleSurfaceClient {
 public:
  virtual ~ConsoleSurfaceClient() = default;

  /// The window stands and has its size; once, before it shows.
  virtual void onStart(ConsoleSurface& surface) = 0;
  /// What the text stands on, where it is painted.
  virtual Colour ground() const = 0;
  virtual void paint(ConsolePainter& painter) = 0;
  virtual void onWake() = 0;
  virtual void onResized() = 0;
  /// The user has scrolled.
  virtual void onScrolled() = 0;
  /// The wheel has turned by so many steps while Control was held, upwards above 0; by less than one for 0. False if
  /// that is of no use here: then it scrolls.
  virtual bool onZoom(int steps) = 0;
  /// A key with no character of its own. False if it is of no use here.
  virtual bool onKey(ConsoleKey key, int modifiers) = 0;
  /// One typed character (or control character) as bytes of the platform's character set.
  virtual void onCharacter(const std::string& character, int repeatCount) = 0;
  virtual void onLeftDown(const MouseState& mouse) = 0;
  virtual void onLeftUp(const MouseState& mouse) = 0;
  virtual void onMouseMove(const MouseState& mouse) = 0;
  virtual void onDoubleClick(const MouseState& mouse) = 0;
  virtual void onRightDown(const MouseState& mouse) = 0;
  /// The window is about to go, whatever the reason; nothing may address the surface afterwards.
  virtual void onClose() = 0;
};

}  // namespace tarnwick
