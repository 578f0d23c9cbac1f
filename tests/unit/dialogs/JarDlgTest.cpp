#include "JarFixture.h"
#include "process/WinApp.h"

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

using JarDlgTest = JarDlgFixture;

TEST_F(JarDlgTest, ShowsItsLabelsAndToolTips) {
  const struct {
    int control;
    const char* text;
    const char* toolTip;
  } table[] = {
      {Jar::CREATE_ARCHIVE, "Create new archive", "Create a new archive from scratch"},
      {Jar::UPDATE_ARCHIVE, "Update existing archive",
       "Open an existing archive and update it with the files specified below"},
      {Jar::ARCHIVE, "", "Archive file specification"},
      {Jar::BASE_FOLDER, "", "Folder from which files and subfolders are accessed"},
      {Jar::BROWSE_BASE_FOLDER, "Browse", "Locate folder from which files and subfolders are accessed"},
      {Jar::ALL_FILES, "Add all files,\nincluding all subfolders", "Recursively add all files and subfolders"},
      {Jar::INDIVIDUAL_FILES, "", "Files to be included in the archive"},
      {Jar::SELECT_FILES, "Select...", "Select one or more files and append them to the list of input files"},
      {Jar::CLEAR_FILES, "Clear", "Clear the list of input files"},
      {Jar::SUBFOLDERS, "", "Subfolders to be added to the archive"},
      {Jar::ADD_ALL_SUBFOLDERS, "Add all", "Add all subfolders of the basefolder"},
      {Jar::SELECT_SUBFOLDERS, "Select...",
       "Select one or more subfolders and append them to the list of input subfolders"},
      {Jar::CLEAR_SUBFOLDERS, "Clear", "Clear the list of input subfolders"},
      {Jar::NO_MANIFEST, "Don't create manifest", ""},
      {Jar::MANIFEST_FILE, "", "Specification of a file containing a user-supplied manifest"},
      {Jar::BROWSE_MANIFEST, "Browse", "Locate a file containing a user-supplied manifest"},
      {Jar::MAIN_CLASS, "",
       "Name of public static void main class for executable application packaged in a jar archive."},
      {Jar::CLASS_PATH, "", "Class path for an executable application packaged in a jar archive."},
      {Jar::ADD_TO_CLASS_PATH, "Add...",
       "Click to add a folder or another jar archive to the classpath for the archive."},
      {Jar::CLEAR_CLASS_PATH, "Clear", "Click to erase the contents of the classpath control."},
      {Jar::VERBOSE, "verbose", "Display detail information about the jar execution"},
      {Jar::NO_COMPRESSION, "no ZIP compression", "Do not use zip compression when creating archive"},
      {Jar::OPEN_AS_ZIP, "Open jar archive as zip after jar operation",
       "After having run jar, open archive as zip archive, using a zip utility like WinZip"},
      {Jar::RUN, "Run jar", ""},
      {Jar::CREATE_INDEX, "Create index", "Create index in the archive"},
      {Jar::HELP, "Help", ""},
      {Jar::CANCEL, "Cancel", "Close without running jar"},
  };
  EXPECT_EQ(run([&](ScriptedWindow& window) {
              for (const auto& row : table) {
                EXPECT_EQ(window.text(row.control), row.text);
                EXPECT_EQ(window.toolTip(row.control), row.toolTip);
              }
              window.press(Jar::CANCEL);
            }),
            DIALOG_CANCEL);
}

void collect(const DialogItem& item, ItemKind kind, Names& texts) {
  if (item.kind == kind) texts.push_back(item.text);
  for (const auto& child : item.children) collect(child, kind, texts);
}

TEST_F(JarDlgTest, ShowsItsGroupsAndTheNamesOfItsFields) {
  Names groups;
  Names labels;
  collect(jarLayout().content, ItemKind::Group, groups);
  collect(jarLayout().content, ItemKind::Label, labels);
  EXPECT_EQ(groups, (Names{" Select archive ", " Select contents ", " Manifest ", " Archive options ", " Run jar "}));
  EXPECT_EQ(labels, (Names{"Base folder", "Individual\nfiles", "Complete\nsubfolders", "Manifest\ninput file",
                           "Main\nClass", "Class\nPath"}));
}

TEST_F(JarDlgTest, HelpOpensTheGuideAtItsChapter) {
  std::string anchor;
  context_.showHelp = [&anchor](const std::string& place) { anchor = place; };
  inBase([](ScriptedWindow& window) { window.press(Jar::HELP); });
  EXPECT_EQ(anchor, "#jarmenu");
}

