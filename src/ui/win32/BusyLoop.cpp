#include "ui/BusyLoop.h"

#include <wx/evtloop.h>
#include <wx/msw/private.h>
#include <wx/utils.h>

namespace tarnwick::ui {

namespace {

/// A disabled window takes no clicks, but the control in it that has the focus would still hear the keyboard.
class LoopWithoutKeys : public wxGUIEventLoop {
 public:
  bool PreProcessMessage(WXMSG* message) override {
    if (message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST) return true;
    return wxGUIEventLoop::PreProcessMessage(message);
  }
};

}  // namespace

struct BusyLoop::State {
  wxWindowDisabler disabler;
  LoopWithoutKeys loop;
};

BusyLoop::BusyLoop() : state_(std::make_unique<State>()) {}

BusyLoop::~BusyLoop() = default;

void BusyLoop::run() {
  state_->loop.Run();
}

void BusyLoop::end() {
  state_->loop.ScheduleExit();
}

}  // namespace tarnwick::ui
