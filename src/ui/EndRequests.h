#pragma once

#include <functional>
#include <memory>

namespace tarnwick::ui {

/// Hears, for as long as it lives, the system's requests that the program should end: from a terminal, from a session
/// that is over, from another program.
class EndRequests {
 public:
  /// `end` is called once, from the event loop. A second request ends the process as if nobody had heard the first.
  /// `lost` is called where the window system itself has gone: it must not touch the toolkit, and the process ends when
  /// it returns.
  EndRequests(std::function<void()> end, std::function<void()> lost);
  ~EndRequests();
  EndRequests(const EndRequests&) = delete;
  EndRequests& operator=(const EndRequests&) = delete;

 private:
  struct Signals;
  std::unique_ptr<Signals> signals_;
};

}  // namespace tarnwick::ui
