// The two panels together: arrangements, switching and titles.
#include "PanelFixture.h"
#include "resources/PanelLayouts.h"

namespace tarnwick::test {
namespace {

struct FakeProject : OpenProject {
  explicit FakeProject(int& count) : saves(count) {}
  void save() override { ++saves; }
  std::string name() const override { return "demo"; }
  std::string quotedPath() const override { return "\"/my work/demo.twp\""; }
  int& saves;
};

class PanelsTest : public PanelFixture {
 protected:
  using Rects = std::map<int, Rect>;

  PanelsTest() { desktop_.setPlaces(places()); }

  static ScriptedPlaces places() {
    ScriptedPlaces places;
    places.frameHeight = 28;
    places.frameWidth = 6;
    places.rects[158] = {{0, {0, 0, 400, 350}}};
    places.rects[130] = {{0, {0, 0, 394, 322}},      {1238, {12, 4, 382, 124}},  {1239, {12, 4, 382, 124}},
                         {1240, {20, 30, 100, 64}},  {1006, {106, 30, 186, 64}}, {1007, {192, 30, 272, 64}},
                         {1008, {278, 30, 358, 64}}, {1009, {20, 80, 374, 110}}, {1231, {12, 130, 382, 260}}};
    places.rects[157] = {{0, {0, 0, 394, 322}},       {1238, {12, 4, 382, 74}},     {1239, {12, 80, 382, 150}},
                         {1134, {20, 30, 130, 64}},   {1136, {136, 30, 246, 64}},   {1135, {252, 30, 362, 64}},
                         {1139, {20, 106, 130, 140}}, {1133, {136, 106, 246, 140}}, {1140, {252, 106, 362, 140}},
                         {1231, {12, 156, 382, 286}}};
    places.rects[195] = {{0, {1, 36, 369, 128}},
                         {1228, {8, 8, 108, 42}},
                         {1229, {114, 8, 224, 42}},
                         {1230, {230, 8, 350, 42}},
                         {1223, {8, 48, 360, 78}}};
    places.rects[197] = {{0, {12, 266, 382, 300}}};
    places.rects[198] = {{0, {0, 0, 200, 76}}, {1000, {0, 0, 97, 34}},    {1, {103, 0, 200, 34}},
                         {2, {0, 42, 62, 76}}, {1244, {69, 42, 131, 76}}, {1242, {138, 42, 200, 76}}};
    places.rects[199] = {{0, {0, 0, 330, 64}},    {1000, {0, 30, 60, 64}},    {1, {66, 30, 126, 64}},
                         {2, {132, 30, 192, 64}}, {1244, {198, 30, 258, 64}}, {1242, {270, 30, 330, 64}}};
    return places;
  }

  void savePanel(const std::string& layout) {
    saveEarlierRun([&layout](Settings& settings) {
      settings.panelLayout.fromString(layout);
      settings.windowPosition.fromString("40;50");
    });
  }

  std::string savedLayout() {
    const auto saved = freshSettings();
    int status = -1;
    saved->readDefaultConfiguration(status);
    EXPECT_EQ(status, 0);
    return saved->panelLayout.toString();
  }

  static ScriptedWindow& file(ScriptedWindow& main) { return main.child(FILE_VIEW_SLOT); }
  static ScriptedWindow& project(ScriptedWindow& main) { return main.child(PROJECT_VIEW_SLOT); }

  /// The one bar of the panel that shows.
  static ScriptedWindow& shownBar(ScriptedWindow& panel) {
    ScriptedWindow* shown = nullptr;
    for (const int slot : {VERTICAL_BAR_SLOT, HORIZONTAL_BAR_SLOT, FLAT_BAR_SLOT}) {
      if (!panel.child(slot).shown()) continue;
      EXPECT_EQ(shown, nullptr) << "two bars show";
      shown = &panel.child(slot);
    }
    if (!shown) throw std::runtime_error("no bar shows");
    return *shown;
  }

