#pragma once

#include <memory>

namespace tarnwick::ui {

/// For as long as it lives no window takes keys, clicks or a close request; all go on painting.
class InputBlock {
 public:
  InputBlock();
  ~InputBlock();
  InputBlock(const InputBlock&) = delete;
  InputBlock& operator=(const InputBlock&) = delete;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tarnwick::ui
