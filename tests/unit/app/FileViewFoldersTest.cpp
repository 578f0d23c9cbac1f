#include "app/FileView.h"
#include "support/Children.h"
#include "unit/app/PanelFixture.h"

namespace tarnwick::test {
namespace {

/// Which folders the file view's dialogs open in, which it remembers, and when it saves.
class FileViewFoldersTest : public PanelFixture {
 protected:
  FileViewFoldersTest() { platform::makeFolders(other()); }

  std::string other() const { return scratch_.file("oth er") + platform::folderSeparator; }
  std::string gone() const { return scratch_.file("gone") + platform::folderSeparator; }
  std::string makeFile(const std::string& name) const {
    writeFile(userFolder() + name, "");
    return userFolder() + name;
  }

  /// The panel starts a stand-in instead of itself.
  void playTheSecondCopy() { program_.programPath = StandInScript::tool("jdb"); }

  /// The folder in which a dialog asks for a source whose name was typed.
  std::string askedIn(const std::string& typed, int button) {
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      panel.type(SOURCE, typed);
      desktop_.expectOpenFile(std::nullopt);
      if (button == JAVAC) desktop_.expectHint("No .java file known.");
      panel.press(button);
      exit(panel);
    });
    return desktop_.lastRequest().startFolder;
  }
};

TEST_F(FileViewFoldersTest, TheNameItselfMayBeTheFolderToAskIn) {
  saveEarlierRun([&](Settings& earlier) { earlier.fileviewSource.setLastFolder(other()); });
  EXPECT_EQ(askedIn(quoted(userFolder()), JAVAC), userFolder());
}

TEST_F(FileViewFoldersTest, TheFolderOfAMissingFileComesBeforeTheLastOne) {
  saveEarlierRun([&](Settings& earlier) {
    earlier.fileviewSource.setName(scratch_.file("x.java"));
    earlier.fileviewSource.setLastFolder(other());
  });
  EXPECT_EQ(askedIn(quoted(userFolder() + "Gone.java") + " one", JAVAC), userFolder());
  platform::changeDirectory(scratch_.path());
  const std::string relative = std::string("us er") + platform::folderSeparator;
  const std::string whole = Filename(platform::currentDirectory(), relative).fullName();
  EXPECT_EQ(askedIn(quoted(relative + "Gone.java"), JAVAC), whole);
}

TEST_F(FileViewFoldersTest, ABareNameDoesNotMakeTheCurrentFolderTheOneToAskIn) {
  saveEarlierRun([&](Settings& earlier) { earlier.fileviewSource.setLastFolder(other()); });
  platform::changeDirectory(userFolder());
  EXPECT_EQ(askedIn("Gone.java", JAVAC), other());
}

TEST_F(FileViewFoldersTest, EditAndJavaAskThereToo) {
  saveEarlierRun([&](Settings& earlier) {
    earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc");
    earlier.fileviewClass.setLastFolder(other());
    earlier.fileviewHtml.setLastFolder(other());
  });
  EXPECT_EQ(askedIn(quoted(userFolder() + "Gone.java"), EDIT), userFolder());
  for (const int tab : {0, 1}) {
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      panel.choose(TABS, tab);
      panel.page(TABS, tab).type(FIELD, quoted(userFolder() + "Gone"));
      desktop_.expectOpenFile(std::nullopt);
      desktop_.expectHint(tab == 0 ? "No known .class file" : "no htm* file known");
      panel.page(TABS, tab).press(RIGHT);
      exit(panel);
    });
    EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder()) << tab;
  }
}

TEST_F(FileViewFoldersTest, WhereTheFilesFolderHasGoneTheNearestOneAboveItIsTheLastToTry) {
  saveEarlierRun([&](Settings& earlier) { earlier.fileviewSource.setLastFolder(gone()); });
  const std::string slash(1, platform::folderSeparator);
  EXPECT_EQ(askedIn(quoted(userFolder() + "a" + slash + "b" + slash + "Gone.java"), JAVAC),
            Filename(userFolder()).directoryNoSlash());
}

