#include "console/ConsoleSelection.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Rects = std::vector<Rect>;

class ConsoleSelectionTest : public testing::Test {
 protected:
  ConsoleSelectionTest() {
    grid.charWidth = 8;
    grid.charHeight = 16;
    for (const char* line : {"first line", "two", "", "the fourth line is long"}) {
      document.addText(line, KIND_OUTPUT);
      document.newLine();
    }
  }
  void select(const ConsoleCell& from, const ConsoleCell& to) {
    selection.begin(from);
    selection.drag(to, document.widestLine());
    selection.finish();
  }
  std::string text() { return selection.text(document); }

  TarnwickDoc document{""};
  ConsoleGrid grid;
  ConsoleSelection selection{grid};
};

TEST_F(ConsoleSelectionTest, OneLineIsOneRectangle) {
  select({2, 0}, {5, 0});
  EXPECT_EQ(selection.state(), ConsoleSelection::STATE_STANDS);
  EXPECT_EQ(selection.rects(), (Rects{{20, 0, 44, 16}}));
  EXPECT_EQ(text(), "rst");
}

TEST_F(ConsoleSelectionTest, DraggingBackwardsSelectsTheSame) {
  select({5, 0}, {2, 0});
  EXPECT_EQ(selection.rects(), (Rects{{20, 0, 44, 16}}));
  EXPECT_EQ(text(), "rst");
  select({2, 1}, {6, 0});
  EXPECT_EQ(text(), "line\r\ntw");
}

TEST_F(ConsoleSelectionTest, TwoLinesAreTwoRectangles) {
  select({6, 0}, {2, 1});
  const int right = 4 + 23 * 8;
  EXPECT_EQ(selection.rects(), (Rects{{52, 0, right, 16}, {4, 16, 20, 32}}));
  EXPECT_EQ(text(), "line\r\ntw");
}

TEST_F(ConsoleSelectionTest, ThreeOrMoreLinesHaveABlockBetween) {
  select({6, 0}, {10, 3});
  const int right = 4 + 23 * 8;
  EXPECT_EQ(selection.rects(), (Rects{{52, 0, right, 16}, {4, 48, 84, 64}, {4, 16, right, 48}}));
  EXPECT_EQ(text(), "line\r\ntwo\r\n\r\nthe fourth");
}

TEST_F(ConsoleSelectionTest, ColumnsBeyondALineAreHeldToItsEnd) {
  select({8, 1}, {99, 3});
  EXPECT_EQ(text(), "\r\n\r\nthe fourth line is long");
  select({50, 0}, {60, 0});
  EXPECT_EQ(text(), "");
}

TEST_F(ConsoleSelectionTest, LinesBeyondTheTextAddNothing) {
  select({0, 3}, {4, 40});
  EXPECT_EQ(text(), "the fourth line is long\r\n");
}

TEST_F(ConsoleSelectionTest, AClickAloneSelectsNothing) {
  selection.begin({3, 1});
  EXPECT_EQ(selection.state(), ConsoleSelection::STATE_DRAGGING);
  EXPECT_FALSE(selection.drag({3, 1}, 23));
  selection.finish();
  EXPECT_EQ(selection.state(), ConsoleSelection::STATE_NONE);
  EXPECT_TRUE(selection.rects().empty());
}

TEST_F(ConsoleSelectionTest, DraggingThereAndBackSelectsNothing) {
  selection.begin({3, 1});
  EXPECT_TRUE(selection.drag({5, 1}, 23));
  EXPECT_TRUE(selection.drag({3, 1}, 23));
  selection.finish();
  EXPECT_EQ(selection.state(), ConsoleSelection::STATE_NONE);
}

TEST_F(ConsoleSelectionTest, ShiftMovesTheStartForACellBeforeTheEnd) {
  select({4, 0}, {8, 0});
  selection.extend({2, 0}, 23);
  EXPECT_EQ(selection.start(), (ConsoleCell{2, 0}));
  EXPECT_EQ(selection.end(), (ConsoleCell{8, 0}));
  EXPECT_EQ(selection.state(), ConsoleSelection::STATE_DRAGGING);
  EXPECT_EQ(selection.rects(), (Rects{{20, 0, 68, 16}}));
  selection.extend({8, 0}, 23);  // at the end counts as before it
  EXPECT_EQ(selection.start(), (ConsoleCell{8, 0}));
}

