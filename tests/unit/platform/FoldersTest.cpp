#include "platform/FileSystem.h"
#include "platform/Folders.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

using Names = std::vector<std::string>;

TEST(FoldersTest, AllFoldersAreListedAndNothingElse) {
  const test::ScratchFolder scratch;
  for (const char* name : {"two words", ".hidden", "a"}) makeFolders(scratch.file(name));
  test::writeFile(scratch.file("file"), "");
  Names found = foldersIn(scratch.path());
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, (Names{".hidden", "a", "two words"}));
  EXPECT_EQ(foldersIn(scratch.file("none")), Names{});
  EXPECT_EQ(foldersIn(""), Names{});
}

TEST(FoldersTest, AskingWhetherAFolderCanBeEnteredEntersNone) {
  const test::ScratchFolder scratch;
  test::writeFile(scratch.file("file"), "");
  const std::string before = currentDirectory();
  EXPECT_TRUE(canEnter(scratch.path()));
  EXPECT_FALSE(canEnter(scratch.file("file")));
  EXPECT_FALSE(canEnter(scratch.file("none")));
  EXPECT_FALSE(canEnter(""));
  EXPECT_EQ(currentDirectory(), before);
}

TEST(FoldersTest, AWordOfAListIsNoOptionAndIsQuotedForAnyBlank) {
  const std::string here = std::string(".") + folderSeparator;
  EXPECT_EQ(plainNameWord("a.class"), "a.class");
  EXPECT_EQ(plainNameWord("a b"), "\"a b\"");
  EXPECT_EQ(plainNameWord(" a"), "\" a\"");
  EXPECT_EQ(plainNameWord("-C"), here + "-C");
  EXPECT_EQ(plainNameWord("@list"), here + "@list");
  EXPECT_EQ(plainNameWord("@my list"), '"' + here + "@my list\"");
  EXPECT_EQ(plainNameWord("a-b@c"), "a-b@c");
}

TEST(FoldersTest, ACommandLineOfSomeThousandCharactersIsNeverTooLong) {
  EXPECT_GE(longestCommandLine(), 32766U);
}

}  // namespace
}  // namespace tarnwick::platform
