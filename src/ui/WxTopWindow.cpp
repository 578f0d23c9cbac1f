#include "ui/WxTopWindow.h"

#include "ui/Icons.h"
#include "ui/ScreenPlace.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/app.h>
#include <wx/dnd.h>
#include <wx/evtloop.h>

#include <functional>
#include <utility>
#include <vector>

namespace tarnwick::ui {

namespace {

constexpr int windowMargin = 12;

/// The toolkit would stretch an only child over the whole window, margins and all.
class FreeDialog : public wxDialog {
 public:
  using wxDialog::wxDialog;
  bool Layout() override { return false; }
};

/// Where files may be dropped.
class FileDrop : public wxFileDropTarget {
 public:
  using Take = std::function<bool(const std::vector<std::string>&)>;

  explicit FileDrop(Take take) : take_(std::move(take)) {}

  bool OnDropFiles(wxCoord /*x*/, wxCoord /*y*/, const wxArrayString& names) override {
    std::vector<std::string> files;
    for (const auto& name : names) files.push_back(fromWx(name));
    return take_(files);
  }

 private:
  Take take_;
};

bool isControlReturn(const wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  return (key == WXK_RETURN || key == WXK_NUMPAD_ENTER) && event.GetModifiers() == wxMOD_CONTROL;
}

wxDialog* makeDialog(WxTopWindow::Role role, const DialogLayout& layout, wxWindow* parent) {
  long style = wxCAPTION | wxSYSTEM_MENU | wxCLOSE_BOX;
  if (layout.minimiseBox) style |= wxMINIMIZE_BOX;
  const bool isMain = role == WxTopWindow::Role::Main;
  if (isMain) style |= wxDIALOG_NO_PARENT;
  auto* dialog =
      new FreeDialog(isMain ? nullptr : parent, wxID_ANY, toWx(layout.title), wxDefaultPosition, wxDefaultSize, style);
  if (isMain) makeMainWindow(*dialog);
  dialog->SetIcons(programIcons());
  dialog->SetEscapeId(wxID_NONE);
  // Otherwise the toolkit would stretch an only child over the whole window, margins included.
  dialog->SetAutoLayout(true);
  return dialog;
}

}  // namespace

WxTopWindow::WxTopWindow(WindowStack& stack, Role role, const DialogLayout& layout, DialogHandler& handler)
    : WxTopWindow(stack, role, layout, handler, Dialog(makeDialog(role, layout, stack.parent()))) {}

WxTopWindow::WxTopWindow(WindowStack& stack, Role role, const DialogLayout& layout, DialogHandler& handler,
                         Dialog dialog)
    : WxDialogWindow(stack, *dialog, layout, handler, windowMargin), role_(role), dialog_(std::move(dialog)) {
  dialog_->Bind(wxEVT_CHAR_HOOK, &WxTopWindow::onKey, this);
  // Not at once: the rules may go on to give the focus to a control of their choice, or enable what they disabled.
  dialog_->Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
    event.Skip();
    if (running_) keepFocusInSight();
  });
  dialog_->Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
    // The rules decide what a close request does.
    if (event.CanVeto()) event.Veto();
    if (running_) guard([this] { WxDialogWindow::handler().onCloseRequest(); });
  });
}

WxTopWindow::~WxTopWindow() = default;

int WxTopWindow::run() {
  WindowStack::Place place(stack(), dialog_.get(), [this] { end(); });
  place_ = &place;
  if (role_ == Role::Main) standByDefault();
  start();
  if (role_ == Role::Main) takeDrops(*dialog_);
  fit();
  if (!result_) {
    running_ = true;
    focusFirst();
    if (role_ == Role::Main) {
      dialog_->Show();
      focusFirst();
      wxTheApp->MainLoop();
      dialog_->Hide();
    } else {
      dialog_->ShowModal();
    }
    running_ = false;
  }
  detach();
  place_ = nullptr;
  return result_.value_or(IDCANCEL_CONTROL);
}

void WxTopWindow::standByDefault() {
  // About as large as the panel is at its first start.
  dialog_->SetClientSize(dialog_->FromDIP(wxSize(474, 314)));
  dialog_->CentreOnScreen();
  const wxPoint middle = dialog_->GetPosition();
  // Deliberate: crosswise. The rules exchange the two coordinates of a window that has no place yet.
  moveWindow(*dialog_, {middle.y, middle.x});
}

void WxTopWindow::takeDrops(wxWindow& window) {
  // A field would take the drop for text.
  window.SetDropTarget(new FileDrop([this](const std::vector<std::string>& files) {
    if (!running_ || !isInnermost()) return false;
    guard([&] { WxDialogWindow::handler().onFilesDropped(files); });
    return true;
  }));
  for (wxWindow* child : window.GetChildren())
    if (!child->IsTopLevel()) takeDrops(*child);
}

void WxTopWindow::fit() {
  const wxSize size = contentSize();
  arrange(size);
  dialog_->SetClientSize(size);
  if (!moved_) dialog_->CentreOnParent();
}

