#include "JarFixture.h"
#include "NarrowWindow.h"

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

using JarContentsTest = JarDlgFixture;

// What enables the run

TEST_F(JarContentsTest, RightAfterOpeningTheRunIsDisabledWhateverStandsInTheFields) {
  settings().lastJarArchive = archive();
  inBase([](ScriptedWindow& window) {
    expectEnabled(window, {Jar::RUN}, false);
    window.press(Jar::ALL_FILES);
    expectEnabled(window, {Jar::RUN}, false);
    EXPECT_EQ(window.text(Jar::RUN), "Run jar");
    expectEnabled(window, {Jar::CREATE_INDEX}, false);
  });
}

TEST_F(JarContentsTest, ARunNeedsAnArchiveAndContents) {
  inBase([this](ScriptedWindow& window) {
    chooseArchive(window, archive());
    expectEnabled(window, {Jar::RUN}, false);
    for (const int list : {Jar::INDIVIDUAL_FILES, Jar::SUBFOLDERS}) {
      window.type(list, "  ");
      expectEnabled(window, {Jar::RUN}, false);
      window.type(list, " x");
      expectEnabled(window, {Jar::RUN}, true);
      window.type(list, "");
      expectEnabled(window, {Jar::RUN}, false);
    }
    window.press(Jar::ALL_FILES);
    expectEnabled(window, {Jar::RUN}, true);
    window.press(Jar::ALL_FILES);
    expectEnabled(window, {Jar::RUN}, false);
  });
}

TEST_F(JarContentsTest, ContentsThatAreThereBeforeTheArchiveCountToo) {
  for (const bool all : {false, true}) {
    inBase([this, all](ScriptedWindow& window) {
      if (all)
        window.press(Jar::ALL_FILES);
      else
        window.type(Jar::SUBFOLDERS, "one");
      chooseArchive(window, archive());
      expectEnabled(window, {Jar::RUN}, true);
    });
  }
}

// The base folder

TEST_F(JarContentsTest, TheListsFollowTheBaseFolder) {
  run([](ScriptedWindow& window) {
    expectEnabled(window, ofLists, false);
    window.type(Jar::BASE_FOLDER, "  ");
    expectEnabled(window, ofLists, false);
    expectEnabled(window, {Jar::ALL_FILES}, false);
    window.type(Jar::BASE_FOLDER, "  x");
    expectEnabled(window, ofLists, true);
    expectEnabled(window, {Jar::ALL_FILES}, true);
    window.type(Jar::BASE_FOLDER, "");
    expectEnabled(window, ofLists, false);
    expectEnabled(window, {Jar::ALL_FILES}, false);
    window.press(Jar::CANCEL);
  });
}

TEST_F(JarContentsTest, ChangingOneLetterOfTheBaseFolderClearsBothLists) {
  inBase([this](ScriptedWindow& window) {
    chooseArchive(window, archive());
    window.type(Jar::INDIVIDUAL_FILES, "a.class");
    window.type(Jar::SUBFOLDERS, "one");
    expectEnabled(window, {Jar::ALL_FILES}, false);
    window.type(Jar::BASE_FOLDER, window.text(Jar::BASE_FOLDER) + "x");
    EXPECT_EQ(window.text(Jar::INDIVIDUAL_FILES), "");
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), "");
    expectEnabled(window, {Jar::ALL_FILES}, true);
    expectEnabled(window, {Jar::RUN}, false);
  });
}

TEST_F(JarContentsTest, ChangingTheBaseFolderUnchecksAllFilesAndFreesTheLists) {
  inBase([this](ScriptedWindow& window) {
    chooseArchive(window, archive());
    window.press(Jar::ALL_FILES);
    window.type(Jar::BASE_FOLDER, "y");
    EXPECT_FALSE(window.checked(Jar::ALL_FILES));
    expectEnabled(window, ofLists, true);
    expectEnabled(window, {Jar::RUN}, false);
  });
}

TEST_F(JarContentsTest, WithoutABaseFolderTheListsKeepTheirNames) {
  inBase([](ScriptedWindow& window) {
    window.type(Jar::SUBFOLDERS, "one");
    window.type(Jar::BASE_FOLDER, "");
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), "one");
    expectEnabled(window, ofLists, false);
    expectEnabled(window, {Jar::ALL_FILES}, false);
  });
}

