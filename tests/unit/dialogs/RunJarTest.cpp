#include "JarFixture.h"
#include "process/WinApp.h"
#include "support/BrokenTool.h"
#include "support/Children.h"
#include "support/SystemWords.h"
#include "support/TestFolders.h"

namespace tarnwick::test {
namespace {

/// The dialog with the run behind it; a stand-in takes the place of `jar`.
class RunJarTest : public JarFixture {
 protected:
  RunJarTest() : before_(platform::currentDirectory()) {
    settings().lastJarBaseFolder = base();
    // An editor that can't be started tells that the log is shown.
    settings().editorTarget = scratch_.file("no editor");
    settings().displayWithNotepad = false;
  }
  ~RunJarTest() override { platform::changeDirectory(before_); }

  void run(const ScriptedDesktop::DialogScript& script) {
    desktop_.expectDialog("jar", script);
    runJar(settings(), session_);
  }
  /// Chooses a new archive and this folder, lets `change` do the rest, and runs.
  void create(const ScriptedDesktop::DialogScript& change = [](ScriptedWindow&) {}) {
    run([&](ScriptedWindow& window) {
      chooseArchive(window, archive());
      window.type(Jar::SUBFOLDERS, "one");
      change(window);
      window.press(Jar::RUN);
    });
  }
  void setScript(const std::string& script) const { writeFile(scratch_.file("script"), script); }
  std::string shownLog() {
    return "Unable to start " + settings().editorTarget + " for log file display.\n\n" + noSuchFile + '\n' + noSuchFile;
  }

