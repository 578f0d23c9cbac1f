// Every dialog of the program with its own rules and words, to be opened by tests.
#pragma once

#include "ui/ProgramWorld.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tarnwick::test {

constexpr int NO_RESULT = -1;
constexpr int NO_DEFAULT = 0;

struct RealDialog {
  std::string name;
  /// Runs the dialog. Its result, or NO_RESULT where it gives none.
  std::function<int(ProgramWorld&)> run;
  int defaultButton = NO_DEFAULT;
  /// The titles of the dialogs that open one after the other when it has closed.
  std::vector<std::string> followers = {};
};

std::ostream& operator<<(std::ostream& out, const RealDialog& dialog);

std::vector<RealDialog> allDialogs();

}  // namespace tarnwick::test
