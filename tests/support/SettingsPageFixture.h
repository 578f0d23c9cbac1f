#pragma once

#include "settingsdialog/SettingsDialog.h"
#include "support/SettingsFixture.h"

#include <functional>

namespace tarnwick::test {

/// Tests of one page of the settings dialog.
class SettingsPageFixture : public SettingsFixture {
 protected:
  explicit SettingsPageFixture(int tab) : tab_(tab) {}

  using Script = std::function<void(ScriptedWindow& page)>;

  /// Opens the dialog on the page, lets its user play, and presses OK.
  void playAndOk(const Script& script) {
    play(script, IDOK_CONTROL);
    EXPECT_TRUE(platform::isFile(configFile()));
  }
  void playAndCancel(const Script& script) { play(script, IDCANCEL_CONTROL); }

 private:
  void play(const Script& script, int end) {
    desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
      script(window.page(1092, tab_));
      window.press(end);
    });
    EXPECT_EQ(SettingsDialog(settings()).runModal(tab_), end);
  }

  int tab_;
};

}  // namespace tarnwick::test