TEST_F(FileViewFoldersTest, TheLastFolderComesBeforeThePreviousName) {
  saveEarlierRun([&](Settings& earlier) {
    earlier.fileviewSource.setName(userFolder());
    earlier.fileviewSource.setLastFolder(other());
  });
  EXPECT_EQ(askedIn(quoted(gone() + "A.java"), JAVAC), other());
}

TEST_F(FileViewFoldersTest, ThePreviousNameIsTheLastFolderToTry) {
  saveEarlierRun([&](Settings& earlier) {
    earlier.fileviewSource.setName(userFolder());
    earlier.fileviewSource.setLastFolder(gone());
  });
  EXPECT_EQ(askedIn(quoted(gone() + "A.java"), JAVAC), userFolder());
}

TEST_F(FileViewFoldersTest, WhereNoFolderCanBeEnteredTheDialogStartsAsOnAFreshMachine) {
  saveEarlierRun([&](Settings& earlier) { earlier.fileviewSource.setLastFolder(gone()); });
  const std::string slash(1, platform::folderSeparator);
  EXPECT_EQ(askedIn(quoted(slash + "no such folder" + slash + "A.java"), JAVAC), platform::startFolder("C:\\"));
}

TEST_F(FileViewFoldersTest, BrowsePrefersTheLastFolderToTheFilesOwn) {
  saveEarlierRun([&](Settings& earlier) { earlier.fileviewSource.setLastFolder(other()); });
  EXPECT_EQ(askedIn(quoted(makeFile("A.java")), BROWSE), other());
  EXPECT_EQ(desktop_.lastRequest().name, "*.JAVA");
}

TEST_F(FileViewFoldersTest, BrowseWithAFileThatCannotBeOpenedTellsNothing) {
  saveEarlierRun([&](Settings& earlier) { earlier.fileviewSource.setLastFolder(gone()); });
  EXPECT_EQ(askedIn(quoted(userFolder() + "Gone.java"), BROWSE), userFolder()) << "its folder is there";
  EXPECT_EQ(askedIn(quoted(gone() + "Gone.java"), BROWSE), platform::startFolder("C:\\"));
  platform::changeDirectory(userFolder());
  EXPECT_EQ(askedIn("Gone.java", BROWSE), platform::startFolder("C:\\"));
}

TEST_F(FileViewFoldersTest, BrowseKeepsTheArgumentsOfTheField) {
  saveEarlierRun();
  const std::string chosen = makeFile("B.class");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.page(TABS, 0).type(FIELD, "A.class one two");
    desktop_.expectOpenFile(chosen);
    panel.page(TABS, 0).press(LEFT);
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), quoted(chosen));
    EXPECT_EQ(settings().fileviewClass.args(), std::vector<std::string>{"one two"});
    exit(panel);
  });
}

TEST_F(FileViewFoldersTest, JavaRemembersTheClasssFolderBeforeItSavesAndJdbDoesNot) {
  playTheSecondCopy();
  const std::string classFile = makeFile("Main.class");
  const struct {
    int button;
    std::string folder;
  } table[] = {{RIGHT, userFolder()}, {MIDDLE, other()}};
  for (const auto& row : table) {
    saveEarlierRun([&](Settings& earlier) { earlier.fileviewClass.setLastFolder(other()); });
    settings().fileviewHtml.setLastFolder("");
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      panel.page(TABS, 0).type(FIELD, quoted(classFile));
      panel.page(TABS, 0).press(row.button);
      EXPECT_EQ(saved("FILEVIEW_CLASS"), classFile + ";" + row.folder);
      EXPECT_EQ(saved("FILEVIEW_HTML"), ";") << "its folder changes after the saving";
      EXPECT_EQ(settings().fileviewHtml.lastFolder(), userFolder());
      exit(panel);
    });
  }
}

