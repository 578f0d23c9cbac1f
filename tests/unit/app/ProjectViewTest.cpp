#include "PanelFixture.h"
#include "resources/PanelLayouts.h"

namespace tarnwick::test {
namespace {

enum ProjectControl { PROJECT_NEW = 1134, OPEN = 1136, FILES = 1135, PROJECT_EDIT = 1139, ALL = 1133, CHANGED = 1140 };

class ProjectViewTest : public PanelFixture {
 protected:
  void inProjectView(const std::function<void(ScriptedWindow& panel)>& look) {
    saveEarlierRun();
    runPanel([&](ScriptedWindow& main, ScriptedWindow& file) {
      bar(file).press(SWITCH_VIEW);
      ScriptedWindow& panel = main.child(PROJECT_VIEW_SLOT);
      look(panel);
      exit(panel);
    });
  }
};

TEST_F(ProjectViewTest, ShowsItsLabels) {
  inProjectView([](ScriptedWindow& panel) {
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
    const char* const labels[3][3] = {
        {"Select", "jdb debug", "java"}, {"", "appletdebug", "appletviewer"}, {"jar", "javadoc", "WinShortcut"}};
    for (int tab = 0; tab < 3; ++tab) {
      EXPECT_EQ(panel.page(TABS, tab).text(LEFT), labels[tab][0]);
      EXPECT_EQ(panel.page(TABS, tab).text(MIDDLE), labels[tab][1]);
      EXPECT_EQ(panel.page(TABS, tab).text(RIGHT), labels[tab][2]);
    }
  });
}

TEST_F(ProjectViewTest, ShowsItsToolTips) {
  inProjectView([](ScriptedWindow& panel) {
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
    EXPECT_EQ(main.toolTip(RIGHT), "Execute application");
    EXPECT_EQ(main.toolTip(FIELD), "File name for executable class, optionally followed by runtime arguments");
    auto& applet = panel.page(TABS, 1);
    EXPECT_EQ(applet.toolTip(MIDDLE), "Start appletviewer under debugger control");
    EXPECT_EQ(applet.toolTip(RIGHT), "Start appletviewer");
  });
}

TEST_F(ProjectViewTest, OnTheAppletTabLeftButtonAndFieldAreHidden) {
  inProjectView([](ScriptedWindow& panel) {
    EXPECT_TRUE(panel.page(TABS, 0).visible(LEFT));
    EXPECT_TRUE(panel.page(TABS, 0).visible(FIELD));
    EXPECT_FALSE(panel.page(TABS, 1).visible(LEFT));
    EXPECT_FALSE(panel.page(TABS, 1).visible(FIELD));
    EXPECT_TRUE(panel.page(TABS, 2).visible(LEFT));
    EXPECT_FALSE(panel.page(TABS, 2).visible(FIELD));
  });
}

TEST_F(ProjectViewTest, WithoutAProjectOnlyTheBarIsOfUse) {
  inProjectView([](ScriptedWindow& panel) {
    for (int tab = 0; tab < 3; ++tab) {
      panel.choose(TABS, tab);
      for (const int control : {PROJECT_EDIT, ALL, CHANGED, FILES}) EXPECT_FALSE(panel.enabled(control));
      // What these two do is not there yet.
      for (const int control : {PROJECT_NEW, OPEN}) EXPECT_FALSE(panel.enabled(control));
      for (const int control : {LEFT, MIDDLE, RIGHT, FIELD}) EXPECT_FALSE(panel.page(TABS, tab).enabled(control));
    }
    for (const int slot : {VERTICAL_BAR_SLOT, HORIZONTAL_BAR_SLOT, FLAT_BAR_SLOT}) {
      EXPECT_FALSE(panel.child(slot).enabled(SETTINGS));
      for (const int control : {SWITCH_VIEW, EXIT, LAYOUT_LEFT, LAYOUT_RIGHT}) {
        EXPECT_TRUE(panel.child(slot).enabled(control));
      }
    }
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

}  // namespace
}  // namespace tarnwick::test
