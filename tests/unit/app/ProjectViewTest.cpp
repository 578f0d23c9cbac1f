#include "ProjectViewFixture.h"
#include "support/SystemWords.h"

namespace tarnwick::test {
namespace {

class ProjectViewTest : public ProjectViewFixture {
 protected:
  /// Looks at the view and leaves it.
  void look(const std::function<void(ScriptedWindow& panel)>& script) {
    saveEarlierRun();
    inProjectView([&](ScriptedWindow& panel) {
      script(panel);
      exit(panel);
    });
  }
  void lookAt(const std::string& project, const std::function<void(ScriptedWindow& panel)>& script) {
    saveEarlierRun();
    startWith(project, [&](ScriptedWindow& panel) {
      script(panel);
      exit(panel);
    });
    settings().currentProject.reset();
  }
  static void expectEnabled(ScriptedWindow& panel, const std::vector<int>& controls, bool on) {
    for (const int control : controls) EXPECT_EQ(panel.enabled(control), on) << control;
  }
};

TEST_F(ProjectViewTest, ShowsItsLabels) {
  look([](ScriptedWindow& panel) {
    EXPECT_EQ(panel.text(1238), " Project ");
    EXPECT_EQ(panel.text(1239), " Source (.java) ");
    EXPECT_EQ(panel.text(PROJECT_NEW), "New");
    EXPECT_EQ(panel.text(OPEN), "Open");
    EXPECT_EQ(panel.text(FILES), "Files");
    EXPECT_EQ(panel.text(PROJECT_EDIT), "Edit");
    EXPECT_EQ(panel.text(ALL), "javac  all");
    EXPECT_EQ(panel.text(CHANGED), "javac");
    EXPECT_EQ(panel.tabLabels(TABS), (std::vector<std::string>{" Main program ", "  Applet  ", "  Utilities  "}));
    EXPECT_EQ(panel.selection(TABS), 0);
    const char* const labels[3][3] = {{"Select", "jdb debug", "java"},
                                      {"", "appletdebug", "appletviewer"},
                                      {"jar", "javadoc", said("WinShortcut", "Shortcut")}};
    for (int tab = 0; tab < 3; ++tab) {
      EXPECT_EQ(panel.page(TABS, tab).text(LEFT), labels[tab][0]);
      EXPECT_EQ(panel.page(TABS, tab).text(MIDDLE), labels[tab][1]);
      EXPECT_EQ(panel.page(TABS, tab).text(RIGHT), labels[tab][2]);
    }
  });
}

TEST_F(ProjectViewTest, ShowsItsToolTips) {
  look([](ScriptedWindow& panel) {
    EXPECT_EQ(panel.toolTip(PROJECT_NEW), "Create new Tarnwick project");
    EXPECT_EQ(panel.toolTip(OPEN), "Open existing Tarnwick project");
    EXPECT_EQ(panel.toolTip(FILES), "Select files to be included in the project context");
    EXPECT_EQ(panel.toolTip(PROJECT_EDIT), "Start editor (for java source file editing)");
    EXPECT_EQ(panel.toolTip(ALL), "Compile all java source files known in the current project context");
    EXPECT_EQ(panel.toolTip(CHANGED),
              "Compile only those java source files that have been affected by source code changes");
    EXPECT_EQ(panel.toolTip(TABS),
              "Select execution environment: Java main program (*.class files), applet (*.htm file) or utility "
              "programs");
    auto& main = panel.page(TABS, 0);
    EXPECT_EQ(main.toolTip(LEFT), "Select a class for execution (must have a public static void main() method!)");
    EXPECT_EQ(main.toolTip(MIDDLE), "Execute application under debugger control");
    EXPECT_EQ(main.toolTip(RIGHT),
              "Execute application; Ctrl+click, or Ctrl+Return in the field, compiles first what is not up to date");
    EXPECT_EQ(main.toolTip(FIELD), "File name for executable class, optionally followed by runtime arguments");
    auto& applet = panel.page(TABS, 1);
    EXPECT_EQ(applet.toolTip(MIDDLE), "Start appletviewer under debugger control");
    EXPECT_EQ(applet.toolTip(RIGHT), "Start appletviewer");
  });
}

TEST_F(ProjectViewTest, OnTheAppletTabLeftButtonAndFieldAreHidden) {
  look([](ScriptedWindow& panel) {
    EXPECT_TRUE(panel.page(TABS, 0).visible(LEFT));
    EXPECT_TRUE(panel.page(TABS, 0).visible(FIELD));
    EXPECT_FALSE(panel.page(TABS, 1).visible(LEFT));
    EXPECT_FALSE(panel.page(TABS, 1).visible(FIELD));
    EXPECT_TRUE(panel.page(TABS, 2).visible(LEFT));
    EXPECT_FALSE(panel.page(TABS, 2).visible(FIELD));
  });
}

TEST_F(ProjectViewTest, WithoutAProjectOneCanBeMadeOrOpened) {
  look([](ScriptedWindow& panel) {
    for (int tab = 0; tab < 3; ++tab) {
      panel.choose(TABS, tab);
      for (const int control : {PROJECT_EDIT, ALL, CHANGED, FILES}) EXPECT_FALSE(panel.enabled(control));
      for (const int control : {PROJECT_NEW, OPEN}) EXPECT_TRUE(panel.enabled(control)) << "always";
      for (const int control : {LEFT, MIDDLE, RIGHT, FIELD}) {
        const auto& page = panel.page(TABS, tab);
        const bool needsNone = tab == 2 && control != FIELD;
        EXPECT_EQ(page.enabled(control) && page.visible(control), needsNone) << tab << ' ' << control;
      }
    }
    for (const int slot : {VERTICAL_BAR_SLOT, HORIZONTAL_BAR_SLOT, FLAT_BAR_SLOT}) {
      EXPECT_FALSE(panel.child(slot).enabled(SETTINGS));
      for (const int control : {SWITCH_VIEW, EXIT, LAYOUT_LEFT, LAYOUT_RIGHT}) {
        EXPECT_TRUE(panel.child(slot).enabled(control));
      }
    }
  });
}

TEST_F(ProjectViewTest, WithoutAProjectNothingElseCanBePressedBeforeATabIsChosenEither) {
  look([](ScriptedWindow& panel) {
    expectEnabled(panel, {PROJECT_EDIT, ALL, CHANGED, FILES}, false);
    expectEnabled(panel.page(TABS, 0), {LEFT, MIDDLE, RIGHT, FIELD}, false);
    expectEnabled(bar(panel), {SETTINGS}, false);
  });
}

TEST_F(ProjectViewTest, AsLongAsThereIsNoClassToRunItsFieldTellsWhatToPress) {
  const auto words = [](ScriptedWindow& panel) { return panel.page(TABS, 0).wordsInPlace(FIELD); };
  look([&](ScriptedWindow& panel) { EXPECT_EQ(words(panel), "Press \"New\" or \"Open\" for a project"); });
  lookAt(makeProject("PROJECT_SOURCES  \n"),
         [&](ScriptedWindow& panel) { EXPECT_EQ(words(panel), "Press \"Files\" to add sources"); });
  makeSource("A");
  const std::string project = makeProject("PROJECT_SOURCES  A.java\n");
  lookAt(project, [&](ScriptedWindow& panel) { EXPECT_EQ(words(panel), "Press \"javac\" to compile"); });
  makeCurrent("A");
  lookAt(project, [&](ScriptedWindow& panel) { EXPECT_EQ(words(panel), "No main() method yet: press \"Edit\""); });
  lookAt(makeProject("PROJECT_SOURCES  A.java\nPROJECT_MULTIMAIN  ON\n"),
         [&](ScriptedWindow& panel) { EXPECT_EQ(words(panel), "Press \"Select\" to choose a class"); });
  lookAt(makeRunnable(), [&](ScriptedWindow& panel) {
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "Main");
    EXPECT_EQ(words(panel), "");
  });
}

TEST_F(ProjectViewTest, AProjectWhoseMainMethodHasGoneKeepsTheClassInItsField) {
  lookAt(makeRunnable(), [&](ScriptedWindow& panel) {
    writeFile(path("Main.java"), "public class Main {}\n");
    desktop_.expectDialog("Define which files belong to the project",
                          [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
    panel.press(FILES);
    EXPECT_EQ(project().mainClass, "");
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "Main");
    expectEnabled(panel.page(TABS, 0), {MIDDLE, RIGHT}, false);
  });
}

TEST_F(ProjectViewTest, ItsTabsLeaveTheFileViewsTabAlone) {
  saveEarlierRun([](Settings& settings) { settings.fileviewTab = 1; });
  runPanel([&](ScriptedWindow& main, ScriptedWindow& file) {
    bar(file).press(SWITCH_VIEW);
    ScriptedWindow& panel = main.child(PROJECT_VIEW_SLOT);
    EXPECT_EQ(panel.selection(TABS), 0);
    panel.choose(TABS, 2);
    EXPECT_EQ(settings().fileviewTab, 1);
    bar(panel).press(SWITCH_VIEW);
    EXPECT_EQ(file.selection(TABS), 1);
    exit(file);
  });
}

TEST_F(ProjectViewTest, AnEmptyProjectHasSettingsAndFiles) {
  lookAt(makeProject("PROJECT_SOURCES  \n"), [](ScriptedWindow& panel) {
    for (const int slot : {VERTICAL_BAR_SLOT, HORIZONTAL_BAR_SLOT, FLAT_BAR_SLOT})
      EXPECT_TRUE(panel.child(slot).enabled(SETTINGS));
    expectEnabled(panel, {PROJECT_NEW, OPEN, FILES}, true);
    expectEnabled(panel, {ALL, CHANGED, PROJECT_EDIT}, false);
    expectEnabled(panel.page(TABS, 0), {LEFT, MIDDLE, RIGHT, FIELD}, false);
    expectEnabled(panel.page(TABS, 1), {MIDDLE, RIGHT}, false);
  });
}

TEST_F(ProjectViewTest, AProjectThatIsNotCompiledCanBeEditedAndCompiled) {
  makeSource("Main", mainMethod());
  lookAt(makeProject("PROJECT_SOURCES  Main.java\nPROJECT_HTMLFILE  a.html\n"), [](ScriptedWindow& panel) {
    expectEnabled(panel, {ALL, CHANGED, PROJECT_EDIT, FILES}, true);
    expectEnabled(panel.page(TABS, 0), {LEFT, MIDDLE, RIGHT, FIELD}, false);
    expectEnabled(panel.page(TABS, 1), {MIDDLE, RIGHT}, false);
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "Main");
  });
}

TEST_F(ProjectViewTest, ACompiledProjectWithAMainClassRuns) {
  lookAt(makeRunnable(), [](ScriptedWindow& panel) {
    expectEnabled(panel.page(TABS, 0), {MIDDLE, RIGHT, FIELD}, true);
    expectEnabled(panel.page(TABS, 0), {LEFT}, false);
    expectEnabled(panel.page(TABS, 1), {MIDDLE, RIGHT}, false);
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "Main");
    EXPECT_TRUE(panel.page(TABS, 0).showsEnd(FIELD));
  });
}

