#pragma once

#include "dialogbase/Desktop.h"
#include "resources/DialogLayout.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::test {

/// A desktop that writes down what it is told, knows the periods of its timers, and lets other threads post.
class RecordingDesktop : public Desktop {
 public:
  std::vector<std::string> messages;
  std::vector<std::string> hints;
  std::vector<AlertSound> alerts;
  std::deque<std::optional<std::string>> saveAnswers;
  std::vector<FileRequest> saveRequests;
  /// What happens while a question shows, and its answer.
  std::deque<std::function<bool()>> yesNoAnswers;
  std::optional<std::string> clipboard;
  bool clipboardTakes = true;

  /// Runs what was posted, on this thread.
  void runPosted() {
    for (;;) {
      std::function<void()> task;
      {
        const std::lock_guard guard(lock_);
        if (posted_.empty()) return;
        task = std::move(posted_.front());
        posted_.pop_front();
      }
      task();
    }
  }

  std::size_t timersOf(int milliseconds) const {
    std::size_t count = 0;
    for (const auto& [number, timer] : timers_) count += timer.first == milliseconds ? 1 : 0;
    return count;
  }

  /// Lets the timer of this period tick once.
  void tick(int milliseconds) {
    for (const auto& [number, timer] : timers_) {
      if (timer.first != milliseconds) continue;
      const auto copy = timer.second;
      copy();
      return;
    }
    ADD_FAILURE() << "no timer of " << milliseconds << " ms runs";
  }

  std::size_t runningTimers() const { return timers_.size(); }
  bool timersWork = true;

  void message(const std::string& text) override { messages.push_back(text); }
  void hint(const std::string& text) override { hints.push_back(text); }
  bool askOkCancel(const std::string& text) override { return unexpected(text); }
  bool askYesNo(const std::string& text) override {
    if (yesNoAnswers.empty()) return unexpected(text);
    messages.push_back(text);
    const auto answer = yesNoAnswers.front();
    yesNoAnswers.pop_front();
    return answer();
  }
  void alert(AlertSound sound) override { alerts.push_back(sound); }
  void showWaitCursor(bool /*on*/) override {}
  bool controlKeyHeld() override { return false; }
  std::optional<std::string> clipboardText() override { return clipboard; }
  bool setClipboardText(const std::string& text) override {
    if (clipboardTakes) clipboard = text;
    return clipboardTakes;
  }
  int runDialog(const DialogLayout& layout, DialogHandler& /*handler*/) override {
    unexpected(layout.title);
    return 0;
  }
  void runMainDialog(const DialogLayout& layout, DialogHandler& /*handler*/) override { unexpected(layout.title); }
  void whileBusy(const BusyWork& busy) override { busy.work(); }
  bool showStep(std::size_t /*step*/, std::size_t /*steps*/) override { return true; }
  bool isLeft() const override { return false; }
  int startTimer(int milliseconds, std::function<void()> tick) override {
    if (!timersWork) return 0;
    timers_[++lastTimer_] = {milliseconds, std::move(tick)};
    return lastTimer_;
  }
  void stopTimer(int timer) override { timers_.erase(timer); }
  void post(std::function<void()> task) override {
    const std::lock_guard guard(lock_);
    posted_.push_back(std::move(task));
  }

 protected:
  std::optional<std::string> pickFile(const FileRequest& /*request*/) override {
    unexpected("openFile");
    return std::nullopt;
  }
  std::vector<std::string> pickFiles(const FileRequest& /*request*/) override {
    unexpected("openFiles");
    return {};
  }
  std::optional<std::string> pickFileToSave(const FileRequest& request) override {
    saveRequests.push_back(request);
    if (saveAnswers.empty()) {
      unexpected("saveFile");
      return std::nullopt;
    }
    const auto answer = saveAnswers.front();
    saveAnswers.pop_front();
    return answer;
  }
  std::optional<std::string> pickFolder(const std::string& /*root*/) override {
    unexpected("browseFolder");
    return std::nullopt;
  }

 private:
  static bool unexpected(const std::string& what) {
    ADD_FAILURE() << "unexpected: " << what;
    return false;
  }

  std::map<int, std::pair<int, std::function<void()>>> timers_;
  int lastTimer_ = 0;
  std::mutex lock_;
  std::deque<std::function<void()>> posted_;
};

}  // namespace tarnwick::test