  static void expectRects(const ScriptedWindow& window, const Rects& expected) {
    for (const auto& [control, rect] : expected) {
      const Rect found = control == 0 ? window.windowRect() : window.rect(control);
      EXPECT_EQ(found, rect) << "control " << control << ": " << found.left << "," << found.top << "," << found.right
                             << "," << found.bottom;
    }
  }

  static Rect at(int left, int top, int width, int height) { return {left, top, left + width, top + height}; }

  /// Starts in a layout and looks at the file view, or, after a switch, at the project view.
  void inLayout(const std::string& layout, bool projectView,
                const std::function<void(ScriptedWindow& main, ScriptedWindow& panel)>& look) {
    savePanel(layout);
    runPanel([&](ScriptedWindow& main, ScriptedWindow&) {
      if (projectView) shownBar(file(main)).press(SWITCH_VIEW);
      ScriptedWindow& panel = projectView ? project(main) : file(main);
      look(main, panel);
      shownBar(panel).press(EXIT);
    });
  }
};

TEST_F(PanelsTest, VerticalFileViewStandsAsTheResourceHasIt) {
  inLayout("VERTICAL", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    expectRects(main, {{0, at(40, 50, 400, 350)}});
    expectRects(panel, {{0, {0, 0, 400, 350}},
                        {1238, {12, 4, 382, 124}},
                        {1239, {12, 4, 382, 124}},
                        {1231, {12, 130, 382, 260}},
                        {1009, {20, 80, 374, 110}},
                        {1008, {278, 30, 358, 64}}});
    expectRects(panel.child(VERTICAL_BAR_SLOT), {{0, {12, 268, 382, 302}}});
    expectRects(panel.page(TABS, 0), {{FIELD, {8, 48, 360, 78}}, {LEFT, {8, 8, 108, 42}}});
  });
}

TEST_F(PanelsTest, VerticalProjectViewStandsAsTheResourceHasIt) {
  inLayout("VERTICAL", true, [](ScriptedWindow& main, ScriptedWindow& panel) {
    expectRects(main, {{0, at(40, 50, 400, 350)}});
    expectRects(panel, {{0, {0, 0, 400, 350}},
                        {1238, {12, 4, 382, 74}},
                        {1239, {12, 80, 382, 150}},
                        {1231, {12, 156, 382, 286}},
                        {1134, {20, 30, 130, 64}},
                        {1140, {252, 106, 362, 140}}});
    expectRects(panel.child(VERTICAL_BAR_SLOT), {{0, {12, 294, 382, 328}}});
  });
}

TEST_F(PanelsTest, HorizontalFileViewHasTabsAndBarBesideTheGroup) {
  inLayout("HORIZONTAL", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    expectRects(main, {{0, at(40, 50, 978, 156)}});
    expectRects(panel, {{0, {0, 0, 978, 156}},
                        {1239, {12, 4, 382, 124}},
                        {1231, {386, 4, 756, 134}},  // a higher tab control begins at the top
                        {1009, {20, 80, 374, 110}},
                        {1240, {20, 30, 100, 64}}});
    expectRects(panel.child(HORIZONTAL_BAR_SLOT), {{0, {761, 30, 961, 106}}});
    expectRects(panel.page(TABS, 0), {{FIELD, {8, 48, 360, 78}}});
  });
}

TEST_F(PanelsTest, HorizontalProjectViewHasTheTabsOnTheGroupsBottom) {
  inLayout("HORIZONTAL", true, [](ScriptedWindow& main, ScriptedWindow& panel) {
    expectRects(main, {{0, at(40, 50, 978, 182)}});
    expectRects(
        panel,
        {{0, {0, 0, 978, 182}}, {1238, {12, 4, 382, 74}}, {1239, {12, 80, 382, 150}}, {1231, {386, 18, 756, 148}}});
    expectRects(panel.child(HORIZONTAL_BAR_SLOT), {{0, {761, 43, 961, 119}}});
  });
}

TEST_F(PanelsTest, TheDivisionForTheBarsTopIsOfIntegers) {
  auto odd = places();
  odd.rects[198] = {{0, {0, 0, 200, 77}}};
  desktop_.setPlaces(odd);
  inLayout("HORIZONTAL", false, [](ScriptedWindow&, ScriptedWindow& panel) {
    expectRects(panel.child(HORIZONTAL_BAR_SLOT), {{0, {761, 29, 961, 106}}});
  });
}

