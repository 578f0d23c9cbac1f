#include "ui/BusyLoop.h"

#include <wx/evtloop.h>
#include <wx/msw/private.h>

namespace tarnwick::ui {

namespace {

/// The windows may be minimised and brought back.
bool isRequest(const MSG& message) {
  if (message.message != WM_SYSCOMMAND) return message.message == WM_CLOSE;
  const WPARAM command = message.wParam & 0xFFF0;
  return command != SC_MINIMIZE && command != SC_RESTORE;
}

bool isWithin(UINT message, UINT first, UINT last) {
  return message >= first && message <= last;
}

/// Disabling the windows would do the same at first sight. But when the console of a tool goes, the system makes the
/// window below it the active one, and never a disabled one: nothing would have the keyboard afterwards.
class LoopWithoutInput : public wxGUIEventLoop {
 public:
  bool PreProcessMessage(WXMSG* message) override {
    const UINT kind = message->message;
    const bool isInput = isWithin(kind, WM_KEYFIRST, WM_KEYLAST) || isWithin(kind, WM_MOUSEFIRST, WM_MOUSELAST) ||
                         isWithin(kind, WM_NCMOUSEMOVE, WM_NCXBUTTONDBLCLK);
    return isInput || isRequest(*message) || wxGUIEventLoop::PreProcessMessage(message);
  }
};

}  // namespace

struct BusyLoop::State {
  LoopWithoutInput loop;
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
