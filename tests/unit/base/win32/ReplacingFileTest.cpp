#include "base/ReplacingFile.h"
#include "support/TestProgram.h"

#include <windows.h>

#include <cstdio>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(WindowsReplacingFile, AReadOnlyTargetIsNotReplaced) {
  const test::ScratchFolder folder;
  const std::string target = folder.file("x.cfg");
  test::writeFile(target, "old");
  ASSERT_TRUE(SetFileAttributesA(target.c_str(), FILE_ATTRIBUTE_READONLY));
  if (std::FILE* stream = std::fopen(target.c_str(), "r+")) {
    std::fclose(stream);
    ASSERT_TRUE(SetFileAttributesA(target.c_str(), FILE_ATTRIBUTE_NORMAL));
    GTEST_SKIP() << "this user may write read-only files (root, under Wine)";
  }
  try {
    const ReplacingFile file(target);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "Permission denied");
    EXPECT_EQ(failure.file, target);
  }
  EXPECT_EQ(test::contentOf(target), "old");
  ASSERT_TRUE(SetFileAttributesA(target.c_str(), FILE_ATTRIBUTE_NORMAL));
}

}  // namespace
}  // namespace tarnwick