TEST_F(JarContentsTest, TheBaseFolderIsBrowsedFor) {
  run([this](ScriptedWindow& window) {
    desktop_.expectBrowseFolder(std::nullopt);
    window.press(Jar::BROWSE_BASE_FOLDER);
    EXPECT_EQ(window.text(Jar::BASE_FOLDER), "");
    expectEnabled(window, ofLists, false);
    desktop_.expectBrowseFolder(baseNoSlash());
    window.press(Jar::BROWSE_BASE_FOLDER);
    EXPECT_EQ(window.text(Jar::BASE_FOLDER), quoted(baseNoSlash()));
    expectEnabled(window, ofLists, true);
    expectEnabled(window, {Jar::ALL_FILES}, true);
    window.press(Jar::ALL_FILES);
    desktop_.expectBrowseFolder("x");
    window.press(Jar::BROWSE_BASE_FOLDER);
    EXPECT_FALSE(window.checked(Jar::ALL_FILES)) << "as after typing";
    window.press(Jar::CANCEL);
  });
}

// All files, or named ones

TEST_F(JarContentsTest, AllFilesClearAndDisableTheLists) {
  inBase([](ScriptedWindow& window) {
    window.press(Jar::ALL_FILES);
    expectEnabled(window, ofLists, false);
    expectEnabled(window, {Jar::ALL_FILES}, true);
    window.press(Jar::ALL_FILES);
    expectEnabled(window, ofLists, true);
  });
}

TEST_F(JarContentsTest, ATypedNameInEitherListRulesOutAllFiles) {
  for (const int list : {Jar::INDIVIDUAL_FILES, Jar::SUBFOLDERS}) {
    inBase([list](ScriptedWindow& window) {
      window.type(list, "x");
      expectEnabled(window, {Jar::ALL_FILES}, false);
      EXPECT_FALSE(window.checked(Jar::ALL_FILES));
      window.type(list, "  ");
      expectEnabled(window, {Jar::ALL_FILES}, true);
    });
  }
}

TEST_F(JarContentsTest, ClearEmptiesItsListAlone) {
  inBase([this](ScriptedWindow& window) {
    chooseArchive(window, archive());
    window.type(Jar::INDIVIDUAL_FILES, "a.class");
    window.type(Jar::SUBFOLDERS, "one");
    window.press(Jar::CLEAR_FILES);
    EXPECT_EQ(window.text(Jar::INDIVIDUAL_FILES), "");
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), "one");
    expectEnabled(window, {Jar::ALL_FILES}, false);
    expectEnabled(window, {Jar::RUN}, true);
    window.press(Jar::CLEAR_SUBFOLDERS);
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), "");
    expectEnabled(window, {Jar::ALL_FILES}, true);
    expectEnabled(window, {Jar::RUN}, false);
  });
}

// Selecting files and folders

TEST_F(JarContentsTest, SelectedFilesReplaceTheList) {
  inBase([this](ScriptedWindow& window) {
    window.type(Jar::INDIVIDUAL_FILES, "old");
    desktop_.expectOpenFiles({base() + "a.class", base() + "c d.class"});
    window.press(Jar::SELECT_FILES);
    EXPECT_EQ(desktop_.lastRequest().filter, "All files|*.*||");
    EXPECT_EQ(desktop_.lastRequest().name, "*.*");
    EXPECT_EQ(desktop_.lastRequest().startFolder, base());
    EXPECT_EQ(window.text(Jar::INDIVIDUAL_FILES), "a.class \"c d.class\"");
    EXPECT_TRUE(window.showsEnd(Jar::INDIVIDUAL_FILES));
    expectEnabled(window, {Jar::ALL_FILES}, false);
    desktop_.expectOpenFiles({});
    window.press(Jar::SELECT_FILES);
    EXPECT_EQ(window.text(Jar::INDIVIDUAL_FILES), "a.class \"c d.class\"") << "Cancel";
  });
}

