#include "ProjectFixture.h"
#include "project/SourceFinder.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

class SourceFinderTest : public testing::Test {
 protected:
  std::string path(std::string name) const {
    std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
    return scratch_.file(name);
  }
  void make(const std::string& name) const {
    platform::makeFolders(Filename(path(name)).directoryNoSlash());
    writeFile(path(name), "");
  }
  static bool isSource(const std::string& name) { return name.ends_with(".java"); }
  Names found(const std::string& leftOut = "") const {
    auto names = SourceFinder(scratch_.path(), isSource, leftOut).find().names;
    std::sort(names.begin(), names.end());
    return names;
  }

  ScratchFolder scratch_;
};

TEST_F(SourceFinderTest, NamesBeginInTheFolder) {
  for (const char* name : {"A.java", "a b/c/B.java", "a b/C.java", "a b/C.txt", "empty/x"}) make(name);
  EXPECT_EQ(found(), (Names{"A.java", "a b/C.java", "a b/c/B.java"}));
}

TEST_F(SourceFinderTest, AFolderWithASourcesNameIsNone) {
  make("A.java/B.java");
  EXPECT_EQ(found(), Names{"A.java/B.java"});
}

TEST_F(SourceFinderTest, HiddenFoldersAreLeftOutButNotHiddenFiles) {
  for (const char* name : {".git/A.java", "a/.b/c/B.java", ".C.java"}) make(name);
  EXPECT_EQ(found(), Names{".C.java"});
}

TEST_F(SourceFinderTest, OneFolderCanBeLeftOut) {
  for (const char* name : {"out/A.java", "out/p/B.java", "output/C.java", "p/out/D.java"}) make(name);
  EXPECT_EQ(found(path("out")), (Names{"output/C.java", "p/out/D.java"}));
  EXPECT_EQ(found(path("p/../out/")), (Names{"output/C.java", "p/out/D.java"}));
  EXPECT_EQ(found(scratch_.path()).size(), 4U) << "but not the one that is asked for";
  EXPECT_EQ(found(path("none")).size(), 4U);
}

TEST_F(SourceFinderTest, TheSearchIsGivenUpWhereThereIsTooMuch) {
  for (const char* name : {"A.java", "B.java", "a/C.java"}) make(name);
  const auto some = SourceFinder(scratch_.path(), isSource).find(2);
  EXPECT_FALSE(some.isAll);
  EXPECT_EQ(some.names.size(), 2U);
  const auto all = SourceFinder(scratch_.path(), isSource).find(4);
  EXPECT_TRUE(all.isAll);
  EXPECT_EQ(all.names.size(), 3U);
}

TEST_F(SourceFinderTest, WhatIsNotThereHoldsNothing) {
  const auto none = SourceFinder(path("none"), isSource).find();
  EXPECT_TRUE(none.names.empty());
  EXPECT_TRUE(none.isAll);
}

}  // namespace
}  // namespace tarnwick::test
