// What the project view's other buttons do with the open project.
#include "ProjectViewFixture.h"

#include <algorithm>
#include <chrono>

namespace tarnwick::test {
namespace {

const char notCompiled[] = "Not all classes are up-to-date. Compile!";

class ProjectRunTest : public ProjectViewFixture {
 protected:
  ProjectRunTest() {
    saveEarlierRun([](Settings& earlier) {
      earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc");
      earlier.javacSoundOnSuccess = earlier.javacSoundOnError = 1;
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
      earlier.editWithNotepad = 0;
      earlier.editorOpenAll = openAll;
      earlier.editorTarget = standInFolder() + platform::toolFileName("javadoc");
    });
    makeSource("A");
    makeSource("B");
    return makeProject("PROJECT_SOURCES  A.java;B.java\n");
  }

  /// A main class that is up to date when the panel stands, and no longer when a button is pressed.
  void runStale(int tab, int button, const std::function<void()>& expect) {
    makeSource("Main", mainMethod());
    makeCurrent("Main");
    startWith(makeProject("PROJECT_SOURCES  Main.java\nPROJECT_HTMLFILE  a.html\n"), [&](ScriptedWindow& panel) {
      makeStale("Main");
      expect();
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
  EXPECT_NE(recorded.find(received("-sourcepath", "", Filename(userFolder()).directoryNoSlash())), std::string::npos)
      << recorded;
}

TEST_F(ProjectRunTest, WhatIsNotCompiledDoesNotRun) {
  for (const int button : {MIDDLE, RIGHT}) runStale(0, button, [&] { desktop_.expectMessage(notCompiled); });
}

TEST_F(ProjectRunTest, NeitherDoesItsApplet) {
  for (const int button : {MIDDLE, RIGHT}) runStale(1, button, [&] { desktop_.expectMessage(notCompiled); });
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
    exit(panel);
  });
  EXPECT_FALSE(platform::isFile(scratch_.file("record")));
}

TEST_F(ProjectRunTest, TheAppletviewerShowsTheProjectsHtmlFile) {
  makeSource("A");
  makeCurrent("A");
  writeFile(path("my page.html"), "");
  startWith(makeProject("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  \"my page.html\"\n"), [&](ScriptedWindow& panel) {
    panel.page(TABS, 1).press(RIGHT);
    exit(panel);
  });
  EXPECT_NE(recordedUpTo("my page.html\n").find("my page.html\n"), std::string::npos);
}

TEST_F(ProjectRunTest, EditOpensAllSourcesFromTheLastToTheFirst) {
  startWith(withAnEditor(1), [&](ScriptedWindow& panel) {
    const auto before = std::chrono::steady_clock::now();
    panel.press(PROJECT_EDIT);
    EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(800)) << "between the two";
    exit(panel);
  });
  const std::string recorded = recordedUpTo("A.java\n");
  EXPECT_EQ(recorded, path("B.java") + "\n" + path("A.java") + "\n");
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

}  // namespace
}  // namespace tarnwick::test
