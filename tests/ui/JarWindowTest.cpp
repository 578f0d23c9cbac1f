// The dialog "jar" in the states that its user brings it to.
#include "dialogs/JarDlg.h"
#include "dialogs/JarLayout.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "ui/ProgramWorld.h"
#include "ui/Text.h"

#include <wx/msgdlg.h>
#include <wx/testing.h>

namespace tarnwick::test {

namespace {

/// Answers message boxes and keeps their texts.
class Answers : public wxModalDialogHook {
 public:
  Answers() { Register(); }

  std::vector<std::string> shown;

 protected:
  int Enter(wxDialog* dialog) override {
    auto* const box = dynamic_cast<wxMessageDialog*>(dialog);
    if (!box) return wxID_NONE;
    shown.push_back(ui::fromWx(box->GetMessage()));
    return wxID_OK;
  }
};

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

TEST_F(JarWindowTest, ALongListOfNamesIsTakenWholeOrToldAndNotTaken) {
  const std::string base = world_.scratch.file("base");
  constexpr int folders = 800;
  constexpr std::size_t nameLength = 100;
  for (int i = 0; i < folders; ++i) {
    std::string name = std::to_string(i);
    name += std::string(nameLength - name.size(), 'x');
    platform::makeFolders(base + platform::folderSeparator + name);
  }
  Answers answers;
  waitForDialog();
  steps.then("a folder", [this, base] { type(top(), Jar::BASE_FOLDER, base); });
  steps.settle();
  steps.then("a name, and many", [this] {
    type(top(), Jar::SUBFOLDERS, "one");
    press(top(), Jar::ADD_ALL_SUBFOLDERS);
  });
  steps.settle();
  steps.then("look", [this, &answers] {
    const std::string list = top().text(Jar::SUBFOLDERS);
    const std::size_t whole = folders * (nameLength + 1) - 1;
    if (list.size() == whole) return;
    EXPECT_EQ(list, "one") << "what was there stays";
    EXPECT_EQ(answers.shown,
              std::vector<std::string>{"Can't take these subfolders: the list would have " + std::to_string(whole) +
                                       " characters, which is more than its field takes."});
  });
  run();
}

}  // namespace tarnwick::test
