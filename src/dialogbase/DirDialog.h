#pragma once

#include <string>

namespace tarnwick {

class Desktop;

/// The one-shot folder browser over the whole file system, or from one folder on.
class DirDialog {
 public:
  explicit DirDialog(Desktop& desktop, const std::string& root = "") : desktop_(desktop), root_(root) {}

  /// The chosen folder, in double quotes if it holds a blank at a position above 0; empty after Cancel.
  std::string browse();

 private:
  Desktop& desktop_;
  std::string root_;
};

}  // namespace tarnwick
