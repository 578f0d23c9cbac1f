// A click on a stack trace in the console opens the user's editor.
#include "app/CMainFrame.h"
#include "app/ChooseSourceDlg.h"
#include "support/Children.h"
#include "support/FakeSurface.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace tarnwick::test {
namespace {

class ConsoleTraceTest : public SettingsFixture {
 protected:
  ConsoleTraceTest() : script_("err at org.x.A.run(A.java:57)\nsleep 600000\n"), classpath_("CLASSPATH", "") {
    settings().newerConsole = true;
    settings().editorTarget = StandInScript::tool("javadoc");
    platform::changeDirectory(userFolder());
  }
  ~ConsoleTraceTest() override {
    if (frame_) frame_->view().onClose();
  }

  void open() {
    frame_.emplace(desktop_, settings(), ConsoleStart{"Main", StandInScript::tool("java"), " Main", false});
    frame_->view().onStart(surface_);
    ASSERT_TRUE(waitUntil([&] {
      desktop_.runPosted();
      if (surface_.takeWake()) frame_->view().onWake();
      frame_->onCommand(COMMAND_COPY_ALL);
      return desktop_.clipboardText().value_or("").find("A.java:57)") != std::string::npos;
    }));
  }
  /// On the place, which stands in the third line. Whatever is started by that ends at once.
  void click() {
    script_.setScript("");
    constexpr int column = 16;
    frame_->view().onLeftDown({{4 + 8 * column, 2 * 16 + 8}, true, false, false, true});
  }
  void make(const std::string& folder) {
    platform::makeFolders(folder);
    writeFile(Filename(folder, "A.java").fullName(), "");
  }
  std::string packageFolder(const std::string& root) {
    return root + platform::folderSeparator + "org" + platform::folderSeparator + "x";
  }

  /// What the editor was given, a line each, the name behind the last folder.
  std::string recordedByEditor() {
    EXPECT_TRUE(waitUntil([&] { return script_.record().find("A.java\n") != std::string::npos; }));
    return script_.record().substr(std::string("Main\n").size());
  }
  void expectNoEditor() { EXPECT_EQ(script_.record(), "Main\n"); }

  StandInScript script_;
  ScopedEnvironment classpath_;
  FakeSurface surface_;
  std::optional<CMainFrame> frame_;
};

TEST_F(ConsoleTraceTest, TheEditorGetsTheFileAndTheConsoleStaysInItsFolder) {
  settings().editorPlace = "+%l %f";
  make(packageFolder("."));
  open();
  const std::string before = platform::currentDirectory();
  click();
  const std::string recorded = recordedByEditor();
  EXPECT_EQ(recorded.substr(0, 4), "+57\n") << recorded;
  EXPECT_EQ(platform::currentDirectory(), before) << "what runs again begins there";
}

TEST_F(ConsoleTraceTest, ASourceThatIsNowhereIsTold) {
  open();
  desktop_.expectMessage(
      "Can't find the source A.java of the package org.x\n"
      "in the project, on the source path, on the class path or where the program was started");
  click();
}

TEST_F(ConsoleTraceTest, WithoutAnEditorTheUserIsToldWhereToChooseOne) {
  settings().editorTarget = "";
  make(packageFolder("."));
  open();
  desktop_.expectHint("Choose the editor for your sources in Tarnwick's settings first");
  click();
  expectNoEditor();
}

TEST_F(ConsoleTraceTest, AmongSeveralTheUserChooses) {
  make(packageFolder("."));
  make(packageFolder("other"));
  settings().sourcepath = platform::absolutePath("other");
  open();
  desktop_.expectDialog("Which source?", [](ScriptedWindow& window) {
    EXPECT_EQ(window.entries(SOURCE_HITS).size(), 2U);
    EXPECT_EQ(window.selection(SOURCE_HITS), 0);
    window.select(SOURCE_HITS, 1);
    window.press(IDOK_CONTROL);
  });
  click();
  EXPECT_EQ(recordedByEditor().find("other"), std::string::npos) << "the source path's stands first";
}

TEST_F(ConsoleTraceTest, OrNone) {
  make(packageFolder("."));
  make(packageFolder("other"));
  settings().sourcepath = "other";
  open();
  desktop_.expectDialog("Which source?", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  click();
  expectNoEditor();
}

}  // namespace
}  // namespace tarnwick::test