TEST_F(JarContentsTest, SelectedFilesAreTakenFromTheFolderOfTheLastOne) {
  settings().lastJarBaseFolder = base();
  EXPECT_EQ(run([this](ScriptedWindow& window) {
              chooseArchive(window, archive());
              desktop_.expectOpenFiles({base() + "a.class", userFolder() + "x.class"});
              window.press(Jar::SELECT_FILES);
              window.press(Jar::RUN);
            }),
            DIALOG_OK);
  EXPECT_EQ(dialog_->run().lastFilesFolder, quoted(scratch_.file("us er"))) << "without its last separator";
  EXPECT_EQ(dialog_->run().individualFiles, "a.class x.class");
}

TEST_F(JarContentsTest, OnlyTheStartForgetsTheFolderOfTheSelectedFiles) {
  settings().lastJarBaseFolder = base();
  const auto fill = [this](ScriptedWindow& window, bool select) {
    chooseArchive(window, archive());
    if (select) {
      desktop_.expectOpenFiles({base() + "a.class"});
      window.press(Jar::SELECT_FILES);
      window.press(Jar::CLEAR_FILES);
      window.type(Jar::BASE_FOLDER, userFolder());
    }
    window.type(Jar::INDIVIDUAL_FILES, "b.class");
    window.press(Jar::RUN);
  };
  run([&](ScriptedWindow& window) { fill(window, true); });
  EXPECT_EQ(dialog_->run().lastFilesFolder, quoted(baseNoSlash()));
  desktop_.expectDialog("jar", [&](ScriptedWindow& window) { fill(window, false); });
  dialog_->runModal();
  EXPECT_EQ(dialog_->run().lastFilesFolder, "");
}

TEST_F(JarContentsTest, AFileThatLooksLikeAnOptionIsNamedByWayOfItsFolder) {
  const std::string here = std::string(".") + platform::folderSeparator;
  inBase([&](ScriptedWindow& window) {
    desktop_.expectOpenFiles({base() + "-C", base() + "@list"});
    window.press(Jar::SELECT_FILES);
    EXPECT_EQ(window.text(Jar::INDIVIDUAL_FILES), here + "-C " + here + "@list");
    for (const char* name : {"-x", "@y"}) platform::makeFolders(base() + name);
    window.press(Jar::ADD_ALL_SUBFOLDERS);
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), here + "-x " + here + "@y one \"two words\"");
  });
}

TEST_F(JarContentsTest, NamesThatTheFieldDoesNotTakeAreToldAndLeaveTheList) {
  settings().lastJarBaseFolder = "base";
  const std::string before = platform::currentDirectory();
  platform::makeFolders(scratch_.file("base"));
  platform::changeDirectory(scratch_.path());
  JarDlg dialog(settings(), session_);
  NarrowWindow window(jarLayout(), dialog);
  dialog.initialise(window);
  const std::string folder = "x" + std::string(1, platform::folderSeparator);
  desktop_.expectOpenFiles({folder + "a.class"});
  window.press(Jar::SELECT_FILES);
  const std::string name(20, 'y');
  desktop_.expectOpenFiles({"elsewhere" + folder + name, "elsewhere" + folder + name});
  desktop_.expectMessage(
      "Can't take these files: the list would have 41 characters, which is more than its field takes.");
  window.press(Jar::SELECT_FILES);
  EXPECT_EQ(window.text(Jar::INDIVIDUAL_FILES), "a.class");
  EXPECT_FALSE(window.enabled(Jar::ALL_FILES));

  for (const char first : {'a', 'b'}) platform::makeFolders(scratch_.file("base") + folder.back() + first + name);
  window.type(Jar::SUBFOLDERS, "one");
  desktop_.expectMessage(
      "Can't take these subfolders: the list would have 43 characters, which is more than its field takes.");
  window.press(Jar::ADD_ALL_SUBFOLDERS);
  EXPECT_EQ(window.text(Jar::SUBFOLDERS), "one");

  expectArchiveAsked(archive(), Jar::CREATE_ARCHIVE);
  window.press(Jar::CREATE_ARCHIVE);
  window.press(Jar::RUN);
  EXPECT_EQ(dialog.run().lastFilesFolder, "x") << "where the names that stayed were found";
  platform::changeDirectory(before);
}

