#pragma once

#include "settings/SettingsValues.h"

#include <string>
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
  struct Kept {
    const TagRow* row;
    std::string text;  ///< of texts, and of values that are texts in the file
    int number;        ///< of numbers and switches
  };

  std::vector<Kept> kept_;
  WindowPosition& position_;
  WindowPosition::Place place_;
};

}  // namespace tarnwick
