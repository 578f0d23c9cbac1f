#include "platform/FileSystem.h"
#include "platform/Replacement.h"
#include "support/TestProgram.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

using test::contentOf;
using test::ScratchFolder;
using test::writeFile;

mode_t permissionsOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0);
  return status.st_mode & 07777;
}

TEST(PosixReplacement, TakesThePermissionsOfWhatItReplaces) {
  const ScratchFolder folder;
  writeFile(folder.file("old"), "old");
  ASSERT_EQ(::chmod(folder.file("old").c_str(), 0640), 0);
  std::FILE* stream = openReplacement(folder.file("new"), "w", false);
  ASSERT_TRUE(stream);
  ASSERT_TRUE(putInPlace(stream, folder.file("new"), folder.file("old")));
  std::fclose(stream);
  EXPECT_EQ(permissionsOf(folder.file("old")), 0640u);
}

TEST(PosixReplacement, CanBeKeptFromOtherUsers) {
  const ScratchFolder folder;
  std::FILE* stream = openReplacement(folder.file("new"), "w", true);
  ASSERT_TRUE(stream);
  std::fclose(stream);
  EXPECT_EQ(permissionsOf(folder.file("new")), 0600u);
}

TEST(PosixReplacement, ALinkIsNotFollowed) {
  const ScratchFolder folder;
  writeFile(folder.file("precious"), "content");
  std::filesystem::create_symlink("precious", folder.file("new"));
  EXPECT_FALSE(openReplacement(folder.file("new"), "w", false));
  EXPECT_EQ(errno, ELOOP);
  EXPECT_EQ(contentOf(folder.file("precious")), "content");
}

TEST(PosixReplacement, AFileOfAnotherUserIsNotTaken) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make another user's file";
  const ScratchFolder folder;
  writeFile(folder.file("new"), "theirs");
  ASSERT_EQ(::chown(folder.file("new").c_str(), 65534, 65534), 0);
  EXPECT_FALSE(openReplacement(folder.file("new"), "w", false));
  EXPECT_EQ(errno, EACCES);
  EXPECT_EQ(contentOf(folder.file("new")), "theirs");
}

/// Where a file cannot be moved, as from one disk to another, the content goes over what is there.
class WrittenOver : public testing::Test {
 protected:
  void SetUp() override {
    if (::access("/dev/shm", W_OK) != 0) GTEST_SKIP() << "no second disk at /dev/shm";
    struct stat there {};
    struct stat here {};
    ASSERT_EQ(::stat("/dev/shm", &there), 0);
    ASSERT_EQ(::stat(folder_.path().c_str(), &here), 0);
    if (there.st_dev == here.st_dev) GTEST_SKIP() << "no second disk at /dev/shm";
    path_ = "/dev/shm/tarnwick-test-" + std::to_string(processId()) + ".tmp";
  }

  bool write(const std::string& content) {
    std::FILE* stream = openReplacement(path_, "w", true);
    if (!stream) return false;
    std::fputs(content.c_str(), stream);
    EXPECT_TRUE(flushToDisk(stream));
    const bool done = putInPlace(stream, path_, folder_.file("old"));
    const int reason = errno;
    EXPECT_EQ(isFile(path_), !done) << "nothing is left on success";
    if (!done) discardReplacement(stream, path_);
    std::fclose(stream);
    errno = reason;
    return done;
  }

  ScratchFolder folder_;
  std::string path_;
};

TEST_F(WrittenOver, TheFileStaysTheSameOneWithTheNewContent) {
  for (const std::size_t before : {0, 1, 5000, 20000}) {
    for (const std::size_t after : {0, 1, 5000, 20000}) {
      writeFile(folder_.file("old"), std::string(before, 'o'));
      struct stat old {};
      struct stat fresh {};
      ASSERT_EQ(::stat(folder_.file("old").c_str(), &old), 0);
      EXPECT_TRUE(write(std::string(after, 'n')));
      ASSERT_EQ(::stat(folder_.file("old").c_str(), &fresh), 0);
      EXPECT_EQ(old.st_ino, fresh.st_ino);
      EXPECT_EQ(contentOf(folder_.file("old")), std::string(after, 'n')) << before;
    }
  }
}

TEST_F(WrittenOver, AFullDiskIsMetBeforeAnythingIsLost) {
  const std::string old(3000, 'o');
  writeFile(folder_.file("old"), old);
  std::FILE* stream = openReplacement(path_, "w", true);
  ASSERT_TRUE(stream);
  std::fputs(std::string(20000, 'n').c_str(), stream);
  ASSERT_TRUE(flushToDisk(stream));
  // No file may grow beyond a size for a while: a disk that is full then.
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small = before;
  small.rlim_cur = 10000;
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  errno = 0;
  EXPECT_FALSE(putInPlace(stream, path_, folder_.file("old")));
  EXPECT_EQ(errno, EFBIG);
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  discardReplacement(stream, path_);
  std::fclose(stream);
  EXPECT_EQ(contentOf(folder_.file("old")), old);
  EXPECT_FALSE(isFile(path_));
}

}  // namespace
}  // namespace tarnwick::platform
