// The button "javadoc" of both panels.
#include "ProjectViewFixture.h"
#include "dialogs/JavadocLayout.h"

namespace tarnwick::test {
namespace {

class JavadocButtonTest : public ProjectViewFixture {
 protected:
  JavadocButtonTest() : before_(platform::currentDirectory()) { saveEarlierRun(); }
  ~JavadocButtonTest() override { platform::changeDirectory(before_); }

  /// Presses the button, expects these files in the dialog and lets `then` close it.
  void press(ScriptedWindow& panel, const std::string& files, const ScriptedDesktop::DialogScript& then) {
    panel.choose(TABS, 2);
    EXPECT_TRUE(panel.page(TABS, 2).enabled(MIDDLE));
    desktop_.expectDialog("javadoc", [&](ScriptedWindow& window) {
      EXPECT_EQ(window.page(Javadoc::TABS, 0).text(JavadocSources::FILES), files);
      then(window);
    });
    panel.page(TABS, 2).press(MIDDLE);
  }
  /// Runs with one source, which the next dialog of this panel shows again.
  void runTwice(ScriptedWindow& panel) {
    press(panel, "", [](ScriptedWindow& window) {
      window.page(Javadoc::TABS, 0).type(JavadocSources::FILES, "no such.java ");
      window.press(Javadoc::RUN);
    });
    EXPECT_TRUE(contentOf(scratch_.file("record")).ends_with("no\nsuch.java\n"));
    press(panel, "no such.java ", [](ScriptedWindow& window) { window.press(Javadoc::CANCEL); });
  }

  std::string before_;
};

TEST_F(JavadocButtonTest, TheFileViewRunsJavadocAndKeepsItsFiles) {
  runPanel([this](ScriptedWindow&, ScriptedWindow& panel) {
    runTwice(panel);
    exit(panel);
  });
}

TEST_F(JavadocButtonTest, TheProjectViewRunsJavadocWithoutAProjectToo) {
  inProjectView([this](ScriptedWindow& panel) {
    runTwice(panel);
    panel.child(VERTICAL_BAR_SLOT).press(EXIT);
  });
}

TEST_F(JavadocButtonTest, WithAProjectItsSourcesAreOfferedFirst) {
  startWith(makeRunnable(), [this](ScriptedWindow& panel) {
    press(panel, "", [this](ScriptedWindow& window) {
      desktop_.expectOpenFiles({});
      window.page(Javadoc::TABS, 0).press(JavadocSources::ADD_FILES);
      EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder());
      window.press(Javadoc::CANCEL);
    });
    panel.child(VERTICAL_BAR_SLOT).press(EXIT);
  });
}

TEST_F(JavadocButtonTest, EachPanelKeepsFilesOfItsOwn) {
  desktop_.expectMainDialog([this](ScriptedWindow& main) {
    ScriptedWindow& files = main.child(FILE_VIEW_SLOT);
    runTwice(files);
    bar(files).press(SWITCH_VIEW);
    ScriptedWindow& project = main.child(PROJECT_VIEW_SLOT);
    press(project, "", [](ScriptedWindow& window) { window.press(Javadoc::CANCEL); });
    project.child(VERTICAL_BAR_SLOT).press(EXIT);
  });
  TarnwickDlg(settings()).runModal();
}

}  // namespace
}  // namespace tarnwick::test
