#include "base/Text.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick {
namespace {

TEST(Text, WhiteSpaceIsBlankTabAndTheLineEnds) {
  for (int byte = 0; byte < 256; ++byte) {
    const bool white = byte == ' ' || (byte >= 9 && byte <= 13);
    EXPECT_EQ(isWhite(static_cast<char>(byte)), white) << byte;
  }
}

TEST(Text, TrimmingTakesWhiteSpaceFromTheEnds) {
  const std::string text = " \t\r\n a b \v\f ";
  EXPECT_EQ(trim(text), "a b");
  EXPECT_EQ(trimLeft(text), "a b \v\f ");
  EXPECT_EQ(trimRight(text), " \t\r\n a b");
  EXPECT_EQ(trim(""), "");
  EXPECT_EQ(trimLeft(" \n"), "");
  EXPECT_EQ(trimRight(" \n"), "");
  EXPECT_EQ(trim("x"), "x");
}

TEST(Text, CaseChangesForTheLettersOfTheAlphabetOnly) {
  EXPECT_EQ(lowerCase("AZaz[@`{1 \xC4\xE4"), "azaz[@`{1 \xC4\xE4");
  EXPECT_EQ(upperCase("AZaz[@`{1 \xC4\xE4"), "AZAZ[@`{1 \xC4\xE4");
}

TEST(Text, ComparingIgnoresCaseOfTheAlphabetOnly) {
  EXPECT_TRUE(equalsIgnoringCase("Vertical", "vERTICAL"));
  EXPECT_TRUE(equalsIgnoringCase("", ""));
  EXPECT_FALSE(equalsIgnoringCase("a", "ab"));
  EXPECT_FALSE(equalsIgnoringCase("ab", "a"));
  EXPECT_FALSE(equalsIgnoringCase("\xC4", "\xE4"));
  EXPECT_FALSE(equalsIgnoringCase("[", "{"));
}

TEST(Text, ATextWithABlankIsQuoted) {
  EXPECT_EQ(quotedIfBlank("a b"), "\"a b\"");
  EXPECT_EQ(quotedIfBlank("a "), "\"a \"");
  EXPECT_EQ(quotedIfBlank("ab"), "ab");
  EXPECT_EQ(quotedIfBlank("a\tb"), "a\tb") << "a tab is no blank";
  EXPECT_EQ(quotedIfBlank(""), "");
}

TEST(Text, ABlankInTheFirstPlaceDoesNotCount) {
  EXPECT_EQ(quotedIfBlank(" x"), " x");
  EXPECT_EQ(quotedIfBlank(" "), " ");
  EXPECT_EQ(quotedIfBlank(" x y"), "\" x y\"");
}

TEST(Text, ACleanedPathHasNoWhiteSpaceAroundItAndNoQuotes) {
  EXPECT_EQ(cleanedPath("  a b \n"), "a b");
  EXPECT_EQ(cleanedPath(" \"a b\" "), "a b");
  EXPECT_EQ(cleanedPath("\" a \""), " a ") << "what the quotes enclose stays";
  EXPECT_EQ(cleanedPath("a\""), "a\"");
  EXPECT_EQ(cleanedPath(""), "");
  EXPECT_EQ(cleanedPath("\"\""), "");
  EXPECT_EQ(cleanedPath("\""), "");
}

TEST(Text, APathThatBeginsWithAQuoteLosesItsLastCharacterWhateverItIs) {
  EXPECT_EQ(cleanedPath("\"abc"), "ab");
}

TEST(Text, ALineEndIsALineFeedOrACarriageReturn) {
  EXPECT_TRUE(holdsLineEnd("a\nb"));
  EXPECT_TRUE(holdsLineEnd("\r"));
  EXPECT_FALSE(holdsLineEnd("a b\t\v\f"));
  EXPECT_FALSE(holdsLineEnd(""));
}

TEST(Text, OnOneLineEachLineEndIsOneBlank) {
  EXPECT_EQ(onOneLine("a\nb"), "a b");
  EXPECT_EQ(onOneLine("a\r\nb\rc"), "a b c");
  EXPECT_EQ(onOneLine("a\n\nb\n"), "a  b ");
  EXPECT_EQ(onOneLine("a\\nb\t c"), "a\\nb\t c") << "what stands for a line end in a key's text is none";
}

TEST(Text, PathsOnLinesOfTheirOwnAreElementsOfOneList) {
  EXPECT_EQ(pathsOnOneLine("a.jar\nmy b.jar\r\nc.jar"), "a.jar;my b.jar;c.jar");
  EXPECT_EQ(pathsOnOneLine("a.jar;\n;b.jar\n"), "a.jar;b.jar") << "no element is empty, which would be a folder";
  EXPECT_EQ(pathsOnOneLine("\n\n  a.jar \n\n \nb.jar\n"), "a.jar;b.jar");
  EXPECT_EQ(pathsOnOneLine(" a;; b "), " a;; b ") << "one line stays as it is";
  EXPECT_EQ(pathsOnOneLine("\r\n"), "");
}

TEST(Text, FoldExecutableIsTheFoldOfThePlatformFloor) {
  EXPECT_EQ(foldExecutable("C:\\Java\\bin\\java.exe"), "c:\\JaVa\\bIn\\jAvA.ExE");
}

}  // namespace
}  // namespace tarnwick
