// The dialog about shortcuts in the states that its user brings it to.
#include "dialogs/ShortcutDlg.h"
#include "dialogs/ShortcutLayout.h"
#include "ui/ProgramWorld.h"

namespace tarnwick::test {

namespace {

using Control = ShortcutControls;

class ShortcutWindowTest : public WindowTest {
 protected:
  void run() {
    steps.then("close", [this] { top().close(Control::CLOSE); });
    ShortcutDlg(world_.settings).runModal();
  }

  ProgramWorld world_;
};

}  // namespace

TEST_F(ShortcutWindowTest, ItsUserFillsItInAndTheButtonFollows) {
  steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.settle(5);
  steps.then("an application", [this] { type(top(), Control::APPLICATION, "\"/a folder/My App.class\" one two"); });
  steps.settle();
  steps.then("two places, one way", [this] {
    EXPECT_EQ(top().text(Control::NAME), "My App");
    for (const int box : {Control::ON_DESKTOP, Control::IN_STARTMENU, Control::UNDER_CONTROL}) press(top(), box);
  });
  steps.settle();
  steps.then("look", [this] {
    EXPECT_TRUE(top().checked(Control::UNDER_CONTROL));
    EXPECT_EQ(top().text(Control::CREATE), "Create Shortcuts");
    EXPECT_TRUE(top().enabled(Control::CREATE));
    shoot("dialog-shortcutTwo");
    expectGoodLooks(top());
    press(top(), Control::WITHOUT_CONTROL);
    press(top(), Control::IN_FOLDER);
  });
  steps.settle();
  steps.then("a name of one's own", [this] {
    EXPECT_FALSE(top().checked(Control::UNDER_CONTROL));
    EXPECT_FALSE(top().enabled(Control::CREATE)) << "the folder is missing";
    type(top(), Control::NAME, "Mine");
    type(top(), Control::FOLDER, "/tmp");
  });
  steps.settle();
  steps.then("another application", [this] {
    EXPECT_TRUE(top().enabled(Control::CREATE));
    type(top(), Control::APPLICATION, "Other.jar");
  });
  steps.settle();
  steps.then("look again", [this] { EXPECT_EQ(top().text(Control::NAME), "Mine"); });
  run();
}

}  // namespace tarnwick::test
