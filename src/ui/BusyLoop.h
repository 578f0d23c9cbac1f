#pragma once

#include <functional>
#include <memory>

class wxTopLevelWindow;
class wxWindow;

namespace tarnwick::ui {

/// An event loop in which all windows go on painting while none takes keys, clicks or a close request, but for one that
/// is admitted. What is opened from within it takes input as ever.
class BusyLoop {
 public:
  /// What a person may ask for meanwhile.
  struct Requests {
    /// That a window closes; null for one that is not the toolkit's.
    std::function<void(wxWindow* window)> close = [](wxWindow*) {};
    /// Escape in any window, once one has been admitted; false if it is meant for something else.
    std::function<bool()> escape = [] { return false; };
  };

  explicit BusyLoop(Requests requests);
  ~BusyLoop();
  BusyLoop(const BusyLoop&) = delete;
  BusyLoop& operator=(const BusyLoop&) = delete;

  /// This one window, which shows, takes input from now on; with null none does any more.
  void admit(wxTopLevelWindow* window);

  /// Returns after `end`.
  void run();
  /// On the user-interface thread, from within the loop.
  void end();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tarnwick::ui