  std::string before_;
};

TEST_F(RunJarTest, TheToolRunsInTheBaseFolderWithWhatTheDialogGathered) {
  setScript("folder\n");
  create([this](ScriptedWindow& window) {
    window.press(Jar::VERBOSE);
    desktop_.expectMessage(shownLog());
  });
  EXPECT_EQ(recorded(), "cfv\n" + archive() + "\none\n");
  const std::string end = platform::lineEnd;
  const std::string folder = platform::resolvedPath(baseNoSlash());
  EXPECT_EQ(contentOf(log_.path()), end + end + "jar cfv " + quoted(archive()) + " one" + end + end + folder + "\n");
}

TEST_F(RunJarTest, WhoHasLeftMeanwhileIsShownNeitherLogNorArchive) {
  const WinApp packer =
      WinApp::withCommand(quoted(standInFolder() + platform::toolFileName("java")) + " --open \"%1\"");
  session_.zipApplication = &packer;
  settings().jarOpenAsZip = true;
  setScript("folder\n");
  desktop_.left = true;
  create();
  EXPECT_NE(contentOf(log_.path()).find("jar cf "), std::string::npos) << "it has said something";
  EXPECT_EQ(recorded(), "cf\n" + archive() + "\none\n");
}

TEST_F(RunJarTest, ASilentToolShowsNoLog) {
  create();
  EXPECT_EQ(recorded(), "cf\n" + archive() + "\none\n");
}

TEST_F(RunJarTest, TheManifestLivesAsLongAsTheRun) {
  const std::string manifest = configFolder() + "Tarnwick_tempManifest1.tmp";
  setScript("keep " + manifest + "\n");
  create([](ScriptedWindow& window) { window.type(Jar::MAIN_CLASS, "p.Main"); });
  EXPECT_EQ(recorded(), "cfm\n" + archive() + "\n" + manifest + "\none\n");
  EXPECT_EQ(contentOf(scratch_.file("record.kept")),
            manifest + ":Main-Class: p.Main" + std::string(platform::lineEnd) + "\n");
  EXPECT_FALSE(platform::isFile(manifest));
}

TEST_F(RunJarTest, PathsAndTheZipBoxAreSavedAndTheSwitchesKept) {
  settings().jarOpenAsZip = true;
  run([this](ScriptedWindow& window) {
    window.type(Jar::BASE_FOLDER, "  " + quoted(base()) + " ");
    chooseArchive(window, archive());
    window.press(Jar::ALL_FILES);
    window.press(Jar::NO_COMPRESSION);
    window.press(Jar::NO_MANIFEST);
    window.press(Jar::RUN);
  });
  EXPECT_EQ(valueIn(configFile(), "LAST_JAR_ARCHIVE"), archive());
  EXPECT_EQ(valueIn(configFile(), "LAST_JAR_BASEFOLDER"), quoted(base()));
  EXPECT_EQ(valueIn(configFile(), "JAR_OPEN_AS_ZIP"), "OFF") << "nothing opens such archives here";
  EXPECT_FALSE(session_.switches.verbose);
  EXPECT_TRUE(session_.switches.noCompression && session_.switches.noManifest);
  run([](ScriptedWindow& window) {
    EXPECT_FALSE(window.checked(Jar::VERBOSE));
    EXPECT_TRUE(window.checked(Jar::NO_COMPRESSION) && window.checked(Jar::NO_MANIFEST));
    window.press(Jar::CANCEL);
  });
}

TEST_F(RunJarTest, WithAProjectOpenTheDefaultConfigurationIsSaved) {
  open("");
  settings().lastJarArchive.clear();
  const std::string project = contentOf(projectFile());
  run([this](ScriptedWindow& window) {
    chooseArchive(window, archive());
    window.press(Jar::ALL_FILES);
    window.press(Jar::RUN);
  });
  EXPECT_EQ(valueIn(configFile(), "LAST_JAR_ARCHIVE"), archive());
  EXPECT_EQ(contentOf(projectFile()), project);
}

TEST_F(RunJarTest, TheSettingsAreSavedBeforeTheRun) {
  setScript("keep " + configFile() + "\n");
  create();
  EXPECT_NE(contentOf(scratch_.file("record.kept")).find("LAST_JAR_ARCHIVE  " + archive()), std::string::npos);
}

TEST_F(RunJarTest, CancelChangesNothing) {
  const std::string saved = contentOf(configFile());
  run([](ScriptedWindow& window) {
    window.press(Jar::VERBOSE);
    window.press(Jar::CANCEL);
  });
  EXPECT_EQ(recorded(), "");
  EXPECT_EQ(contentOf(configFile()), saved);
  EXPECT_FALSE(session_.switches.verbose);
  EXPECT_EQ(platform::currentDirectory(), before_);
}

TEST_F(RunJarTest, AnArchiveThatLiesInTheBaseFolderLeavesItselfOut) {
  run([this](ScriptedWindow& window) {
    chooseArchive(window, base() + "x y.jar");
    window.press(Jar::ALL_FILES);
    window.press(Jar::RUN);
  });
  const std::string given = "cf\nx y.jar\n";
  if (platform::withNamesFilledIn("*") == "*")
    EXPECT_TRUE(recorded().starts_with(given)) << "the tool fills in the names by itself: " << recorded();
  else
    EXPECT_EQ(recorded(), given + "a.class\nb.class\nc d.class\none\ntwo words\nx y.jar\n");
}

TEST_F(RunJarTest, ABaseFolderAsSeenFromTheCurrentOneWorksToo) {
  ASSERT_TRUE(platform::changeDirectory(scratch_.path()));
  run([this](ScriptedWindow& window) {
    window.type(Jar::BASE_FOLDER, "\"ba se\"");
    chooseArchive(window, base() + "x.jar");
    window.type(Jar::SUBFOLDERS, "one");
    window.press(Jar::RUN);
  });
  EXPECT_EQ(recorded(), "cf\nx.jar\none\n");
}

TEST_F(RunJarTest, AnIndexNeedsNoBaseFolder) {
  writeFile(archive(), "x");
  settings().lastJarBaseFolder.clear();
  run([this](ScriptedWindow& window) {
    chooseArchive(window, archive(), Jar::UPDATE_ARCHIVE);
    window.press(Jar::CREATE_INDEX);
  });
  EXPECT_EQ(recorded(), "-i\n" + archive() + "\n");
  EXPECT_EQ(platform::currentDirectory(), before_);
}

TEST_F(RunJarTest, AnIndexIsSavedAndOpenedAsZipLikeAnyRun) {
  const WinApp packer =
      WinApp::withCommand(quoted(standInFolder() + platform::toolFileName("java")) + " --open \"%1\"");
  session_.zipApplication = &packer;
  session_.switches.verbose = true;
  settings().jarOpenAsZip = true;
  writeFile(archive(), "x");
  run([this](ScriptedWindow& window) {
    chooseArchive(window, archive(), Jar::UPDATE_ARCHIVE);
    window.press(Jar::VERBOSE);
    window.press(Jar::CREATE_INDEX);
  });
  const std::string expected = "-i\n" + archive() + "\n--open\n" + archive() + "\n";
  EXPECT_TRUE(waitUntil([&] { return recorded() == expected; })) << recorded();
  EXPECT_EQ(valueIn(configFile(), "LAST_JAR_ARCHIVE"), archive());
  EXPECT_EQ(valueIn(configFile(), "LAST_JAR_BASEFOLDER"), base());
  EXPECT_EQ(valueIn(configFile(), "JAR_OPEN_AS_ZIP"), "ON");
  EXPECT_TRUE(session_.switches.verbose) << "the boxes are not looked at";
}

TEST_F(RunJarTest, ADialogWithoutAnArchiveOrAnOperationIsRefused) {
  for (const std::string& known : {std::string(), archive()}) {
    settings().lastJarArchive = known;
    desktop_.expectDialog("jar", [](ScriptedWindow& window) { window.close(DIALOG_OK); });
    desktop_.expectMessage("No valid jar archive file specification available.");
    runJar(settings(), session_);
    EXPECT_EQ(recorded(), "");
    EXPECT_EQ(valueIn(configFile(), "LAST_JAR_BASEFOLDER"), "");
    EXPECT_EQ(platform::currentDirectory(), before_);
  }
}

TEST_F(RunJarTest, AToolsFolderThatIsGivenThenIsUsed) {
  settings().javaPath.clear();
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
    EXPECT_EQ(window.selection(1092), 0) << "the first page";
    window.page(1092, 0).type(1041, standInFolder());
    window.press(IDOK_CONTROL);
  });
  create();
  EXPECT_EQ(recorded(), "cf\n" + archive() + "\none\n");
}

