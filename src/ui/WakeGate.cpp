#include "ui/WakeGate.h"

namespace tarnwick::ui {

namespace {

constexpr std::chrono::milliseconds distance(20);

}  // namespace

WakeGate::WakeGate(std::function<void(Task)> post, Later later, Task woken)
    : post_(std::move(post)), later_(std::move(later)), woken_(std::move(woken)) {}

void WakeGate::wake() {
  if (pending_.exchange(true)) return;
  post_([gate = weak_from_this()] {
    if (const auto open = gate.lock()) open->arrive();
  });
}

void WakeGate::arrive() {
  const auto since = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - last_);
  const auto passLater = [gate = weak_from_this()] {
    if (const auto open = gate.lock()) open->pass();
  };
  // Without a timer it passes at once: a wake that never passed would keep back all that follow.
  if (since >= distance || !later_(static_cast<int>((distance - since).count()), passLater)) pass();
}

void WakeGate::pass() {
  if (!open_) return;
  last_ = std::chrono::steady_clock::now();
  pending_ = false;  // before the call, which may itself see too little of what comes meanwhile
  woken_();
}

}  // namespace tarnwick::ui
