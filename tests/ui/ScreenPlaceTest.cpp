#include "ui/SampleDialog.h"
#include "ui/ScreenPlace.h"
#include "ui/WindowTest.h"

#include <wx/dialog.h>
#include <wx/display.h>

#include <climits>

namespace tarnwick::test {

namespace {

/// The place of a window of 400 x 300.
Point placed(const Point& leftTop, const std::vector<Rect>& screens) {
  return ui::withinReach(leftTop, 400, 300, screens);
}

const std::vector<Rect> one = {{0, 0, 1280, 1000}};
const std::vector<Rect> two = {{0, 0, 1280, 1000}, {1280, 200, 3200, 1280}};

class LeftOnAnotherScreenTest : public WindowTest, public testing::WithParamInterface<Point> {};

}  // namespace

TEST(ScreenPlaceTest, WhatCanBeGraspedStaysWhereItIs) {
  for (const Point& place :
       {Point{0, 0}, Point{100, 200}, Point{1280 - 48, 10}, Point{-352, 5}, Point{20, 1000 - 12}}) {
    EXPECT_EQ(placed(place, one), place);
  }
  for (const Point& place : {Point{2000, 300}, Point{1270, 250}, Point{3200 - 48, 1200}}) {
    EXPECT_EQ(placed(place, two), place);
  }
}

TEST(ScreenPlaceTest, AWindowOfAScreenThatIsGoneShowsWholeOnTheNearest) {
  EXPECT_EQ(placed({2000, 300}, one), (Point{880, 300}));
  EXPECT_EQ(placed({100, 3000}, one), (Point{100, 700}));
  EXPECT_EQ(placed({-4000, -10}, one), (Point{0, 0}));
  EXPECT_EQ(placed({1280 - 47, 10}, one), (Point{880, 10})) << "too little to take hold of";
  EXPECT_EQ(placed({20, 1000 - 11}, one), (Point{20, 700})) << "likewise";
  EXPECT_EQ(placed({5000, 400}, two), (Point{2800, 400}));
  EXPECT_EQ(placed({-900, 400}, two), (Point{0, 400}));
  EXPECT_EQ(placed({2000, 100}, two), (Point{2000, 200})) << "above the lower one of two screens";
}

TEST(ScreenPlaceTest, AWindowThatIsLargerThanTheScreenShowsItsBeginning) {
  EXPECT_EQ(ui::withinReach({2000, 3000}, 1600, 1200, one), (Point{0, 0}));
  EXPECT_EQ(ui::withinReach({20, 30}, 1600, 1200, one), (Point{20, 30}));
}

TEST(ScreenPlaceTest, AnyNumberMayHaveBeenSaved) {
  EXPECT_EQ(placed({INT_MAX, INT_MAX}, two), (Point{2800, 980}));
  EXPECT_EQ(placed({INT_MIN, INT_MIN}, one), (Point{0, 0}));
  EXPECT_EQ(placed({INT_MAX, 5}, {}), (Point{INT_MAX, 5})) << "no screen is known";
}

TEST(ScreenPlaceTest, ThisScreenIsThere) {
  const auto screens = ui::presentScreens();
  ASSERT_FALSE(screens.empty());
  EXPECT_GT(screens[0].width(), 600);
  EXPECT_GT(screens[0].height(), 400);
}

TEST_P(LeftOnAnotherScreenTest, TheMainDialogShowsWhole) {
  Recorder rules;
  rules.onInitialise = [](DialogWindow& window) { window.moveTo(GetParam()); };
  steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.settle(20);
  steps.then("look", [&] {
    const wxRect room = wxDisplay(0U).GetClientArea();
    const wxRect window = top().dialog().GetScreenRect();
    EXPECT_TRUE(room.Contains(window)) << window.x << "," << window.y;
    const auto told = top().position();
    ASSERT_TRUE(told);
    EXPECT_TRUE(room.Contains(told->x, told->y)) << "what is remembered: " << told->x << "," << told->y;
  });
  steps.then("close", [&] { rules.window->close(1); });
  desktop().runMainDialog(smallLayout("Main"), rules);
}

INSTANTIATE_TEST_SUITE_P(Places, LeftOnAnotherScreenTest,
                         testing::Values(Point{9000, 200}, Point{200, 9000}, Point{INT_MAX, INT_MAX}));

}  // namespace tarnwick::test