// The start

TEST_F(JarDlgTest, AtTheFirstStartNothingIsKnown) {
  run([](ScriptedWindow& window) {
    for (const int field : {Jar::ARCHIVE, Jar::BASE_FOLDER, Jar::INDIVIDUAL_FILES, Jar::SUBFOLDERS, Jar::MANIFEST_FILE,
                            Jar::MAIN_CLASS, Jar::CLASS_PATH})
      EXPECT_EQ(window.text(field), "");
    for (const int box : {Jar::ALL_FILES, Jar::NO_MANIFEST, Jar::VERBOSE, Jar::NO_COMPRESSION, Jar::OPEN_AS_ZIP})
      EXPECT_FALSE(window.checked(box)) << box;
    expectEnabled(window, {Jar::RUN, Jar::CREATE_INDEX, Jar::ALL_FILES, Jar::OPEN_AS_ZIP}, false);
    expectEnabled(window, ofLists, false);
    expectEnabled(window, ofManifestFile, true);
    expectEnabled(window, ofGeneratedManifest, true);
    window.press(Jar::CANCEL);
  });
}

TEST_F(JarDlgTest, TheSavedPathsAndTheKeptSwitchesAreShown) {
  settings().lastJarArchive = archive();
  settings().lastJarBaseFolder = '"' + base() + '"';
  session_.switches = {true, true, true};
  run([this](ScriptedWindow& window) {
    EXPECT_EQ(window.text(Jar::ARCHIVE), archive());
    EXPECT_EQ(window.text(Jar::BASE_FOLDER), '"' + base() + '"');
    for (const int box : {Jar::VERBOSE, Jar::NO_COMPRESSION, Jar::NO_MANIFEST}) EXPECT_TRUE(window.checked(box)) << box;
    expectEnabled(window, ofLists, true);
    expectEnabled(window, {Jar::ALL_FILES}, true);
    expectEnabled(window, ofManifestFile, false);
    expectEnabled(window, ofGeneratedManifest, false);
    expectEnabled(window, {Jar::RUN}, false);
    window.press(Jar::CANCEL);
  });
}

TEST_F(JarDlgTest, EachSwitchHasItsBox) {
  const std::vector<std::pair<int, JarSwitches>> table = {{Jar::VERBOSE, {true, false, false}},
                                                          {Jar::NO_COMPRESSION, {false, true, false}},
                                                          {Jar::NO_MANIFEST, {false, false, true}}};
  for (const auto& [box, switches] : table) {
    session_.switches = switches;
    run([box = box](ScriptedWindow& window) {
      for (const int one : {Jar::VERBOSE, Jar::NO_COMPRESSION, Jar::NO_MANIFEST})
        EXPECT_EQ(window.checked(one), one == box) << one;
      window.press(Jar::CANCEL);
    });
  }
}

TEST_F(JarDlgTest, ABaseFolderThatCanNotBeEnteredIsForgotten) {
  for (const std::string& folder : {scratch_.file("gone"), base() + "a.class"}) {
    settings().lastJarBaseFolder = folder;
    run([](ScriptedWindow& window) {
      EXPECT_EQ(window.text(Jar::BASE_FOLDER), "");
      expectEnabled(window, ofLists, false);
      window.press(Jar::CANCEL);
    });
  }
}

TEST_F(JarDlgTest, AsZipIsOfferedOnlyWhereSomethingOpensSuchArchives) {
  const WinApp none = WinApp::withCommand("");
  const WinApp packer = WinApp::withCommand("packer %1");
  const struct {
    const WinApp* application;
    bool wanted;
    bool enabled;
    bool checked;
  } table[] = {{nullptr, true, false, false},
               {&none, true, false, false},
               {&packer, true, true, true},
               {&packer, false, true, false}};
  for (const auto& row : table) {
    session_.zipApplication = row.application;
    settings().jarOpenAsZip = row.wanted ? 1 : 0;
    run([&row](ScriptedWindow& window) {
      EXPECT_EQ(window.enabled(Jar::OPEN_AS_ZIP), row.enabled);
      EXPECT_EQ(window.checked(Jar::OPEN_AS_ZIP), row.checked);
      window.press(Jar::CANCEL);
    });
  }
}

// With a project open

