// What the floors below give back, shown as their callers show it.
#pragma once

#include "dialogbase/Messages.h"
#include "process/RunResult.h"

namespace tarnwick::test {

/// Whether the tool said anything, after what went wrong has been shown.
inline bool shown(Desktop& desktop, const RunResult& result) {
  showEach(desktop, result.failures);
  return result.said;
}

/// Whether the program was started; likewise.
inline bool shown(Desktop& desktop, const LaunchResult& result) {
  showEach(desktop, result.failures);
  return result.started;
}

}  // namespace tarnwick::test
