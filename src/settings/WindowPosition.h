#pragma once

#include "base/StringableM.h"
#include "dialogbase/DialogWindow.h"

#include <string>

namespace tarnwick {

/// Left and top of the main window.
class WindowPosition : public StringableM {
 public:
  /// The coordinate has never been set.
  struct UndefinedE {};

  static constexpr int UNDEFINED = -999999;

  /// `mainWindow` points at the program's main window, null while there is none.
  explicit WindowPosition(DialogWindow* const& mainWindow) : mainWindow_(mainWindow) {}
  WindowPosition(const WindowPosition&) = delete;
  WindowPosition& operator=(const WindowPosition&) = delete;

  /// A negative coordinate becomes 0, here too. Throws UndefinedE.
  int getLeft();
  int getTop();
  void setUndefined();
  void refreshFromWindow();
  /// False where the window's position can't be read.
  bool hasMoved() const;
  /// Moves the main window to the stored place.
  void applyToWindow();

  /// Refreshes from the window first, unless undefined, which gives the empty text.
  std::string toString() override;
  void fromString(const std::string& text) override;

 private:
  static int checked(int& coordinate);

  DialogWindow* const& mainWindow_;
  int left_ = UNDEFINED;
  int top_ = UNDEFINED;
};

}  // namespace tarnwick
