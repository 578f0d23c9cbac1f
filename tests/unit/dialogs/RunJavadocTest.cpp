#include "JavadocFixture.h"
#include "support/SystemWords.h"

namespace tarnwick::test {
namespace {

/// The dialog with the run behind it; a stand-in takes the place of `javadoc`.
class RunJavadocTest : public JavadocFixture {
 protected:
  RunJavadocTest() {
    // An editor that can't be started tells that the log is shown.
    settings().editorTarget = scratch_.file("no editor");
    settings().displayWithNotepad = false;
    settings().classpath = "c";
    settings().classpathFromEnvironmentNever = false;
  }

  void run(const ScriptedDesktop::DialogScript& script) {
    desktop_.expectDialog("javadoc", script);
    runJavadoc(settings(), files_);
  }
  /// Names these files, lets `change` do the rest, and runs.
  void document(
      const std::string& files, const ScriptedDesktop::DialogScript& change = [](ScriptedWindow&) {}) {
    run([&](ScriptedWindow& window) {
      typeFiles(window, files);
      change(window);
      window.press(Javadoc::RUN);
    });
  }
  void setScript(const std::string& script) const { writeFile(scratch_.file("script"), script); }
  std::string shownLog() {
    return "Unable to start " + settings().editorTarget + " for log file display.\n\n" + noSuchFile + '\n' + noSuchFile;
  }

