#include "console/ConsoleCaret.h"
#include "console/ConsoleScreen.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

class ConsoleCaretTest : public testing::Test {
 protected:
  ConsoleCaretTest() {
    screen.grid.charWidth = 8;
    screen.grid.charHeight = 16;
    document.newLine();
    document.newLine();
  }

  TarnwickDoc document{""};
  ConsoleScreen screen{document};
  ConsoleCaret& caret = screen.caret;
};

TEST_F(ConsoleCaretTest, StandsOnTheLastLine) {
  caret.setColumn(5);
  EXPECT_EQ(caret.column(), 5);
  EXPECT_EQ(caret.x(), 8 * 5 + 4);
  EXPECT_EQ(caret.y(), 32);
}

TEST_F(ConsoleCaretTest, HasNoPixelsBeforeTheCellIsKnown) {
  screen.grid = {};
  caret.setColumn(3);
  EXPECT_EQ(caret.column(), 3);
  EXPECT_EQ(caret.x(), 4);
  EXPECT_EQ(caret.y(), 0);
}

TEST_F(ConsoleCaretTest, ColumnZeroLeavesTheOldPlace) {
  caret.setColumn(5);
  EXPECT_EQ(screen.changes.oldCaret, Rect{});
  document.newLine();
  caret.setColumn(0);
  EXPECT_EQ(screen.changes.oldCaret, (Rect{0, 32, 44 + 8, 48 + 16}));
  EXPECT_EQ(caret.x(), 4);
}

TEST_F(ConsoleCaretTest, ForwardShowsTheCharacterItPassed) {
  caret.setColumn(0);
  caret.forward();
  EXPECT_EQ(caret.column(), 1);
  EXPECT_EQ(caret.x(), 12);
  EXPECT_EQ(screen.changes.rows, 3);
  EXPECT_EQ(screen.changes.firstColumn, 0);
  EXPECT_EQ(screen.changes.lastColumn, 1);
  caret.forward(2);
  EXPECT_EQ(caret.column(), 3);
  EXPECT_EQ(caret.x(), 28);
  EXPECT_EQ(screen.changes.firstColumn, 1);
  EXPECT_EQ(screen.changes.lastColumn, 3);
}

TEST_F(ConsoleCaretTest, ForwardFromTheStartTakesTheLastLinesRow) {
  document.newLine();
  caret.forward();
  EXPECT_EQ(caret.y(), 48);
}

TEST_F(ConsoleCaretTest, BackShowsWhereItCameFrom) {
  caret.setColumn(4);
  caret.back();
  EXPECT_EQ(caret.column(), 3);
  EXPECT_EQ(caret.x(), 28);
  EXPECT_EQ(screen.changes.firstColumn, 3);
  EXPECT_EQ(screen.changes.lastColumn, 4);
}

TEST_F(ConsoleCaretTest, IsAnInvertedRectangleOfTheAskedSize) {
  caret.setColumn(2);
  test::FakePainter painter;
  caret.draw(painter, 2, 16);
  EXPECT_EQ(painter.inverted, (std::vector<Rect>{{20, 32, 22, 48}}));
}

TEST_F(ConsoleCaretTest, BlinkingFlipsItsPhaseOnly) {
  EXPECT_FALSE(caret.blinkPhase());
  caret.blink();
  EXPECT_TRUE(caret.blinkPhase());
  caret.blink();
  EXPECT_FALSE(caret.blinkPhase());
  EXPECT_FALSE(screen.changes.show);
}

}  // namespace
}  // namespace tarnwick
