#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"
#include "tools/ManifestClassPath.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

const std::string separator = std::string(1, platform::folderSeparator);

/// An archive's folder with a folder in it, and one beside it.
class ManifestClassPathTest : public testing::Test {
 protected:
  ManifestClassPathTest() {
    for (const auto& folder : {below("lib"), below("lib") + separator + "sub", beside()}) platform::makeFolders(folder);
  }

  std::string folder() const { return scratch_.file("arch ive") + separator; }
  std::string below(const std::string& name) const { return folder() + name; }
  std::string beside() const { return scratch_.file("arch ive two"); }
  std::string urls(const std::string& list) const { return manifestClassPath(list, folder()); }
  static std::string quoted(const std::string& path) { return '"' + path + '"'; }

  ScratchFolder scratch_;
};

TEST_F(ManifestClassPathTest, ElementsOfAListArePutApartByBlanks) {
  const std::pair<const char*, const char*> table[] = {{"", ""},
                                                       {"a.jar", "a.jar"},
                                                       {"a.jar;b.jar", "a.jar b.jar"},
                                                       {";a.jar;;b.jar;", "a.jar b.jar"},
                                                       {"a.jar b.jar\tc.jar", "a.jar b.jar c.jar"},
                                                       {"a.jar ; b.jar", "a.jar b.jar"},
                                                       {"\"a.jar\";\"b.jar\"", "a.jar b.jar"},
                                                       {"\"\"", ""}};
  for (const auto& [list, expected] : table) EXPECT_EQ(urls(list), expected) << list;
  EXPECT_EQ(urls(platform::commandLineList("a.jar;b.jar")), "a.jar b.jar");
}

TEST_F(ManifestClassPathTest, WhatMeansSomethingInAUrlIsEncoded) {
  const std::pair<const char*, const char*> table[] = {
      {"\"my lib.jar\"", "my%20lib.jar"},
      {"\"a;b.jar\"", "a%3Bb.jar"},
      {"100%.jar", "100%25.jar"},
      {"a#b.jar", "a%23b.jar"},
      {"a+b&c=d@e!f$g,h'i(j)k.jar", "a%2Bb%26c%3Dd%40e%21f%24g%2Ch%27i%28j%29k.jar"},
      {"a-b_c.d~e.jar", "a-b_c.d~e.jar"}};
  for (const auto& [list, expected] : table) EXPECT_EQ(urls(list), expected) << list;
  // "ü" in the platform's character set.
  const std::string letter = platform::folderSeparator == '/' ? "\xC3\xBC" : "\xFC";
  EXPECT_EQ(urls("f" + letter + "r.jar"), "f%C3%BCr.jar");
}

TEST_F(ManifestClassPathTest, WhatLiesBelowTheArchivesFolderIsNamedFromThere) {
  EXPECT_EQ(urls(quoted(below("a b.jar"))), "a%20b.jar");
  EXPECT_EQ(urls(quoted(below("lib") + separator + "c.jar")), "lib/c.jar");
  EXPECT_EQ(urls("lib" + separator + "c.jar"), "lib/c.jar") << "a path that is seen from there already";
  EXPECT_EQ(urls(".." + separator + "c.jar"), "../c.jar");
  EXPECT_EQ(manifestClassPath(quoted(below("c.jar")), scratch_.file("arch ive")), "c.jar");
}

TEST_F(ManifestClassPathTest, WhatLiesElsewhereIsAWholeUrl) {
  const std::string url = urls(quoted(beside() + separator + "c.jar"));
  EXPECT_TRUE(url.starts_with("file:/")) << url;
  EXPECT_TRUE(url.ends_with("/arch%20ive%20two/c.jar")) << url;
  EXPECT_EQ(url.find_first_of(" \\"), std::string::npos) << url;
  if (platform::folderSeparator == '/') {
    EXPECT_EQ(urls("/opt/lib/c.jar"), "file:/opt/lib/c.jar");
  } else {
    EXPECT_EQ(urls("C:\\lib\\c.jar;c:/lib/d.jar"), "file:/C:/lib/c.jar file:/c:/lib/d.jar");
  }
}

TEST_F(ManifestClassPathTest, AFolderEndsInASlash) {
  EXPECT_EQ(urls(quoted(below("lib"))), "lib/");
  EXPECT_EQ(urls(quoted(below("lib") + separator)), "lib/");
  EXPECT_EQ(urls("lib;lib" + separator + "sub"), "lib/ lib/sub/");
  EXPECT_EQ(urls("gone"), "gone") << "of what is not there nobody knows";
  EXPECT_EQ(urls("."), "./");
  EXPECT_EQ(urls(quoted(folder())), "./");
  EXPECT_EQ(urls(quoted(scratch_.file("arch ive"))), "./");
  const std::string url = urls(quoted(beside()));
  EXPECT_TRUE(url.ends_with("/arch%20ive%20two/")) << url;
}

TEST_F(ManifestClassPathTest, AUrlIsOneAlready) {
  EXPECT_EQ(urls("file:/a%20b.jar;FILE:///c.jar d.jar"), "file:/a%20b.jar FILE:///c.jar d.jar");
}

TEST_F(ManifestClassPathTest, NamesCompareAsTheSystemComparesThem) {
  const std::string other = scratch_.file("ARCH IVE") + separator + "c.jar";
  const bool same = platform::sameFileName("a", "A");
  EXPECT_EQ(urls(quoted(other)) == "c.jar", same);
}

TEST(ContinuedLinesTest, ALineHasNoMoreThanJavaTakes) {
  const auto of = [](std::size_t count) { return std::string(count, 'x'); };
  EXPECT_EQ(continuedLines(""), "");
  EXPECT_EQ(continuedLines("a\nb\n"), "a\nb\n");
  EXPECT_EQ(continuedLines(of(71) + "\n" + of(71) + "\n"), of(71) + "\n" + of(71) + "\n");
  EXPECT_EQ(continuedLines(of(72) + "\n"), of(71) + "\n x\n");
  EXPECT_EQ(continuedLines(of(71 + 70) + "\n"), of(71) + "\n " + of(70) + "\n");
  EXPECT_EQ(continuedLines(of(71 + 70 + 1) + "\ny\n"), of(71) + "\n " + of(70) + "\n x\ny\n");
}

}  // namespace
}  // namespace tarnwick::test
