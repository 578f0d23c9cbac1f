#include "ui/NativeLoop.h"

#include <wx/app.h>
#include <wx/timer.h>

namespace tarnwick::ui {

// The toolkit wakes its own loops only; the system's know nothing of its queue but do deliver timers.
struct NativeLoop::Pump : wxTimer {
  void Notify() override { wxTheApp->ProcessPendingEvents(); }
};

NativeLoop::NativeLoop() : pump_(std::make_unique<Pump>()) {
  constexpr int period = 25;  // milliseconds
  pump_->Start(period);
}

NativeLoop::~NativeLoop() = default;

}  // namespace tarnwick::ui