TEST_F(PanelsTest, FlatFileViewHasEverythingInOneRow) {
  inLayout("FLAT", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    expectRects(main, {{0, at(40, 50, 1750, 124)}});
    expectRects(panel, {{0, {0, 0, 1750, 124}},
                        {1239, {4, 20, 690, 80}},
                        {1009, {8, 46, 362, 76}},
                        {1240, {366, 46, 446, 80}},
                        {1006, {446, 46, 526, 80}},
                        {1007, {526, 46, 606, 80}},
                        {1008, {606, 46, 686, 80}},
                        {1231, {694, 2, 1408, 94}}});
    expectRects(panel.child(FLAT_BAR_SLOT), {{0, {1412, 20, 1742, 84}}});
    for (int tab = 0; tab < 3; ++tab) {
      expectRects(panel.page(TABS, tab), {{FIELD, {354, 8, 706, 38}},
                                          {LEFT, {8, 8, 108, 42}},
                                          {MIDDLE, {114, 8, 224, 42}},
                                          {RIGHT, {230, 8, 350, 42}}});
    }
  });
}

TEST_F(PanelsTest, FlatProjectViewHasItsGroupsSideBySide) {
  inLayout("FLAT", true, [](ScriptedWindow& main, ScriptedWindow& panel) {
    expectRects(main, {{0, at(40, 50, 1808, 128)}});
    expectRects(panel, {{0, {0, 0, 1808, 128}},
                        {1238, {4, 28, 374, 98}},
                        {1239, {378, 28, 748, 98}},
                        {1134, {12, 54, 122, 88}},
                        {1136, {128, 54, 238, 88}},
                        {1135, {244, 54, 354, 88}},
                        {1139, {386, 54, 496, 88}},
                        {1133, {502, 54, 612, 88}},
                        {1140, {618, 54, 728, 88}},
                        {1231, {752, 2, 1466, 98}}});
    expectRects(panel.child(FLAT_BAR_SLOT), {{0, {1470, 20, 1800, 84}}});
  });
}

TEST_F(PanelsTest, WhereTheScreenIsTooNarrowTheFieldsOfTheFlatFileViewGiveWayEqually) {
  auto narrow = places();
  narrow.workArea = {70, 20, 70 + 1449, 900};  // 301 less than the row takes
  desktop_.setPlaces(narrow);
  inLayout("FLAT", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    expectRects(main, {{0, at(40, 50, 1449, 124)}});
    expectRects(panel, {{1239, {4, 20, 540, 80}},
                        {1009, {8, 46, 212, 76}},
                        {1240, {216, 46, 296, 80}},
                        {1008, {456, 46, 536, 80}},
                        {1231, {544, 2, 1107, 94}}});
    expectRects(panel.child(FLAT_BAR_SLOT), {{0, {1111, 20, 1441, 84}}});
    for (int tab = 0; tab < 3; ++tab) expectRects(panel.page(TABS, tab), {{FIELD, {354, 8, 555, 38}}});
  });
}

TEST_F(PanelsTest, FieldsKeepRoomForADozenLettersAndButtonsTheirWords) {
  auto narrow = places();
  narrow.leastWidth = 75;
  // Fields, own buttons and the pages' buttons give all that they can.
  narrow.workArea = {0, 0, 1750 - (354 - 75) - (352 - 75) - 4 * 5 - (25 + 35 + 45), 600};
  desktop_.setPlaces(narrow);
  inLayout("FLAT", false, [&](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.windowRect().width(), narrow.workArea.width());
    EXPECT_EQ(panel.rect(1009).width(), 75);
    for (const int button : {1240, 1006, 1007, 1008}) EXPECT_EQ(panel.rect(button).width(), 75);
    for (int tab = 0; tab < 3; ++tab) {
      expectRects(
          panel.page(TABS, tab),
          {{LEFT, {8, 8, 83, 42}}, {MIDDLE, {89, 8, 164, 42}}, {RIGHT, {170, 8, 245, 42}}, {FIELD, {249, 8, 324, 38}}});
    }
    expectRects(panel.child(FLAT_BAR_SLOT), {{1000, {0, 30, 60, 64}}, {1242, {270, 30, 330, 64}}});
  });
}

