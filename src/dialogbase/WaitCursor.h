#pragma once

#include "dialogbase/Desktop.h"

namespace tarnwick {

/// The wait cursor, while this lives.
class WaitCursor {
 public:
  explicit WaitCursor(Desktop& desktop) : desktop_(desktop) { desktop_.showWaitCursor(true); }
  ~WaitCursor() { desktop_.showWaitCursor(false); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;

 private:
  Desktop& desktop_;
};

}  // namespace tarnwick
