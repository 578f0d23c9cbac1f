#include "console/ConsoleLine.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Segments = std::vector<std::string>;
using test::segmentsOf;

TEST(ConsoleLine, AppendsOfOneKindMergeAndSegmentsAlternate) {
  ConsoleLine line;
  EXPECT_EQ(line.currentKind(), 0);
  line.append("ab", KIND_OUTPUT);
  line.append("c", KIND_OUTPUT);
  line.append("de", KIND_ERROR);
  line.append("f", KIND_OUTPUT);
  EXPECT_EQ(segmentsOf(line), (Segments{"2:abc", "3:de", "2:f"}));
  EXPECT_EQ(line.currentKind(), 2);
  EXPECT_EQ(line.length(), 6);
  EXPECT_EQ(line.text(), "abcdef");
}

TEST(ConsoleLine, AnEmptyTextOfAnotherKindBeginsASegment) {
  ConsoleLine line;
  line.append("ab", KIND_INPUT);
  line.append("", KIND_ERROR);
  line.append("c", KIND_INPUT);
  EXPECT_EQ(segmentsOf(line), (Segments{"1:ab", "3:", "1:c"}));
  EXPECT_EQ(line.length(), 3);
}

TEST(ConsoleLine, LastSegmentOfAnEmptyLineIsNone) {
  ConsoleLine line;
  int kind = 7;
  EXPECT_EQ(line.lastSegment(kind), nullptr);
  EXPECT_EQ(kind, 0);
  line.append("x", KIND_BANNER);
  ASSERT_NE(line.lastSegment(kind), nullptr);
  EXPECT_EQ(*line.lastSegment(kind), "x");
  EXPECT_EQ(kind, 4);
}

TEST(ConsoleLine, ReplaceLastTouchesTypedTextOnly) {
  ConsoleLine line;
  line.replaceLast("abc");
  EXPECT_EQ(segmentsOf(line), (Segments{"1:abc"}));
  line.replaceLast("x");
  EXPECT_EQ(segmentsOf(line), (Segments{"1:x"}));
  EXPECT_EQ(line.length(), 1);
  line.append("out", KIND_OUTPUT);
  line.replaceLast("y");
  EXPECT_EQ(segmentsOf(line), (Segments{"1:x", "2:out"}));
  EXPECT_EQ(line.length(), 4);
}

TEST(ConsoleLine, LengthCountsColumns) {
  ConsoleLine line;
  line.append("\xE6\x97\xA5", KIND_OUTPUT);  // one wide character, or three of the 8-bit set
  EXPECT_EQ(line.length(), test::charactersAreUtf8() ? 2 : 3);
}

}  // namespace
}  // namespace tarnwick