TEST_F(FileViewFoldersTest, AppletviewerRemembersThePagesFolderBeforeItSavesAndAppletdebugDoesNot) {
  playTheSecondCopy();
  const std::string page = makeFile("page.html");
  const struct {
    int button;
    std::string folder;
  } table[] = {{RIGHT, userFolder()}, {MIDDLE, other()}};
  for (const auto& row : table) {
    saveEarlierRun([&](Settings& earlier) {
      earlier.fileviewTab = 1;
      earlier.fileviewHtml.setLastFolder(other());
    });
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      panel.page(TABS, 1).type(FIELD, quoted(page));
      panel.page(TABS, 1).press(row.button);
      EXPECT_EQ(saved("FILEVIEW_HTML"), page + ";" + row.folder);
      exit(panel);
    });
  }
}

TEST_F(FileViewFoldersTest, TheSettingsAreSavedBeforeAnythingRuns) {
  playTheSecondCopy();
  writeFile(scratch_.file("script"), "keep " + configFile() + "\n");
  const std::string classFile = makeFile("Main.class");
  const std::string page = makeFile("page.html");
  const struct {
    int tab;
    int button;
    std::string file;
  } table[] = {{0, RIGHT, classFile}, {0, MIDDLE, classFile}, {1, RIGHT, page}, {1, MIDDLE, page}};
  for (const auto& row : table) {
    saveEarlierRun([&](Settings& earlier) { earlier.fileviewTab = row.tab; });
    const std::string kept = scratch_.file("record.kept");
    platform::deleteFile(kept);
    runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
      panel.page(TABS, row.tab).type(FIELD, quoted(row.file));
      panel.page(TABS, row.tab).press(row.button);
      EXPECT_TRUE(waitUntil([&] {
        return platform::isFile(kept) && contentOf(kept).find("  " + row.file + ";") != std::string::npos;
      })) << row.file;
      exit(panel);
    });
  }
}

TEST_F(FileViewFoldersTest, AMovedWindowIsSavedByWhatLeavesTheWindow) {
  saveEarlierRun();
  runPanel([&](ScriptedWindow& main, ScriptedWindow& panel) {
    main.moveByHand({11, 12});
    desktop_.expectOpenFile(std::nullopt);
    panel.press(BROWSE);
    EXPECT_EQ(saved("WINDOW_POSITION"), "11;12");
    main.moveByHand({13, 14});
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
    bar(panel).press(SETTINGS);
    EXPECT_EQ(saved("WINDOW_POSITION"), "13;14");
    main.moveByHand({15, 16});
    panel.closeBox();
    EXPECT_EQ(saved("WINDOW_POSITION"), "15;16");
    exit(panel);
  });
}

TEST_F(FileViewFoldersTest, TheSettingsOpenOnTheirFirstPageAndForAMissingEditorOnItsOwn) {
  saveEarlierRun();
  const std::string source = makeFile("A.java");
  constexpr int settingsTabs = 1092;
  constexpr int reason = 2003;
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
      EXPECT_EQ(window.selection(settingsTabs), 0);
      EXPECT_FALSE(window.visible(reason)) << "the user has asked for it";
      window.press(IDCANCEL_CONTROL);
    });
    bar(panel).press(SETTINGS);
    panel.type(SOURCE, quoted(source));
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
      EXPECT_EQ(window.selection(settingsTabs), 5);
      EXPECT_TRUE(window.visible(reason));
      EXPECT_EQ(window.text(reason), "Choose the editor for your sources");
      window.press(IDCANCEL_CONTROL);
    });
    panel.press(EDIT);
    desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
      EXPECT_FALSE(window.visible(reason)) << "nor does it stay";
      window.press(IDCANCEL_CONTROL);
    });
    bar(panel).press(SETTINGS);
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
