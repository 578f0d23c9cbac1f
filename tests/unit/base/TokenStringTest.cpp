#include "base/TokenString.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace tarnwick {
namespace {

TokenString listOf(std::initializer_list<const char*> elements) {
  TokenString list;
  for (const char* element : elements) list.add(std::string(element));
  return list;
}

void expectEmpty(TokenString& list) {
  EXPECT_EQ(list.toString(), "");
  EXPECT_EQ(list.count(), 0);
}

TEST(TokenString, ANewListIsEmpty) {
  TokenString list;
  expectEmpty(list);
}

TEST(TokenString, ElementsAreJoinedByTheSeparator) {
  TokenString list = listOf({"a", "b c", "d"});
  EXPECT_EQ(list.toString(), "a;b c;d");
  EXPECT_EQ(list.count(), 3);
}

TEST(TokenString, SeparatorAndEscapeInsideAnElementAreEscaped) {
  TokenString list = listOf({"a;b", "c]"});
  EXPECT_EQ(list.toString(), "a];b;c]]");
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.element(0), "a;b");
  EXPECT_EQ(list.element(1), "c]");
}

TEST(TokenString, ATextReadsBackAsTheSameElements) {
  TokenString list = listOf({"", ";", "]", "];", "a;;b]]c", "", "end"});
  TokenString again;
  again.fromString(list.toString());
  EXPECT_EQ(again.toString(), list.toString());
  ASSERT_EQ(again.count(), list.count());
  for (int i = 0; i < list.count(); ++i) EXPECT_EQ(again.element(i), list.element(i)) << i;
}

TEST(TokenString, SeparatorAndEscapeCanBeChosen) {
  TokenString list("a;b!c]!d", '!', ']');
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.element(0), "a;b");
  EXPECT_EQ(list.element(1), "c!d");
  list.add(std::string("e!]"));
  EXPECT_EQ(list.toString(), "a;b!c]!d!e]!]]");
}

TEST(TokenString, TheEmptyTextHasNoElement) {
  TokenString list = listOf({"a"});
  list.fromString("");
  expectEmpty(list);
}

TEST(TokenString, EachSeparatorAddsOneElement) {
  TokenString list;
  list.fromString(";");
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.element(0), "");
  EXPECT_EQ(list.element(1), "");
  list.fromString("a;;b");
  EXPECT_EQ(list.count(), 3);
  EXPECT_EQ(list.element(1), "");
  EXPECT_EQ(list.element(2), "b");
}

TEST(TokenString, AnEscapedSeparatorAddsNone) {
  TokenString list;
  list.fromString("a];b]]");
  EXPECT_EQ(list.count(), 1);
  EXPECT_EQ(list.element(0), "a;b]");
  list.fromString("a]];b");
  EXPECT_EQ(list.count(), 2);
}

TEST(TokenString, AnEscapeAtTheEndLeavesAnEmptyListAndThrows) {
  TokenString list = listOf({"before"});
  EXPECT_THROW(list.fromString("a]"), StringableM::InvalidDataE);
  expectEmpty(list);
}

TEST(TokenString, AnEscapeBeforeAnythingElseLeavesAnEmptyListAndThrows) {
  TokenString list = listOf({"before"});
  EXPECT_THROW(list.fromString("a]x"), StringableM::InvalidDataE);
  expectEmpty(list);
  EXPECT_THROW(list.fromString("a;b;]c;d"), StringableM::InvalidDataE);
  expectEmpty(list);
}

TEST(TokenString, MalformedTextThrowsFromTheConstructor) {
  EXPECT_THROW(TokenString("]", ';', ']'), StringableM::InvalidDataE);
}

TEST(TokenString, AListThatWasMalformedCanBeFilledAgain) {
  TokenString list;
  EXPECT_THROW(list.fromString("]x"), StringableM::InvalidDataE);
  list.add(std::string("a"));
  EXPECT_EQ(list.toString(), "a");
  EXPECT_EQ(list.count(), 1);
}

TEST(TokenString, FindIgnoresCaseAndGivesTheFirst) {
  const TokenString list = listOf({"One", "a;b", "ONE", "two"});
  EXPECT_EQ(list.find("one"), 0);
  EXPECT_EQ(list.find("A;B"), 1);
  EXPECT_EQ(list.find("TWO"), 3);
  EXPECT_EQ(list.find("three"), -1);
  EXPECT_EQ(list.find(""), -1);
  EXPECT_EQ(TokenString().find(""), -1);
}

TEST(TokenString, NumbersAreAddedInDecimal) {
  TokenString list;
  list.add(120);
  list += -88;
  list += std::string("x");
  list.add(0);
  list.add(std::numeric_limits<int>::min());
  EXPECT_EQ(list.toString(), "120;-88;x;0;-2147483648");
  EXPECT_EQ(list.count(), 5);
}

TEST(TokenString, TheEmptyStringInAnEmptyListIsCountedUntilTheTextIsReadAgain) {
  TokenString list;
  list.add(std::string());
  EXPECT_EQ(list.toString(), "");
  EXPECT_EQ(list.count(), 1);
  EXPECT_EQ(list.element(0), "");
  list.fromString(list.toString());
  EXPECT_EQ(list.count(), 0);
}

TEST(TokenString, AnEmptyElementBesideAnotherIsCounted) {
  TokenString list = listOf({"", ""});
  EXPECT_EQ(list.toString(), ";");
  EXPECT_EQ(list.count(), 2);
  list.fromString(list.toString());
  EXPECT_EQ(list.count(), 2);
}

TEST(TokenString, ElementZeroOfAnEmptyListIsOutOfBounds) {
  EXPECT_THROW(TokenString().element(0), TokenString::OutOfBoundsE);
}

TEST(TokenString, AnIndexOutsideTheListIsOutOfBounds) {
  const TokenString list = listOf({"a", "b"});
  EXPECT_THROW(list.element(-1), TokenString::OutOfBoundsE);
  EXPECT_THROW(list.element(2), TokenString::OutOfBoundsE);
  EXPECT_EQ(list.element(1), "b");
}

}  // namespace
}  // namespace tarnwick
