// The dialog "jar" in the states that its user brings it to.
#include "dialogs/JarDlg.h"
#include "dialogs/JarLayout.h"
#include "ui/ProgramWorld.h"

namespace tarnwick::test {

namespace {

class JarWindowTest : public WindowTest {
 protected:
  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    steps.settle(5);
  }
  void run() {
    steps.then("close", [this] { top().close(Jar::CANCEL); });
    const JarSession session;
    JarDlg(world_.settings, session).runModal();
  }

  ProgramWorld world_;
};

}  // namespace

TEST_F(JarWindowTest, TheRunButtonShowsWholeWithEachOfItsTexts) {
  waitForDialog();
  for (const char* text : {"Create archive", "Update archive"}) {
    steps.then("say what will be done", [this, text] { top().setText(Jar::RUN, text); });
    steps.settle();
    steps.then("look", [this] { expectGoodLooks(top()); });
  }
  steps.then("picture", [] { shoot("dialog-jarUpdate"); });
  run();
}

TEST_F(JarWindowTest, ANameThatIsTypedReachesTheRules) {
  waitForDialog();
  steps.then("a folder", [this] { type(top(), Jar::BASE_FOLDER, world_.scratch.path()); });
  steps.settle();
  steps.then("a name", [this] {
    EXPECT_TRUE(top().enabled(Jar::ALL_FILES));
    type(top(), Jar::SUBFOLDERS, "classes");
  });
  steps.settle();
  steps.then("look", [this] {
    EXPECT_FALSE(top().enabled(Jar::ALL_FILES));
    EXPECT_FALSE(top().enabled(Jar::RUN)) << "there is no archive yet";
    press(top(), Jar::CLEAR_SUBFOLDERS);
  });
  steps.settle();
  steps.then("look again", [this] { EXPECT_TRUE(top().enabled(Jar::ALL_FILES)); });
  run();
}

}  // namespace tarnwick::test
