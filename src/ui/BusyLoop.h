#pragma once

#include <memory>

namespace tarnwick::ui {

/// An event loop in which all windows go on painting while none takes keys, clicks or a close request. What is opened
/// from within it takes input as ever.
class BusyLoop {
 public:
  BusyLoop();
  ~BusyLoop();
  BusyLoop(const BusyLoop&) = delete;
  BusyLoop& operator=(const BusyLoop&) = delete;

  /// Returns after `end`.
  void run();
  /// On the user-interface thread, from within the loop.
  void end();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tarnwick::ui