TEST_F(RunJarTest, ABaseFolderThatHasGoneStopsAnIndex) {
  writeFile(archive(), "x");
  const std::string shortLived = scratch_.file("short lived");
  platform::makeFolders(shortLived);
  settings().lastJarBaseFolder = shortLived;
  desktop_.expectDialog("jar", [&](ScriptedWindow& window) {
    chooseArchive(window, archive(), Jar::UPDATE_ARCHIVE);
    removeTree(shortLived);
    window.press(Jar::CREATE_INDEX);
  });
  desktop_.expectMessage("Invalid basefolder specification.");
  runJar(settings(), session_);
  EXPECT_EQ(recorded(), "");
  EXPECT_EQ(valueIn(configFile(), "LAST_JAR_ARCHIVE"), "");
}

TEST_F(RunJarTest, TheArchiveIsOpenedAsZipAfterTheRun) {
  const WinApp packer =
      WinApp::withCommand(quoted(standInFolder() + platform::toolFileName("java")) + " --open \"%1\"");
  session_.zipApplication = &packer;
  for (const bool wanted : {true, false}) {
    settings().jarOpenAsZip = wanted ? 1 : 0;
    platform::deleteFile(scratch_.file("record"));
    create();
    const std::string ran = "cf\n" + archive() + "\none\n";
    if (wanted) {
      EXPECT_TRUE(waitUntil([&] { return recorded() == ran + "--open\n" + archive() + "\n"; })) << recorded();
    } else {
      EXPECT_EQ(recorded(), ran);
    }
    EXPECT_EQ(valueIn(configFile(), "JAR_OPEN_AS_ZIP"), wanted ? "ON" : "OFF");
  }
}

TEST_F(RunJarTest, WhatCannotBeStartedIsToldTheToolBeforeTheZipProgram) {
  const BrokenTool jar(scratch_.file("broken") + platform::folderSeparator, "jar");
  settings().javaPath = jar.folder();
  const WinApp packer = WinApp::withCommand(quoted(scratch_.file("no packer.exe")) + " %1");
  session_.zipApplication = &packer;
  settings().jarOpenAsZip = true;
  // The messages come when the dialog has closed.
  create([&](ScriptedWindow&) {
    desktop_.expectMessage(jar.words());
    std::string reason;
    try {
      platform::startCommandLine(scratch_.file("no packer.exe"), "x");
    } catch (const platform::SystemError& error) {
      reason = error.text();
    }
    desktop_.expectMessage("Can't start \"no packer.exe\" " + platform::commandWord(archive()) + '\n' + reason);
  });
}

TEST_F(RunJarTest, AToolsFolderThatStaysUnknownIsTold) {
  settings().javaPath.clear();
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  desktop_.expectMessage(said("No path to javac.exe and other tools available from settings",
                              "No path to javac and other tools available from settings"));
  runJar(settings(), session_);
}

TEST_F(RunJarTest, AToolThatCantBeReadIsToldBeforeTheDialogOpens) {
  settings().javaPath = scratch_.file("no jdk") + platform::folderSeparator;
  desktop_.expectMessage("Can't access the JDK tool " + settings().javaPath + platform::toolFileName("jar") + "\n" +
                         noSuchFile + "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
  runJar(settings(), session_);
}

TEST_F(RunJarTest, ALogThatCannotBeMadeIsTold) {
  setScript("out x\n");
  ToolLog nowhere(scratch_.file("gone") + platform::folderSeparator);
  SettingsContext context = settingsOnDesktop(desktop_, program_, nowhere);
  Settings other(context);
  other.javaPath = standInFolder();
  other.lastJarBaseFolder = base();
  desktop_.expectDialog("jar", [this](ScriptedWindow& window) {
    chooseArchive(window, archive());
    window.type(Jar::SUBFOLDERS, "one");
    window.press(Jar::RUN);
  });
  desktop_.expectMessage(std::string(noSuchFile) + "\nCan't open log file " + scratch_.file("gone") +
                         platform::folderSeparator + "Tarnwick_LOG1.tmp");
  runJar(other, session_);
}

}  // namespace
}  // namespace tarnwick::test