TEST_F(JarDlgTest, AProjectProposesItsFolderAndItsMainClass) {
  settings().lastJarBaseFolder = base();
  open("CLASS_WITH_MAIN  p.Main\n");
  for (const std::string destination : {"", "  ", "out"}) {
    settings().javacDestination = destination;
    run([this](ScriptedWindow& window) {
      EXPECT_EQ(window.text(Jar::BASE_FOLDER), quoted(folder()));
      EXPECT_EQ(window.text(Jar::MAIN_CLASS), "p.Main");
      window.press(Jar::CANCEL);
    });
  }
}

TEST_F(JarDlgTest, AProjectProposesTheFolderOfItsClasses) {
  open("");
  for (const std::string& destination : {baseNoSlash(), base(), "  " + quoted(baseNoSlash()) + " "}) {
    settings().javacDestination = destination;
    run([this](ScriptedWindow& window) {
      EXPECT_EQ(window.text(Jar::BASE_FOLDER), quoted(base()));
      window.press(Jar::CANCEL);
    });
  }
}

TEST_F(JarDlgTest, ReadTheNewerWayAProjectProposesWhereItsPackagesBegin) {
  const std::string root = folder() + "src";
  platform::makeFolders(root + platform::folderSeparator + "p");
  makeSource(std::string("src") + platform::folderSeparator + "p" + platform::folderSeparator + "A.java",
             "package p; class A {}");
  ProjectContext& project =
      open("NEWER_JAVA  ON\nPROJECT_MULTIMAIN  ON\nPROJECT_SOURCES  src/p/A.java\nCLASS_WITH_MAIN  A\n");
  project.update();
  run([&](ScriptedWindow& window) {
    EXPECT_EQ(window.text(Jar::BASE_FOLDER), quoted(root + platform::folderSeparator));
    EXPECT_EQ(window.text(Jar::MAIN_CLASS), "p.A") << "as the manifest wants it";
    window.press(Jar::CANCEL);
  });
  makeSource("B.java", "class B {}");
  project.sources.add("B.java");
  project.update();
  run([&](ScriptedWindow& window) {
    EXPECT_EQ(window.text(Jar::BASE_FOLDER), quoted(folder())) << "of several roots none";
    window.press(Jar::CANCEL);
  });
}

TEST_F(JarDlgTest, AFolderOfClassesThatIsNotThereLeavesTheSavedBaseFolder) {
  open("");
  settings().lastJarBaseFolder = base();
  settings().javacDestination = scratch_.file("gone");
  run([this](ScriptedWindow& window) {
    EXPECT_EQ(window.text(Jar::BASE_FOLDER), base());
    window.press(Jar::CANCEL);
  });
}

// Selecting the archive

TEST_F(JarDlgTest, ANewArchiveIsMadeAtOnce) {
  inBase([this](ScriptedWindow& window) {
    desktop_.expectSaveFile(archive());
    window.press(Jar::CREATE_ARCHIVE);
    const FileRequest& request = desktop_.lastRequest();
    EXPECT_EQ(request.filter, "jar archives (*.jar)|*.jar||");
    EXPECT_EQ(request.extension, ".jar");
    EXPECT_EQ(request.name, "");
    EXPECT_EQ(request.startFolder, baseNoSlash() + platform::folderSeparator);
    EXPECT_FALSE(request.confirmOverwrite);
    EXPECT_EQ(contentOf(archive()), "");
    EXPECT_EQ(window.text(Jar::ARCHIVE), archive());
    EXPECT_EQ(window.text(Jar::RUN), "Create archive");
    expectEnabled(window, {Jar::RUN, Jar::CREATE_INDEX}, false);
  });
  EXPECT_EQ(dialog_->archive(), archive());
  EXPECT_TRUE(trashed_.empty());
}

TEST_F(JarDlgTest, AnExistingArchiveIsEmptiedAtOnceAndItsCopyGoesToTheTrash) {
  writeFile(archive(), "what it held");
  const int waits = desktop_.waits();
  inBase([this](ScriptedWindow& window) {
    chooseArchive(window, archive());
    EXPECT_EQ(contentOf(archive()), "") << "although the dialog is going to be cancelled";
    chooseArchive(window, archive());
  });
  EXPECT_EQ(trashed_, Names{archive() + ": what it held"}) << "once: an empty one needs no copy";
  EXPECT_EQ(desktop_.waits(), waits + 2);
}

