#include "console/EscapeSequence.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick {
namespace {

constexpr TextStyle::Code none = TextStyle::plain;

TextStyle::Code rgb(int red, int green, int blue) {
  return TextStyle::trueColour | red << 16 | green << 8 | blue;
}

TEST(StyledByTest, EachParameterSetsItsPart) {
  const struct {
    const char* parameters;
    TextStyle style;
  } table[] = {
      {"1", {none, none, true, false, false}},
      {"4", {none, none, false, true, false}},
      {"21", {none, none, false, true, false}},
      {"4:3", {none, none, false, true, false}},
      {"4:0", {}},
      {"7", {none, none, false, false, true}},
      {"1;4;7", {none, none, true, true, true}},
      {"30", {0, none}},
      {"37", {7, none}},
      {"90", {8, none}},
      {"97", {15, none}},
      {"40", {none, 0}},
      {"47", {none, 7}},
      {"100", {none, 8}},
      {"107", {none, 15}},
      {"31;42;1", {1, 2, true}},
      {"38;5;208", {208, none}},
      {"48;5;0;1", {none, 0, true}},
      {"38;2;1;2;3", {rgb(1, 2, 3), none}},
      {"48;2;255;0;255;4", {none, rgb(255, 0, 255), false, true}},
      {"38:5:17", {17, none}},
      {"38:2:1:2:3", {rgb(1, 2, 3), none}},
      {"38:2::1:2:3;7", {rgb(1, 2, 3), none, false, false, true}},
      {"58;5;1;31", {1, none}},
      {"58:2::1:2:3;31", {1, none}},
      {"", {}},
      {"0", {}},
      {";1", {none, none, true}},
      {"5", {}},
      {"38", {}},
      {"38;5", {}},
      {"38;5;256", {}},
      {"38;2;1;2", {}},
      {"38;2;1;2;256", {}},
      {"38;9;1", {none, none, true}},
      {"38:5", {}},
      {"99999999999999999999", {}},
  };
  for (const auto& row : table) EXPECT_EQ(styledBy({}, row.parameters), row.style) << row.parameters;
}

TEST(StyledByTest, EachPartCanBeTakenBackAndAllOfThemAtOnce) {
  const TextStyle all{1, 2, true, true, true};
  EXPECT_EQ(styledBy(all, "22"), (TextStyle{1, 2, false, true, true}));
  EXPECT_EQ(styledBy(all, "24"), (TextStyle{1, 2, true, false, true}));
  EXPECT_EQ(styledBy(all, "27"), (TextStyle{1, 2, true, true, false}));
  EXPECT_EQ(styledBy(all, "39"), (TextStyle{none, 2, true, true, true}));
  EXPECT_EQ(styledBy(all, "49"), (TextStyle{1, none, true, true, true}));
  EXPECT_EQ(styledBy(all, ""), TextStyle{});
  EXPECT_EQ(styledBy(all, "0;1"), (TextStyle{none, none, true}));
  EXPECT_EQ(styledBy(all, "38;5;300"), all) << "what is no colour changes none";
}

/// What is left of the text when its sequences have gone.
std::string shown(EscapeSequence& sequence, const std::string& text) {
  std::string rest;
  for (const char byte : text) {
    if (sequence.underWay() && sequence.take(byte)) continue;
    if (byte == EscapeSequence::escape) {
      sequence.begin();
    } else {
      rest += byte;
    }
  }
  return rest;
}

TEST(EscapeSequenceTest, AllButThoseForColoursAreSwallowedWhole) {
  for (const std::string text : {"\x1B[2J",
                                 "\x1B[10;20H",
                                 "\x1B[?25l",
                                 "\x1B[K",
                                 "\x1B[>4;1m",
                                 "\x1B[?1m",
                                 "\x1B[1 q",
                                 "\x1B]0;a title\a",
                                 "\x1B]8;;http://x/\x1B\\",
                                 "\x1BP1$r0m\x1B\\",
                                 "\x1B_x\x1B\\",
                                 "\x1B^x\x1B\\",
                                 "\x1BXx\x1B\\",
                                 "\x1B(B",
                                 "\x1B#8",
                                 "\x1B"
                                 "7",
                                 "\x1B=",
                                 "\x1B"
                                 "c",
                                 "\x1B%G",
                                 "\x1B[12\x18",
                                 "\x1B]x\x18",
                                 "\x1B[1\x1B[2J",
                                 "\x1B]a\x1Bx\x1B\x1B\\"}) {
    EscapeSequence sequence;
    EXPECT_EQ(shown(sequence, "a" + text + "b"), "ab") << text.substr(1);
    EXPECT_EQ(sequence.style(), TextStyle{}) << text.substr(1);
    EXPECT_FALSE(sequence.underWay());
  }
}

TEST(EscapeSequenceTest, ControlCharactersWithinASequenceAreTheOwners) {
  EscapeSequence sequence;
  EXPECT_EQ(shown(sequence, "\x1B[3\n1mx"), "\nx");
  EXPECT_EQ(sequence.style(), (TextStyle{1, none}));
}

TEST(EscapeSequenceTest, ATextThatNobodyEndsEndsWithItsLine) {
  for (const std::string text : {"\x1B]0;a title", "\x1B]8;;http://x/", "\x1B_x", "\x1B^x", "\x1BXx"}) {
    EscapeSequence sequence;
    EXPECT_EQ(shown(sequence, text + "\nb"), "\nb") << text.substr(1);
    EXPECT_EQ(shown(sequence, text + "\rb"), "\rb") << text.substr(1);
    EXPECT_FALSE(sequence.underWay());
  }
}

TEST(EscapeSequenceTest, APictureHasLinesButNotForEver) {
  EscapeSequence sequence;
  EXPECT_EQ(shown(sequence, "\x1BPq#0\n#1\r\n~~\x1B\\b"), "b");
  EXPECT_EQ(shown(sequence, "\x1BP" + std::string(std::size_t{1024} * 1024, 'x') + "yz"), "yz");
}

TEST(EscapeSequenceTest, AnotherSequenceEndsAText) {
  EscapeSequence sequence;
  EXPECT_EQ(shown(sequence, "\x1B]0;title\x1B[31mx"), "x");
  EXPECT_EQ(sequence.style(), (TextStyle{1, none}));
  EXPECT_EQ(shown(sequence, "\x1BPq\x1B[32my"), "y");
  EXPECT_EQ(sequence.style(), (TextStyle{2, none}));
}

TEST(EscapeSequenceTest, ALetterBeyondAsciiEndsASequenceAndStays) {
  EscapeSequence sequence;
  EXPECT_EQ(shown(sequence, "\x1B[31\xC3\xA4m"), "\xC3\xA4m");
  EXPECT_EQ(shown(sequence, "\x1B\xC3\xA4"), "\xC3\xA4");
  EXPECT_EQ(sequence.style(), TextStyle{});
}

TEST(EscapeSequenceTest, ASequenceOfAnyLengthTakesLittleMemoryAndIsSwallowed) {
  EscapeSequence sequence;
  EXPECT_EQ(shown(sequence, "\x1B[" + std::string(100000, '1') + "mx"), "x");
  EXPECT_EQ(sequence.style(), TextStyle{});
}

}  // namespace
}  // namespace tarnwick
