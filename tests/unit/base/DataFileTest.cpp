#include "base/DataFile.h"
#include "base/ProgramInfo.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using test::writeFile;

class DataFileTest : public testing::Test {
 protected:
  std::string folder(const std::string& name) const {
    const std::string path = scratch_.file(name) + platform::folderSeparator;
    platform::makeFolders(path);
    return path;
  }
  std::string found() {
    program_.programDirectory = folder("bin");
    return dataFile(program_, "usersguide.htm");
  }

  test::ScratchFolder scratch_;
  ProgramInfo program_;
};

TEST_F(DataFileTest, WithoutTheFileItIsTheOneBesideTheProgram) {
  EXPECT_EQ(found(), folder("bin") + "usersguide.htm");
}

TEST_F(DataFileTest, APackagePutsItIntoTheFolderOfSharedData) {
  const std::string shared = folder(std::string("share") + platform::folderSeparator + "tarnwick") + "usersguide.htm";
  writeFile(shared, "guide");
  EXPECT_EQ(found(), platform::resolvedPath(shared)) << "without the way up and down again";
}

TEST_F(DataFileTest, WhatStandsBesideTheProgramComesFirst) {
  writeFile(folder(std::string("share") + platform::folderSeparator + "tarnwick") + "usersguide.htm", "guide");
  writeFile(folder("bin") + "usersguide.htm", "guide");
  EXPECT_EQ(found(), folder("bin") + "usersguide.htm");
}

TEST_F(DataFileTest, AFolderOfThatNameIsNoFile) {
  writeFile(folder(std::string("share") + platform::folderSeparator + "tarnwick") + "usersguide.htm", "guide");
  platform::makeFolders(folder("bin") + "usersguide.htm");
  EXPECT_NE(found(), folder("bin") + "usersguide.htm");
}

}  // namespace
}  // namespace tarnwick
