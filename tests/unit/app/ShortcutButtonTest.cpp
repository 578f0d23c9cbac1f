// The button "WinShortcut" of both panels.
#include "ProjectViewFixture.h"
#include "dialogs/ShortcutLayout.h"
#include "support/FakeShortcutShell.h"
#include "support/SystemWords.h"

namespace tarnwick::test {
namespace {

const char* const title = said("Create Windows shortcut to Java application", "Create shortcut to Java application");

class ShortcutButtonTest : public ProjectViewFixture {
 protected:
  ShortcutButtonTest() { saveEarlierRun(); }

  void expectOpens(ScriptedWindow& panel, const ScriptedDesktop::DialogScript& script) {
    panel.choose(TABS, 2);
    desktop_.expectDialog(title, [&script](ScriptedWindow& window) {
      script(window);
      window.press(ShortcutControls::CLOSE);
    });
    panel.page(TABS, 2).press(RIGHT);
  }
};

TEST_F(ShortcutButtonTest, TheFileViewOpensTheDialogWhereItsFilesLie) {
  runPanel([this](ScriptedWindow&, ScriptedWindow& panel) {
    panel.page(TABS, 0).type(FIELD, quoted(userFolder() + "My App.class") + " one");
    expectOpens(panel, [this](ScriptedWindow& window) {
      EXPECT_EQ(window.text(ShortcutControls::APPLICATION), "") << "only a project proposes one";
      desktop_.expectOpenFile(std::nullopt);
      window.press(ShortcutControls::BROWSE_APPLICATION);
      EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder()) << "although no other button has read the field";
    });
    exit(panel);
  });
}

TEST_F(ShortcutButtonTest, TheProjectViewOpensTheDialogWithoutAProjectToo) {
  inProjectView([this](ScriptedWindow& panel) {
    expectOpens(panel, [](ScriptedWindow& window) { EXPECT_EQ(window.text(ShortcutControls::APPLICATION), ""); });
    panel.child(VERTICAL_BAR_SLOT).press(EXIT);
  });
}

TEST_F(ShortcutButtonTest, WithAProjectTheDialogProposesItsClass) {
  startWith(makeRunnable(), [this](ScriptedWindow& panel) {
    expectOpens(panel, [this](ScriptedWindow& window) {
      EXPECT_EQ(window.text(ShortcutControls::APPLICATION), quoted(userFolder() + "Main"));
      EXPECT_EQ(window.text(ShortcutControls::NAME), "Main");
    });
    panel.child(VERTICAL_BAR_SLOT).press(EXIT);
  });
}

}  // namespace
}  // namespace tarnwick::test
