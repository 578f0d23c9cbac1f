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

TEST(TokenString, FindComparesWholeElementsWithoutTheirEscapes) {
  const TokenString list = listOf({"ab", "a", "x;y", "]z", "\xC3\x84"});
  EXPECT_EQ(list.find("A"), 1);
  EXPECT_EQ(list.find("X;Y"), 2);
  EXPECT_EQ(list.find("x];y"), -1);
  EXPECT_EQ(list.find("]Z"), 3);
  EXPECT_EQ(list.find("\xC3\xA4"), -1) << "case is ignored for the letters of the alphabet";
}

TEST(TokenString, AnEmptyElementIsFound) {
  EXPECT_EQ(listOf({"a", "", ""}).find(""), 1);
  EXPECT_EQ(listOf({"a", "b", ""}).find(""), 2) << "also the last";
  EXPECT_EQ(listOf({""}).find(""), 0);
}

TEST(TokenString, TheOperatorsAddAsAddDoes) {
  TokenString list;
  list += 7;
  list += std::string("a;b");
  EXPECT_EQ(list.toString(), "7;a];b");
  EXPECT_EQ(list.count(), 2);
}

TEST(TokenString, ElementsCanBeAddedToWhatWasRead) {
  TokenString list;
  list.fromString("a;b");
  list.add(std::string("c;"));
  EXPECT_EQ(list.toString(), "a;b;c];");
  EXPECT_EQ(list.count(), 3);
  EXPECT_EQ(list.element(2), "c;");
}

TEST(TokenString, BehindTheUncountedEmptyElementFurtherOnesAreCounted) {
  TokenString list;
  list.add(std::string());
  list.add(std::string("a"));
  EXPECT_EQ(list.toString(), ";a");
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.element(0), "");
  EXPECT_EQ(list.element(1), "a");
}

TEST(TokenString, AskingForAnElementChangesNothing) {
  TokenString list = listOf({"a;b", "c"});
  list.element(0);
  list.element(1);
  EXPECT_EQ(list.toString(), "a];b;c");
  EXPECT_EQ(list.count(), 2);
}

TEST(TokenString, AListInAListKeepsBoth) {
  TokenString outer('!', ']');
  TokenString inner = listOf({"a;b!", "c]"});
  outer.add(inner.toString());
  outer.add(std::string());
  EXPECT_EQ(outer.toString(), "a]];b]!;c]]]]!");
  TokenString again;
  again.fromString(outer.element(0));
  EXPECT_EQ(again.element(0), "a;b!");
  EXPECT_EQ(again.element(1), "c]");
}

TEST(TokenString, LettersBeyondAsciiAreKept) {
  TokenString list =
      listOf({"Gr\xC3\xB6\xC3\x9F"
              "e",
              "\xE6\x97\xA5"});
  EXPECT_EQ(list.toString(),
            "Gr\xC3\xB6\xC3\x9F"
            "e;\xE6\x97\xA5");
  EXPECT_EQ(list.element(1), "\xE6\x97\xA5");
}

TEST(TokenString, AVeryLongElementIsKept) {
  const std::string piece = "a;b]c";
  std::string element;
  for (int i = 0; i < 200000; ++i) element += piece;
  TokenString list;
  list.add(element);
  list.add(std::string("end"));
  TokenString again(list.toString(), ';', ']');
  EXPECT_EQ(again.count(), 2);
  EXPECT_EQ(again.element(0), element);
  EXPECT_EQ(again.find("end"), 1);
}

TEST(TokenString, AllElementsComeInTheirOrder) {
  using Elements = std::vector<std::string>;
  EXPECT_EQ(TokenString().elements(), Elements());
  EXPECT_EQ(TokenString("a;b];c;;]]d", ';', ']').elements(), (Elements{"a", "b;c", "", "]d"}));
  EXPECT_EQ(TokenString(";", ';', ']').elements(), (Elements{"", ""}));
  TokenString list;
  list.add(std::string());
  EXPECT_EQ(list.elements(), Elements{""});
}

TEST(TokenString, TheElementsOfAVeryLongListAreTakenInOneWalk) {
  constexpr int many = 1000000;
  TokenString list;
  for (int i = 0; i < many; ++i) list.add(i);
  const auto all = list.elements();
  ASSERT_EQ(all.size(), std::size_t{many});
  EXPECT_EQ(all.back(), std::to_string(many - 1));
}

TEST(TokenString, AListOfVeryManyElementsIsSearchedInOneWalk) {
  constexpr int many = 200000;
  TokenString list;
  for (int i = 0; i < many; ++i) list.add(i);
  TokenString again(list.toString(), ';', ']');
  EXPECT_EQ(again.count(), many);
  EXPECT_EQ(again.element(many - 1), std::to_string(many - 1));
  EXPECT_EQ(again.find(std::to_string(many - 1)), many - 1);
  EXPECT_EQ(again.find("x"), -1);
}

}  // namespace
}  // namespace tarnwick
