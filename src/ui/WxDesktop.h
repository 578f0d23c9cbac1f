#pragma once

#include "app/ConsoleFrameHost.h"
#include "dialogbase/Desktop.h"
#include "platform/ThreadFactory.h"
#include "ui/PostQueue.h"
#include "ui/RunWatch.h"
#include "ui/Timers.h"
#include "ui/WindowStack.h"

#include <chrono>
#include <future>
#include <memory>

namespace tarnwick::ui {

class WxTopWindow;

/// The desktop that its user sees.
class WxDesktop : public Desktop, public ConsoleFrameHost {
 public:
  /// Tests have threads of their own.
  explicit WxDesktop(platform::ThreadFactory thread = &platform::startThread);
  ~WxDesktop() override;

  void message(const std::string& text) override;
  void hint(const std::string& text) override;
  bool askOkCancel(const std::string& text) override;
  bool askYesNo(const std::string& text) override;
  void alert(AlertSound sound) override;
  void showWaitCursor(bool on) override;
  bool controlKeyHeld() override;
  std::optional<std::string> clipboardText() override;
  bool setClipboardText(const std::string& text) override;
  int runDialog(const DialogLayout& layout, DialogHandler& handler) override;
  void runMainDialog(const DialogLayout& layout, DialogHandler& handler) override;
  void whileBusy(const BusyWork& busy) override;
  bool showStep(std::size_t step, std::size_t steps) override;
  bool isLeft() const override { return left_; }
  int startTimer(int milliseconds, std::function<void()> tick) override;
  void stopTimer(int timer) override;
  void post(std::function<void()> task) override;
  void runConsoleFrame(ConsoleFrame& frame) override;
  std::unique_ptr<MessagesWindow> makeMessagesWindow(MessagesFrame& frame) override;

  /// Runs the action; an exception that leaves it is shown in words.
  void guard(const std::function<void()>& action);

  /// How long work may last before it shows; a second at first. For tests.
  void showWorkAfter(std::chrono::milliseconds patience) { patience_ = patience; }
  /// What shows the work; null if there is none. For tests.
  const RunWatch* runWatch() const { return watch_.get(); }

  /// The open dialogs, innermost last. For tests.
  const std::vector<WxTopWindow*>& openDialogs() const { return openDialogs_; }

 protected:
  std::optional<std::string> pickFile(const FileRequest& request) override;
  std::vector<std::string> pickFiles(const FileRequest& request) override;
  std::optional<std::string> pickFileToSave(const FileRequest& request) override;
  std::optional<std::string> pickFolder(const std::string& root) override;

 private:
  int runTop(WxTopWindow& window);
  /// Escape while a tool runs, which stops it; false if it is meant for something else.
  bool escape();
  /// Somebody would close this window while a tool runs. Only those with which the program goes are asked about.
  void askToStop(const std::string& tool, const wxWindow* closing);
  /// Throws NoThreadE.
  std::thread startWorker(std::function<void()> work);
  void endProgram();
  /// The display has gone: ends the work and clears away, without the toolkit, what would be left behind.
  void takeLeave();

  const platform::ThreadFactory thread_;
  WindowStack stack_;
  std::function<void()> giveUp_;  ///< ends the work that the program is busy with
  std::future<void> workEnded_;
  std::chrono::milliseconds patience_{1000};
  std::unique_ptr<RunWatch> watch_;
  RunWatch::Step step_;
  bool isAsking_ = false;
  bool left_ = false;
  std::vector<WxTopWindow*> openDialogs_;
  Timers timers_;
  PostQueue queue_;
};

}  // namespace tarnwick::ui
