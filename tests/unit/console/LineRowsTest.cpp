#include "console/LineRows.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick {
namespace {

/// Lines of 0, 25, 20, 1 and 9 columns.
class LineRowsTest : public testing::Test {
 protected:
  LineRowsTest() {
    test::addOutput(document,
                    "\n" + std::string(25, 'a') + '\n' + std::string(20, 'b') + "\nc\n" + std::string(9, 'd'));
  }

  TarnwickDoc document{""};
  LineRows rows{document};
};

TEST_F(LineRowsTest, WholeLinesAreTheirOwnRows) {
  EXPECT_FALSE(rows.broken());
  EXPECT_EQ(rows.count(), 5);
  EXPECT_EQ(rows.at(3), (ConsoleCell{0, 3}));
  EXPECT_EQ(rows.at(30), (ConsoleCell{0, 30}));
  EXPECT_EQ(rows.shown({24, 1}, false), (ConsoleCell{24, 1}));
}

TEST_F(LineRowsTest, ALongLineTakesAsManyRowsAsItNeeds) {
  rows.setWidth(10);
  EXPECT_TRUE(rows.broken());
  EXPECT_EQ(rows.count(), 1 + 3 + 2 + 1 + 1) << "a line that fills its rows has no empty one behind";
  const ConsoleCell expected[] = {{0, 0}, {0, 1}, {10, 1}, {20, 1}, {0, 2}, {10, 2}, {0, 3}, {0, 4}, {0, 5}, {0, 6}};
  for (int row = 0; row < 10; ++row) EXPECT_EQ(rows.at(row), expected[row]) << row;
}

TEST_F(LineRowsTest, ACellShowsInItsRow) {
  rows.setWidth(10);
  EXPECT_EQ(rows.shown({0, 1}, false), (ConsoleCell{0, 1}));
  EXPECT_EQ(rows.shown({9, 1}, false), (ConsoleCell{9, 1}));
  EXPECT_EQ(rows.shown({24, 1}, false), (ConsoleCell{4, 3}));
  EXPECT_EQ(rows.shown({0, 4}, false), (ConsoleCell{0, 7}));
  EXPECT_EQ(rows.shown({3, 6}, false), (ConsoleCell{3, 9})) << "below the text";
}

TEST_F(LineRowsTest, BetweenTwoRowsItCountsWhatIsMeant) {
  rows.setWidth(10);
  EXPECT_EQ(rows.shown({10, 1}, false), (ConsoleCell{0, 2}));
  EXPECT_EQ(rows.shown({10, 1}, true), (ConsoleCell{10, 1}));
  EXPECT_EQ(rows.shown({0, 1}, true), (ConsoleCell{0, 1})) << "not the line above";
  EXPECT_EQ(rows.shown({20, 2}, false), (ConsoleCell{10, 5})) << "behind its end is no other row";
  EXPECT_EQ(rows.shown({30, 2}, false), (ConsoleCell{20, 5}));
}

}  // namespace
}  // namespace tarnwick
