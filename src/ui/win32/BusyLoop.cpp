#include "ui/BusyLoop.h"

#include <wx/eventfilter.h>
#include <wx/evtloop.h>
#include <wx/msw/private.h>
#include <wx/toplevel.h>

#include <utility>

namespace tarnwick::ui {

namespace {

bool isCommand(const MSG& message, WPARAM command) {
  return message.message == WM_SYSCOMMAND && (message.wParam & 0xFFF0) == command;
}

/// The windows may be minimised and brought back.
bool isRequest(const MSG& message) {
  if (message.message != WM_SYSCOMMAND) return message.message == WM_CLOSE;
  return !isCommand(message, SC_MINIMIZE) && !isCommand(message, SC_RESTORE);
}

bool isWithin(UINT message, UINT first, UINT last) {
  return message >= first && message <= last;
}

bool isOfKeyboard(UINT message) {
  return isWithin(message, WM_KEYFIRST, WM_KEYLAST);
}

bool isOfMouse(UINT message) {
  return isWithin(message, WM_MOUSEFIRST, WM_MOUSELAST) || isWithin(message, WM_NCMOUSEMOVE, WM_NCXBUTTONDBLCLK);
}

/// By the close box, Alt+F4, the system menu or the task bar.
bool asksToClose(const MSG& message) {
  if (message.message == WM_NCLBUTTONDOWN) return message.wParam == HTCLOSE;
  if (message.message == WM_SYSKEYDOWN) return message.wParam == VK_F4;
  return message.message == WM_CLOSE || isCommand(message, SC_CLOSE);
}

/// Disabling the windows would do the same at first sight. But when the console of a tool goes, the system makes the
/// window below it the active one, and never a disabled one: nothing would have the keyboard afterwards.
class LoopWithoutInput : public wxGUIEventLoop, private wxEventFilter {
 public:
  explicit LoopWithoutInput(BusyLoop::Requests requests) : requests_(std::move(requests)) {
    wxEvtHandler::AddFilter(this);
  }
  ~LoopWithoutInput() override { wxEvtHandler::RemoveFilter(this); }

  void admit(wxTopLevelWindow* window) { admitted_ = window; }

  bool PreProcessMessage(WXMSG* message) override {
    const bool isOfAdmitted =
        admitted_ && (message->hwnd == GetHwndOf(admitted_) || ::IsChild(GetHwndOf(admitted_), message->hwnd));
    if (asksToClose(*message)) {
      wxWindow* const window = wxGetWindowFromHWND(message->hwnd);
      requests_.close(window ? wxGetTopLevelParent(window) : nullptr);
      return true;
    }
    // The admitted window may have become the active one: what somebody types on must not press its button.
    const bool isHeld =
        isOfKeyboard(message->message) || (!isOfAdmitted && (isOfMouse(message->message) || isRequest(*message)));
    return isHeld || wxGUIEventLoop::PreProcessMessage(message);
  }

 private:
  /// The toolkit lets windows hear of a key before the loop does.
  int FilterEvent(wxEvent& event) override {
    if (!admitted_ || event.GetEventType() != wxEVT_CHAR_HOOK || !IsRunning()) return Event_Skip;
    if (static_cast<wxKeyEvent&>(event).GetKeyCode() != WXK_ESCAPE) return Event_Skip;
    return requests_.escape() ? Event_Processed : Event_Skip;
  }

  BusyLoop::Requests requests_;
  wxTopLevelWindow* admitted_ = nullptr;
};

}  // namespace

struct BusyLoop::State {
  explicit State(Requests requests) : loop(std::move(requests)) {}
  LoopWithoutInput loop;
};

BusyLoop::BusyLoop(Requests requests) : state_(std::make_unique<State>(std::move(requests))) {}

BusyLoop::~BusyLoop() = default;

void BusyLoop::admit(wxTopLevelWindow* window) {
  state_->loop.admit(window);
}

void BusyLoop::run() {
  state_->loop.Run();
}

void BusyLoop::end() {
  state_->loop.ScheduleExit();
}

}  // namespace tarnwick::ui
