// What the project view's other buttons do with the open project.
#include "ProjectViewFixture.h"
#include "platform/OwnFiles.h"

#include <algorithm>
#include <chrono>
#include <filesystem>

namespace tarnwick::test {
namespace {

using std::chrono::milliseconds;

const char notCompiled[] = "Not all classes are up-to-date. Compile!";

class ProjectRunTest : public ProjectViewFixture {
 protected:
  ProjectRunTest() {
    saveEarlierRun([](Settings& earlier) {
      earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc");
      earlier.javacSoundOnSuccess = earlier.javacSoundOnError = true;
    });
    // The stand-in plays the second copy of the program.
    program_.programPath = standInFolder() + platform::toolFileName("jdb");
  }

  /// Whether programs get their arguments one by one here, or one command line, in which quotes are taken for what they
  /// are.
  static bool oneByOne() { return platform::folderSeparator == '/'; }
  /// An option with a list of paths, the last of which holds a blank, as the second copy of the program gets it.
  static std::string received(const std::string& option, const std::string& before, const std::string& path) {
    return oneByOne() ? option + ' ' + before + quoted(path) + '\n' : option + '\n' + before + path + '\n';
  }
  const std::string listSeparator = platform::commandLineList(";");

  /// A project of two sources, with a stand-in as the editor.
  std::string withAnEditor(int openAll) {
    saveEarlierRun([openAll](Settings& earlier) {
      earlier.editWithNotepad = false;
      earlier.editorOpenAll = openAll;
      earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc");
    });
    makeSource("A");
    makeSource("B");
    return makeProject("PROJECT_SOURCES  A.java;B.java\n");
  }

  /// How long "Edit" takes with these files.
  milliseconds timeOfEdit(ScriptedWindow& panel, const std::vector<std::string>& chosen) {
    desktop_.expectOpenFiles(chosen);
    const auto before = std::chrono::steady_clock::now();
    panel.press(PROJECT_EDIT);
    return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - before);
  }
  static constexpr int tries[20] = {};

