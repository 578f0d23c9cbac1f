#pragma once

#include "base/StringableM.h"

#include <string>

namespace tarnwick {

class PlacedWindow;

/// Left and top of the main window, in pixels of the screen. Its text is the two with ";" between them.
class WindowPosition : public StringableM {
 public:
  /// The coordinate has never been set.
  struct UndefinedE {};

  /// A coordinate that has never been set.
  static constexpr int UNDEFINED = -999999;

  /// `mainWindow` points at the program's main window, null while there is none.
  explicit WindowPosition(PlacedWindow* const& mainWindow) : mainWindow_(mainWindow) {}
  WindowPosition(const WindowPosition&) = delete;
  WindowPosition& operator=(const WindowPosition&) = delete;

  /// A negative coordinate becomes 0, here too. Throws UndefinedE.
  int getLeft();
  int getTop();
  void setUndefined();
  /// The stored coordinates as they are.
  struct Place {
    int left;
    int top;
  };
  Place place() const { return {left_, top_}; }
  void setPlace(const Place& place);
  /// Takes the window's place; changes nothing where that can't be read.
  void refreshFromWindow();
  /// True if the window is not at the stored place; false where its place can't be read.
  bool hasMoved() const;
  /// Moves the main window to the stored place. An undefined one takes the window's place crosswise, and the window
  /// stays. Changes nothing where the window's place can't be read.
  void applyToWindow();

  /// Refreshes from the window first, unless undefined, which gives the empty text.
  std::string toString() override;
  /// A coordinate that is not reached, because the text ends or is malformed, keeps what it had. Throws nothing.
  void fromString(const std::string& text) override;

 private:
  static int checked(int& coordinate);

  PlacedWindow* const& mainWindow_;
  int left_ = UNDEFINED;
  int top_ = UNDEFINED;
};

}  // namespace tarnwick
