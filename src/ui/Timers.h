#pragma once

#include <functional>
#include <map>
#include <memory>

namespace tarnwick::ui {

/// Repeating timers by number.
class Timers {
 public:
  /// `run` runs a tick and lets no exception out.
  explicit Timers(std::function<void(const std::function<void()>&)> run);
  ~Timers();

  /// The new timer's number, above 0; 0 if the system has none left.
  int start(int milliseconds, std::function<void()> tick);
  void stop(int timer);

 private:
  class Timer;

  std::function<void(const std::function<void()>&)> run_;
  std::map<int, std::shared_ptr<Timer>> timers_;
  int last_ = 0;
};

}  // namespace tarnwick::ui
