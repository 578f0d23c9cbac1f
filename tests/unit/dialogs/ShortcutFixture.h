#pragma once

#include "dialogs/ShortcutDlg.h"
#include "dialogs/ShortcutLayout.h"
#include "support/FakeShortcutShell.h"
#include "support/SystemWords.h"
#include "unit/project/ProjectFixture.h"

#include <string>

namespace tarnwick::test {

/// The dialog about shortcuts on a scripted desktop; the system makes none.
class ShortcutFixture : public ProjectFixture {
 protected:
  ShortcutFixture() {
    told_.desktop = made("Desk top");
    told_.startMenu = made("Start Menu");
    context_.shortcutShells = told_.shells();
    settings().classpath.clear();
    settings().javaXfuture = false;
  }

  std::string made(const std::string& name) const {
    platform::makeFolders(scratch_.file(name));
    return scratch_.file(name);
  }
  static std::string in(const std::string& folder, const std::string& name) {
    return folder + platform::folderSeparator + name;
  }

  /// Runs the dialog, and closes it with Close.
  void run(const ScriptedDesktop::DialogScript& script) {
    desktop_.expectDialog(said("Create Windows shortcut to Java application", "Create shortcut to Java application"),
                          [&](ScriptedWindow& window) {
                            script(window);
                            EXPECT_FALSE(window.closed()) << "only Close closes it";
                            window.press(ShortcutControls::CLOSE);
                          });
    EXPECT_EQ(ShortcutDlg(settings()).runModal(), DIALOG_CANCEL);
  }
  /// An application, and a way of execution.
  void fillIn(ScriptedWindow& window, int execution = ShortcutControls::WITHOUT_CONTROL) const {
    window.type(ShortcutControls::APPLICATION, quoted(userFolder() + "App.class"));
    window.press(execution);
  }
  static bool canCreate(const ScriptedWindow& window) { return window.enabled(ShortcutControls::CREATE); }

  FakeShortcuts told_;
};

}  // namespace tarnwick::test