TEST_F(PanelsTest, WhereWordsHaveNoRoomTheBarsGoFirstAndTheFieldsGetWhatTheyLeave) {
  auto narrow = places();
  narrow.leastWidth = 75;
  // One pixel less than before.
  narrow.workArea = {0, 0, 1750 - (354 - 75) - (352 - 75) - 4 * 5 - (25 + 35 + 45) - 1, 600};
  desktop_.setPlaces(narrow);
  inLayout("FLAT", false, [&](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.windowRect().width(), narrow.workArea.width());
    ScriptedWindow& bar = panel.child(FLAT_BAR_SLOT);
    expectRects(bar, {{1000, {0, 30, 34, 64}}, {1, {40, 30, 74, 64}}, {2, {80, 30, 114, 64}}});
    expectRects(bar, {{1244, {120, 30, 154, 64}}, {1242, {166, 30, 200, 64}}});
    EXPECT_EQ(bar.windowRect().width(), 200);
    for (const int button : {1240, 1006, 1007, 1008}) EXPECT_EQ(panel.rect(button).width(), 75);
    // 129 pixels to share.
    EXPECT_EQ(panel.rect(1009).width(), 75 + 66);
    for (int tab = 0; tab < 3; ++tab) EXPECT_EQ(panel.page(TABS, tab).rect(FIELD).width(), 75 + 63);
  });
}

TEST_F(PanelsTest, OnTheNarrowestScreenThePicturesStay) {
  auto narrow = places();
  narrow.workArea = {0, 0, 640, 480};
  desktop_.setPlaces(narrow);
  for (const bool projectView : {false, true}) {
    inLayout("FLAT", projectView, [&](ScriptedWindow&, ScriptedWindow& panel) {
      const std::vector<int> own =
          projectView ? std::vector<int>{1134, 1136, 1135, 1139, 1133, 1140} : std::vector<int>{1240, 1006, 1007, 1008};
      for (const int button : own) EXPECT_EQ(panel.rect(button).width(), 34) << button;
      for (int tab = 0; tab < 3; ++tab) {
        for (const int button : {LEFT, MIDDLE, RIGHT}) EXPECT_EQ(panel.page(TABS, tab).rect(button).width(), 34);
        EXPECT_EQ(panel.page(TABS, tab).rect(FIELD).width(), 80);
      }
    });
  }
}

TEST_F(PanelsTest, TheBarOfTheWideLayoutShowsPicturesWhereTheScreenIsTooNarrow) {
  auto narrow = places();
  narrow.workArea = {0, 0, 977, 600};  // one pixel
  desktop_.setPlaces(narrow);
  inLayout("HORIZONTAL", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    ScriptedWindow& bar = panel.child(HORIZONTAL_BAR_SLOT);
    expectRects(bar, {{1000, {0, 0, 34, 34}},
                      {1, {40, 0, 74, 34}},
                      {2, {0, 42, 34, 76}},
                      {1244, {41, 42, 75, 76}},
                      {1242, {82, 42, 116, 76}}});
    expectRects(bar, {{0, {761, 30, 877, 106}}});
    EXPECT_EQ(main.windowRect().width(), 978 - 84);
    expectRects(panel, {{1239, {12, 4, 382, 124}}, {1009, {20, 80, 374, 110}}, {1231, {386, 4, 756, 134}}});
  });
}