TEST_F(JarContentsTest, AllSubfoldersReplaceTheList) {
  platform::makeFolders(base() + ".hidden");
  inBase([](ScriptedWindow& window) {
    window.type(Jar::SUBFOLDERS, "old");
    window.press(Jar::ADD_ALL_SUBFOLDERS);
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), ".hidden one \"two words\"");
    expectEnabled(window, {Jar::ALL_FILES}, false);
  });
}

TEST_F(JarContentsTest, ABaseFolderWithoutSubfoldersAddsNone) {
  settings().lastJarBaseFolder = userFolder();
  run([](ScriptedWindow& window) {
    window.type(Jar::SUBFOLDERS, "old");
    window.press(Jar::ADD_ALL_SUBFOLDERS);
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), "");
    expectEnabled(window, {Jar::ALL_FILES}, true);
    window.press(Jar::CANCEL);
  });
}

TEST_F(JarContentsTest, SelectedSubfoldersReplaceTheList) {
  inBase([this](ScriptedWindow& window) {
    window.type(Jar::SUBFOLDERS, "old");
    desktop_.expectDialog("Select folder", [](ScriptedWindow& folders) { folders.press(SelectSubdirectory::CANCEL); });
    window.press(Jar::SELECT_SUBFOLDERS);
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), "old");
    desktop_.expectDialog("Select folder", [](ScriptedWindow& folders) {
      EXPECT_EQ(folders.entries(SelectSubdirectory::FOLDERS), (Names{"one", "\"two words\""}));
      for (const int index : {0, 1}) folders.setSelected(SelectSubdirectory::FOLDERS, index, true);
      folders.press(SelectSubdirectory::OK);
    });
    window.press(Jar::SELECT_SUBFOLDERS);
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), "\"two words\" one ");
    EXPECT_TRUE(window.showsEnd(Jar::SUBFOLDERS));
    expectEnabled(window, {Jar::ALL_FILES}, false);
  });
}

TEST_F(JarContentsTest, ABaseFolderWorksQuotedOrBare) {
  for (const std::string& folder : {base(), baseNoSlash(), quoted(base()), "  " + quoted(baseNoSlash()) + "  "}) {
    run([&](ScriptedWindow& window) {
      window.type(Jar::BASE_FOLDER, folder);
      window.press(Jar::ADD_ALL_SUBFOLDERS);
      EXPECT_EQ(window.text(Jar::SUBFOLDERS), "one \"two words\"");
      desktop_.expectOpenFiles({});
      window.press(Jar::SELECT_FILES);
      desktop_.expectDialog("Select folder", [](ScriptedWindow& folders) { folders.closeBox(); });
      window.press(Jar::SELECT_SUBFOLDERS);
      window.press(Jar::CANCEL);
    });
  }
}

TEST_F(JarContentsTest, ABaseFolderThatCanNotBeEnteredIsTold) {
  const std::string gone = scratch_.file("gone for good");
  run([&](ScriptedWindow& window) {
    window.type(Jar::BASE_FOLDER, quoted(gone));
    window.type(Jar::SUBFOLDERS, "old");
    desktop_.expectMessage("Can't access basefolder");
    window.press(Jar::SELECT_FILES);
    desktop_.expectMessage("Can't access basefolder");
    window.press(Jar::ADD_ALL_SUBFOLDERS);
    desktop_.expectMessage("Can't access basefolder " + gone);
    window.press(Jar::SELECT_SUBFOLDERS);
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), "old");
    window.press(Jar::CANCEL);
  });
}

TEST_F(JarContentsTest, LookingAtFoldersLeavesTheCurrentOne) {
  ASSERT_TRUE(platform::changeDirectory(scratch_.path()));
  const std::string before = platform::currentDirectory();
  inBase([this](ScriptedWindow& window) {
    window.press(Jar::ADD_ALL_SUBFOLDERS);
    chooseArchive(window, archive());
    desktop_.expectDialog("Select folder", [](ScriptedWindow& folders) { folders.closeBox(); });
    window.press(Jar::SELECT_SUBFOLDERS);
  });
  EXPECT_EQ(platform::currentDirectory(), before) << "so that a base folder may be given as seen from it";
}

}  // namespace
}  // namespace tarnwick::test
