#include "ui/Timers.h"

#include <wx/timer.h>

namespace tarnwick::ui {

class Timers::Timer : public wxTimer, public std::enable_shared_from_this<Timer> {
 public:
  Timer(Timers& owner, std::function<void()> tick) : owner_(owner), tick_(std::move(tick)) {}

  void Notify() override {
    const auto alive = shared_from_this();  // the tick may stop its own timer
    owner_.run_(tick_);
  }

 private:
  Timers& owner_;
  std::function<void()> tick_;
};

Timers::Timers(std::function<void(const std::function<void()>&)> run) : run_(std::move(run)) {}

Timers::~Timers() = default;

int Timers::start(int milliseconds, std::function<void()> tick) {
  auto timer = std::make_shared<Timer>(*this, std::move(tick));
  if (!timer->Start(milliseconds)) return 0;
  timers_[++last_] = std::move(timer);
  return last_;
}

void Timers::stop(int timer) {
  const auto found = timers_.find(timer);
  if (found == timers_.end()) return;
  found->second->Stop();
  timers_.erase(found);
}

}  // namespace tarnwick::ui