TEST_F(ProjectViewTest, ACompiledProjectWithoutAMainClassDoesNot) {
  makeSource("A");
  makeCurrent("A");
  lookAt(makeProject("PROJECT_SOURCES  A.java\n"), [](ScriptedWindow& panel) {
    expectEnabled(panel.page(TABS, 0), {LEFT, MIDDLE, RIGHT, FIELD}, false);
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "");
  });
}

TEST_F(ProjectViewTest, ACompiledProjectWithAnHtmlFileShowsItsApplet) {
  makeSource("A");
  makeCurrent("A");
  lookAt(makeProject("PROJECT_SOURCES  A.java\nPROJECT_HTMLFILE  a.html\n"), [](ScriptedWindow& panel) {
    expectEnabled(panel.page(TABS, 1), {MIDDLE, RIGHT}, true);
    EXPECT_EQ(panel.selection(TABS), 1) << "without a main class, that is what runs";
  });
}

TEST_F(ProjectViewTest, WhereSeveralMainMethodsAreAllowedTheClassIsSelected) {
  makeSource("A", mainMethod());
  lookAt(makeProject("PROJECT_SOURCES  A.java\nPROJECT_MULTIMAIN  ON\n"),
         [](ScriptedWindow& panel) { EXPECT_TRUE(panel.page(TABS, 0).enabled(LEFT)); });
  lookAt(makeProject("PROJECT_SOURCES  \nPROJECT_MULTIMAIN  ON\n"),
         [](ScriptedWindow& panel) { EXPECT_FALSE(panel.page(TABS, 0).enabled(LEFT)) << "there is none"; });
}

