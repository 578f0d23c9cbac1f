#include "app/PanelArrangement.h"
#include "resources/PanelLayouts.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

struct Nobody : DialogHandler {
  void initialise(DialogWindow&) override {}
  void onCommand(int) override {}
  void onCloseRequest() override {}
};

class PanelLayoutTest : public testing::Test {
 protected:
  LayoutItem item(int control, DialogWindow& owner, const Rect& rect = {1, 2, 31, 42}) {
    return {rect.left, rect.top, rect.right, rect.bottom, control, LayoutItem::AS_IT_IS, &owner};
  }

  Nobody nobody_;
  ScriptedWindow panel_{fileViewLayout(), nobody_};
  ScriptedWindow page_{panelPageLayout(), nobody_};
  PanelLayout layout_{2};
};

TEST_F(PanelLayoutTest, AnItemMovesWithItsSizeAndIsSizedAtItsPlace) {
  LayoutItem one = item(1009, panel_);
  EXPECT_EQ(one.width(), 30);
  EXPECT_EQ(one.height(), 40);
  one.moveTo(100, 200);
  EXPECT_EQ(one.left, 100);
  EXPECT_EQ(one.top, 200);
  EXPECT_EQ(one.right, 130);
  EXPECT_EQ(one.bottom, 240);
  one.resize(7, 8);
  EXPECT_EQ(one.left, 100);
  EXPECT_EQ(one.top, 200);
  EXPECT_EQ(one.right, 107);
  EXPECT_EQ(one.bottom, 208);
}

TEST_F(PanelLayoutTest, TheFlagsAreShowAndHide) {
  panel_.show(1009, false);
  layout_.add(item(1009, panel_), LayoutItem::AS_IT_IS);
  layout_.addShown(item(1238, panel_), true);
  layout_.addShown(item(1239, panel_), false);
  EXPECT_EQ(layout_.findControl(1009).flags, 0);
  EXPECT_EQ(layout_.findControl(1238).flags, 64);
  EXPECT_EQ(layout_.findControl(1239).flags, 128);
  layout_.apply();
  EXPECT_FALSE(panel_.visible(1009)) << "left as it is";
  EXPECT_EQ(panel_.rect(1009), (Rect{1, 2, 31, 42}));
  EXPECT_TRUE(panel_.visible(1238));
  EXPECT_FALSE(panel_.visible(1239));
}

TEST_F(PanelLayoutTest, WhatIsToBeHiddenIsNeitherMovedNorSized) {
  panel_.setRect(1239, {5, 6, 7, 8});
  layout_.addShown(item(1239, panel_), false);
  layout_.addShown(item(0, page_), false);
  layout_.apply();
  EXPECT_EQ(panel_.rect(1239), (Rect{5, 6, 7, 8}));
  EXPECT_FALSE(page_.shown());
  EXPECT_EQ(page_.windowRect().width(), 0);
}

TEST_F(PanelLayoutTest, TheLastOfSeveralIsFound) {
  layout_.add(item(1009, panel_), 0);
  layout_.add(item(0, page_, {0, 0, 1, 1}), 0);
  layout_.add(item(1009, panel_, {0, 0, 9, 9}), 0);
  layout_.add(item(0, page_, {0, 0, 2, 2}), 0);
  layout_.add(item(1223, page_, {0, 0, 3, 3}), 0);
  EXPECT_EQ(layout_.findControl(1009).right, 9);
  EXPECT_EQ(layout_.findWindow(page_).right, 2);
}

TEST_F(PanelLayoutTest, WhatIsNotThereGivesTheFirstItem) {
  layout_.add(item(1009, panel_), 0);
  layout_.add(item(1008, panel_), 0);
  EXPECT_EQ(layout_.findControl(4711).control, 1009);
  EXPECT_EQ(layout_.findWindow(page_).control, 1009);
}

TEST_F(PanelLayoutTest, TheFirstItemOfAControlHasTheLastWord) {
  layout_.add(item(1009, panel_, {0, 0, 1, 1}), 0);
  layout_.add(item(1009, panel_, {0, 0, 2, 2}), 0);
  layout_.apply();
  EXPECT_EQ(panel_.rect(1009), (Rect{0, 0, 1, 1})) << "applied from the last back";
}

TEST_F(PanelLayoutTest, ItemsAreCopies) {
  LayoutItem one = item(1009, panel_);
  layout_.add(one, 0);
  one.moveTo(500, 500);
  EXPECT_EQ(layout_.findControl(1009).left, 1);
}

TEST(PanelArrangement, GroupsThatAreHigherThanTheFlatTabsKeepTheirTitlesInTheWindow) {
  PanelPlaces places;
  places.own.assign(6, LayoutItem{20, 30, 60, 54});
  places.firstGroup = {12, 2, 112, 200};
  places.secondGroup = {12, 210, 112, 408};
  places.tabControl = {12, 420, 300, 520};
  arrangeFlatProjectView(places);
  for (const LayoutItem& group : {places.firstGroup, places.secondGroup}) {
    EXPECT_EQ(group.top, 0);
    EXPECT_EQ(group.bottom, places.tabControl.bottom);
    EXPECT_EQ(group.width(), 100);
  }
  EXPECT_LT(places.tabControl.height(), 198) << "lower than the groups were";
}

}  // namespace
}  // namespace tarnwick::test
