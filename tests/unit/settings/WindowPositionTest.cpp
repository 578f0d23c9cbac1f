#include "settings/WindowPosition.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

struct NoRules : DialogHandler {
  void initialise(DialogWindow&) override {}
  void onCommand(int) override {}
  void onCloseRequest() override {}
};

class WindowPositionTest : public testing::Test {
 protected:
  NoRules rules_;
  DialogLayout layout_{1, "Main", false, {}, 0};
  ScriptedWindow window_{layout_, rules_};
  DialogWindow* mainWindow_ = &window_;
  WindowPosition position_{mainWindow_};
};

TEST_F(WindowPositionTest, AnUndefinedPositionHasTheEmptyText) {
  EXPECT_EQ(position_.toString(), "");
  EXPECT_THROW(position_.getLeft(), WindowPosition::UndefinedE);
  EXPECT_THROW(position_.getTop(), WindowPosition::UndefinedE);
}

TEST_F(WindowPositionTest, NegativeCoordinatesBecomeNoughtAndStaySo) {
  mainWindow_ = nullptr;
  position_.fromString("-20;-30");
  EXPECT_EQ(position_.toString(), "-20;-30");
  EXPECT_EQ(position_.getLeft(), 0);
  EXPECT_EQ(position_.getTop(), 0);
  EXPECT_EQ(position_.toString(), "0;0");
  mainWindow_ = &window_;
  window_.moveByHand({0, 0});
  EXPECT_FALSE(position_.hasMoved());
}

TEST_F(WindowPositionTest, TheTextIsRefreshedFromTheWindow) {
  position_.fromString("120;88");
  window_.moveByHand({7, 9});
  EXPECT_TRUE(position_.hasMoved());
  EXPECT_EQ(position_.toString(), "7;9");
  EXPECT_FALSE(position_.hasMoved());
}

TEST_F(WindowPositionTest, APlacementThatCantBeReadLeavesEverything) {
  window_.setKnownPosition(std::nullopt);
  position_.fromString("120;88");
  EXPECT_FALSE(position_.hasMoved());
  position_.applyToWindow();
  EXPECT_EQ(position_.toString(), "120;88");
}

TEST_F(WindowPositionTest, MovesTheWindowToTheStoredPlace) {
  position_.fromString("120;88");
  position_.applyToWindow();
  EXPECT_EQ(window_.position(), (Point{120, 88}));
}

TEST_F(WindowPositionTest, AnUndefinedPositionIsTakenCrosswise) {
  window_.moveByHand({300, 200});
  position_.applyToWindow();
  EXPECT_EQ(window_.position(), (Point{300, 200}));
  EXPECT_EQ(position_.getLeft(), 200);
  EXPECT_EQ(position_.getTop(), 300);
}

TEST_F(WindowPositionTest, BadTextKeepsWhatWasNotReached) {
  mainWindow_ = nullptr;
  position_.fromString("5;6");
  position_.fromString("");
  EXPECT_EQ(position_.toString(), "5;6");
  position_.fromString("9");
  EXPECT_EQ(position_.toString(), "9;6");
  position_.fromString("x;]");
  EXPECT_EQ(position_.toString(), "9;6");
  position_.fromString("x;7");
  EXPECT_EQ(position_.toString(), "0;7");
}

}  // namespace
}  // namespace tarnwick::test
