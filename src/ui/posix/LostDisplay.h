#pragma once

#include <functional>

namespace tarnwick::ui {

/// Hears, for as long as it lives, that the display has gone: the window system ended, with the session or by a fault.
/// One object at a time.
class LostDisplay {
 public:
  /// `lost` is called from within the toolkit's call to the display that failed; nothing of the toolkit may be called
  /// any more. When it returns the process ends.
  explicit LostDisplay(std::function<void()> lost);
  ~LostDisplay();
  LostDisplay(const LostDisplay&) = delete;
  LostDisplay& operator=(const LostDisplay&) = delete;
};

}  // namespace tarnwick::ui
