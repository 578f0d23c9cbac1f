// Where the main window stands, and how it is arranged, while the project view works.
#include "ProjectViewFixture.h"

namespace tarnwick::test {
namespace {

const char filesTitle[] = "Define which files belong to the project";
const char openTitle[] = "Select existing project";

class ProjectWindowTest : public ProjectViewFixture {
 protected:
  ProjectWindowTest() {
    saveEarlierRun([](Settings& earlier) { earlier.windowPosition.fromString("40;50"); });
  }

  void startIn(const std::string& project,
               const std::function<void(ScriptedWindow& main, ScriptedWindow& panel)>& script) {
    desktop_.expectMainDialog([&](ScriptedWindow& main) {
      script(main, main.child(PROJECT_VIEW_SLOT));
      if (!main.closed()) main.closeBox();
    });
    TarnwickDlg(settings(), project).runModal();
  }
  /// Moves the window of an open project by hand, and then does this. The project's file has the new place, before
  /// anything else might save it.
  void expectMoveSaved(const std::string& project,
                       const std::function<void(ScriptedWindow& main, ScriptedWindow& panel)>& action) {
    startIn(project, [&](ScriptedWindow& main, ScriptedWindow& panel) {
      main.moveByHand({120, 88});
      action(main, panel);
      EXPECT_EQ(savedIn(project, "WINDOW_POSITION"), "120;88");
      EXPECT_EQ(main.position(), (Point{120, 88})) << "and the window stays";
    });
  }
  /// A project that is to be seen elsewhere, in another arrangement.
  std::string makeElsewhere() {
    makeSource("B");
    return makeProject("PROJECT_SOURCES  B.java\nWINDOW_POSITION  300;200\nPANEL_LAYOUT  FLAT\n", "else where.twp");
  }
  static bool isFlat(ScriptedWindow& panel) {
    EXPECT_NE(panel.child(VERTICAL_BAR_SLOT).shown(), panel.child(FLAT_BAR_SLOT).shown());
    return panel.child(FLAT_BAR_SLOT).shown();
  }
  static void cancel(ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); }
};

TEST_F(ProjectWindowTest, NewSavesAMovedWindowBeforeItAsks) {
  const std::string file = makeRunnable();
  expectMoveSaved(file, [&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectSaveFile(std::nullopt);
    desktop_.expectQuestion("No new project created. Continue with " + quoted(file) + " ?", true);
    panel.press(PROJECT_NEW);
  });
}

TEST_F(ProjectWindowTest, OpenSavesAMovedWindowBeforeItAsks) {
  const std::string file = makeRunnable();
  expectMoveSaved(file, [&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog(openTitle, cancel);
    desktop_.expectQuestion("No new project opened. Continue with " + quoted(file) + " ?", true);
    panel.press(OPEN);
  });
}

TEST_F(ProjectWindowTest, FilesSavesAMovedWindowInTheEnd) {
  const std::string file = makeRunnable();
  expectMoveSaved(file, [&](ScriptedWindow& main, ScriptedWindow& panel) {
    desktop_.expectDialog(filesTitle, [&](ScriptedWindow& dialog) {
      main.moveByHand({1, 2});
      dialog.press(IDCANCEL_CONTROL);
      main.moveByHand({120, 88});
    });
    panel.press(FILES);
  });
}

TEST_F(ProjectWindowTest, EditSavesAMovedWindow) {
  expectMoveSaved(makeRunnable(), [&](ScriptedWindow&, ScriptedWindow& panel) {
    settings().editorOpenAll = false;
    desktop_.expectOpenFiles({});
    panel.press(PROJECT_EDIT);
  });
}

TEST_F(ProjectWindowTest, BothCompilesSaveAMovedWindow) {
  const std::string file = makeRunnable();
  // Nothing is out of date, so that nothing else saves.
  expectMoveSaved(file, [&](ScriptedWindow&, ScriptedWindow& panel) { panel.press(CHANGED); });
  settings().currentProject.reset();
  startIn(file, [&](ScriptedWindow& main, ScriptedWindow& panel) {
    main.moveByHand({11, 12});
    settings().javaPath = path("nowhere");
    desktop_.expectMessage(noCompilerIn(path("nowhere")));
    panel.press(ALL);
    EXPECT_EQ(savedIn(file, "WINDOW_POSITION"), "11;12") << "before the compiler is looked for";
  });
}

TEST_F(ProjectWindowTest, SelectSavesAMovedWindow) {
  makeSource("A", mainMethod());
  const std::string file = makeProject("PROJECT_SOURCES  A.java\nPROJECT_MULTIMAIN  ON\n");
  expectMoveSaved(file, [&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Select class with main()", cancel);
    panel.page(TABS, MAIN_PROGRAM_TAB).press(LEFT);
  });
}

TEST_F(ProjectWindowTest, JavaAndJdbSaveAMovedWindow) {
  program_.programPath = standInFolder() + platform::toolFileName("jdb");
  const std::string file = makeRunnable();
  for (const int button : {MIDDLE, RIGHT}) {
    expectMoveSaved(file,
                    [&](ScriptedWindow&, ScriptedWindow& panel) { panel.page(TABS, MAIN_PROGRAM_TAB).press(button); });
    settings().currentProject.reset();
    makeRunnable();
  }
}

TEST_F(ProjectWindowTest, AFailedJavaSavesAMovedWindowToo) {
  const std::string file = makeRunnable();
  expectMoveSaved(file, [&](ScriptedWindow&, ScriptedWindow& panel) {
    settings().javaPath = path("nowhere");
    desktop_.expectMessage(noCompilerIn(path("nowhere")));
    panel.page(TABS, MAIN_PROGRAM_TAB).press(RIGHT);
  });
}

TEST_F(ProjectWindowTest, TheAppletSavesAMovedWindowBeforeAnythingCanFail) {
  makeSource("A");
  makeCurrent("A");
  const std::string file = makeProject("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  a.html\n");
  for (const int button : {MIDDLE, RIGHT}) {
    writeFile(file, "PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  a.html\n");
    expectMoveSaved(file, [&](ScriptedWindow&, ScriptedWindow& panel) {
      project().htmlFile.clear();
      desktop_.expectHint("No html file defined for this project.");
      panel.page(TABS, APPLET_TAB).press(button);
    });
    settings().currentProject.reset();
  }
}

TEST_F(ProjectWindowTest, SettingsSaveAMovedWindow) {
  expectMoveSaved(makeRunnable(), [&](ScriptedWindow&, ScriptedWindow& panel) {
    desktop_.expectDialog("Tarnwick settings for project my demo", cancel);
    bar(panel).press(SETTINGS);
  });
}

TEST_F(ProjectWindowTest, ASwitchOfViewsSavesAMovedWindow) {
  expectMoveSaved(makeRunnable(), [&](ScriptedWindow&, ScriptedWindow& panel) { bar(panel).press(SWITCH_VIEW); });
}

TEST_F(ProjectWindowTest, AStartWithAProjectPutsTheWindowWhereTheProjectSays) {
  const std::string file = makeElsewhere();
  startIn(file, [&](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.position(), (Point{300, 200}));
    EXPECT_TRUE(isFlat(panel));
    EXPECT_EQ(main.title(), "Tarnwick - project " + quoted(file));
  });
  EXPECT_EQ(savedIn(file, "WINDOW_POSITION"), "300;200");
}