TEST_F(ProjectViewTest, ArgumentsBehindTheClassStayUntilTheNextRefresh) {
  lookAt(makeRunnable(), [](ScriptedWindow& panel) {
    panel.page(TABS, 0).type(FIELD, "Main first second");
    panel.choose(TABS, 1);
    EXPECT_EQ(panel.page(TABS, 0).text(FIELD), "Main");
  });
}

TEST_F(ProjectViewTest, TheTitleShowsTheProjectOutsideVerticalOnly) {
  const std::string file = makeRunnable();
  for (const char* layout : {"VERTICAL", "HORIZONTAL", "FLAT"}) {
    saveEarlierRun([layout](Settings& settings) { settings.panelLayout.fromString(layout); });
    desktop_.expectMainDialog([&](ScriptedWindow& main) {
      EXPECT_EQ(main.title(), layout == std::string("VERTICAL") ? "Tarnwick" : "Tarnwick - project " + quoted(file));
      bar(main.child(PROJECT_VIEW_SLOT)).press(SWITCH_VIEW);
      EXPECT_EQ(main.title(), "Tarnwick");
      exit(main.child(FILE_VIEW_SLOT));
    });
    TarnwickDlg(settings(), file).runModal();
    settings().currentProject.reset();
  }
}

}  // namespace
}  // namespace tarnwick::test
