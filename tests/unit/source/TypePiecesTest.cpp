#include "source/OutlineReader.h"
#include "source/TypePieces.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

bool wantsSplitting(const std::string& source) {
  return tarnwick::wantsSplitting(outlineOf(source, "File"));
}

std::vector<TypePiece> pieces(const std::string& source) {
  return piecesOf(source, outlineOf(source, "File"));
}

TEST(TypePieces, OnlySeveralPublicTypesAreSplit) {
  EXPECT_TRUE(wantsSplitting("public class A { } public interface B { }"));
  EXPECT_TRUE(wantsSplitting("public enum A { } class C { } public record B() { }"));
  EXPECT_FALSE(wantsSplitting("public class A { public class B { } } class C { }"));
  EXPECT_FALSE(wantsSplitting("class A { } class B { }"));
  EXPECT_FALSE(wantsSplitting(""));
}

TEST(TypePieces, ACompactSourceIsNotSplit) {
  EXPECT_FALSE(wantsSplitting("public class A { } public class B { } void main() { }"));
}

TEST(TypePieces, TypesThatMustStayTogetherAreNotSplit) {
  EXPECT_FALSE(wantsSplitting("public sealed class A { } public final class B extends A { }"));
  EXPECT_FALSE(wantsSplitting("public class A { sealed interface C { } } public class B { }"));
  EXPECT_TRUE(wantsSplitting("public sealed class A permits B { } public final class B extends A { }"));
}

TEST(TypePieces, WhatIsNotWholeIsNotSplit) {
  EXPECT_FALSE(wantsSplitting("public class A { } public class B { "));
  EXPECT_FALSE(wantsSplitting("public class A { public class B { } "));
  EXPECT_FALSE(wantsSplitting("public class A { } public class B { /* }"));
  EXPECT_FALSE(wantsSplitting("public class A { } public class A { }"));
}

TEST(TypePieces, APieceHasTheOthersBlanked) {
  const std::string source =
      "package a; import b.C;\npublic class A { }\n/** d */ @E\nclass F {\r\n\tint g; }\npublic enum H { } // i\n";
  const auto found = pieces(source);
  ASSERT_EQ(found.size(), 3U);
  EXPECT_EQ(found[0].fileName, "A.java");
  EXPECT_EQ(
      found[0].text,
      "package a; import b.C;\npublic class A { }\n           \n         \r\n\t        \n                  // i\n");
  EXPECT_EQ(found[1].fileName, "F.java");
  EXPECT_EQ(
      found[1].text,
      "package a; import b.C;\n                  \n/** d */ @E\nclass F {\r\n\tint g; }\n                  // i\n");
  EXPECT_EQ(found[2].fileName, "H.java");
  EXPECT_EQ(
      found[2].text,
      "package a; import b.C;\n                  \n           \n         \r\n\t        \npublic enum H { } // i\n");
}

TEST(TypePieces, ADocumentThatIsNotTheirsDoesNotComeBeforeOthers) {
  const auto found = pieces("/** @deprecated */ public class A { } public class B { }");
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[1].text, std::string(37, ' ') + " public class B { }");
}

TEST(TypePieces, EachCharacterIsOneBlank) {
  EXPECT_EQ(pieces("public class \xC3\x84 { /* \xE2\x82\xAC */ } class B { }").at(1).text,
            std::string(26, ' ') + " class B { }");
  EXPECT_EQ(pieces("class A {\f\t\f} class B { }").at(1).text, "         \f\t\f  class B { }");
  // In Java it is two.
  EXPECT_EQ(pieces("class A { /* \xF0\x9F\x98\x80 */ } class B { }").at(1).text, std::string(20, ' ') + " class B { }");
  // Bytes that are no UTF-8 are one character each.
  EXPECT_EQ(pieces("class A { /* \xE4\xC3\x84 */ } class B { }").at(1).text, std::string(21, ' ') + " class B { }");
  EXPECT_EQ(pieces("class A { /* \xC3\x84 */ } class B { /* \xE4 */ }").at(1).text,
            std::string(20, ' ') + " class B { /* \xE4 */ }");
  for (const std::string bad : {"\x80", "\xC1\x80", "\xC3", "\xE2\x82", "\xF5\x80\x80\x80", "\xF0\x9F\x98", "\xC3("})
    EXPECT_EQ(pieces("class A { /* \xC3\x84 */ } class B { } // " + bad).at(1).text,
              std::string(20, ' ') + " class B { } // " + bad);
  EXPECT_EQ(pieces("class A { } class B { /* \xC3\x84\xE4 */ }").at(0).text.size(), 33U);
  EXPECT_EQ(pieces("class A { \\u007d class B { }").at(1).text, std::string(16, ' ') + " class B { }");
}

TEST(TypePieces, AnyByteMayStandAnywhere) {
  std::string all;
  for (int c = 1; c < 256; ++c)
    if (c != '*') all += static_cast<char>(c);
  const std::string source = "/*" + all + "*/ class A { } class B { /*" + all + "*/ }";
  const auto found = pieces(source);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].text.substr(0, all.size() + 4), "/*" + all + "*/");
  EXPECT_EQ(found[1].text.substr(source.find(" class B")), source.substr(source.find(" class B")));
}

}  // namespace
}  // namespace tarnwick::test
