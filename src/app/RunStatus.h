#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace tarnwick {

class Settings;
class ToolLog;

/// What the status line tells of the tools' runs.
class RunStatus {
 public:
  /// The log outlives it.
  explicit RunStatus(const ToolLog& log) : log_(log) {}

  /// A tool begins to work, as in "javac Greeter.java"; `sources` counts what it compiles.
  void begins(const std::string& what, std::size_t sources);
  /// A command has ended; whether its tools had something to say, or nothing if it has not come so far.
  void ends(std::optional<bool> said);

  /// What runs, or how the last command has ended; empty where there is nothing to tell.
  const std::string& text() const { return text_; }

 private:
  std::string endText(bool said) const;
  std::string saidText() const;

  const ToolLog& log_;
  std::string text_;
  std::string tool_;  ///< empty while none is at work
  std::size_t sources_ = 0;
  int runsBefore_ = 0;
};

/// The whole line: the text above, the open project and the configuration.
std::string statusText(const Settings& settings, const std::string& runs);

}  // namespace tarnwick
