#pragma once

#include "ui/SampleDialog.h"
#include "ui/WindowTest.h"

#include <string>
#include <vector>

namespace tarnwick::test {

using Heard = std::vector<std::string>;

/// Tests of the sample dialog.
class DialogTest : public WindowTest {
 protected:
  /// Opens the sample dialog, plays the steps and closes it by Cancel.
  int play() {
    rules.onPress[IDOK_CONTROL] = [this] { rules.window->close(IDOK_CONTROL); };
    rules.onPress[IDCANCEL_CONTROL] = [this] { rules.window->close(IDCANCEL_CONTROL); };
    return desktop().runDialog(sampleLayout(), rules);
  }

  void fill(DialogWindow& window) {
    window.addTabPage(SAMPLE_TABS, " First page ", samplePageLayout(), firstPage);
    window.addTabPage(SAMPLE_TABS, "  Second  ", samplePageLayout(), secondPage);
    window.addChild(SAMPLE_SLOT, sampleBarLayout(), bar);
  }

  void thenClose() {
    steps.then("close", [this] { rules.window->close(IDCANCEL_CONTROL); });
  }

  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  }

  Recorder rules;
  Recorder firstPage;
  Recorder secondPage;
  Recorder bar;
};

}  // namespace tarnwick::test
