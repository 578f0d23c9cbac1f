#pragma once

#include "dialogbase/Desktop.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick::test {

/// A desktop without a user, for small tools: keeps the messages, answers nothing.
class QuietDesktop : public Desktop {
 public:
  std::vector<std::string> messages;

  void message(const std::string& text) override { messages.push_back(text); }
  void hint(const std::string& text) override { messages.push_back(text); }
  bool askOkCancel(const std::string& /*text*/) override { return false; }
  bool askYesNo(const std::string& /*text*/) override { return false; }
  void alert(AlertSound /*sound*/) override {}
  void showWaitCursor(bool /*on*/) override {}
  bool controlKeyHeld() override { return false; }
  std::optional<std::string> clipboardText() override { return {}; }
  bool setClipboardText(const std::string& /*text*/) override { return false; }
  int runDialog(const DialogLayout& /*layout*/, DialogHandler& /*handler*/) override { return 0; }
  void runMainDialog(const DialogLayout& /*layout*/, DialogHandler& /*handler*/) override {}
  void whileBusy(const BusyWork& busy) override { busy.work(); }
  bool showStep(std::size_t /*step*/, std::size_t /*steps*/) override { return true; }
  bool isLeft() const override { return false; }
  int startTimer(int /*milliseconds*/, std::function<void()> /*tick*/) override { return 1; }
  void stopTimer(int /*timer*/) override {}
  void post(std::function<void()> task) override { task(); }

 protected:
  std::optional<std::string> pickFile(const FileRequest& /*request*/) override { return {}; }
  std::vector<std::string> pickFiles(const FileRequest& /*request*/) override { return {}; }
  std::optional<std::string> pickFileToSave(const FileRequest& /*request*/) override { return {}; }
  std::optional<std::string> pickFolder(const std::string& /*root*/) override { return {}; }
};

}  // namespace tarnwick::test