TEST_F(PanelsTest, ThenGroupsAndTabsOfTheWideLayoutGiveWayAlike) {
  auto narrow = places();
  narrow.workArea = {0, 0, 978 - 84 - 100, 600};
  desktop_.setPlaces(narrow);
  inLayout("HORIZONTAL", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.windowRect().width(), 978 - 84 - 100);
    expectRects(panel, {{1239, {12, 4, 332, 124}},
                        {1009, {20, 80, 324, 110}},
                        {1240, {20, 30, 88, 64}},
                        {1008, {241, 30, 308, 64}},
                        {1231, {336, 4, 656, 134}}});
    for (int tab = 0; tab < 3; ++tab) {
      expectRects(panel.page(TABS, tab), {{LEFT, {8, 8, 92, 42}}, {FIELD, {8, 48, 310, 78}}});
      EXPECT_EQ(panel.page(TABS, tab).rect(RIGHT).right, 300);
    }
  });
  inLayout("HORIZONTAL", true, [](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.windowRect().width(), 978 - 84 - 100);
    expectRects(panel, {{1238, {12, 4, 332, 74}}, {1239, {12, 80, 332, 150}}});
    EXPECT_EQ(panel.rect(1135).right, 312);
    EXPECT_EQ(panel.rect(1140).right, 312);
  });
}

TEST_F(PanelsTest, WhatOneFieldCannotGiveTheOtherGives) {
  auto narrow = places();
  narrow.rects[130][1009] = {20, 80, 140, 110};  // 120 wide: 40 to give
  narrow.workArea = {0, 0, 1750 - 234 - 100, 600};
  desktop_.setPlaces(narrow);
  inLayout("FLAT", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.windowRect().width(), 1750 - 234 - 100);
    EXPECT_EQ(panel.rect(1009).width(), 80);
    EXPECT_EQ(panel.page(TABS, 0).rect(FIELD).width(), 352 - 60);
  });
}

TEST_F(PanelsTest, WhereTheScreenIsTooNarrowThePagesFieldsOfTheFlatProjectViewGiveWay) {
  auto narrow = places();
  narrow.workArea = {0, 0, 1680, 1000};
  desktop_.setPlaces(narrow);
  inLayout("FLAT", true, [](ScriptedWindow& main, ScriptedWindow& panel) {
    expectRects(main, {{0, at(40, 50, 1680, 128)}});
    expectRects(panel, {{1239, {378, 28, 748, 98}}, {1231, {752, 2, 1338, 98}}});
    expectRects(panel.child(FLAT_BAR_SLOT), {{0, {1342, 20, 1672, 84}}});
    for (int tab = 0; tab < 3; ++tab) expectRects(panel.page(TABS, tab), {{FIELD, {354, 8, 578, 38}}});
  });
}

TEST_F(PanelsTest, WhatTheFieldsCannotGiveTheButtonsOfTheFlatProjectViewGive) {
  auto narrow = places();
  narrow.workArea = {0, 0, 1808 - 272 - 122, 1000};
  desktop_.setPlaces(narrow);
  inLayout("FLAT", true, [](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.windowRect().width(), 1808 - 272 - 122);
    expectRects(panel, {{1238, {4, 28, 313, 98}},
                        {1239, {317, 28, 626, 98}},
                        {1134, {12, 54, 102, 88}},
                        {1136, {108, 54, 198, 88}},
                        {1135, {204, 54, 293, 88}},
                        {1139, {325, 54, 415, 88}},
                        {1133, {421, 54, 511, 88}},
                        {1140, {517, 54, 606, 88}}});
    EXPECT_EQ(panel.page(TABS, 0).rect(FIELD).width(), 80);
  });
}

TEST_F(PanelsTest, NoButtonOfTheFlatProjectViewLosesItsWordsWhileOthersHaveRoomToGive) {
  auto narrow = places();
  narrow.leastWidth = 95;
  narrow.workArea = {0, 0, 1808 - (352 - 95) - 6 * 15 - (5 + 15 + 25), 480};
  desktop_.setPlaces(narrow);
  inLayout("FLAT", true, [&](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_EQ(main.windowRect().width(), narrow.workArea.width());
    for (const int button : {1134, 1136, 1135, 1139, 1133, 1140}) EXPECT_EQ(panel.rect(button).width(), 95);
    EXPECT_EQ(panel.child(FLAT_BAR_SLOT).windowRect().width(), 330);
  });
}

