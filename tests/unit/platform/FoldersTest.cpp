#include "platform/FileSystem.h"
#include "platform/Folders.h"
#include "platform/OwnFiles.h"
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

TEST(FoldersTest, EverythingIsListedButTheDots) {
  const test::ScratchFolder scratch;
  for (const char* name : {"two words", ".hidden", "..x"}) makeFolders(scratch.file(name));
  for (const char* name : {"file", ".dot"}) test::writeFile(scratch.file(name), "");
  Names found = namesIn(scratch.path());
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, (Names{"..x", ".dot", ".hidden", "file", "two words"}));
  for (const std::string& none : {scratch.file("none"), scratch.file("file"), std::string()})
    EXPECT_EQ(namesIn(none), Names{}) << none;
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

TEST(FoldersTest, ACommandLineOfSomeThousandCharactersIsNeverTooLong) {
  EXPECT_GE(longestCommandLine(), 32766U);
}

}  // namespace
}  // namespace tarnwick::platform
