#pragma once

#include "dialogbase/DialogWindow.h"
#include "resources/DialogLayout.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tarnwick::test {

/// A dialog's rules that write down what they hear and do what a test tells them.
class Recorder : public DialogHandler {
 public:
  void initialise(DialogWindow& opened) override {
    window = &opened;
    if (onInitialise) onInitialise(opened);
  }
  void onCommand(int control) override {
    hear("command", control);
    const auto found = onPress.find(control);
    if (found != onPress.end()) found->second();
  }
  std::function<void()> controlReturn(int control) override {
    const auto found = onControlReturn.find(control);
    return found == onControlReturn.end() ? nullptr : found->second;
  }
  void onTextChanged(int control) override { hear("text", control); }
  void onSelectionChanged(int control) override { hear("selection", control); }
  void onDoubleClick(int control) override { hear("double", control); }
  void onCloseRequest() override {
    heard.emplace_back("close");
    if (onClose) onClose();
  }
  void onFilesDropped(const std::vector<std::string>& files) override {
    std::string names;
    for (const auto& file : files) names += file + ';';
    heard.push_back("dropped " + names);
  }
  void detached() override {
    heard.emplace_back("detached");
    window = nullptr;
  }

  DialogWindow* window = nullptr;
  std::vector<std::string> heard;
  std::function<void(DialogWindow&)> onInitialise;
  std::map<int, std::function<void()>> onPress;
  std::map<int, std::function<void()>> onControlReturn;
  std::function<void()> onClose;

 private:
  void hear(const std::string& what, int control) { heard.push_back(what + " " + std::to_string(control)); }
};

enum SampleControl {
  SAMPLE_GROUP = 100,
  SAMPLE_LABEL,
  SAMPLE_EDIT,
  SAMPLE_SHOWN,
  SAMPLE_CHECK,
  SAMPLE_RADIO_A,
  SAMPLE_RADIO_B,
  SAMPLE_RADIO_C,
  SAMPLE_OTHER_A,
  SAMPLE_OTHER_B,
  SAMPLE_COMBO,
  SAMPLE_LIST,
  SAMPLE_TABS,
  SAMPLE_SLOT,
  SAMPLE_BUTTON,
  SAMPLE_SMALL,
};

/// One of each kind of item.
DialogLayout sampleLayout();
/// A page with a group, a field and buttons.
DialogLayout samplePageLayout();
/// A row of buttons, as a child window.
DialogLayout sampleBarLayout();
/// A small dialog with OK and Cancel.
DialogLayout smallLayout(const std::string& title);

}  // namespace tarnwick::test
