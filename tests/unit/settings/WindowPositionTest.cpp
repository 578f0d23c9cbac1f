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
  PlacedWindow* mainWindow_ = &window_;
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

TEST_F(WindowPositionTest, AnUndefinedPositionIsNotRefreshedByItsText) {
  window_.moveByHand({7, 9});
  EXPECT_EQ(position_.toString(), "");
  EXPECT_THROW(position_.getLeft(), WindowPosition::UndefinedE) << "the window's place was not taken";
  EXPECT_TRUE(position_.hasMoved());
}

TEST_F(WindowPositionTest, TheMarkInEitherCoordinateMakesThePositionUndefined) {
  EXPECT_EQ(WindowPosition::UNDEFINED, -999999);
  for (const char* text : {"-999999;5", "5;-999999", "-999999;-999999"}) {
    position_.fromString(text);
    EXPECT_EQ(position_.toString(), "") << text;
  }
  position_.fromString("5;-999999");
  EXPECT_EQ(position_.getLeft(), 5);
  EXPECT_THROW(position_.getTop(), WindowPosition::UndefinedE);
  position_.fromString("5;6");
  position_.setUndefined();
  EXPECT_THROW(position_.getLeft(), WindowPosition::UndefinedE);
  EXPECT_THROW(position_.getTop(), WindowPosition::UndefinedE);
}

TEST_F(WindowPositionTest, RefreshingTakesThePlacementWhereItCanBeRead) {
  window_.moveByHand({7, 9});
  position_.refreshFromWindow();
  EXPECT_EQ(position_.getLeft(), 7);
  EXPECT_EQ(position_.getTop(), 9);
  window_.setKnownPosition(std::nullopt);
  position_.refreshFromWindow();
  EXPECT_EQ(position_.getLeft(), 7);
  mainWindow_ = nullptr;
  position_.refreshFromWindow();
  EXPECT_EQ(position_.getTop(), 9);
  EXPECT_FALSE(position_.hasMoved());
}

TEST_F(WindowPositionTest, EitherCoordinateTellsThatTheWindowHasMoved) {
  position_.fromString("7;9");
  window_.moveByHand({7, 9});
  EXPECT_FALSE(position_.hasMoved());
  window_.moveByHand({8, 9});
  EXPECT_TRUE(position_.hasMoved());
  window_.moveByHand({7, 8});
  EXPECT_TRUE(position_.hasMoved());
}

TEST_F(WindowPositionTest, ANegativePlaceIsAppliedAsNought) {
  position_.fromString("-20;-30");
  position_.applyToWindow();
  EXPECT_EQ(window_.position(), (Point{0, 0}));
}

TEST_F(WindowPositionTest, AnUndefinedPositionStaysSoWhereThePlacementCantBeRead) {
  window_.setKnownPosition(std::nullopt);
  position_.applyToWindow();
  EXPECT_THROW(position_.getLeft(), WindowPosition::UndefinedE);
  mainWindow_ = nullptr;
  EXPECT_NO_THROW(position_.applyToWindow());
}

TEST_F(WindowPositionTest, NumbersAreReadAsFarAsTheyAreSome) {
  mainWindow_ = nullptr;
  const struct {
    const char* text;
    const char* left;
  } cases[] = {{"12x;0", "12"},
               {" \t12;0", "12"},
               {"+12;0", "12"},
               {"-12 3;0", "-12"},
               {"x12;0", "0"},
               {"--5;0", "0"},
               {"+-5;0", "0"},
               {";0", "0"},
               {"2147483647;0", "2147483647"},
               {"-2147483648;0", "-2147483648"},
               {"2147483648;0", "-2147483648"},
               {"4294967299;0", "3"},
               {"99999999999999999999;0", "1661992959"},
               {"-99999999999999999999;0", "-1661992959"}};
  for (const auto& one : cases) {
    position_.fromString(one.text);
    EXPECT_EQ(position_.toString(), std::string(one.left) + ";0") << one.text;
  }
}

TEST_F(WindowPositionTest, WhatStandsBehindTheTwoNumbersDoesNotCount) {
  mainWindow_ = nullptr;
  position_.fromString("1;2;3");
  EXPECT_EQ(position_.toString(), "1;2");
}

}  // namespace
}  // namespace tarnwick::test
