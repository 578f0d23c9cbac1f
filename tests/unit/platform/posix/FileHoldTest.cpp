#include "platform/FileHold.h"
#include "support/TestProgram.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

bool isThere(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0;
}

TEST(PosixFileHoldTest, AKilledProcessHoldsNothing) {
  const test::ScratchFolder folder;
  const std::string file = folder.file("file.tmp");
  test::writeFile(file, "text");
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  const pid_t holder = ::fork();
  if (holder == 0) {
    const FileHold hold(file);
    if (::write(ready[1], "x", 1) == 1) ::pause();
    ::_exit(0);
  }
  char word = 0;
  ASSERT_EQ(::read(ready[0], &word, 1), 1);
  deleteUnheld(file);
  EXPECT_TRUE(isThere(file));
  ::kill(holder, SIGKILL);
  ::waitpid(holder, nullptr, 0);
  deleteUnheld(file);
  EXPECT_FALSE(isThere(file));
  ::close(ready[0]);
  ::close(ready[1]);
}

TEST(PosixFileHoldTest, WhatIsNoPlainFileUnderOneNameStays) {
  const test::ScratchFolder folder;
  const std::string target = folder.file("target");
  test::writeFile(target, "text");
  ASSERT_EQ(::symlink(target.c_str(), folder.file("link").c_str()), 0);
  ASSERT_EQ(::link(target.c_str(), folder.file("second").c_str()), 0);
  ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
  const std::string alone = folder.file("under one name");
  test::writeFile(alone, "text");
  ASSERT_EQ(::symlink(alone.c_str(), folder.file("link to it").c_str()), 0);
  for (const char* name : {"target", "link", "second", "pipe", "link to it"}) {
    deleteUnheld(folder.file(name));
    EXPECT_TRUE(isThere(folder.file(name))) << name;
  }
}

TEST(PosixFileHoldTest, AnotherUsersFileStays) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make another user's file";
  const test::ScratchFolder folder;
  const std::string file = folder.file("file.tmp");
  test::writeFile(file, "theirs");
  ASSERT_EQ(::chown(file.c_str(), 65534, 65534), 0);
  deleteUnheld(file);
  EXPECT_TRUE(isThere(file));
}

}  // namespace
}  // namespace tarnwick::platform
