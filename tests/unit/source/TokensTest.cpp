#include "source/Tokens.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

Token tokenOf(std::string_view text, std::string_view* rest = nullptr) {
  Cursor cursor = text;
  const Token token = nextToken(cursor, javaKeywords, javaDelimiters);
  if (rest) *rest = cursor;
  return token;
}

std::string restOf(std::string_view text) {
  std::string_view rest;
  tokenOf(text, &rest);
  return std::string(rest);
}

TEST(TokensTest, EachKeywordHasItsNumber) {
  const std::vector<std::string> words = {"import", "package", "public", "interface", "class",      "abstract",
                                          "final",  "main",    "static", "void",      "implements", "extends"};
  ASSERT_EQ(javaKeywords.size(), words.size());
  for (std::size_t i = 0; i < words.size(); ++i) {
    EXPECT_EQ(javaKeywords[i], words[i]);
    EXPECT_EQ(static_cast<std::size_t>(tokenOf(words[i])), i) << words[i];
  }
  EXPECT_EQ(static_cast<int>(Token::Other), 12);
  EXPECT_EQ(static_cast<int>(tokenOf("enum")), 12);
}

TEST(TokensTest, TheDelimiters) {
  EXPECT_EQ(javaDelimiters, "(){}[]=!*+-/%&~^:;,");
  for (const char c : javaDelimiters) EXPECT_EQ(tokenOf(std::string("main") + c), Token::Main) << c;
  for (const char c : std::string(".<>|?\"'@#_0")) EXPECT_EQ(tokenOf(std::string("main") + c), Token::Other) << c;
}

TEST(TokensTest, AKeywordEndsAtWhiteSpaceDelimiterOrEnd) {
  for (const char c : std::string(" \t\n\v\f\r")) EXPECT_EQ(tokenOf(std::string("class") + c + "A"), Token::Class);
  EXPECT_EQ(tokenOf("class"), Token::Class);
  EXPECT_EQ(tokenOf("main("), Token::Main);
  EXPECT_EQ(restOf("main(x)"), "(x)");
}

TEST(TokensTest, LongerWordsAreNoKeywords) {
  EXPECT_EQ(tokenOf("publicity"), Token::Other);
  EXPECT_EQ(tokenOf("main2"), Token::Other);
  EXPECT_EQ(tokenOf("classA"), Token::Other);
  EXPECT_EQ(restOf("publicity x"), " x");
}

TEST(TokensTest, CaseCounts) {
  EXPECT_EQ(tokenOf("Public"), Token::Other);
  EXPECT_EQ(tokenOf("MAIN"), Token::Other);
}

TEST(TokensTest, AQualifiedNameIsOneToken) {
  EXPECT_EQ(tokenOf("java.lang.Object"), Token::Other);
  EXPECT_EQ(restOf("java.lang.Object, B"), ", B");
}

TEST(TokensTest, ADelimiterIsATokenOfItsOwn) {
  EXPECT_EQ(tokenOf("(main"), Token::Other);
  EXPECT_EQ(restOf("(main"), "main");
  EXPECT_EQ(restOf("  {}"), "}");
}

TEST(TokensTest, WhiteSpaceBeforeATokenIsSkipped) {
  EXPECT_EQ(tokenOf(" \r\n\t\v\fclass A"), Token::Class);
  EXPECT_EQ(restOf(" \r\n\t\v\fclass A"), " A");
}

TEST(TokensTest, AtTheEndTheTokenIsOther) {
  EXPECT_EQ(tokenOf(""), Token::Other);
  EXPECT_EQ(tokenOf(" \n"), Token::Other);
  EXPECT_EQ(restOf(" \n"), "");
}

TEST(TokensTest, TheTableIsTheCallers) {
  const std::vector<std::string_view> table = {"b", "a"};
  Cursor cursor = "a-b";
  EXPECT_EQ(static_cast<int>(nextToken(cursor, table, "-")), 1);
  EXPECT_EQ(cursor, "-b");
}

TEST(TokensTest, SkipWhiteStopsAtTheFirstOtherCharacter) {
  Cursor cursor = " \t\r\n x ";
  skipWhite(cursor);
  EXPECT_EQ(cursor, "x ");
  skipWhite(cursor);
  EXPECT_EQ(cursor, "x ");
  cursor = "  ";
  skipWhite(cursor);
  EXPECT_EQ(cursor, "");
}

TEST(TokensTest, AWordGoesToWhiteSpaceDelimiterOrEnd) {
  Cursor cursor = "  a.b<c>|d; e\tf";
  EXPECT_EQ(nextWord(cursor, javaDelimiters), "a.b<c>|d");
  EXPECT_EQ(cursor, "; e\tf");
  EXPECT_EQ(nextWord(cursor, ";"), "");
  EXPECT_EQ(cursor, "; e\tf");
  cursor.remove_prefix(1);
  EXPECT_EQ(nextWord(cursor, javaDelimiters), "e");
  EXPECT_EQ(nextWord(cursor, javaDelimiters), "f");
  EXPECT_EQ(nextWord(cursor, javaDelimiters), "");
}

TEST(TokensTest, AWordWithOneDelimiterRunsOverTheOthers) {
  Cursor cursor = " a-b(c); d";
  EXPECT_EQ(nextWord(cursor, ";"), "a-b(c)");
  EXPECT_EQ(cursor, "; d");
}

TEST(TokensTest, BytesBeyondAsciiAreLetters) {
  Cursor cursor = "\xC3\xA4\xA0\x80 x";
  EXPECT_EQ(nextWord(cursor, javaDelimiters), "\xC3\xA4\xA0\x80");
}

}  // namespace
}  // namespace tarnwick::test
