#include "platform/FileHold.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <utility>

namespace tarnwick::platform {
namespace {

class FileHoldTest : public testing::Test {
 protected:
  FileHoldTest() { test::writeFile(file_, "text"); }

  bool survives() {
    deleteUnheld(file_);
    return isFile(file_);
  }

  test::ScratchFolder folder_;
  std::string file_ = folder_.file("file.tmp");
};

TEST_F(FileHoldTest, AFileThatNobodyHoldsIsDeleted) {
  EXPECT_FALSE(survives());
  deleteUnheld(file_);
}

TEST_F(FileHoldTest, AFileStaysForAsLongAsItIsHeld) {
  FileHold first(file_);
  {
    const FileHold second(file_);
    EXPECT_TRUE(survives());
  }
  EXPECT_TRUE(survives());
  FileHold moved = std::move(first);
  EXPECT_TRUE(survives());
  moved = FileHold();
  EXPECT_FALSE(survives());
}

TEST_F(FileHoldTest, AHeldFileMayBeReadAndWritten) {
  const FileHold hold(file_);
  test::writeFile(file_, "other");
  EXPECT_EQ(test::contentOf(file_), "other");
}

TEST_F(FileHoldTest, WhatIsNotThereIsNotHeld) {
  const FileHold nothing(folder_.file("nothing"));
  EXPECT_FALSE(isFile(folder_.file("nothing")));
}

TEST_F(FileHoldTest, AFolderStays) {
  ASSERT_TRUE(makeFolders(folder_.file("folder")));
  deleteUnheld(folder_.file("folder"));
  EXPECT_TRUE(isFolder(folder_.file("folder")));
}

}  // namespace
}  // namespace tarnwick::platform
