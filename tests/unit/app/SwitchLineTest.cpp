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
  EXPECT_EQ(all("\\/TITLE= \tx\\/")[0].value, "\tx") << "a tab is no blank";
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

TEST(SwitchLine, AnUnclosedSwitchThatEndsWithItsNameHasNoValue) {
  for (const char* line : {"\\/JDEBUG", "\\/JDEBUG="}) {
    const auto found = all(line);
    ASSERT_EQ(found.size(), 1u) << line;
    EXPECT_EQ(found[0].name, "JDEBUG") << line;
    EXPECT_EQ(found[0].value, "") << line;
  }
}

TEST(SwitchLine, ASwitchBeginsWhereTheSearchBegan) {
  const auto found = all("  \\/A=1\\/  \\/B=2\\/\\/C\\/");
  ASSERT_EQ(found.size(), 3u);
  EXPECT_EQ(found[0].start, 0u);
  EXPECT_EQ(found[1].start, 9u);
  EXPECT_EQ(found[2].start, 18u) << "right behind the closing mark";
}

TEST(SwitchLine, TheCursorEndsBehindTheClosingMark) {
  const std::string line = "\\/A=1\\/ x";
  std::size_t cursor = 0;
  Switch found;
  EXPECT_TRUE(nextSwitch(line, cursor, found));
  EXPECT_EQ(line.substr(cursor), " x");
  EXPECT_FALSE(nextSwitch(line, cursor, found));
}

TEST(SwitchLine, TheNameIsTheRunOfLettersOnly) {
  const auto found = all("\\/A1=x\\/ \\/A_B\\/ \\/ A=x\\/ \\/=x\\/ \\/aZ=x\\/ \\/\xC3\xA4=x\\/");
  ASSERT_EQ(found.size(), 6u);
  EXPECT_EQ(found[0].name, "A");
  EXPECT_EQ(found[0].value, "1=x") << "an equals sign further behind stays";
  EXPECT_EQ(found[1].name, "A");
  EXPECT_EQ(found[1].value, "_B");
  EXPECT_EQ(found[2].name, "");
  EXPECT_EQ(found[2].value, "A=x");
  EXPECT_EQ(found[3].name, "");
  EXPECT_EQ(found[3].value, "x");
  EXPECT_EQ(found[4].name, "aZ") << "as it was written";
  EXPECT_EQ(found[5].name, "") << "letters of the alphabet";
}

TEST(SwitchLine, AValueHoldsBackslashesAndSlashesThatAreNoMark) {
  EXPECT_EQ(all("\\/DEFAULTDIR=C:\\a b\\c\\\\/")[0].value, "C:\\a b\\c\\") << "the last two characters are the mark";
  EXPECT_EQ(all("\\/DEFAULTDIR=/a b/c/\\/")[0].value, "/a b/c/");
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
