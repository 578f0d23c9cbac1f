#pragma once

#include "settings/SettingsValues.h"

#include <functional>
#include <vector>

namespace tarnwick {

/// Remembers the values that the pages of the settings dialog show, and the window's position, which a write refreshes;
/// gives them back at the end of its life, however that comes.
class PageSnapshot {
 public:
  explicit PageSnapshot(SettingsValues& values);
  ~PageSnapshot();
  PageSnapshot(const PageSnapshot&) = delete;
  PageSnapshot& operator=(const PageSnapshot&) = delete;

  /// The values stay as they are now.
  void forget();

 private:
  /// Each gives one value back.
  std::vector<std::function<void()>> kept_;
  WindowPosition& position_;
  WindowPosition::Place place_;
};

}  // namespace tarnwick
