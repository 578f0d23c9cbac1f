#include "console/InputHistory.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(InputHistory, OlderGoesBackAndStaysAtTheOldest) {
  InputHistory history;
  history.add("a");
  history.add("b");
  EXPECT_EQ(history.older(), "b");
  EXPECT_EQ(history.older(), "a");
  EXPECT_EQ(history.older(), "a");
}

TEST(InputHistory, NewerGivesTheEmptyTextBeforeAnyOlder) {
  InputHistory history;
  history.add("a");
  EXPECT_EQ(history.newer(), "");
  EXPECT_EQ(history.newer(), "");
}

TEST(InputHistory, NewerStaysAtTheNewestAfterAnOlder) {
  InputHistory history;
  history.add("a");
  history.add("b");
  history.older();
  history.older();
  EXPECT_EQ(history.newer(), "b");
  EXPECT_EQ(history.newer(), "b");
}

TEST(InputHistory, ARepeatedLineIsNotStoredTwiceInARow) {
  InputHistory history;
  history.add("a");
  history.add("a");
  EXPECT_EQ(history.count(), 1U);
  history.add("b");
  history.add("a");
  EXPECT_EQ(history.count(), 3U);
}

TEST(InputHistory, ARepeatedLineClearsTheCursor) {
  InputHistory history;
  history.add("a");
  history.add("b");
  history.older();
  history.older();
  history.add("b");
  EXPECT_EQ(history.older(), "b");
}

TEST(InputHistory, AnEmptyFirstLineIsNotStored) {
  InputHistory history;
  history.add("");
  EXPECT_EQ(history.count(), 0U);
  history.add("a");
  history.add("");
  EXPECT_EQ(history.count(), 2U);
}

TEST(InputHistory, TheTwentyFirstLineDropsTheOldest) {
  InputHistory history;
  for (int line = 1; line <= 20; ++line) history.add(std::to_string(line));
  EXPECT_EQ(history.count(), 20U);
  history.add("21");
  EXPECT_EQ(history.count(), 20U);
  std::string oldest;
  for (int step = 0; step < 30; ++step) oldest = history.older();
  EXPECT_EQ(oldest, "2");
}

}  // namespace
}  // namespace tarnwick