TEST_F(PanelsTest, AScreenThatIsWideEnoughChangesNothing) {
  auto exact = places();
  exact.workArea = {0, 0, 1750, 1000};
  desktop_.setPlaces(exact);
  inLayout("FLAT", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    expectRects(main, {{0, at(40, 50, 1750, 124)}});
    EXPECT_EQ(panel.rect(1009).width(), 354);
  });
}

TEST_F(PanelsTest, AWideFrameDoesNotCoverTheFlatBar) {
  auto wide = places();
  wide.frameWidth = 16;
  desktop_.setPlaces(wide);
  inLayout("FLAT", false, [](ScriptedWindow& main, ScriptedWindow&) {
    EXPECT_EQ(main.windowRect().width(), 1742 + 16 + 2);
    EXPECT_GE(main.clientRect().width(), 1742);
  });
}

TEST_F(PanelsTest, TheTabControlGrowsUntilItClearsItsFieldByFour) {
  auto low = places();
  low.rects[195][1223] = {8, 70, 360, 100};
  desktop_.setPlaces(low);
  inLayout("VERTICAL", false, [](ScriptedWindow&, ScriptedWindow& panel) {
    expectRects(panel, {{1231, {12, 130, 382, 130 + 36 + 100 + 4}}});
    expectRects(panel.child(VERTICAL_BAR_SLOT), {{0, {12, 278, 382, 312}}});
  });
}

TEST_F(PanelsTest, OnlyTheProjectViewShowsItsFirstGroup) {
  for (const char* layout : {"VERTICAL", "HORIZONTAL", "FLAT"}) {
    inLayout(layout, true, [](ScriptedWindow& main, ScriptedWindow& panel) {
      EXPECT_FALSE(file(main).visible(1238));
      EXPECT_TRUE(file(main).visible(1239));
      EXPECT_TRUE(panel.visible(1238));
      EXPECT_TRUE(panel.visible(1239));
    });
  }
}

TEST_F(PanelsTest, EachLayoutHasItsOwnBarWithItsLabels) {
  const std::string bar = platform::brokenBar;
  savePanel("VERTICAL");
  runPanel([&](ScriptedWindow& main, ScriptedWindow&) {
    for (ScriptedWindow* panel : {&file(main), &project(main)}) {
      const std::string other = panel == &file(main) ? "Projectview" : "Fileview";
      const std::map<int, std::pair<std::string, std::string>> signs = {
          {VERTICAL_BAR_SLOT, {"==", "------"}}, {HORIZONTAL_BAR_SLOT, {bar, "------"}}, {FLAT_BAR_SLOT, {bar, "=="}}};
      for (const auto& [slot, labels] : signs) {
        EXPECT_EQ(panel->child(slot).text(SETTINGS), "Settings");
        EXPECT_EQ(panel->child(slot).text(SWITCH_VIEW), other);
        EXPECT_EQ(panel->child(slot).text(EXIT), "Exit");
        EXPECT_EQ(panel->child(slot).text(LAYOUT_LEFT), labels.first);
        EXPECT_EQ(panel->child(slot).text(LAYOUT_RIGHT), labels.second);
      }
    }
    shownBar(file(main)).press(EXIT);
  });
}

TEST_F(PanelsTest, TheLayoutButtonsLeadFromEveryLayoutToTheTwoOthers) {
  struct Way {
    const char* from;
    int button;
    const char* to;
    int bar;
  };
  for (const Way& way :
       {Way{"VERTICAL", LAYOUT_LEFT, "HORIZONTAL", HORIZONTAL_BAR_SLOT},
        Way{"VERTICAL", LAYOUT_RIGHT, "FLAT", FLAT_BAR_SLOT},
        Way{"HORIZONTAL", LAYOUT_LEFT, "VERTICAL", VERTICAL_BAR_SLOT},
        Way{"HORIZONTAL", LAYOUT_RIGHT, "FLAT", FLAT_BAR_SLOT}, Way{"FLAT", LAYOUT_LEFT, "VERTICAL", VERTICAL_BAR_SLOT},
        Way{"FLAT", LAYOUT_RIGHT, "HORIZONTAL", HORIZONTAL_BAR_SLOT}}) {
    for (const bool projectView : {false, true}) {
      inLayout(way.from, projectView, [&](ScriptedWindow& main, ScriptedWindow& panel) {
        shownBar(panel).press(way.button);
        EXPECT_TRUE(main.redrawn()) << "from " << way.from;
        EXPECT_EQ(savedLayout(), way.to) << "from " << way.from;
        EXPECT_EQ(&shownBar(panel), &panel.child(way.bar)) << "from " << way.from;
        EXPECT_EQ(shownBar(panel).focused(), way.button) << "the keyboard goes on at the button of the same place";
      });
      EXPECT_EQ(savedLayout(), way.to);
    }
  }
}

