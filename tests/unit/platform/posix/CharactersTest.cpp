#include "platform/Characters.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::platform {
namespace {

const std::string replacement = "\xEF\xBF\xBD";
const std::string euro = "\xE2\x82\xAC";
const std::string clef = "\xF0\x9D\x84\x9E";

TEST(PosixCharacters, ACharacterCutByTheEndOfABlockIsUnfinished) {
  EXPECT_EQ(unfinishedTail("a\xC3"), 1u);
  EXPECT_EQ(unfinishedTail("a\xE2"), 1u);
  EXPECT_EQ(unfinishedTail("a\xE2\x82"), 2u);
  EXPECT_EQ(unfinishedTail("\xF0\x9D\x84"), 3u);
  EXPECT_EQ(unfinishedTail("\xF0\x9D"), 2u);
}

TEST(PosixCharacters, WholeCharactersLeaveNothingUnfinished) {
  EXPECT_EQ(unfinishedTail(""), 0u);
  EXPECT_EQ(unfinishedTail("abc"), 0u);
  EXPECT_EQ(unfinishedTail("\xC3\xA4"), 0u);
  EXPECT_EQ(unfinishedTail(euro), 0u);
  EXPECT_EQ(unfinishedTail(clef), 0u);
}

TEST(PosixCharacters, BadBytesAtTheEndDoNotWaitForMore) {
  EXPECT_EQ(unfinishedTail("a\xFF"), 0u);
  EXPECT_EQ(unfinishedTail("a\x82"), 0u);
  EXPECT_EQ(unfinishedTail("\xC0"), 0u);
  EXPECT_EQ(unfinishedTail("\xE0\x80"), 0u) << "overlong";
  EXPECT_EQ(unfinishedTail("\xED\xA0"), 0u) << "half of a surrogate pair";
  EXPECT_EQ(unfinishedTail("\xF4\x90"), 0u) << "above the last character";
  EXPECT_EQ(unfinishedTail("\xF5"), 0u);
  EXPECT_EQ(unfinishedTail("\xC3\xA4\xA4"), 0u);
}

TEST(PosixCharacters, EveryCutOfATextLeavesWholeCharactersInFront) {
  const std::string text = "a\xC3\xA4" + euro + clef + "z";
  for (std::size_t cut = 0; cut <= text.size(); ++cut) {
    const std::string block = text.substr(0, cut);
    const std::string front = block.substr(0, block.size() - unfinishedTail(block));
    EXPECT_EQ(validText(front), front) << cut;
    EXPECT_LE(block.size() - front.size(), 3u);
  }
}

TEST(PosixCharacters, TheConsoleClassesAByteByItself) {
  EXPECT_EQ(consoleClass('a'), 'a');
  EXPECT_EQ(consoleClass('\x8A'), 0x8A);
  EXPECT_EQ(consoleClass('\xFF'), 0xFF);
}

TEST(PosixCharacters, PrintableAndHighBytesAreConsoleText) {
  for (int byte = 0; byte < 256; ++byte)
    EXPECT_EQ(isConsoleText(static_cast<char>(byte)), (byte >= 32 && byte <= 126) || byte >= 128) << byte;
}

TEST(PosixCharacters, ValidTextStaysAsItIs) {
  const std::string text =
      "a\n\xC3\xA4" + euro + clef + std::string(1, '\0') + "\xED\x9F\xBF\xEE\x80\x80\xF4\x8F\xBF\xBF";
  EXPECT_EQ(validText(text), text);
  EXPECT_EQ(validText(""), "");
}

TEST(PosixCharacters, EachBadByteIsReplaced) {
  EXPECT_EQ(validText("a\xFF"
                      "b"),
            "a" + replacement + "b");
  EXPECT_EQ(validText("\xE4"), replacement);
  EXPECT_EQ(validText("\xE2\x82x"), replacement + replacement + "x");
  EXPECT_EQ(validText("\xC0\xAF"), replacement + replacement) << "overlong";
  EXPECT_EQ(validText("\xED\xA0\x80"), replacement + replacement + replacement) << "half of a surrogate pair";
  EXPECT_EQ(validText("\xF4\x90\x80\x80"), replacement + replacement + replacement + replacement);
  EXPECT_EQ(validText("\xC3\xA4\xA4"), "\xC3\xA4" + replacement);
}

TEST(PosixCharacters, ColumnsAreDisplayCells) {
  EXPECT_EQ(columnsOf(""), 0u);
  EXPECT_EQ(columnsOf("abc"), 3u);
  EXPECT_EQ(columnsOf("\xC3\xA4\xC3\xB6"), 2u);
  EXPECT_EQ(columnsOf("\xE6\x97\xA5\xE6\x9C\xAC"), 4u) << "wide characters take two";
  EXPECT_EQ(columnsOf("e\xCC\x81x"), 2u) << "combining ones take none";
  EXPECT_EQ(columnsOf("\xF0\x9F\x98\x80"), 2u);
  EXPECT_EQ(columnsOf("\t"), 1u);
}

TEST(PosixCharacters, ABadByteTakesTheColumnOfItsReplacement) {
  for (const std::string text : {"a\xFF", "\xE2\x82", "\xC3\xA4\xA4", "\xED\xA0\x80"})
    EXPECT_EQ(columnsOf(text), columnsOf(validText(text))) << testing::PrintToString(text);
  EXPECT_EQ(columnsOf("a\xFF"), 2u);
}

TEST(PosixCharacters, TheLengthOfACharacterIsAtLeastOne) {
  const std::string text = "a\xC3\xA4" + euro + clef + "\xFF\xE2\x82";
  EXPECT_EQ(characterLength(text, 0), 1u);
  EXPECT_EQ(characterLength(text, 1), 2u);
  EXPECT_EQ(characterLength(text, 3), 3u);
  EXPECT_EQ(characterLength(text, 6), 4u);
  EXPECT_EQ(characterLength(text, 10), 1u) << "a bad byte";
  EXPECT_EQ(characterLength(text, 11), 1u) << "a cut character";
  EXPECT_EQ(characterLength(text, text.size()), 1u);
}

}  // namespace
}  // namespace tarnwick::platform