  /// A main class that is up to date when the panel stands, and no longer when a button is pressed.
  void runStale(int tab, int button, const std::function<void()>& expect) {
    makeSource("Main", mainMethod());
    makeCurrent("Main");
    startWith(makeProject("PROJECT_SOURCES  Main.java\nPROJECT_HTMLFILE  a.html\n"), [&](ScriptedWindow& panel) {
      makeStale("Main");
      expect();
      panel.choose(TABS, tab);
      panel.page(TABS, tab).press(button);
      EXPECT_FALSE(panel.page(TABS, tab).enabled(button));
      exit(panel);
    });
    EXPECT_FALSE(platform::isFile(scratch_.file("record")));
  }
};

TEST_F(ProjectRunTest, JavacCompilesOnlyWhatIsOutOfDate) {
  makeSource("A");
  makeSource("B");
  makeSource("C");
  for (const char* name : {"A", "B", "C"}) makeCurrent(name);
  startWith(makeProject("PROJECT_SOURCES  A.java;B.java;C.java\n"), [&](ScriptedWindow& panel) {
    makeStale("B");
    panel.press(CHANGED);
    exit(panel);
  });
  const std::string recorded = recordedUpTo("B.java\n");
  EXPECT_EQ(recorded.find("A.java"), std::string::npos);
  EXPECT_EQ(recorded.find("C.java"), std::string::npos);
  EXPECT_EQ(desktop_.alerts(), std::vector<AlertSound>{AlertSound::Asterisk});
}

TEST_F(ProjectRunTest, JavacAllCompilesEverythingFromTheLastToTheFirst) {
  makeSource("A");
  makeSource("B");
  for (const char* name : {"A", "B"}) makeCurrent(name);
  startWith(makeProject("PROJECT_SOURCES  A.java;B.java\n"), [&](ScriptedWindow& panel) {
    panel.press(ALL);
    exit(panel);
  });
  const std::string recorded = recordedUpTo("A.java\n");
  const auto second = recorded.find("B.java\n");
  ASSERT_NE(second, std::string::npos);
  EXPECT_LT(second, recorded.find("A.java\n"));
}

TEST_F(ProjectRunTest, JavacOnACurrentProjectCompilesNothingAndStillSounds) {
  const std::string file = makeRunnable();
  startWith(file, [&](ScriptedWindow& panel) {
    panel.press(CHANGED);
    exit(panel);
  });
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
  EXPECT_EQ(desktop_.alerts(), std::vector<AlertSound>{AlertSound::Asterisk});
}

TEST_F(ProjectRunTest, AConflictIsToldAndNothingIsCompiled) {
  makeSource("A", mainMethod());
  makeSource("B");
  startWith(makeProject("PROJECT_SOURCES  A.java;B.java\n"), [&](ScriptedWindow& panel) {
    writeFile(path("B.java"), "public class B {" + mainMethod() + "}\n");
    desktop_.expectMessage(conflict("B.java", "A.java"));
    panel.press(CHANGED);
    EXPECT_FALSE(panel.page(TABS, 0).enabled(RIGHT));
    exit(panel);
  });
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
  EXPECT_TRUE(desktop_.alerts().empty());
}

TEST_F(ProjectRunTest, JavaRunsTheClassOfTheFieldWithItsArguments) {
  startWith(makeRunnable(), [&](ScriptedWindow& panel) {
    panel.page(TABS, 0).type(FIELD, "  pkg.Main  first second ");
    panel.page(TABS, 0).press(RIGHT);
    exit(panel);
  });
  std::string recorded = recordedUpTo("second");
  const std::string classpath = received("-classpath", "." + listSeparator, Filename(userFolder()).directoryNoSlash());
  EXPECT_NE(recorded.find(classpath), std::string::npos) << "a folder with a blank stays together: " << recorded;
  std::replace(recorded.begin(), recorded.end(), '\n', ' ');
  EXPECT_NE(recorded.find("\\/TITLE=pkg.Main\\/"), std::string::npos) << recorded;
  EXPECT_NE(recorded.find("pkg.Main first second"), std::string::npos) << recorded;
  const std::string file = oneByOne() ? quoted(path("my demo.twp")) : path("my demo.twp");
  EXPECT_NE(recorded.find("\\/CFG=" + file + "\\/"), std::string::npos)
      << "the second copy reads the project's settings: " << recorded;
}

TEST_F(ProjectRunTest, ANameInDoubleQuotesIsTheTargetAndTheRestItsArguments) {
  startWith(makeRunnable(), [&](ScriptedWindow& panel) {
    panel.page(TABS, 0).type(FIELD, "\"Main\" a  \"b c\"");
    panel.page(TABS, 0).press(RIGHT);
    exit(panel);
  });
  std::string recorded = recordedUpTo("b c");
  EXPECT_NE(recorded.find("\\/TITLE=Main\\/"), std::string::npos) << recorded;
}

TEST_F(ProjectRunTest, JdbGetsTheSourcePathToo) {
  startWith(makeRunnable(), [&](ScriptedWindow& panel) {
    panel.page(TABS, 0).press(MIDDLE);
    exit(panel);
  });
  const std::string recorded = recordedUpTo("Main\n");
  EXPECT_NE(recorded.find("\\/JDEBUG\\/"), std::string::npos) << recorded;
  const std::string folder = Filename(userFolder()).directoryNoSlash();
  EXPECT_NE(recorded.find(received("-sourcepath", "", folder)), std::string::npos) << recorded;
  EXPECT_NE(recorded.find(received("-classpath", "." + listSeparator, folder)), std::string::npos) << recorded;
}

TEST_F(ProjectRunTest, TheRootOfWhatRunsComesFirst) {
  const std::string slash(1, platform::folderSeparator);
  for (const char* root : {"one", "two"}) {
    const std::string base = std::string(root) + slash + "p" + slash + root;
    platform::makeFolders(path(std::string(root) + slash + "p"));
    writeFile(path(base + ".java"), "package p; class " + std::string(root) + " {}");
    setFileTime(path(base + ".java"), sourceTime);
    makeCurrent(base);
  }
  const std::string project = makeProject(
      "NEWER_JAVA  ON\nPROJECT_SOURCES  one/p/one.java;two/p/two.java\nPROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  "
      "p.two\n");
  const std::string first = platform::commandLineList(Filename(path("two")).quoted() + ';');
  for (const int button : {RIGHT, MIDDLE}) {
    platform::deleteFile(scratch_.file("record"));
    startWith(project, [&](ScriptedWindow& panel) {
      panel.page(TABS, 0).press(button);
      exit(panel);
    });
    std::string recorded = recordedUpTo("p.two\n");
    std::erase(recorded, '"');
    std::replace(recorded.begin(), recorded.end(), '\n', ' ');
    std::string list = first;
    std::erase(list, '"');
    EXPECT_NE(recorded.find("-classpath " + list), std::string::npos) << recorded;
    EXPECT_EQ(recorded.find("-sourcepath " + list) != std::string::npos, button == MIDDLE) << recorded;
  }
}

TEST_F(ProjectRunTest, WhatIsNotCompiledDoesNotRun) {
  for (const int button : {MIDDLE, RIGHT}) runStale(0, button, [&] { desktop_.expectHint(notCompiled); });
}

TEST_F(ProjectRunTest, NeitherDoesItsApplet) {
  for (const int button : {MIDDLE, RIGHT}) runStale(1, button, [&] { desktop_.expectHint(notCompiled); });
}

TEST_F(ProjectRunTest, ASecondMainMethodIsToldWhenJavaIsPressed) {
  makeSource("A", mainMethod());
  makeSource("B");
  makeCurrent("A");
  makeCurrent("B");
  startWith(makeProject("PROJECT_SOURCES  A.java;B.java\n"), [&](ScriptedWindow& panel) {
    writeFile(path("B.java"), "public class B {" + mainMethod() + "}\n");
    desktop_.expectMessage(conflict("B.java", "A.java"));
    panel.page(TABS, 0).press(RIGHT);
    EXPECT_FALSE(panel.page(TABS, 0).enabled(RIGHT)) << "no class stands for the project any more";
    EXPECT_FALSE(panel.page(TABS, 0).enabled(MIDDLE));
    exit(panel);
  });
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(ProjectRunTest, ASecondMainMethodIsToldWhenJdbOrTheAppletIsStarted) {
  const struct {
    int tab;
    int button;
  } table[] = {{MAIN_PROGRAM_TAB, MIDDLE}, {APPLET_TAB, MIDDLE}, {APPLET_TAB, RIGHT}};
  for (const auto& row : table) {
    makeSource("A", mainMethod());
    makeSource("B");
    makeCurrent("A");
    makeCurrent("B");
    startWith(makeProject("PROJECT_SOURCES  A.java;B.java\nPROJECT_HTMLFILE  a.html\n"), [&](ScriptedWindow& panel) {
      EXPECT_TRUE(panel.page(TABS, 0).enabled(RIGHT));
      writeFile(path("B.java"), "public class B {" + mainMethod() + "}\n");
      desktop_.expectMessage(conflict("B.java", "A.java"));
      panel.choose(TABS, row.tab);
      panel.page(TABS, row.tab).press(row.button);
      EXPECT_FALSE(panel.page(TABS, 0).enabled(RIGHT)) << row.tab;
      exit(panel);
    });
    settings().currentProject.reset();
  }
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(ProjectRunTest, AfterJavacWhatIsUpToDateRuns) {
  for (const int button : {CHANGED, ALL}) {
    makeSource("Main", mainMethod());
    makeCurrent("Main");
    makeStale("Main");
    startWith(makeProject("PROJECT_SOURCES  Main.java\nPROJECT_HTMLFILE  a.html\n"), [&](ScriptedWindow& panel) {
      EXPECT_FALSE(panel.page(TABS, 0).enabled(RIGHT));
      makeCurrent("Main");
      panel.page(TABS, 0).setText(FIELD, "else");
      panel.press(button);
      EXPECT_TRUE(panel.page(TABS, 0).enabled(RIGHT));
      EXPECT_TRUE(panel.page(TABS, 1).enabled(RIGHT));
      EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "Main");
      exit(panel);
    });
    settings().currentProject.reset();
  }
}

TEST_F(ProjectRunTest, AProjectThatCannotBeSavedIsToldOnceForABatch) {
  for (const char* name : {"A", "B", "C"}) makeSource(name);
  const std::string file = makeProject("PROJECT_SOURCES  A.java;B.java;C.java\n");
  startWith(file, [&](ScriptedWindow& panel) {
    platform::deleteFile(file);
    // A folder in its place refuses every user.
    platform::makeFolders(file);
    desktop_.expectMessage(refusal(file, FileMode::Write) + "\nCan't save settings for project.");
    panel.press(ALL);
    exit(panel);
  });
  EXPECT_NE(recordedUpTo("A.java\n").find("C.java\n"), std::string::npos) << "all the same all are compiled";
}

TEST_F(ProjectRunTest, NorIsItToldTwiceWhereTheWindowHasMoved) {
  makeSource("A");
  const std::string file = makeProject("PROJECT_SOURCES  A.java\n");
  startWith(file, [&](ScriptedWindow& panel) {
    platform::deleteFile(file);
    platform::makeFolders(file);
    panel.moveTo({321, 123});
    desktop_.expectMessage(refusal(file, FileMode::Write) + "\nCan't save settings for project.");
    panel.press(ALL);
    EXPECT_NE(recordedUpTo("A.java\n"), "");
    platform::removeFolder(file);
    exit(panel);
  });
}

TEST_F(ProjectRunTest, AWindowThatHasMovedIsSavedBeforeACompileAndAChangeBehindIt) {
  makeSource("A");
  const std::string file = makeProject("PROJECT_SOURCES  A.java\n");
  startWith(file, [&](ScriptedWindow& panel) {
    panel.moveTo({321, 123});
    settings().javaXms = "9m";
    panel.press(ALL);
    EXPECT_EQ(savedIn(file, "JAVA_XMS"), "9m");
    exit(panel);
  });
}

TEST_F(ProjectRunTest, AProjectsSettingsAreSavedBeforeItsFirstSourceIsCompiled) {
  makeSource("A");
  const std::string file = makeProject("PROJECT_SOURCES  A.java\n");
  startWith(file, [&](ScriptedWindow& panel) {
    settings().javaXms = "9m";
    panel.press(ALL);
    EXPECT_EQ(savedIn(file, "JAVA_XMS"), "9m");
    exit(panel);
  });
}

TEST_F(ProjectRunTest, ClassesInAFolderBelowTheProjectRun) {
  const std::string slash(1, platform::folderSeparator);
  for (const std::string& destination : {"." + slash + "out put", std::string("out put")}) {
    makeSource("Main", mainMethod());
    const std::string folder = path("out put");
    platform::makeFolders(folder);
    platform::changeDirectory(scratch_.path());
    const std::string project =
        makeProject("JAVAC_DESTINATION  " + quoted(destination) + "\nPROJECT_SOURCES  Main.java\n");
    startWith(project, [&](ScriptedWindow& panel) {
      EXPECT_FALSE(panel.page(TABS, 0).enabled(RIGHT));
      writeFile(folder + slash + "Main.class", "class");
      setFileTime(folder + slash + "Main.class", sourceTime + 60);
      panel.press(CHANGED);
      EXPECT_TRUE(panel.page(TABS, 0).enabled(RIGHT)) << destination;
      platform::changeDirectory(scratch_.path());
      panel.page(TABS, 0).press(RIGHT);
      exit(panel);
    });
    const std::string recorded = recordedUpTo("Main\n");
    EXPECT_NE(recorded.find(received("-classpath", "." + listSeparator, folder)), std::string::npos) << recorded;
    std::string line = recorded;
    std::replace(line.begin(), line.end(), '\n', ' ');
    EXPECT_NE(line.find("\\/DEFAULTDIR=" + folder + slash + "\\/"), std::string::npos) << line;
    settings().currentProject.reset();
    platform::deleteFile(scratch_.file("record"));
    platform::deleteFile(folder + slash + "Main.class");
  }
}

/// A desktop on which something happens while the panel looks at its project.
class BusyDesktop : public ScriptedDesktop {
 public:
  std::function<void()> whenWaitEnds = [] {};
  void showWaitCursor(bool on) override {
    ScriptedDesktop::showWaitCursor(on);
    if (!on) whenWaitEnds();
  }
};

TEST_F(ProjectRunTest, AnAppletsFolderThatHasGoneIsTold) {
  BusyDesktop desktop;
  makeSource("A");
  makeCurrent("A");
  const std::string file = makeProject("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  a.html\n");
  for (const int button : {MIDDLE, RIGHT}) {
    SettingsContext context = settingsOnDesktop(desktop, program_, log_);
    Settings settings(context);
    desktop.expectMainDialog([&](ScriptedWindow& main) {
      ScriptedWindow& panel = main.child(PROJECT_VIEW_SLOT);
      const std::string folder = scratch_.file("us er");
      const std::string away = scratch_.file("moved away");
      platform::changeDirectory(scratch_.path());
      desktop.whenWaitEnds = [&] { std::filesystem::rename(folder, away); };
      desktop.expectMessage("Can't access project directory.");
      panel.page(TABS, APPLET_TAB).press(button);
      desktop.whenWaitEnds = [] {};
      std::filesystem::rename(away, folder);
      exit(panel);
    });
    TarnwickDlg(settings, file).runModal();
  }
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(ProjectRunTest, AProjectWithoutAnHtmlFileHasNoApplet) {
  makeSource("A");
  makeCurrent("A");
  startWith(makeProject("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  a.html\n"), [&](ScriptedWindow& panel) {
    project().htmlFile.clear();
    desktop_.expectHint("No html file defined for this project.");
    panel.page(TABS, APPLET_TAB).press(RIGHT);
    exit(panel);
  });
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(ProjectRunTest, TheAppletviewerShowsTheProjectsHtmlFile) {
  makeSource("A");
  makeCurrent("A");
  writeFile(path("my page.html"), "");
  startWith(makeProject("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  \"my page.html\"\n"), [&](ScriptedWindow& panel) {
    // Whatever came before, it runs in the project's folder.
    platform::changeDirectory(scratch_.path());
    panel.page(TABS, 1).press(RIGHT);
    EXPECT_EQ(Filename(platform::currentDirectory(), "x").directory(), Filename(userFolder() + "x").directory());
    exit(panel);
  });
  EXPECT_NE(recordedUpTo("my page.html\n").find("my page.html\n"), std::string::npos);
}

TEST_F(ProjectRunTest, AppletdebugStartsTheProgramAgain) {
  makeSource("A");
  makeCurrent("A");
  startWith(makeProject("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  a.html\n"), [&](ScriptedWindow& panel) {
    panel.page(TABS, 1).press(MIDDLE);
    exit(panel);
  });
  std::string recorded = recordedUpTo("a.html\n");
  EXPECT_NE(recorded.find("\\/JDEBUG\\/"), std::string::npos) << recorded;
  std::replace(recorded.begin(), recorded.end(), '\n', ' ');
  EXPECT_NE(recorded.find("\\/DEFAULTDIR=" + userFolder() + "\\/"), std::string::npos) << recorded;
}

TEST_F(ProjectRunTest, EditOpensAllSourcesFromTheLastToTheFirst) {
  startWith(withAnEditor(1), [&](ScriptedWindow& panel) {
    panel.press(PROJECT_EDIT);
    exit(panel);
  });
  const std::string recorded = recordedUpTo("A.java\n");
  EXPECT_EQ(recorded, path("B.java") + "\n" + path("A.java") + "\n");
}

TEST_F(ProjectRunTest, TheFirstEditorGetsALongerWaitThanTheOthersAndTheLastOneNone) {
  const struct {
    std::size_t sources;
    milliseconds wait;
  } table[] = {{1, milliseconds(0)}, {2, milliseconds(800)}, {3, milliseconds(1000)}};
  withAnEditor(0);
  makeSource("C");
  const std::vector<std::string> all = {path("C.java"), path("A.java"), path("B.java")};
  startWith(makeProject("PROJECT_SOURCES  A.java;B.java;C.java\n"), [&](ScriptedWindow& panel) {
    for (const auto& row : table) {
      const auto chosen = std::vector<std::string>(all.begin(), all.begin() + static_cast<long>(row.sources));
      EXPECT_GE(timeOfEdit(panel, chosen), row.wait) << row.sources;
      // A busy machine may make one of them last longer, but not each.
      const bool noLonger = std::any_of(std::begin(tries), std::end(tries),
                                        [&](int) { return timeOfEdit(panel, chosen) < row.wait + milliseconds(190); });
      EXPECT_TRUE(noLonger) << row.sources;
    }
    exit(panel);
  });
}

TEST_F(ProjectRunTest, EditOpensWhatIsChosenInTheOrderOfTheDialog) {
  startWith(withAnEditor(0), [&](ScriptedWindow& panel) {
    desktop_.expectOpenFiles({path("A.java"), path("B.java")});
    panel.press(PROJECT_EDIT);
    exit(panel);
  });
  EXPECT_EQ(recordedUpTo("B.java\n"), path("A.java") + "\n" + path("B.java") + "\n");
}

TEST_F(ProjectRunTest, AnEditorThatCannotBeStartedIsToldOnce) {
  const std::string project = withAnEditor(1);
  makeSource("C");
  writeFile(project, "PROJECT_SOURCES  A.java;B.java;C.java\n");
  startWith(project, [&](ScriptedWindow& panel) {
    const std::string nowhere = path("no editor");
    settings().editorTarget = nowhere;
    desktop_.expectMessage("Unable to start " + nowhere + ".\n\nNo such file or directory  (2)");
    panel.press(PROJECT_EDIT);
    exit(panel);
  });
}

TEST_F(ProjectRunTest, AnEditorThatIsNotChosenEndsTheEditing) {
  const std::string project = withAnEditor(1);
  startWith(project, [&](ScriptedWindow& panel) {
    settings().editorTarget.clear();
    desktop_.expectDialog("Tarnwick settings for project my demo", [](ScriptedWindow& dialog) {
      EXPECT_EQ(dialog.selection(1092), 5) << "the page of the editor";
      EXPECT_TRUE(dialog.visible(2003));
      EXPECT_EQ(dialog.text(2003), "Choose the editor for your sources");
      dialog.press(IDCANCEL_CONTROL);
    });
    panel.press(PROJECT_EDIT);
    exit(panel);
  });
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(ProjectRunTest, EditOpensWhatTheUserChooses) {
  startWith(withAnEditor(0), [&](ScriptedWindow& panel) {
    desktop_.expectOpenFiles({path("A.java")});
    panel.press(PROJECT_EDIT);
    EXPECT_EQ(desktop_.lastRequest().filter, "java source files (*.java)|*.java|All files (*.*)|*.*||");
    EXPECT_EQ(desktop_.lastRequest().name, "*.java");
    EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder());
    exit(panel);
  });
  EXPECT_EQ(recordedUpTo("A.java\n"), path("A.java") + "\n");
}

TEST_F(ProjectRunTest, SelectTakesAClassIntoTheFieldAndTheProjectsFile) {
  makeSource("A", mainMethod());
  makeSource("B", mainMethod());
  makeCurrent("A");
  makeCurrent("B");
  const std::string file = makeProject("PROJECT_SOURCES  A.java;B.java\nPROJECT_MULTIMAIN  ON\n");
  startWith(file, [&](ScriptedWindow& panel) {
    EXPECT_FALSE(panel.page(TABS, 0).enabled(RIGHT));
    desktop_.expectDialog("Select class with main()", [](ScriptedWindow& dialog) {
      EXPECT_EQ(dialog.entries(CLASS_LIST), (std::vector<std::string>{"A", "B"}));
      dialog.doubleClick(CLASS_LIST, 1);
    });
    panel.page(TABS, 0).press(LEFT);
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "B");
    EXPECT_TRUE(panel.page(TABS, 0).enabled(RIGHT));
    exit(panel);
  });
  EXPECT_NE(contentOf(file).find("\nCLASS_WITH_MAIN  B"), std::string::npos);
}

TEST_F(ProjectRunTest, ASelectionThatIsCancelledSavesNothing) {
  makeSource("A", mainMethod());
  const std::string file = makeProject("PROJECT_SOURCES  A.java\nPROJECT_MULTIMAIN  ON\n");
  const std::string before = contentOf(file);
  startWith(file, [&](ScriptedWindow& panel) {
    desktop_.expectDialog("Select class with main()", [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
    panel.page(TABS, 0).press(LEFT);
    exit(panel);
  });
  EXPECT_EQ(contentOf(file), before);
}

}  // namespace
}  // namespace tarnwick::test
