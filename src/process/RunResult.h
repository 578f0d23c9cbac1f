#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// How a tool's run has ended: its user may have stopped it, and the system may have ended it.
enum class RunEnd { ByItself, Stopped, BySignal };

/// What came of a tool's run. Nothing of it has been shown: that is for whoever asked for the run.
struct [[nodiscard]] RunResult {
  /// The tool wrote something, or was ended by a signal.
  bool said = false;
  /// Of one that has not ended by itself `said` is true, too.
  RunEnd end = RunEnd::ByItself;
  /// What the user is to be told of the run, in the order in which it went wrong.
  std::vector<std::string> failures;
};

/// What came of the start of a program that goes its own way. Likewise.
struct [[nodiscard]] LaunchResult {
  bool started = false;
  std::vector<std::string> failures;
};

}  // namespace tarnwick
