#include "ProjectFixture.h"
#include "project/SelectProjectDlg.h"
#include "resources/ProjectLayouts.h"
#include "support/SystemWords.h"
#include "support/TestFolders.h"

namespace tarnwick::test {
namespace {

class SelectProjectDlgTest : public ProjectFixture {
 protected:
  /// The dialog's result; the path is in `path_`.
  int run(const ScriptedDesktop::DialogScript& script) {
    desktop_.expectDialog("Select existing project", script);
    SelectProjectDlg dialog(settings());
    const int result = dialog.runModal();
    path_ = dialog.path();
    return result;
  }
  void saveRecent(const std::string& list) {
    const auto earlier = freshSettings();
    earlier->javaPath = standInFolder();
    earlier->recentProjects.fromString(list);
    earlier->saveDefaultConfiguration();
  }
  /// What "Browse" asks for.
  FileRequest browsed() {
    run([this](ScriptedWindow& window) {
      desktop_.expectOpenFile(std::nullopt);
      window.press(BROWSE_PROJECT);
      EXPECT_FALSE(window.closed());
      window.press(IDCANCEL_CONTROL);
    });
    return desktop_.lastRequest();
  }

  std::string path_;
};

using Paths = std::vector<std::string>;

TEST_F(SelectProjectDlgTest, ShowsItsLabels) {
  run([](ScriptedWindow& window) {
    EXPECT_EQ(window.text(BROWSE_PROJECT), "Browse");
    EXPECT_EQ(window.text(REGISTER_TYPE),
              said("Click here to make Tarnwick the default program for\nopening .twp files (Explorer double-click)",
                   "Click here to make Tarnwick the default program for\nopening .twp files (double-click in the file "
                   "manager)"));
    EXPECT_EQ(window.text(IDOK_CONTROL), "OK");
    EXPECT_EQ(window.text(IDCANCEL_CONTROL), "Cancel");
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(SelectProjectDlgTest, ListsTheRecentProjectsUnsortedWithTheFirstSelected) {
  saveRecent("z.twp;a.twp;m];n.twp");
  settings().recentProjects.fromString("of the live settings");
  EXPECT_EQ(run([](ScriptedWindow& window) {
              EXPECT_EQ(window.entries(RECENT_LIST), (Paths{"z.twp", "a.twp", "m;n.twp"}));
              EXPECT_EQ(window.selection(RECENT_LIST), 0);
              window.press(IDOK_CONTROL);
            }),
            DIALOG_OK);
  EXPECT_EQ(path_, "z.twp");
}

TEST_F(SelectProjectDlgTest, WithoutRecentProjectsTheListTellsWhatToPress) {
  run([](ScriptedWindow& window) {
    EXPECT_EQ(window.wordsInPlace(RECENT_LIST), "No recent projects. Press \"Browse\" to find one.");
    EXPECT_EQ(window.entries(RECENT_LIST), Paths{});
    EXPECT_EQ(window.text(RECENT_LIST), "");
    window.press(IDOK_CONTROL);
  });
  EXPECT_EQ(path_, "");
  saveRecent("z.twp");
  run([](ScriptedWindow& window) {
    EXPECT_EQ(window.wordsInPlace(RECENT_LIST), "");
    window.press(IDCANCEL_CONTROL);
  });
}

TEST_F(SelectProjectDlgTest, TheListIsTheSameWhicheverProjectIsOpen) {
  open("RECENT_PROJECTS  of the project\n");
  saveRecent("of the user");
  run([](ScriptedWindow& window) {
    EXPECT_EQ(window.entries(RECENT_LIST), Paths{"of the user"});
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_EQ(settings().recentProjects.toString(), "of the project");
}

TEST_F(SelectProjectDlgTest, OkTakesTheSelectedItem) {
  saveRecent("z.twp;a.twp");
  EXPECT_EQ(run([](ScriptedWindow& window) {
              window.choose(RECENT_LIST, 1);
              window.press(IDOK_CONTROL);
            }),
            DIALOG_OK);
  EXPECT_EQ(path_, "a.twp");
}

TEST_F(SelectProjectDlgTest, OkOnAnEmptyListGivesNoPath) {
  EXPECT_EQ(run([](ScriptedWindow& window) {
              EXPECT_EQ(window.entries(RECENT_LIST), Paths{});
              EXPECT_EQ(window.selection(RECENT_LIST), -1);
              window.press(IDOK_CONTROL);
            }),
            DIALOG_OK);
  EXPECT_EQ(path_, "");
}

TEST_F(SelectProjectDlgTest, CancelGivesNoPath) {
  saveRecent("z.twp");
  EXPECT_EQ(run([](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); }), DIALOG_CANCEL);
  EXPECT_EQ(path_, "");
  EXPECT_EQ(run([](ScriptedWindow& window) { window.closeBox(); }), DIALOG_CANCEL);
}

TEST_F(SelectProjectDlgTest, BrowseTakesAFileAndClosesAtOnce) {
  saveRecent("z.twp");
  EXPECT_EQ(run([this](ScriptedWindow& window) {
              desktop_.expectOpenFile(projectFile());
              window.press(BROWSE_PROJECT);
              EXPECT_TRUE(window.closed());
            }),
            DIALOG_OK);
  EXPECT_EQ(path_, projectFile());
}

TEST_F(SelectProjectDlgTest, BrowseAsksForAnExistingProjectFile) {
  const FileRequest request = browsed();
  EXPECT_EQ(request.filter, "JDK project files (*.twp)|*.twp||");
  EXPECT_EQ(request.name, "*.twp");
  EXPECT_EQ(request.extension, ".twp");
  EXPECT_TRUE(request.mustExist);
  EXPECT_FALSE(request.confirmOverwrite);
  EXPECT_EQ(path_, "") << "Cancel there leaves all as it was";
}

TEST_F(SelectProjectDlgTest, BrowseStartsWhereTheLastProjectLay) {
  EXPECT_EQ(browsed().startFolder, platform::startFolder("C:\\")) << "no last project";
  settings().lastProjectFile = "a.twp";
  EXPECT_EQ(browsed().startFolder, platform::startFolder("C:\\")) << "one without a folder";
  settings().lastProjectFile = quoted(userFolder() + "a.twp");
  EXPECT_EQ(browsed().startFolder, userFolder());
  settings().lastProjectFile = scratch_.file("gone") + platform::folderSeparator + "a.twp";
  EXPECT_EQ(browsed().startFolder, platform::startFolder("C:\\")) << "the program can't change there";
}

TEST_F(SelectProjectDlgTest, BrowseStartsInTheOpenProjectsFolderBeforeAll) {
  open("");
  settings().lastProjectFile = quoted(userFolder() + "a.twp");
  EXPECT_EQ(browsed().startFolder, folder());
}

TEST_F(SelectProjectDlgTest, BrowsePassesOverAProjectsFolderThatIsGone) {
  const std::string gone = scratch_.file("to go");
  platform::makeFolders(gone);
  take(gone + platform::folderSeparator + "a.twp", true);
  removeTree(gone);
  settings().lastProjectFile = userFolder() + "a.twp";
  EXPECT_EQ(browsed().startFolder, userFolder());
}

TEST_F(SelectProjectDlgTest, TheRegistrationLeavesTheDialogOpen) {
  int registered = 0;
  context_.registerProjectType = [&registered] { ++registered; };
  EXPECT_EQ(run([&](ScriptedWindow& window) {
              window.press(REGISTER_TYPE);
              EXPECT_EQ(registered, 1);
              EXPECT_FALSE(window.closed());
              window.press(IDCANCEL_CONTROL);
            }),
            DIALOG_CANCEL);
  EXPECT_EQ(registered, 1);
}

}  // namespace
}  // namespace tarnwick::test