TEST_F(PanelsTest, AllWayThroughTheLayoutsAndBackEverythingStandsAsAtFirst) {
  inLayout("VERTICAL", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    shownBar(panel).press(LAYOUT_RIGHT);
    shownBar(panel).press(LAYOUT_RIGHT);
    expectRects(main, {{0, at(40, 50, 978, 156)}});
    shownBar(panel).press(LAYOUT_LEFT);
    expectRects(main, {{0, at(40, 50, 400, 350)}});
    expectRects(panel, {{1239, {12, 4, 382, 124}}, {1231, {12, 130, 382, 260}}, {1009, {20, 80, 374, 110}}});
    expectRects(panel.page(TABS, 2), {{FIELD, {8, 48, 360, 78}}});
    EXPECT_FALSE(panel.page(TABS, 2).visible(FIELD));
  });
}

TEST_F(PanelsTest, ALayoutCommandLeavesTheWindowWhereItWasMoved) {
  inLayout("VERTICAL", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    main.moveByHand({300, 200});
    shownBar(panel).press(LAYOUT_LEFT);
    EXPECT_EQ(main.position(), (Point{300, 200}));
  });
  EXPECT_NE(contentOf(configFile()).find("WINDOW_POSITION  300;200"), std::string::npos);
}

TEST_F(PanelsTest, WithoutKnownPositionsTheLayoutsStillChange) {
  savePanel("VERTICAL");
  desktop_.setWindowPosition(std::nullopt);
  runPanel([&](ScriptedWindow& main, ScriptedWindow&) {
    shownBar(file(main)).press(LAYOUT_LEFT);
    EXPECT_EQ(main.windowRect().width(), 978);
    EXPECT_EQ(main.position(), std::nullopt);
    shownBar(file(main)).press(EXIT);
  });
  EXPECT_EQ(savedLayout(), "HORIZONTAL");
}

TEST_F(PanelsTest, SwitchingAfterALayoutChangeShowsThePartnerInTheNewLayout) {
  inLayout("VERTICAL", false, [](ScriptedWindow& main, ScriptedWindow& panel) {
    EXPECT_TRUE(panel.shown());
    EXPECT_FALSE(project(main).shown());
    shownBar(panel).press(LAYOUT_LEFT);
    shownBar(panel).press(SWITCH_VIEW);
    EXPECT_TRUE(main.redrawn());
    EXPECT_FALSE(panel.shown());
    EXPECT_TRUE(project(main).shown());
    EXPECT_EQ(&shownBar(project(main)), &project(main).child(HORIZONTAL_BAR_SLOT));
    EXPECT_EQ(shownBar(project(main)).focused(), SWITCH_VIEW);
    expectRects(main, {{0, at(40, 50, 978, 182)}});
    shownBar(project(main)).press(LAYOUT_RIGHT);
    shownBar(project(main)).press(SWITCH_VIEW);
    EXPECT_TRUE(panel.shown());
    EXPECT_FALSE(project(main).shown());
    expectRects(main, {{0, at(40, 50, 1750, 124)}});
  });
}

