#include "source/DecodedText.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {
namespace {

std::string decoded(const std::string& source) {
  return DecodedText(source).text();
}

TEST(DecodedText, DecodesEscapes) {
  EXPECT_EQ(decoded("a\\u0041b\\uuuu007Bc"), "aAb{c");
  EXPECT_EQ(decoded("\\u00e4\\u20AC\\uABCD\\u0000"), std::string("\xC3\xA4\xE2\x82\xAC\xEA\xAF\x8D\0", 9));
  EXPECT_EQ(decoded("\\u007f\\u0080\\u07ff\\u0800"), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80");
}

TEST(DecodedText, PutsHalvesTogether) {
  EXPECT_EQ(decoded("\\ud83d\\ude00!"), "\xF0\x9F\x98\x80!");
  EXPECT_EQ(decoded("\\ud83d \\ude00"), "\xED\xA0\xBD \xED\xB8\x80");
  EXPECT_EQ(decoded("\\ud83d\\u0041\\ude00"),
            "\xED\xA0\xBD"
            "A\xED\xB8\x80");
  EXPECT_EQ(decoded("\\ude00\\ud83d"), "\xED\xB8\x80\xED\xA0\xBD");
  const std::string source = "\\ud83d\\ude00!";
  EXPECT_EQ(DecodedText(source).sourceOffset(4), 12U);
}

TEST(DecodedText, KnowsTheFirstAndTheLastHalves) {
  EXPECT_EQ(decoded("\\ud800\\udc00"), "\xF0\x90\x80\x80");
  EXPECT_EQ(decoded("\\udbff\\udfff"), "\xF4\x8F\xBF\xBF");
  EXPECT_EQ(decoded("\\udc00\\udc00"), "\xED\xB0\x80\xED\xB0\x80");
  EXPECT_EQ(decoded("\\ud800\\ue000"), "\xED\xA0\x80\xEE\x80\x80");
  EXPECT_EQ(decoded("\\ud7ff\\udc00"), "\xED\x9F\xBF\xED\xB0\x80");
}

TEST(DecodedText, AnOddBackslashBegins) {
  EXPECT_EQ(decoded("\\\\u0041"), "\\\\u0041");
  EXPECT_EQ(decoded("\\\\\\u0041"), "\\\\A");
  EXPECT_EQ(decoded("\\\\\\\\u0041"), "\\\\\\\\u0041");
  EXPECT_EQ(decoded("\\n\\u0041"), "\\nA");
  EXPECT_EQ(decoded("\\a\\\\u0041\\u0042"), "\\a\\\\u0041B");
}

TEST(DecodedText, AnEscapedBackslashBeginsNothing) {
  EXPECT_EQ(decoded("\\u005cu0041"), "\\u0041");
  EXPECT_EQ(decoded("\\u005c\\u0041"), "\\A");
  EXPECT_EQ(decoded("\\u005c\\u005c\\u0041"), "\\\\A");
  EXPECT_EQ(decoded("\\u005c\\\\u0041"), "\\\\A");
  EXPECT_EQ(decoded("\\\\u005cu0041"), "\\\\u005cu0041");
}

TEST(DecodedText, LeavesWhatIsNoEscape) {
  for (const char* text :
       {"", "\\", "\\u", "\\u0", "\\u00", "\\u004", "\\uuu", "\\u004g", "\\U0041", "a\\b", "\\u 0041"})
    EXPECT_EQ(decoded(text), text);
}

TEST(DecodedText, KnowsThePlacesInTheSource) {
  const DecodedText text("ab\\u0041cd\\uu20ace");
  EXPECT_EQ(text.text(),
            "abAcd\xE2\x82\xAC"
            "e");
  EXPECT_EQ(text.sourceOffset(0), 0U);
  EXPECT_EQ(text.sourceOffset(2), 2U);
  EXPECT_EQ(text.sourceOffset(3), 8U);
  EXPECT_EQ(text.sourceOffset(5), 10U);
  EXPECT_EQ(text.sourceOffset(8), 17U);
  EXPECT_EQ(text.sourceOffset(9), 18U);
}

TEST(DecodedText, KnowsThePlacesBetweenEscapes) {
  const DecodedText marks("\\u007d\\u007b\\u00e4\\u007d!");
  EXPECT_EQ(marks.text(), "}{\xC3\xA4}!");
  EXPECT_EQ(marks.sourceOffset(1), 6U);
  EXPECT_EQ(marks.sourceOffset(2), 12U);
  EXPECT_EQ(marks.sourceOffset(4), 18U);
  EXPECT_EQ(marks.sourceOffset(5), 24U);
  EXPECT_EQ(DecodedText("\\u00e4 a \\u00e4").sourceOffset(3), 7U);
  const DecodedText name("\\u00e4\\u00e4\\ud83d\\ude00\\u00e4;");
  EXPECT_EQ(name.sourceOffset(0), 0U);
  EXPECT_EQ(name.sourceOffset(10), 30U);
  EXPECT_EQ(name.sourceOffset(11), 31U);
}

}  // namespace
}  // namespace tarnwick::test
