#include "app/SwitchLine.h"

#include <gtest/gtest.h>
#include <vector>

namespace tarnwick::test {
namespace {

std::vector<Switch> all(const std::string& line) {
  std::vector<Switch> found;
  std::size_t cursor = 0;
  for (Switch next; nextSwitch(line, cursor, next);) found.push_back(next);
  return found;
}

TEST(SwitchLine, NamesAndValues) {
  const auto found = all("\\/DEFAULTDIR=/a b/\\/ \\/JDEBUG\\/ \\/TITLE=x\\/");
  ASSERT_EQ(found.size(), 3u);
  EXPECT_EQ(found[0].name, "DEFAULTDIR");
  EXPECT_EQ(found[0].value, "/a b/");
  EXPECT_EQ(found[1].name, "JDEBUG");
  EXPECT_EQ(found[1].value, "");
  EXPECT_EQ(found[2].name, "TITLE");
  EXPECT_EQ(found[2].value, "x");
}

TEST(SwitchLine, BlanksOnTheLeftOfAValueGoThoseOnTheRightStay) {
  EXPECT_EQ(all("\\/TITLE=  x\\/")[0].value, "x");
  EXPECT_EQ(all("\\/TITLE=x  \\/")[0].value, "x  ");
  EXPECT_EQ(all("\\/TITLE=   \\/")[0].value, "");
}

TEST(SwitchLine, OneEqualsSignIsDropped) {
  EXPECT_EQ(all("\\/A==b\\/")[0].value, "=b");
  EXPECT_EQ(all("\\/A b\\/")[0].value, "b");
}

TEST(SwitchLine, AnUnclosedLastSwitchRunsToTheEnd) {
  const auto found = all("\\/TITLE=abc");
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].value, "abc");
  std::size_t cursor = 0;
  Switch next;
  const std::string line = "\\/TITLE=abc";
  EXPECT_TRUE(nextSwitch(line, cursor, next));
  EXPECT_EQ(cursor, line.size() + 2);
  EXPECT_FALSE(nextSwitch(line, cursor, next));
}

TEST(SwitchLine, ALineWithoutMarksHasNone) {
  EXPECT_TRUE(all("").empty());
  EXPECT_TRUE(all("nothing here").empty());
  EXPECT_TRUE(all("\\").empty());
}

TEST(SwitchLine, AMarkAloneHasNeitherNameNorValue) {
  const auto found = all("\\/");
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].name, "");
  EXPECT_EQ(found[0].value, "");
}

}  // namespace
}  // namespace tarnwick::test