TEST_F(JarDlgTest, WithoutATrashTheArchiveIsEmptiedAllTheSame) {
  session_.copyToTrash = [](const std::string&) { return false; };
  writeFile(archive(), "what it held");
  inBase([this](ScriptedWindow& window) {
    chooseArchive(window, archive());
    EXPECT_EQ(window.text(Jar::RUN), "Create archive");
  });
  EXPECT_EQ(contentOf(archive()), "");
}

TEST_F(JarDlgTest, AnExistingArchiveIsUpdated) {
  writeFile(archive(), "what it held");
  inBase([this](ScriptedWindow& window) {
    chooseArchive(window, archive(), Jar::UPDATE_ARCHIVE);
    EXPECT_EQ(desktop_.lastRequest().filter, "jar archives (*.jar)|*.jar||");
    EXPECT_EQ(desktop_.lastRequest().extension, ".jar");
    EXPECT_TRUE(desktop_.lastRequest().mustExist);
    EXPECT_EQ(window.text(Jar::ARCHIVE), archive());
    EXPECT_EQ(window.text(Jar::RUN), "Update archive");
    expectEnabled(window, {Jar::RUN}, false);
    expectEnabled(window, {Jar::CREATE_INDEX}, true);
    chooseArchive(window, archive() + "2");
    expectEnabled(window, {Jar::CREATE_INDEX}, false);
  });
  EXPECT_EQ(contentOf(archive()), "what it held");
  EXPECT_TRUE(trashed_.empty());
}

TEST_F(JarDlgTest, TheDialogForTheArchiveOpensWhereThePresentOneLies) {
  const struct {
    std::string archive;
    std::string base;
    std::string folder;
    std::string name;
  } table[] = {
      {quoted(archive()), base(), userFolder(), "my app.jar"},
      {archive(), "", userFolder(), "my app.jar"},
      {scratch_.file("gone") + platform::folderSeparator + "x.jar", quoted(base()), base(), "x.jar"},
      {"x.jar", base(), base(), "x.jar"},
      {"", "", platform::startFolder("C:\\"), ""},
  };
  for (const int button : {Jar::CREATE_ARCHIVE, Jar::UPDATE_ARCHIVE}) {
    for (const auto& row : table) {
      settings().lastJarArchive = row.archive;
      settings().lastJarBaseFolder = row.base;
      run([&](ScriptedWindow& window) {
        if (button == Jar::CREATE_ARCHIVE)
          desktop_.expectSaveFile(std::nullopt);
        else
          desktop_.expectOpenFile(std::nullopt);
        window.press(button);
        EXPECT_EQ(desktop_.lastRequest().startFolder, row.folder);
        EXPECT_EQ(desktop_.lastRequest().name, row.name);
        EXPECT_EQ(window.text(Jar::ARCHIVE), row.archive) << "Cancel changes nothing";
        EXPECT_EQ(window.text(Jar::RUN), "Run jar");
        window.press(Jar::CANCEL);
      });
    }
  }
}

TEST_F(JarDlgTest, AnArchiveThatCanNotBeOpenedIsToldAndTheStateStays) {
  writeFile(archive(), "what it held");
  const std::string bad = scratch_.file("gone") + platform::folderSeparator + "x.jar";
  inBase([&](ScriptedWindow& window) {
    chooseArchive(window, archive(), Jar::UPDATE_ARCHIVE);
    window.type(Jar::INDIVIDUAL_FILES, "a.class");
    for (const int button : {Jar::CREATE_ARCHIVE, Jar::UPDATE_ARCHIVE}) {
      refuseArchive(window, bad, button, noSuchFile);
      EXPECT_EQ(window.text(Jar::ARCHIVE), archive());
      EXPECT_EQ(window.text(Jar::RUN), "Update archive");
      EXPECT_EQ(window.text(Jar::INDIVIDUAL_FILES), "a.class");
      expectEnabled(window, {Jar::RUN, Jar::CREATE_INDEX}, true);
    }
  });
  EXPECT_EQ(dialog_->archive(), archive());
}

TEST_F(JarDlgTest, AFolderInThePlaceOfTheArchiveIsToldAndNoCopyIsMade) {
  platform::makeFolders(archive());
  const std::string reason = refusal(archive(), FileMode::Write);
  inBase([&](ScriptedWindow& window) {
    refuseArchive(window, archive(), Jar::CREATE_ARCHIVE, reason);
    EXPECT_EQ(window.text(Jar::RUN), "Run jar");
  });
  EXPECT_TRUE(trashed_.empty());
}

}  // namespace
}  // namespace tarnwick::test
