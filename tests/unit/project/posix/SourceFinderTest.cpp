#include "platform/FileSystem.h"
#include "project/SourceFinder.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

class LinkedSourcesTest : public testing::Test {
 protected:
  LinkedSourcesTest() {
    for (const char* folder : {"base/a/deep", "base/b", "base/.hidden", "outside/in"})
      platform::makeFolders(scratch_.file(folder));
    writeFile(scratch_.file("base/a/deep/A.java"), "");
    writeFile(scratch_.file("outside/in/B.java"), "");
    writeFile(scratch_.file("base/.hidden/C.java"), "");
  }
  void link(const std::string& target, const std::string& name) const {
    std::filesystem::create_directory_symlink(scratch_.file(target), scratch_.file(name));
  }
  Names found() const {
    auto names =
        SourceFinder(scratch_.file("base"), [](const auto& name) { return name.ends_with(".java"); }).find().names;
    std::sort(names.begin(), names.end());
    return names;
  }

  ScratchFolder scratch_;
};

TEST_F(LinkedSourcesTest, ALinkedFolderIsLookedInto) {
  link("outside", "base/b/elsewhere");
  EXPECT_EQ(found(), (Names{"a/deep/A.java", "b/elsewhere/in/B.java"}));
}

TEST_F(LinkedSourcesTest, LinksUpwardsLeadNowhere) {
  for (const char* name : {"base/a/deep/to base", "base/b/to base"}) link("base", name);
  link("", "base/to all");
  std::filesystem::create_directory_symlink("/", scratch_.file("base/to root"));
  EXPECT_EQ(found(), Names{"a/deep/A.java"});
}

TEST_F(LinkedSourcesTest, AFolderWhoseNameBeginsLikeTheProjectsIsAnother) {
  platform::makeFolders(scratch_.file("bas"));
  writeFile(scratch_.file("bas/D.java"), "");
  link("bas", "base/b/bas");
  EXPECT_EQ(found(), (Names{"a/deep/A.java", "b/bas/D.java"}));
}

TEST_F(LinkedSourcesTest, TheSearchMayBeginAtALink) {
  link("base", "link");
  link("base", "base/b/back");
  const auto files =
      SourceFinder(scratch_.file("link"), [](const auto& name) { return name.ends_with(".java"); }).find();
  EXPECT_EQ(files.names, Names{"a/deep/A.java"});
}

TEST_F(LinkedSourcesTest, LinksThatLeadToOneAnotherEnd) {
  link("outside/in", "base/b/in");
  link("base/b", "outside/in/back");
  EXPECT_EQ(found(), (Names{"a/deep/A.java", "b/in/B.java"}));
}

TEST_F(LinkedSourcesTest, WhatIsHereAnywayGoesByItsOwnName) {
  // A folder tells its entries in any order.
  for (int i = 0; i < 20; ++i) link("base/a", "base/" + std::to_string(i));
  EXPECT_EQ(found(), Names{"a/deep/A.java"});
}

TEST_F(LinkedSourcesTest, ALinkToASourceIsASource) {
  std::filesystem::create_symlink(scratch_.file("outside/in/B.java"), scratch_.file("base/b/L.java"));
  std::filesystem::create_symlink(scratch_.file("none"), scratch_.file("base/b/Gone.java"));
  EXPECT_EQ(found(), (Names{"a/deep/A.java", "b/L.java"}));
}

}  // namespace
}  // namespace tarnwick::test