TEST_F(PanelsTest, ASwitchSavesAMovedWindow) {
  inLayout("VERTICAL", false, [this](ScriptedWindow& main, ScriptedWindow& panel) {
    main.moveByHand({71, 72});
    shownBar(panel).press(SWITCH_VIEW);
    EXPECT_NE(contentOf(configFile()).find("WINDOW_POSITION  71;72"), std::string::npos);
    EXPECT_EQ(main.position(), (Point{71, 72}));
    shownBar(project(main)).press(SWITCH_VIEW);
  });
}

TEST_F(PanelsTest, ASwitchOfAWindowThatStandsStillWritesNothing) {
  inLayout("VERTICAL", false, [this](ScriptedWindow& main, ScriptedWindow& panel) {
    writeFile(configFile(), "untouched");
    shownBar(panel).press(SWITCH_VIEW);
    EXPECT_EQ(contentOf(configFile()), "untouched");
    shownBar(project(main)).press(SWITCH_VIEW);
  });
}

TEST_F(PanelsTest, ExitOfTheProjectViewEndsTheProgramAndKeepsThePosition) {
  savePanel("VERTICAL");
  runPanel([](ScriptedWindow& main, ScriptedWindow&) {
    shownBar(file(main)).press(SWITCH_VIEW);
    main.moveByHand({81, 82});
    shownBar(project(main)).press(EXIT);
    EXPECT_TRUE(main.closed());
  });
  EXPECT_NE(contentOf(configFile()).find("WINDOW_POSITION  81;82"), std::string::npos);
}

TEST_F(PanelsTest, OnlyTheProjectViewNamesTheProjectAndOnlyOutsideVertical) {
  int saves = 0;
  savePanel("VERTICAL");
  runPanel([&](ScriptedWindow& main, ScriptedWindow&) {
    settings().currentProject = std::make_unique<FakeProject>(saves);
    shownBar(file(main)).press(LAYOUT_LEFT);
    EXPECT_EQ(saves, 1) << "with a project open, the layout is the project's";
    EXPECT_EQ(main.title(), "Tarnwick");
    shownBar(file(main)).press(SWITCH_VIEW);
    EXPECT_EQ(main.title(), "Tarnwick - project \"/my work/demo.twp\"");
    shownBar(project(main)).press(LAYOUT_LEFT);
    EXPECT_EQ(main.title(), "Tarnwick");
    shownBar(project(main)).press(LAYOUT_RIGHT);
    EXPECT_EQ(main.title(), "Tarnwick - project \"/my work/demo.twp\"");
    shownBar(project(main)).press(SWITCH_VIEW);
    EXPECT_EQ(main.title(), "Tarnwick");
    shownBar(file(main)).press(EXIT);
  });
}

TEST_F(PanelsTest, WithoutAProjectNoTitleNamesOne) {
  for (const char* layout : {"VERTICAL", "HORIZONTAL", "FLAT"}) {
    inLayout(layout, true, [](ScriptedWindow& main, ScriptedWindow&) { EXPECT_EQ(main.title(), "Tarnwick"); });
  }
}

TEST_F(PanelsTest, AFailedFileviewIsToldAndTheStartGoesOn) {
  savePanel("VERTICAL");
  auto refused = places();
  refused.refusedSlots = {FILE_VIEW_SLOT};
  desktop_.setPlaces(refused);
  desktop_.expectMessage("Error creating fileview");
  desktop_.expectMainDialog([](ScriptedWindow& main) { main.closeBox(); });
  TarnwickDlg(settings()).runModal();
}

TEST_F(PanelsTest, AFailedProjectviewIsToldAndTheFileViewWorks) {
  savePanel("VERTICAL");
  auto refused = places();
  refused.refusedSlots = {PROJECT_VIEW_SLOT};
  desktop_.setPlaces(refused);
  desktop_.expectMessage("Error creating projectview");
  runPanel([](ScriptedWindow& main, ScriptedWindow& panel) {
    shownBar(panel).press(SWITCH_VIEW);
    EXPECT_TRUE(panel.shown()) << "there is nothing to switch to";
    shownBar(panel).press(LAYOUT_LEFT);
    EXPECT_EQ(main.windowRect().width(), 978);
    shownBar(panel).press(EXIT);
  });
}

}  // namespace
}  // namespace tarnwick::test
