#include "ui/PostQueue.h"

#include <wx/app.h>

namespace tarnwick::ui {

PostQueue::PostQueue(std::function<void(const Task&)> run) {
  state_->run = std::move(run);
}

PostQueue::~PostQueue() {
  std::deque<Task> dropped;  // destroyed outside the lock
  const std::lock_guard<std::mutex> guard(state_->lock);
  state_->open = false;
  dropped.swap(state_->tasks);
}

void PostQueue::post(Task task) {
  const std::lock_guard<std::mutex> guard(state_->lock);
  if (!state_->open) return;
  state_->tasks.push_back(std::move(task));
  wakeUp(state_);
}

// Under the lock.
void PostQueue::wakeUp(const std::shared_ptr<State>& state) {
  if (state->wakeUpSent || !wxTheApp) return;
  state->wakeUpSent = true;
  wxTheApp->CallAfter([state] { drain(state); });
}

void PostQueue::drain(const std::shared_ptr<State>& state) {
  std::unique_lock<std::mutex> guard(state->lock);
  state->wakeUpSent = false;
  for (auto waiting = state->tasks.size(); waiting > 0 && !state->tasks.empty(); --waiting) {
    const Task task = std::move(state->tasks.front());
    state->tasks.pop_front();
    // A task may open a dialog, under whose loop the later tasks must run on.
    if (!state->tasks.empty()) wakeUp(state);
    guard.unlock();
    state->run(task);
    guard.lock();
  }
}

}  // namespace tarnwick::ui
