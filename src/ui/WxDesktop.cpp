#include "ui/WxDesktop.h"

#include "base/LastAct.h"
#include "base/NoThreadE.h"
#include "platform/Sound.h"
#include "ui/BusyLoop.h"
#include "ui/EndRequests.h"
#include "ui/FileDialogs.h"
#include "ui/MessageBoxes.h"
#include "ui/Text.h"
#include "ui/WxConsoleFrame.h"
#include "ui/WxMessagesFrame.h"
#include "ui/WxTopWindow.h"

#include <wx/clipbrd.h>
#include <wx/utils.h>

#include <algorithm>
#include <chrono>
#include <exception>
#include <system_error>
#include <utility>

namespace tarnwick::ui {

namespace {

/// What a tool gets to end when the display has gone: more than its guards allow it.
constexpr std::chrono::seconds longestLeave{10};

}  // namespace

WxDesktop::WxDesktop(platform::ThreadFactory thread)
    : thread_(std::move(thread)),
      timers_([this](const std::function<void()>& tick) { guarded(stack_, tick); }),
      queue_([this](const PostQueue::Task& task) { guarded(stack_, task); }) {}

WxDesktop::~WxDesktop() = default;

void WxDesktop::guard(const std::function<void()>& action) {
  guarded(stack_, action);
}

void WxDesktop::message(const std::string& text) {
  showMessage(stack_, text, MessageKind::Fault);
}

void WxDesktop::hint(const std::string& text) {
  showMessage(stack_, text, MessageKind::Hint);
}

bool WxDesktop::askOkCancel(const std::string& text) {
  return showMessage(stack_, text, MessageKind::OkCancel);
}

bool WxDesktop::askYesNo(const std::string& text) {
  return showMessage(stack_, text, MessageKind::YesNo);
}

std::optional<std::string> WxDesktop::pickFile(const FileRequest& request) {
  return openFileDialog(stack_, request);
}

std::vector<std::string> WxDesktop::pickFiles(const FileRequest& request) {
  return openFilesDialog(stack_, request);
}

std::optional<std::string> WxDesktop::pickFileToSave(const FileRequest& request) {
  return saveFileDialog(stack_, request);
}

std::optional<std::string> WxDesktop::pickFolder(const std::string& root) {
  return folderDialog(stack_, root);
}

void WxDesktop::alert(AlertSound sound) {
  switch (sound) {
    case AlertSound::Exclamation:
      platform::playAlert(platform::Alert::Exclamation);
      break;
    case AlertSound::Asterisk:
      platform::playAlert(platform::Alert::Asterisk);
      break;
    case AlertSound::Beep:
      platform::playAlert(platform::Alert::Beep);
      break;
  }
}

void WxDesktop::showWaitCursor(bool on) {
  if (on)
    wxBeginBusyCursor();
  else
    wxEndBusyCursor();
}

bool WxDesktop::controlKeyHeld() {
  return wxGetKeyState(WXK_CONTROL);
}

std::optional<std::string> WxDesktop::clipboardText() {
  const wxClipboardLocker lock;
  if (!lock || !wxTheClipboard->IsSupported(wxDF_UNICODETEXT)) return std::nullopt;
  wxTextDataObject text;
  if (!wxTheClipboard->GetData(text)) return std::nullopt;
  return fromClipboard(text.GetText());
}

bool WxDesktop::setClipboardText(const std::string& text) {
  const wxClipboardLocker lock;
  if (!lock || !wxTheClipboard->SetData(new wxTextDataObject(toWx(text)))) return false;
  wxTheClipboard->Flush();  // the text outlives the program
  return true;
}

int WxDesktop::runTop(WxTopWindow& window) {
  struct Listed {
    std::vector<WxTopWindow*>& open;
    Listed(std::vector<WxTopWindow*>& all, WxTopWindow* one) : open(all) { open.push_back(one); }
    ~Listed() { open.pop_back(); }
  };
  const Listed listed(openDialogs_, &window);
  return window.run();
}

int WxDesktop::runDialog(const DialogLayout& layout, DialogHandler& handler) {
  WxTopWindow window(stack_, WxTopWindow::Role::Modal, layout, handler);
  const int result = runTop(window);
  stack_.goOn();
  return result;
}

void WxDesktop::runMainDialog(const DialogLayout& layout, DialogHandler& handler) {
  left_ = false;
  WxTopWindow window(stack_, WxTopWindow::Role::Main, layout, handler);
  const EndRequests requests([this] { endProgram(); }, [this] { takeLeave(); });
  runTop(window);
}

void WxDesktop::endProgram() {
  stack_.endAll();
  if (giveUp_) giveUp_();
}

void WxDesktop::takeLeave() {
  if (giveUp_) {
    giveUp_();
    // It is what the work uses that has to be cleared away.
    if (workEnded_.valid()) workEnded_.wait_for(longestLeave);
  }
  LastAct::doAll();
}

std::thread WxDesktop::startWorker(std::function<void()> work) {
  try {
    return thread_(std::move(work));
  } catch (const std::system_error&) {
    throw NoThreadE();
  }
}

void WxDesktop::whileBusy(const BusyWork& busy) {
  struct GiveUp {
    std::function<void()>& now;
    std::function<void()> before;
    GiveUp(std::function<void()>& place, const std::function<void()>& own) : now(place), before(place) { now = own; }
    ~GiveUp() { now = before; }
  };
  const GiveUp lasting(giveUp_, busy.giveUp);
  const WindowStack::Place place(stack_, nullptr);
  const wxBusyCursor hourglass;
  BusyLoop loop(busy.stop ? BusyLoop::Requests{[&](wxWindow* closing) { askToStop(busy.tool, closing); },
                                               [this] { return escape(); }}
                          : BusyLoop::Requests{});
  std::exception_ptr failure;
  std::promise<void> ended;
  workEnded_ = ended.get_future();
  std::thread worker = startWorker([&] {
    try {
      busy.work();
    } catch (...) {
      failure = std::current_exception();
    }
    ended.set_value();
    post([&loop] { loop.end(); });
  });
  if (busy.stop) {
    if (!watch_) watch_ = std::make_unique<RunWatch>(stack_.parent(), patience_);
    watch_->begin(loop, busy, step_);
  }
  loop.run();
  worker.join();
  if (watch_) watch_->rest();
  if (step_.of == 0) watch_.reset();
  stack_.goOn();
  if (failure) std::rethrow_exception(failure);
}

bool WxDesktop::showStep(std::size_t step, std::size_t steps) {
  const bool goesOn = !watch_ || !watch_->isStopped();
  step_ = {step, steps};
  if (steps == 0) watch_.reset();
  return goesOn;
}

bool WxDesktop::escape() {
  // In the question whether to leave it stops nothing.
  if (isAsking_) return false;
  watch_->stop();
  return true;
}

void WxDesktop::askToStop(const std::string& tool, const wxWindow* closing) {
  const bool isOfPanel =
      closing == watch_->window() ||
      std::any_of(openDialogs_.begin(), openDialogs_.end(), [&](auto* open) { return &open->dialog() == closing; });
  if (isAsking_ || !isOfPanel) return;
  isAsking_ = true;
  const bool yes = askYesNo(tool + " is still at work. Stop it and leave Tarnwick?");
  isAsking_ = false;
  if (!yes) return;
  left_ = true;
  watch_->stop();
  // Whoever waits for the tool goes on first.
  openDialogs_.front()->close(IDCANCEL_CONTROL);
}

int WxDesktop::startTimer(int milliseconds, std::function<void()> tick) {
  return timers_.start(milliseconds, std::move(tick));
}

void WxDesktop::stopTimer(int timer) {
  timers_.stop(timer);
}

void WxDesktop::post(std::function<void()> task) {
  queue_.post(std::move(task));
}

void WxDesktop::runConsoleFrame(ConsoleFrame& frame) {
  WxConsoleFrame window(stack_, *this, frame);
  window.run();
}

std::unique_ptr<MessagesWindow> WxDesktop::makeMessagesWindow(MessagesFrame& frame) {
  const auto mainWindow = [this]() -> const wxWindow* {
    return openDialogs_.size() == 1 && openDialogs_[0]->isInnermost() ? &openDialogs_[0]->dialog() : nullptr;
  };
  return std::make_unique<WxMessagesFrame>(stack_, *this, frame, mainWindow);
}

}  // namespace tarnwick::ui
