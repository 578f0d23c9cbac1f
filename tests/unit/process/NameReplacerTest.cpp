#include "process/NameReplacer.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace tarnwick::test {
namespace {

const NameReplacer::Names names = {{"/tmp/p/A.java", "/home/X.java"}, {"/tmp/p/B.java", "/home/X.java"}};

/// The text cut into blocks of this size.
std::string replaced(std::string_view text, std::size_t size) {
  NameReplacer replacer(names);
  std::string result;
  for (std::size_t at = 0; at < text.size(); at += size) result += replacer.take(text.substr(at, size));
  return result + replacer.rest();
}

TEST(NameReplacerTest, NamesAreReplacedWhereverABlockEnds) {
  const std::string text = "/tmp/p/A.java:3: error\n/tmp/p/B.java:4: /tmp/p/A.java/tmp/p/B.java";
  const std::string expected = "/home/X.java:3: error\n/home/X.java:4: /home/X.java/home/X.java";
  for (std::size_t size = 1; size <= text.size(); ++size) EXPECT_EQ(replaced(text, size), expected) << size;
}

TEST(NameReplacerTest, WhatOnlyBeginsLikeANameStays) {
  for (const std::string text : {"/tmp/p/A.jav", "/tmp/p/C.java", "//tmp/p/A.jav/tmp/p/", "/", ""})
    for (std::size_t size = 1; size <= 4; ++size) EXPECT_EQ(replaced(text, size), text) << size;
  EXPECT_EQ(replaced("/tmp/p//tmp/p/A.java", 3), "/tmp/p//home/X.java");
}

TEST(NameReplacerTest, TextThatIsSettledDoesNotWait) {
  NameReplacer replacer(names);
  EXPECT_EQ(replacer.take("one /tmp/p/A.ja"), "one ");
  EXPECT_EQ(replacer.take("va two"), "/home/X.java two");
  EXPECT_EQ(replacer.rest(), "");
}

TEST(NameReplacerTest, AnyByteGoesThrough) {
  std::string text;
  for (int byte = 0; byte < 256; ++byte) text += static_cast<char>(byte);
  EXPECT_EQ(replaced(text, 7), text);
}

TEST(NameReplacerTest, WithoutNamesEverythingStays) {
  NameReplacer replacer({});
  EXPECT_EQ(replacer.take("/tmp/p/A.java"), "/tmp/p/A.java");
  EXPECT_EQ(replacer.rest(), "");
}

}  // namespace
}  // namespace tarnwick::test