  std::string files_;
};

TEST_F(RunJavadocTest, TheToolGetsTheListThatLivesAsLongAsTheRun) {
  setScript("keep " + listFile() + "\n");
  document("B.java C.java");
  EXPECT_EQ(recorded(), "-classpath\nc\n@" + listFile() + "\n");
  std::string kept = contentOf(scratch_.file("record.kept"));
  std::erase(kept, '\r');
  EXPECT_EQ(kept, listFile() + ":B.java\nC.java\n\n");
  EXPECT_FALSE(platform::isFile(listFile()));
}

TEST_F(RunJavadocTest, NamesThatTheListCanNotHoldAreArguments) {
  writeFile(sources() + "two words.java", "");
  document("\"two words.java\" B.java");
  EXPECT_EQ(recorded(), "-classpath\nc\ntwo words.java\nB.java\n");
  EXPECT_FALSE(platform::isFile(listFile()));
}

TEST_F(RunJavadocTest, PathsOptionsAndPackagesReachTheTool) {
  document("B.java", [](ScriptedWindow& window) {
    ScriptedWindow& paths = page(window, JAVADOC_PATHS_PAGE);
    paths.type(JavadocPaths::SOURCEPATH, "s;t");
    paths.type(JavadocPaths::CLASSPATH, "");
    page(window, JAVADOC_OPTIONS_PAGE).press(JavadocOptions::PRIVATE);
    page(window, JAVADOC_OPTIONS_PAGE).type(JavadocOptions::J_FLAGS, "-Xmx64m");
    page(window, DOCLET_PATHS_PAGE).type(DocletPaths::TAG, "one:a:\"One:\";two");
    page(window, DOCLET_OPTIONS_PAGE).type(DocletOptions::WINDOW_TITLE, "\"my title\"");
    page(window, JAVADOC_SOURCES_PAGE).type(JavadocSources::PACKAGES, "p q");
  });
  EXPECT_EQ(recorded(), "-private\n-J-Xmx64m\n-sourcepath\n" + platform::commandLineList("s;t") +
                            "\n-windowtitle\nmy title\n-tag\none:a:One:\n-tag\ntwo\np\nq\n@" + listFile() + "\n");
}

TEST_F(RunJavadocTest, TheLogIsShownIfTheToolSaidSomething) {
  setScript("out documented\n");
  document("B.java", [this](ScriptedWindow&) { desktop_.expectMessage(shownLog()); });
  const std::string end = platform::lineEnd;
  EXPECT_EQ(contentOf(log_.path()),
            end + end + "javadoc -classpath c @" + quoted(listFile()) + end + end + "documented\n");
}

TEST_F(RunJavadocTest, TheFilesAreKeptForTheNextRunAndTheSettingsSavedBefore) {
  setScript("keep " + configFile() + "\n");
  document("  B.java ",
           [](ScriptedWindow& window) { page(window, DOCLET_OPTIONS_PAGE).type(DocletOptions::HEADER, "mine"); });
  EXPECT_NE(contentOf(scratch_.file("record.kept")).find("JDOC_HEADER  mine"), std::string::npos);
  EXPECT_EQ(files_, "B.java ");
  run([](ScriptedWindow& window) {
    EXPECT_EQ(page(window, JAVADOC_SOURCES_PAGE).text(JavadocSources::FILES), "B.java ");
    EXPECT_EQ(page(window, DOCLET_OPTIONS_PAGE).text(DocletOptions::HEADER), "mine");
    window.press(Javadoc::CANCEL);
  });
}

TEST_F(RunJavadocTest, CancelRunsNothingAndKeepsTheFilesOfTheLastRun) {
  files_ = "B.java";
  run([](ScriptedWindow& window) {
    typeFiles(window, "C.java");
    window.press(Javadoc::CANCEL);
  });
  EXPECT_EQ(recorded(), "");
  EXPECT_EQ(files_, "B.java");
  run([this](ScriptedWindow& window) {
    typeFiles(window, "");
    desktop_.expectHint("No input files for javadoc selected.");
    window.press(Javadoc::RUN);
  });
  EXPECT_EQ(recorded(), "");
  EXPECT_EQ(files_, "B.java");
}

TEST_F(RunJavadocTest, AMovedWindowIsSavedAfterCancelToo) {
  for (const bool cancels : {true, false}) {
    struct Silent : DialogHandler {
      void initialise(DialogWindow&) override {}
      void onCommand(int) override {}
      void onCloseRequest() override {}
    } handler;
    ScriptedWindow main(javadocLayout(), handler);
    context_.mainWindow = &main;
    settings().windowPosition.fromString("7;9");
    main.moveByHand({11, cancels ? 22 : 33});
    run([cancels](ScriptedWindow& window) {
      typeFiles(window, "B.java");
      window.press(cancels ? Javadoc::CANCEL : Javadoc::RUN);
    });
    EXPECT_EQ(valueIn(configFile(), "WINDOW_POSITION"), cancels ? "11;22" : "11;33");
    context_.mainWindow = nullptr;
  }
}

TEST_F(RunJavadocTest, AToolsFolderThatStaysUnknownIsTold) {
  settings().javaPath.clear();
  desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  desktop_.expectMessage(said("No path to javac.exe and other tools available from settings",
                              "No path to javac and other tools available from settings"));
  runJavadoc(settings(), files_);
}

TEST_F(RunJavadocTest, AToolThatCantBeReadIsToldBeforeTheDialogOpens) {
  settings().javaPath = scratch_.file("no jdk") + platform::folderSeparator;
  desktop_.expectMessage("Can't access the JDK tool " + settings().javaPath + platform::toolFileName("javadoc") + "\n" +
                         noSuchFile + "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?");
  runJavadoc(settings(), files_);
}

TEST_F(RunJavadocTest, ALogThatCannotBeMadeIsToldAndTheFilesAreKept) {
  setScript("out x\n");
  ToolLog nowhere(scratch_.file("gone") + platform::folderSeparator);
  SettingsContext context = settingsOnDesktop(desktop_, program_, nowhere);
  Settings other(context);
  other.javaPath = standInFolder();
  desktop_.expectDialog("javadoc", [](ScriptedWindow& window) {
    typeFiles(window, "B.java");
    window.press(Javadoc::RUN);
  });
  desktop_.expectMessage(std::string(noSuchFile) + "\nCan't open log file " + scratch_.file("gone") +
                         platform::folderSeparator + "Tarnwick_LOG1.tmp");
  runJavadoc(other, files_);
  EXPECT_EQ(files_, "B.java");
  EXPECT_FALSE(platform::isFile(listFile()));
}

TEST_F(RunJavadocTest, MoreTagsThanACommandHasPlacesForAreTold) {
  std::string tags = "t";
  for (int i = 0; i < 250; ++i) tags += ";t";
  document("B.java", [&](ScriptedWindow& window) {
    page(window, DOCLET_PATHS_PAGE).type(DocletPaths::TAG, tags);
    desktop_.expectMessage("Subprocess argument list too long (1).");
  });
  EXPECT_EQ(recorded(), "");
}

}  // namespace
}  // namespace tarnwick::test
