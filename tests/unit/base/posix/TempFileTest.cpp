#include "base/TempFile.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick {
namespace {

using test::ScratchFolder;

// The rule is the same everywhere; ten thousand files are made only where that takes no time.
TEST(PosixTempFile, AfterTheLastCandidateItGivesUp) {
  const ScratchFolder folder;
  constexpr int last = 9998;
  const auto name = [&](int number) { return folder.file("Tarnwick_LOG" + std::to_string(number) + ".tmp"); };
  for (int i = 1; i <= last; ++i) ASSERT_TRUE(platform::claimFile(name(i)));
  TempFile file("Tarnwick_LOG", folder.path());
  try {
    file.openTemp(FileMode::Write);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "Can't create temporary file ");
    EXPECT_EQ(failure.file, name(last));
  }
  ASSERT_TRUE(platform::deleteFile(name(last)));
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), name(last));
}

TEST(PosixTempFile, ALinkThatLeadsNowhereIsNotFollowed) {
  const ScratchFolder folder;
  ASSERT_EQ(::symlink("elsewhere", folder.file("Tarnwick_LOG1.tmp").c_str()), 0);
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), folder.file("Tarnwick_LOG2.tmp"));
  EXPECT_FALSE(platform::isFile(folder.file("elsewhere")));
}

/// Three files that were last changed long ago, and none of which we have made.
class OldFilesOfOthers : public testing::Test {
 protected:
  std::string name(int number) const { return folder_.file("Tarnwick_LOG" + std::to_string(number) + ".tmp"); }

  static void makeOld(const std::string& path) {
    const timespec old[2] = {{1000000000, 0}, {1000000000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), old, 0), 0);
  }

  void expectNumber(int number) {
    TempFile file("Tarnwick_LOG", folder_.path());
    file.openTemp(FileMode::Write);
    EXPECT_EQ(file.name().fullName(), name(number));
  }

  const ScratchFolder folder_;
};

TEST_F(OldFilesOfOthers, WhatALinkLeadsToIsNoLeftover) {
  test::writeFile(folder_.file("precious"), "mine");
  makeOld(folder_.file("precious"));
  ASSERT_EQ(::symlink("precious", name(1).c_str()), 0);
  expectNumber(2);
  EXPECT_EQ(test::contentOf(folder_.file("precious")), "mine");
}

TEST_F(OldFilesOfOthers, AFileOfAnotherUserIsNoLeftover) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make another user's file";
  test::writeFile(name(1), "theirs");
  makeOld(name(1));
  ASSERT_EQ(::chown(name(1).c_str(), 65534, 65534), 0);
  expectNumber(2);
  EXPECT_EQ(test::contentOf(name(1)), "theirs");
}

TEST_F(OldFilesOfOthers, APipeIsNoLeftover) {
  ASSERT_EQ(::mkfifo(name(1).c_str(), 0600), 0);
  makeOld(name(1));
  expectNumber(2);
}

TEST_F(OldFilesOfOthers, ALinkThatTookTheNameMeanwhileIsNotWrittenThrough) {
  test::writeFile(folder_.file("precious"), "mine");
  TempFile file("Tarnwick_LOG", folder_.path());
  file.openTemp(FileMode::Write);
  file.close();
  ASSERT_TRUE(platform::deleteFile(name(1)));
  ASSERT_EQ(::symlink("precious", name(1).c_str()), 0);
  file.openTemp(FileMode::Write);
  EXPECT_EQ(file.name().fullName(), name(2));
  EXPECT_EQ(test::contentOf(folder_.file("precious")), "mine");
}

}  // namespace
}  // namespace tarnwick
