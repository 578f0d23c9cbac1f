#include "console/TextCells.h"
#include "platform/Characters.h"
#include "support/ConsoleFixture.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick {
namespace {

int widthOf(const std::string& text) {
  return static_cast<int>(platform::columnsOf(text));
}

TEST(TextCells, PlainTextHasOneByteAColumn) {
  EXPECT_EQ(byteAtColumn("abc", 3, 0), 0U);
  EXPECT_EQ(byteAtColumn("abc", 3, 2), 2U);
  EXPECT_EQ(byteAtColumn("abc", 3, 3), 3U);
  EXPECT_EQ(byteAtColumn("abc", 3, 9), 3U);
  EXPECT_EQ(byteAtColumn("abc", 3, -1), 0U);
  EXPECT_EQ(characterAtColumn("abc", 3, 2).byte, 2U);
  EXPECT_EQ(characterAtColumn("abc", 3, -4).byte, 0U);
  EXPECT_EQ(previousCharacter("abc", 2), 1U);
}

TEST(TextCells, WideCharactersTakeTwoColumns) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character takes one column here";
  const std::string text = "a\xE6\x97\xA5z";  // columns: a 0, wide 1 and 2, z 3
  EXPECT_EQ(byteAtColumn(text, 4, 1), 1U);
  EXPECT_EQ(byteAtColumn(text, 4, 2), 4U);  // within: the border behind
  EXPECT_EQ(byteAtColumn(text, 4, 3), 4U);
  EXPECT_EQ(characterAtColumn(text, 4, 2).byte, 1U);
  EXPECT_EQ(characterAtColumn(text, 4, 2).column, 1);
  EXPECT_EQ(characterAtColumn(text, 4, 3).byte, 4U);
  EXPECT_EQ(previousCharacter(text, 4), 1U);
}

TEST(TextCells, MarksOfNoWidthBelongToTheCharacterBefore) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character takes one column here";
  const std::string text = "e\xCC\x81x";  // e, combining acute, x
  EXPECT_EQ(byteAtColumn(text, 2, 1), 3U);
  EXPECT_EQ(byteAtColumn(text, 2, 2), 4U);
  EXPECT_EQ(characterAtColumn(text, 2, 1).byte, 3U);
  EXPECT_EQ(previousCharacter(text, 3), 1U);
}

TEST(TextCells, LongTextsAgreeWithAWalkCharacterByCharacter) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character takes one column here";
  std::string text;
  for (int i = 0; i < 1000; ++i) text += i % 3 == 0 ? "\xE6\x97\xA5" : i % 3 == 1 ? "\xC3\xA4" : "e\xCC\x81";
  const int columns = widthOf(text);
  int column = 0;
  for (std::size_t byte = 0; byte < text.size();) {
    const std::size_t length = platform::characterLength(text, byte);
    const int width = widthOf(text.substr(byte, length));
    if (width > 0) {
      ASSERT_EQ(byteAtColumn(text, columns, column), byte);
      ASSERT_EQ(characterAtColumn(text, columns, column).byte, byte);
    }
    column += width;
    byte += length;
  }
}

}  // namespace
}  // namespace tarnwick