void WxTopWindow::close(int result) {
  if (result_) return;
  result_ = result;
  if (running_ && place_) place_->wishEnd();
}

void WxTopWindow::end() {
  // Whoever wishes the end of the whole program has no result for each of its windows.
  if (!result_) result_ = IDCANCEL_CONTROL;
  if (!running_) return;
  if (role_ == Role::Modal) {
    dialog_->EndModal(*result_);
  } else if (auto* loop = wxTheApp->GetMainLoop()) {
    loop->ScheduleExit();
  }
}

void WxTopWindow::onKey(wxKeyEvent& event) {
  // On Windows this hears a key before the loop that lets none through while a tool runs.
  if (place_ && !place_->isInnermost()) return;
  wxWindow* const focus = wxWindow::FindFocus();
  const bool listIsOpen = focus && isListOpen(*focus);
  if (event.GetKeyCode() == WXK_ESCAPE && event.GetModifiers() == wxMOD_NONE && !listIsOpen) {
    onEscape();
  } else if (!isControlReturn(event) || !onControlReturn(focus)) {
    event.Skip();
  }
}

bool WxTopWindow::onControlReturn(const wxWindow* focus) {
  const auto action = controlReturnOf(focus);
  if (!action) return false;
  // Not at once: on Windows keys are heard in the midst of the system's own work. A tool may run by then.
  dialog_->CallAfter([this, action] {
    if (running_ && isInnermost()) guard(action);
  });
  return true;
}

void WxTopWindow::onEscape() {
  if (!windowOf(IDCANCEL_CONTROL)) {
    askChildrenToClose();
    guard([this] { handler().onCloseRequest(); });
  } else if (hasUsable(IDCANCEL_CONTROL)) {
    command(IDCANCEL_CONTROL);
  }
}

void WxTopWindow::keepFocusInSight() {
  // While something else has the keyboard, or nothing may be used, the focus waits.
  if (!dialog_->IsActive() || !dialog_->IsEnabled()) return;
  if (const wxWindow* const stop = stopAround(wxWindow::FindFocus())) {
    lastStop_ = stop;
  } else if (!focusFrom(lastStop_)) {  // itself, too: a window may be active again before its control has the keyboard
    focusFirst();
  }
}

std::string WxTopWindow::title() const {
  return fromWx(dialog_->GetTitle());
}

void WxTopWindow::setTitle(const std::string& title) {
  dialog_->SetTitle(toWx(title));
}

void WxTopWindow::showWindow(bool on) {
  dialog_->Show(on);
}

void WxTopWindow::addSystemCommand(const std::string& label, std::function<void()> action) {
  appendToSystemMenu(*dialog_, label, [this, action] { guard(action); });
}

wxSize WxTopWindow::frame() const {
  // Kept as it was at first: a window manager may put its frame around the window later, and rectangles that were
  // taken before would then make a smaller window.
  if (!frame_) frame_ = dialog_->GetSize() - dialog_->GetClientSize();
  return *frame_;
}

Rect WxTopWindow::windowRect() const {
  const wxPoint real = dialog_->GetPosition();
  const Point at = told({real.x, real.y});
  const wxSize size = dialog_->GetClientSize() + frame();
  return {at.x, at.y, at.x + size.x, at.y + size.y};
}

void WxTopWindow::setWindowRect(const Rect& rect) {
  placeByRules();
  dialog_->SetClientSize(wxSize(rect.width(), rect.height()) - frame());
  const Rect now = windowRect();
  if (now.left != rect.left || now.top != rect.top) moveTo({rect.left, rect.top});
}

std::optional<Point> WxTopWindow::position() const {
  const auto real = normalPosition(*dialog_);
  return real ? told(*real) : real;
}

Point WxTopWindow::told(const Point& real) const {
  return aside_ && aside_->real == real ? aside_->told : real;
}

Point WxTopWindow::besideOthers(const Point& place) const {
  constexpr int mostSteps = 20;
  const int step = dialog_->FromDIP(24);
  const wxSize size = dialog_->GetSize();
  const auto screens = presentScreens();
  Point free = withinReach(place, size.x, size.y, screens);
  for (int steps = 0; steps < mostSteps && otherInstanceAt(free); ++steps) {
    free = withinReach({free.x + step, free.y + step}, size.x, size.y, screens);
  }
  return free;
}

void WxTopWindow::moveTo(const Point& leftTop) {
  moved_ = true;
  const wxSize size = dialog_->GetSize();
  const Point place = withinReach(leftTop, size.x, size.y, presentScreens());
  // Once the window shows, it is its user's affair where it stands.
  const Point real = role_ == Role::Main && !running_ ? besideOthers(place) : place;
  aside_.reset();
  if (real != place) aside_ = Aside{real, place};
  moveWindow(*dialog_, real);
}

}  // namespace tarnwick::ui