TEST_F(ConsoleSelectionTest, ShiftMovesTheEndForACellBehindIt) {
  select({4, 0}, {8, 0});
  selection.extend({1, 1}, 23);
  EXPECT_EQ(selection.start(), (ConsoleCell{4, 0}));
  EXPECT_EQ(selection.end(), (ConsoleCell{1, 1}));
}

TEST_F(ConsoleSelectionTest, TheDragBandLiesBetweenOldAndNewEndARowMoreAtBothSides) {
  selection.begin({0, 1});
  selection.drag({2, 3}, 23);
  EXPECT_EQ(selection.dragBand().top, 0);
  EXPECT_EQ(selection.dragBand().bottom, 80);
  selection.drag({2, 2}, 23);
  EXPECT_EQ(selection.dragBand().top, 16);
  EXPECT_EQ(selection.dragBand().bottom, 80);
}

TEST_F(ConsoleSelectionTest, AWordLiesBetweenBlanks) {
  ASSERT_TRUE(selection.selectWord(document, {6, 3}));
  EXPECT_EQ(text(), "fourth");
  EXPECT_EQ(selection.state(), ConsoleSelection::STATE_STANDS);
  EXPECT_EQ(selection.rects(), (Rects{{4 + 4 * 8, 48, 4 + 10 * 8, 64}}));
}

TEST_F(ConsoleSelectionTest, AWordMayBeginOrEndTheLine) {
  ASSERT_TRUE(selection.selectWord(document, {0, 3}));
  EXPECT_EQ(text(), "the");
  ASSERT_TRUE(selection.selectWord(document, {22, 3}));
  EXPECT_EQ(text(), "long");
}

TEST_F(ConsoleSelectionTest, OnlyABlankSeparatesWords) {
  document.addText("a.b", KIND_OUTPUT);
  document.addText(",c(d) e", KIND_ERROR);
  ASSERT_TRUE(selection.selectWord(document, {4, 4}));
  EXPECT_EQ(text(), "a.b,c(d)");
}

TEST_F(ConsoleSelectionTest, BeyondTheTextThereIsNoWord) {
  EXPECT_FALSE(selection.selectWord(document, {3, 1}));
  EXPECT_FALSE(selection.selectWord(document, {0, 2}));
  EXPECT_FALSE(selection.selectWord(document, {0, 99}));
  EXPECT_EQ(selection.state(), ConsoleSelection::STATE_NONE);
}

TEST_F(ConsoleSelectionTest, OnABlankItIsTheWordBefore) {
  ASSERT_TRUE(selection.selectWord(document, {5, 0}));
  EXPECT_EQ(text(), "first");
}

TEST_F(ConsoleSelectionTest, BetweenTwoBlanksThereIsNoWord) {
  document.addText("a  b", KIND_OUTPUT);
  EXPECT_FALSE(selection.selectWord(document, {2, 4}));
}

TEST_F(ConsoleSelectionTest, SelectAllIsOneRectangle) {
  selection.selectAll(document);
  EXPECT_EQ(selection.start(), (ConsoleCell{0, 0}));
  EXPECT_EQ(selection.end(), (ConsoleCell{23, 5}));
  EXPECT_EQ(selection.rects(), (Rects{{4, 0, 4 + 23 * 8, 80}}));
  EXPECT_EQ(selection.state(), ConsoleSelection::STATE_STANDS);
  EXPECT_EQ(text(), "first line\r\ntwo\r\n\r\nthe fourth line is long\r\n");
}

TEST_F(ConsoleSelectionTest, AMarkWithNoCharacterBeforeItIsSelectedWithTheLinesStart) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character takes one column here";
  document.addText("\xCC\x81xy", KIND_OUTPUT);
  select({0, 4}, {1, 4});
  EXPECT_EQ(text(), "\xCC\x81x");
}

TEST_F(ConsoleSelectionTest, WideCharactersAreSelectedByTheirColumns) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character takes one column here";
  document.addText("\xE6\x97\xA5\xE6\x9C\xAC x\xC3\xA4y", KIND_OUTPUT);
  select({2, 4}, {7, 4});
  EXPECT_EQ(text(), "\xE6\x9C\xAC x\xC3\xA4");
  ASSERT_TRUE(selection.selectWord(document, {6, 4}));
  EXPECT_EQ(selection.rects(), (Rects{{4 + 5 * 8, 64, 4 + 8 * 8, 80}}));
}

}  // namespace
}  // namespace tarnwick
