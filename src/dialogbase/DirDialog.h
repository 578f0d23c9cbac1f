#pragma once

#include "dialogbase/Desktop.h"

#include <string>

namespace tarnwick {

/// The one-shot folder browser over the whole file system.
class DirDialog {
 public:
  explicit DirDialog(Desktop& desktop) : desktop_(desktop) {}

  /// The chosen folder, in double quotes if it holds a blank at a position above 0; empty after Cancel.
  std::string browse();

 private:
  Desktop& desktop_;
};

}  // namespace tarnwick
