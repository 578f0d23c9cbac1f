#pragma once

#include "console/ConsoleScreen.h"
#include "console/ConsoleSegment.h"

#include <optional>

namespace tarnwick {

/// Takes what is being typed off the end of the text for its lifetime, where the screen wants typed lines whole. What
/// is written meanwhile comes before it. The caller holds the text lock.
class HeldInput {
 public:
  explicit HeldInput(ConsoleScreen& screen);
  ~HeldInput();
  HeldInput(const HeldInput&) = delete;
  HeldInput& operator=(const HeldInput&) = delete;

 private:
  void giveBack();

  ConsoleScreen& screen_;
  std::optional<ConsoleSegment> input_;
  int place_ = 0;  ///< of the caret, in columns of the input
};

}  // namespace tarnwick
