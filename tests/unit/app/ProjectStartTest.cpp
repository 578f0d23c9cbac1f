// The start with a project on the command line.
#include "ProjectViewFixture.h"

namespace tarnwick::test {
namespace {

class ProjectStartTest : public ProjectViewFixture {
 protected:
  ProjectStartTest() { saveEarlierRun(); }

  /// Starts and looks at the main window.
  void start(const std::string& argument, const std::function<void(ScriptedWindow& main)>& look) {
    desktop_.expectMainDialog([&](ScriptedWindow& main) {
      look(main);
      main.closeBox();
    });
    TarnwickDlg(settings(), argument).runModal();
  }
  /// The view of an open project, as far as it needs no class.
  static void expectUsable(ScriptedWindow& panel) {
    for (const int control : {PROJECT_NEW, OPEN, FILES, PROJECT_EDIT, ALL, CHANGED}) {
      EXPECT_TRUE(panel.enabled(control)) << control;
    }
    EXPECT_TRUE(bar(panel).enabled(SETTINGS));
  }
  static void expectFileView(ScriptedWindow& main) {
    EXPECT_TRUE(main.child(FILE_VIEW_SLOT).shown());
    EXPECT_FALSE(main.child(PROJECT_VIEW_SLOT).shown());
  }
};

TEST_F(ProjectStartTest, TheProjectIsOpenAndItsViewShows) {
  const std::string file = makeRunnable();
  start(file, [&](ScriptedWindow& main) {
    EXPECT_FALSE(main.child(FILE_VIEW_SLOT).shown());
    EXPECT_TRUE(main.child(PROJECT_VIEW_SLOT).shown());
    EXPECT_EQ(project().file.name().fullName(), file);
    EXPECT_TRUE(project().upToDate());
    EXPECT_EQ(main.child(PROJECT_VIEW_SLOT).page(TABS, 0).text(FIELD), "Main");
    EXPECT_EQ(main.child(PROJECT_VIEW_SLOT).selection(TABS), 0);
  });
  EXPECT_EQ(saved("RECENT_PROJECTS"), file);
  EXPECT_EQ(saved("LAST_PROJECT_FILE"), quoted(file));
  EXPECT_GE(desktop_.waits(), 1);
}

TEST_F(ProjectStartTest, QuotesAroundThePathAreNoPartOfIt) {
  const std::string file = makeRunnable();
  start(" " + quoted(file) + " ", [&](ScriptedWindow& main) {
    EXPECT_TRUE(main.child(PROJECT_VIEW_SLOT).shown());
    EXPECT_EQ(project().file.name().fullName(), file);
  });
}

TEST_F(ProjectStartTest, TheTabsOfTheFileViewBeginEmptyInTheProjectsFolder) {
  saveEarlierRun([&](Settings& earlier) {
    earlier.fileviewSource.setName("/else where/A.java");
    earlier.fileviewClass.setName("/else where/A.class");
    earlier.fileviewHtml.setName("/else where/A.html");
  });
  start(makeRunnable(), [&](ScriptedWindow& main) {
    ScriptedWindow& panel = main.child(FILE_VIEW_SLOT);
    EXPECT_EQ(panel.text(SOURCE), "");
    for (const int tab : {0, 1}) EXPECT_EQ(panel.page(TABS, tab).text(FIELD), "");
    for (const auto* file : {&settings().fileviewSource, &settings().fileviewClass, &settings().fileviewHtml}) {
      EXPECT_TRUE(file->isEmpty());
      EXPECT_EQ(file->lastFolder(), userFolder());
    }
  });
}

TEST_F(ProjectStartTest, AProjectWithoutAMainClassButWithAnHtmlFileOpensTheAppletTab) {
  makeSource("A");
  start(makeProject("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  \"my page.html\"\n"), [](ScriptedWindow& main) {
    EXPECT_EQ(main.child(PROJECT_VIEW_SLOT).selection(TABS), 1);
    EXPECT_FALSE(main.child(PROJECT_VIEW_SLOT).page(TABS, 1).enabled(RIGHT)) << "it is not compiled";
  });
}

TEST_F(ProjectStartTest, AProjectThatCannotBeOpenedIsToldAndTheFileViewStays) {
  desktop_.expectMessage("No such file or directory\nCan't open project file.");
  start(path("gone.twp"), [](ScriptedWindow& main) { expectFileView(main); });
  EXPECT_EQ(settings().currentProject, nullptr);
  EXPECT_EQ(saved("RECENT_PROJECTS"), "");
}

TEST_F(ProjectStartTest, AConflictOfMainMethodsIsToldAndTheProjectIsOpen) {
  makeSource("A", mainMethod());
  makeSource("B", mainMethod());
  const std::string file = makeProject("PROJECT_SOURCES  A.java;B.java\n");
  desktop_.expectMessage(conflict("B.java", "A.java"));
  start(file, [](ScriptedWindow& main) {
    expectFileView(main);
    expectUsable(main.child(PROJECT_VIEW_SLOT));
  });
  ASSERT_NE(settings().currentProject, nullptr);
  EXPECT_EQ(project().file.name().fullName(), file);
  EXPECT_EQ(project().mainClass, "");
  EXPECT_EQ(saved("RECENT_PROJECTS"), "") << "only a project that could be looked at";
  EXPECT_EQ(saved("LAST_PROJECT_FILE"), quoted(file));
}

TEST_F(ProjectStartTest, AJdkOutOfReachIsToldAndTheProjectIsOpen) {
  makeSource("A", mainMethod());
  saveEarlierRun([&](Settings& earlier) { earlier.javaPath = userFolder(); });
  desktop_.expectMessage(noCompilerIn(userFolder()) + "\nCan't open project file.");
  start(makeProject("PROJECT_SOURCES  A.java\n"), [&](ScriptedWindow& main) {
    expectFileView(main);
    ScriptedWindow& panel = main.child(PROJECT_VIEW_SLOT);
    expectUsable(panel);
    EXPECT_FALSE(panel.page(TABS, 0).enabled(RIGHT));
    // With a JDK all goes on from here.
    settings().javaPath = standInFolder();
    bar(main.child(FILE_VIEW_SLOT)).press(SWITCH_VIEW);
    makeCurrent("A");
    panel.press(CHANGED);
    EXPECT_TRUE(panel.page(TABS, 0).enabled(RIGHT));
  });
}

TEST_F(ProjectStartTest, AfterAStartThatFailedTheFileViewsFieldsAreAsTheyWere) {
  saveEarlierRun([](Settings& earlier) { earlier.fileviewSource.setName("A.java"); });
  makeSource("A", mainMethod());
  makeSource("B", mainMethod());
  desktop_.expectMessage(conflict("B.java", "A.java"));
  start(makeProject("PROJECT_SOURCES  A.java;B.java\n"),
        [](ScriptedWindow& main) { EXPECT_EQ(main.child(FILE_VIEW_SLOT).text(SOURCE), "A.java"); });
}

TEST_F(ProjectStartTest, AProjectCarriesItsOwnSettings) {
  makeSource("A");
  start(makeProject("JAVA_XMS  77m\nPROJECT_SOURCES  A.java\n"), [&](ScriptedWindow&) {
    EXPECT_EQ(settings().javaXms, "77m");
    EXPECT_EQ(settings().javaPath, standInFolder()) << "what it does not say is the default configuration's";
    settings().saveCurrent();
  });
  EXPECT_NE(saved("JAVA_XMS"), "77m") << "and they stay in it";
}

}  // namespace
}  // namespace tarnwick::test
