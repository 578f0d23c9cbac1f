// Places in stack traces.
#include "console/TraceLink.h"
#include "support/ConsoleFixture.h"

#include <chrono>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

/// The link at the first column of this part of the text.
std::optional<TraceLink> linkAt(const std::string& text, const std::string& part) {
  TarnwickDoc document("a title");
  document.addText(text, KIND_ERROR);
  return traceLinkAt(document.lastLine(), static_cast<int>(text.find(part)));
}

std::string packageIn(const std::string& text) {
  const auto link = linkAt(text, "A.java");
  return link ? link->package : "(none)";
}

TEST(TraceLinkTest, APlaceIsTheNameAndTheLineInBrackets) {
  const std::string text = "    at org.x.Main.run(Main.java:57)";
  const auto link = linkAt(text, "Main.java");
  ASSERT_TRUE(link);
  EXPECT_EQ(*link, (TraceLink{"Main.java", 57, "org.x", {22, 34}}));
  EXPECT_EQ(linkAt(text, ")"), std::nullopt) << "behind it";
  EXPECT_EQ(linkAt(text, "7)"), link) << "the last of its columns";
  EXPECT_EQ(linkAt(text, "(Main"), std::nullopt) << "before it";
}

TEST(TraceLinkTest, TheColumnDecidesAmongSeveral) {
  const std::string text = "a.B.c(B.java:1) d.E.f(E.java:2)";
  ASSERT_TRUE(linkAt(text, "B.java"));
  EXPECT_EQ(linkAt(text, "B.java")->line, 1);
  ASSERT_TRUE(linkAt(text, "E.java"));
  EXPECT_EQ(*linkAt(text, "E.java"), (TraceLink{"E.java", 2, "d", {22, 30}}));
}

TEST(TraceLinkTest, ModulesLoadersAndHiddenClassesAreNoPackages) {
  EXPECT_EQ(packageIn("at A.main(A.java:1)"), "");
  EXPECT_EQ(packageIn("        at org.x.A.main(A.java:1)"), "org.x");
  EXPECT_EQ(packageIn("        at java.base/java.util.A.main(A.java:1)"), "java.util");
  EXPECT_EQ(packageIn("        at my.module@1.0.2/org.x.A.main(A.java:1)"), "org.x");
  EXPECT_EQ(packageIn("        at app//org.x.A.main(A.java:1)"), "org.x");
  EXPECT_EQ(packageIn("        at app/my.module@1/org.x.A.main(A.java:1)"), "org.x");
  EXPECT_EQ(packageIn("        at org.x.A$Inner.<init>(A.java:1)"), "org.x");
  EXPECT_EQ(packageIn("        at org.x.A.lambda$main$0(A.java:1)"), "org.x");
  EXPECT_EQ(packageIn("        at org.x.A$$Lambda/0x000007f1a0.run(A.java:1)"), "org.x");
  EXPECT_EQ(packageIn("  [1] org.x.A.main (A.java:1)"), "org.x") << "as a debugger writes it";
  EXPECT_EQ(packageIn("(A.java:1)"), "");
}

TEST(TraceLinkTest, ALinesThousandsMayBeParted) {
  const auto lineOf = [](const std::string& number) {
    const auto link = linkAt("  [1] A.main (A.java:" + number + ")", "A.java");
    return link ? link->line : 0;
  };
  EXPECT_EQ(lineOf("1,234"), 1234);
  EXPECT_EQ(lineOf("1.234"), 1234);
  EXPECT_EQ(lineOf("1'234"), 1234);
  EXPECT_EQ(lineOf("12\xC2\xA0"
                   "345"),
            12345);
  EXPECT_EQ(lineOf("1,234,567"), 1234567);
  EXPECT_EQ(lineOf("1,23"), 0);
  EXPECT_EQ(lineOf("1,2345"), 0);
  EXPECT_EQ(lineOf("1,"), 0);
  EXPECT_EQ(lineOf("12:345"), 0) << "a column";
  EXPECT_EQ(lineOf("1x234"), 0);
  EXPECT_EQ(lineOf("0"), 0);
  EXPECT_EQ(lineOf("1234567890"), 0);
  EXPECT_EQ(lineOf(""), 0);
  EXPECT_EQ(lineOf("x"), 0);
  EXPECT_EQ(lineOf("1 and 234"), 0);
}

TEST(TraceLinkTest, WhatLooksAlikeIsNone) {
  for (const std::string text :
       {"at x.A.b(A.java)", "at x.A.b(Native Method)", "A.java:5: error", "(A.java:5", "(.java:5)", "(/tmp/A.java:5)",
        "(C:\\A.java:5)", "(x:A.java:5)", "call() in A.java:5)", "(A.class:5)"}) {
    for (int column = 0; column < 20; ++column) {
      TarnwickDoc document("a title");
      document.addText(text, KIND_OUTPUT);
      EXPECT_EQ(traceLinkAt(document.lastLine(), column), std::nullopt) << text << " at " << column;
    }
  }
}

TEST(TraceLinkTest, ALineOfAMillionCharactersCostsNothingMuch) {
  std::string text;
  while (text.size() < 1000000) text += "a.java:1 (b c.java:2 ";
  const std::string end = "x.A.b(A.java:5)";
  TarnwickDoc document("a title");
  document.addText(text + end, KIND_ERROR);
  const auto begin = std::chrono::steady_clock::now();
  for (int times = 0; times < 10; ++times)
    EXPECT_TRUE(traceLinkAt(document.lastLine(), static_cast<int>(text.size() + 7)));
  // Going back to the line's start each time took minutes.
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}

TEST(TraceLinkTest, APackageIsNoWholeLine) {
  const auto link = linkAt(std::string(100000, 'x') + ".B.run(A.java:5)", "A.java");
  ASSERT_TRUE(link);
  EXPECT_LE(link->package.size(), 500U);
}

TEST(TraceLinkTest, ColumnsAreThoseOfTheScreen) {
  if (!test::charactersAreUtf8()) GTEST_SKIP() << "every character is one byte here";
  const std::string text = "at \xC3\xA4.\xC3\x84pfel.run(\xC3\x84pfel.java:7)";
  TarnwickDoc document("a title");
  document.addText(text, KIND_ERROR);
  const auto link = traceLinkAt(document.lastLine(), 15);
  ASSERT_TRUE(link);
  EXPECT_EQ(*link, (TraceLink{"\xC3\x84pfel.java", 7, "\xC3\xA4", {15, 27}}));
  EXPECT_FALSE(traceLinkAt(document.lastLine(), 14));
  EXPECT_FALSE(traceLinkAt(document.lastLine(), 27));
}

}  // namespace
}  // namespace tarnwick
