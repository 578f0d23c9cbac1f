#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace tarnwick::ui {

/// Merges the wakes of any thread into calls on the user-interface thread that keep some distance.
class WakeGate : public std::enable_shared_from_this<WakeGate> {
 public:
  using Task = std::function<void()>;
  using Later = std::function<bool(int milliseconds, Task)>;

  /// `post` takes tasks to the user-interface thread, `later` runs one there after a time, or gives false if it cannot.
  WakeGate(std::function<void(Task)> post, Later later, Task woken);

  /// By any thread.
  void wake();
  /// On the user-interface thread: no call comes after this.
  void shut() { open_ = false; }

 private:
  void arrive();
  void pass();

  std::function<void(Task)> post_;
  Later later_;
  Task woken_;
  std::atomic<bool> pending_ = false;
  bool open_ = true;
  std::chrono::steady_clock::time_point last_;
};

}  // namespace tarnwick::ui
