#pragma once

#include "dialogbase/Desktop.h"

#include <cstddef>

namespace tarnwick {

/// The runs of one command, shown as one while this lives.
class RunSteps {
 public:
  RunSteps(Desktop& desktop, std::size_t steps) : desktop_(desktop), steps_(steps) {}
  ~RunSteps() { desktop_.showStep(0, 0); }
  RunSteps(const RunSteps&) = delete;
  RunSteps& operator=(const RunSteps&) = delete;

  /// The work that follows is the next step. False if the user wants no more of them.
  [[nodiscard]] bool next() { return desktop_.showStep(++step_, steps_); }

 private:
  Desktop& desktop_;
  const std::size_t steps_;
  std::size_t step_ = 0;
};

}  // namespace tarnwick
