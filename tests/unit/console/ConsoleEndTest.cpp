// What a person sees of a child's first and last moments.
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

class ConsoleEndTest : public test::ConsoleFixture {
 protected:
  Rect caret() {
    test::FakePainter painter;
    view->paint(painter);
    return painter.inverted.at(0);
  }
};

TEST_F(ConsoleEndTest, TheWindowFollowsTheBannerAndTheCaretStandsBelowIt) {
  openRunning();
  endChild();
  const int rows = lineCount();
  EXPECT_EQ(lastLine(), "");
  EXPECT_EQ(surface.sizes.y, 16 * rows);
  EXPECT_EQ(caret(), (Rect{4, 16 * (rows - 1), 6, 16 * rows}));
}

TEST_F(ConsoleEndTest, AVerboseRunsCommandIsMadeVisible) {
  program.runArguments = " -verbose " + std::string(100, 'x');
  openIdle();
  surface.position = {50, 0};
  pump();
  const int columns = document.widestLine();
  EXPECT_GT(columns, 110);
  EXPECT_EQ(surface.sizes, (Point{4 + (columns + 1) * 8, 16}));
}

}  // namespace
}  // namespace tarnwick
