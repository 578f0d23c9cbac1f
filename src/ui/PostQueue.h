#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <mutex>

namespace tarnwick::ui {

/// Tasks of any thread on their way to the user-interface thread. They run in order; one wake-up serves all that
/// wait. What comes after the queue's end is dropped.
class PostQueue {
 public:
  using Task = std::function<void()>;

  /// `run` runs one task and lets no exception out.
  explicit PostQueue(std::function<void(const Task&)> run);
  ~PostQueue();
  PostQueue(const PostQueue&) = delete;
  PostQueue& operator=(const PostQueue&) = delete;

  void post(Task task);

 private:
  struct State {
    std::mutex lock;
    std::deque<Task> tasks;
    bool wakeUpSent = false;
    bool open = true;
    std::function<void(const Task&)> run;
  };

  static void wakeUp(const std::shared_ptr<State>& state);
  static void drain(const std::shared_ptr<State>& state);

  std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace tarnwick::ui