TEST_F(ProjectWindowTest, AStartWithAProjectThatFailsPutsItThereTooAndArrangesTheFileView) {
  const std::string file = makeElsewhere();
  makeSource("A", mainMethod());
  makeSource("B", mainMethod());
  writeFile(file, "PROJECT_SOURCES  A.java;B.java\nWINDOW_POSITION  300;200\nPANEL_LAYOUT  FLAT\n");
  desktop_.expectMessage(conflict("B.java", "A.java"));
  startIn(file, [&](ScriptedWindow& main, ScriptedWindow&) {
    EXPECT_TRUE(main.child(FILE_VIEW_SLOT).shown());
    EXPECT_EQ(main.position(), (Point{300, 200}));
    EXPECT_TRUE(isFlat(main.child(FILE_VIEW_SLOT)));
    EXPECT_EQ(main.title(), "Tarnwick");
  });
  EXPECT_EQ(savedIn(file, "WINDOW_POSITION"), "300;200");
}

TEST_F(ProjectWindowTest, OpenPutsTheWindowWhereTheProjectSaysAndArrangesIt) {
  const std::string other = makeElsewhere();
  startIn(makeRunnable(), [&](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_FALSE(isFlat(panel));
    desktop_.expectDialog(openTitle, [&](ScriptedWindow& dialog) {
      desktop_.expectOpenFile(other);
      dialog.press(BROWSE_PROJECT);
    });
    panel.press(OPEN);
    EXPECT_EQ(main.position(), (Point{300, 200}));
    EXPECT_TRUE(isFlat(panel));
    EXPECT_EQ(main.title(), "Tarnwick - project " + quoted(other));
  });
  EXPECT_EQ(savedIn(other, "WINDOW_POSITION"), "300;200");
}

TEST_F(ProjectWindowTest, ANewProjectIsArrangedAsTheDefaultConfigurationSays) {
  saveEarlierRun([](Settings& earlier) {
    earlier.windowPosition.fromString("40;50");
    earlier.panelLayout.fromString("FLAT");
  });
  const std::string before = makeProject("PROJECT_SOURCES  \nPANEL_LAYOUT  VERTICAL\n", "before.twp");
  startIn(before, [&](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_FALSE(isFlat(panel));
    desktop_.expectSaveFile(path("new.twp"));
    desktop_.expectDialog(filesTitle, cancel);
    panel.press(PROJECT_NEW);
    EXPECT_TRUE(isFlat(panel));
    EXPECT_EQ(main.title(), "Tarnwick - project " + quoted(path("new.twp")));
  });
}

TEST_F(ProjectWindowTest, WithoutTheProjectTheDefaultConfigurationArrangesTheView) {
  const std::string file = makeElsewhere();
  for (const int button : {PROJECT_NEW, OPEN}) {
    startIn(file, [&](ScriptedWindow& main, ScriptedWindow& panel) {
      EXPECT_TRUE(isFlat(panel));
      if (button == OPEN)
        desktop_.expectDialog(openTitle, cancel);
      else
        desktop_.expectSaveFile(std::nullopt);
      const std::string done = button == OPEN ? "opened" : "created";
      desktop_.expectQuestion("No new project " + done + ". Continue with " + quoted(file) + " ?", false);
      panel.press(button);
      EXPECT_FALSE(isFlat(panel));
      EXPECT_EQ(main.title(), "Tarnwick");
    });
  }
}

TEST_F(ProjectWindowTest, WithoutTheProjectAndWithoutAStoredPlaceTheWindowStays) {
  const std::string file = makeElsewhere();
  startIn(file, [&](ScriptedWindow& main, ScriptedWindow& panel) {
    platform::deleteFile(configFile());
    desktop_.expectDialog(openTitle, cancel);
    desktop_.expectQuestion("No new project opened. Continue with " + quoted(file) + " ?", false);
    panel.press(OPEN);
    EXPECT_EQ(main.position(), (Point{300, 200}));
  });
  EXPECT_FALSE(platform::isFile(configFile())) << "nothing has moved that would be saved";
}

}  // namespace
}  // namespace tarnwick::test
