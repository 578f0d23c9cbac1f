// The button "jar" of both panels.
#include "ProjectViewFixture.h"
#include "dialogs/JarLayout.h"
#include "process/WinApp.h"

namespace tarnwick::test {
namespace {

class JarButtonTest : public ProjectViewFixture {
 protected:
  JarButtonTest() : before_(platform::currentDirectory()) { saveEarlierRun(); }
  ~JarButtonTest() override { platform::changeDirectory(before_); }

  /// Presses the button and runs the dialog with "verbose" marked.
  void runVerbose(ScriptedWindow& panel) {
    panel.choose(TABS, 2);
    desktop_.expectDialog("jar", [this](ScriptedWindow& window) {
      EXPECT_FALSE(window.checked(Jar::VERBOSE));
      desktop_.expectSaveFile(userFolder() + "x.jar");
      window.press(Jar::CREATE_ARCHIVE);
      window.type(Jar::BASE_FOLDER, userFolder());
      window.type(Jar::INDIVIDUAL_FILES, "a.class");
      window.press(Jar::VERBOSE);
      window.press(Jar::RUN);
    });
    panel.page(TABS, 2).press(LEFT);
    EXPECT_EQ(contentOf(scratch_.file("record")), "cfv\nx.jar\na.class\n");
  }
  void expectVerboseKept(ScriptedWindow& panel) {
    desktop_.expectDialog("jar", [this](ScriptedWindow& window) {
      EXPECT_EQ(window.text(Jar::ARCHIVE), userFolder() + "x.jar");
      EXPECT_TRUE(window.checked(Jar::VERBOSE));
      window.press(Jar::CANCEL);
    });
    panel.page(TABS, 2).press(LEFT);
  }

  std::string before_;
};

TEST_F(JarButtonTest, TheFileViewRunsJarAndKeepsItsSwitches) {
  runPanel([this](ScriptedWindow&, ScriptedWindow& panel) {
    runVerbose(panel);
    expectVerboseKept(panel);
    exit(panel);
  });
  EXPECT_EQ(saved("LAST_JAR_ARCHIVE"), userFolder() + "x.jar");
}

TEST_F(JarButtonTest, TheProjectViewRunsJarWithoutAProjectToo) {
  inProjectView([this](ScriptedWindow& panel) {
    runVerbose(panel);
    expectVerboseKept(panel);
    panel.child(VERTICAL_BAR_SLOT).press(EXIT);
  });
}

TEST_F(JarButtonTest, WithAProjectTheDialogProposesItsFolderAndClass) {
  startWith(makeRunnable(), [this](ScriptedWindow& panel) {
    panel.choose(TABS, 2);
    desktop_.expectDialog("jar", [this](ScriptedWindow& window) {
      EXPECT_EQ(window.text(Jar::BASE_FOLDER), quoted(userFolder()));
      EXPECT_EQ(window.text(Jar::MAIN_CLASS), "Main");
      window.press(Jar::CANCEL);
    });
    panel.page(TABS, 2).press(LEFT);
    panel.child(VERTICAL_BAR_SLOT).press(EXIT);
  });
}

/// A desktop on which something happens when a tool has ended.
class WorkingDesktop : public ScriptedDesktop {
 public:
  std::function<void()> whenWorkEnds = [] {};
  void whileBusy(const BusyWork& busy) override {
    ScriptedDesktop::whileBusy(busy);
    whenWorkEnds();
  }
};

TEST_F(JarButtonTest, AWindowThatWasMovedDuringTheRunIsSavedAfterIt) {
  WorkingDesktop desktop;
  SettingsContext context = settingsOnDesktop(desktop, program_, log_);
  Settings settings(context);
  desktop.expectMainDialog([&](ScriptedWindow& main) {
    ScriptedWindow& panel = main.child(FILE_VIEW_SLOT);
    desktop.whenWorkEnds = [&main] { main.moveByHand({120, 88}); };
    panel.choose(TABS, 2);
    desktop.expectDialog("jar", [&](ScriptedWindow& window) {
      desktop.expectSaveFile(userFolder() + "x.jar");
      window.press(Jar::CREATE_ARCHIVE);
      window.type(Jar::BASE_FOLDER, userFolder());
      window.press(Jar::ALL_FILES);
      window.press(Jar::RUN);
    });
    panel.page(TABS, 2).press(LEFT);
    EXPECT_EQ(saved("WINDOW_POSITION"), "120;88");
    exit(panel);
  });
  TarnwickDlg(settings).runModal();
}

TEST_F(JarButtonTest, BothPanelsKnowWhatOpensZipArchives) {
  const WinApp packer = WinApp::withCommand("packer %1");
  const auto expectOffered = [this](ScriptedWindow& panel) {
    panel.choose(TABS, 2);
    desktop_.expectDialog("jar", [](ScriptedWindow& window) {
      EXPECT_TRUE(window.enabled(Jar::OPEN_AS_ZIP));
      window.press(Jar::CANCEL);
    });
    panel.page(TABS, 2).press(LEFT);
  };
  desktop_.expectMainDialog([&](ScriptedWindow& main) {
    ScriptedWindow& files = main.child(FILE_VIEW_SLOT);
    expectOffered(files);
    bar(files).press(SWITCH_VIEW);
    ScriptedWindow& project = main.child(PROJECT_VIEW_SLOT);
    expectOffered(project);
    project.child(VERTICAL_BAR_SLOT).press(EXIT);
  });
  TarnwickDlg dialog(settings());
  dialog.setZipApplication(packer);
  dialog.runModal();
}

}  // namespace
}  // namespace tarnwick::test
