// The line at the foot of both panels.
#include "ProjectViewFixture.h"
#include "app/PanelFoot.h"

namespace tarnwick::test {
namespace {

constexpr int LINE = PANEL_STATUS_LINE;

class StatusLineTest : public ProjectViewFixture {
 protected:
  StatusLineTest() {
    ScriptedPlaces places;
    places.rects[158][0] = {0, 0, 400, 330};
    places.frameHeight = 30;
    places.frameWidth = 4;
    for (const int panel : {130, 157}) {
      places.rects[panel][LINE] = {0, 0, 50, 20};
      places.rects[panel][1238] = places.rects[panel][1239] = {12, 2, 112, 102};
    }
    desktop_.setPlaces(places);
  }

  void saveWith(bool on) {
    saveEarlierRun([on](Settings& earlier) { earlier.statusLine = on; });
  }
  static int height(const ScriptedWindow& window) { return window.windowRect().height(); }
};

TEST_F(StatusLineTest, WithoutItEverythingIsAsItWas) {
  saveWith(false);
  runPanel([this](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_FALSE(panel.visible(LINE));
    EXPECT_EQ(height(main), 330);
    EXPECT_EQ(height(panel), 330);
    exit(panel);
  });
  EXPECT_EQ(saved("STATUS_LINE"), "(none)");
}

TEST_F(StatusLineTest, ItStandsBelowAllElseAndTheWindowIsThatMuchHigher) {
  saveWith(true);
  runPanel([this](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_TRUE(panel.visible(LINE));
    EXPECT_EQ(panel.rect(LINE), (Rect{12, 300, 384, 320}));
    EXPECT_EQ(height(main), 354);
    EXPECT_EQ(height(panel), 354);
    exit(panel);
  });
}

TEST_F(StatusLineTest, ItComesAndGoesWithItsMarkAndNothingGrows) {
  saveWith(false);
  runPanel([this](ScriptedWindow& main, ScriptedWindow& panel) {
    for (const bool on : {true, false, true}) {
      desktop_.expectDialog("Tarnwick settings", [](ScriptedWindow& window) {
        window.page(1092, 0).press(2150);
        window.press(IDOK_CONTROL);
      });
      bar(panel).press(SETTINGS);
      EXPECT_EQ(panel.visible(LINE), on);
      EXPECT_EQ(height(main), on ? 354 : 330);
    }
    for (int round = 0; round < 2; ++round) {
      bar(panel).press(SWITCH_VIEW);
      ScriptedWindow& other = main.child(PROJECT_VIEW_SLOT);
      EXPECT_TRUE(other.visible(LINE));
      EXPECT_EQ(height(main), 354);
      bar(other).press(SWITCH_VIEW);
    }
    EXPECT_EQ(height(main), 354);
    exit(panel);
  });
  EXPECT_EQ(saved("STATUS_LINE"), "ON");
}

TEST_F(StatusLineTest, BothTellWhatACompileHasComeTo) {
  saveWith(true);
  makeSource("One");
  runPanel([this](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(panel.text(LINE), "Tarnwickdefault.CFG");
    panel.type(SOURCE, quoted(path("One.java")));
    panel.press(JAVAC);
    for (const int view : {FILE_VIEW_SLOT, PROJECT_VIEW_SLOT}) {
      const std::string told = main.child(view).text(LINE);
      EXPECT_TRUE(told.starts_with("Compiled 1 source in ")) << told;
      EXPECT_TRUE(told.ends_with(" s   |   Tarnwickdefault.CFG")) << told;
    }
    exit(panel);
  });
}

TEST_F(StatusLineTest, ACompileThatCannotBeginLeavesNothing) {
  saveEarlierRun([this](Settings& earlier) {
    earlier.statusLine = true;
    earlier.javaPath = userFolder();
  });
  makeSource("One");
  runPanel([this](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(path("One.java")));
    desktop_.expectMessage(noCompilerIn(userFolder()));
    panel.press(JAVAC);
    EXPECT_EQ(panel.text(LINE), "Tarnwickdefault.CFG");
    exit(panel);
  });
}

TEST_F(StatusLineTest, AProjectIsNamed) {
  saveEarlierRun();
  makeRunnable();
  startWith(makeProject("STATUS_LINE  ON\nPROJECT_SOURCES  Main.java\n"), [this](ScriptedWindow& panel) {
    EXPECT_TRUE(panel.visible(LINE)) << "a project has its own settings";
    EXPECT_EQ(panel.text(LINE), "Project my demo   |   Tarnwickdefault.CFG");
    panel.press(CHANGED);
    EXPECT_EQ(panel.text(LINE), "All classes are up to date   |   Project my demo   |   Tarnwickdefault.CFG");
    exit(panel);
  });
}

TEST_F(StatusLineTest, AllSourcesOfARunAreCounted) {
  saveEarlierRun();
  makeSource("Two");
  makeRunnable();
  for (const std::string oneRun : {"ON", "OFF"}) {
    const std::string rows = "STATUS_LINE  ON\nPROJECT_SOURCES  Main.java;Two.java\nJAVAC_ONE_RUN  " + oneRun + '\n';
    startWith(makeProject(rows), [this](ScriptedWindow& panel) {
      panel.press(ALL);
      EXPECT_TRUE(panel.text(LINE).starts_with("Compiled 2 sources in ")) << panel.text(LINE);
      exit(panel);
    });
  }
}

TEST_F(StatusLineTest, APressShowsTheLastLogWhereThereIsOne) {
  saveWith(true);
  makeSource("One");
  int shown = 0;
  context_.bringMessages = [&shown] { ++shown; };
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.press(LINE);
    EXPECT_EQ(shown, 0);
    EXPECT_EQ(desktop_.alerts(), std::vector<AlertSound>{AlertSound::Beep});
    panel.type(SOURCE, quoted(path("One.java")));
    panel.press(JAVAC);
    panel.press(LINE);
    EXPECT_EQ(shown, 1);
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
