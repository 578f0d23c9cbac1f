#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"
#include "support/posix/OrdinaryUser.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick {
namespace {

using test::OrdinaryUser;
using test::ScratchFolder;
using test::writeFile;

// Only here can a file be deleted while it is open.
TEST(PosixTarnwickfile, AnOpenFileThatCannotBeOpenedAgainIsClosed) {
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
  ASSERT_TRUE(platform::deleteFile(folder.file("x.txt")));
  try {
    file.open(FileMode::Undefined);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "No such file or directory");
    EXPECT_EQ(failure.where, "unknown");
  }
  EXPECT_FALSE(file.isOpen());
}

TEST(PosixTarnwickfile, AFileWithoutTheRightToReadIsToldSo) {
  if (!OrdinaryUser::isBound()) GTEST_SKIP() << test::permissionsBindNobody;
  const ScratchFolder folder;
  writeFile(folder.file("x.txt"), "text");
  ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
  ASSERT_EQ(::chmod(folder.file("x.txt").c_str(), 0), 0);
  const OrdinaryUser user;
  try {
    const Tarnwickfile file(folder.file("x.txt"), FileMode::Read);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "Permission denied");
  }
}

TEST(PosixTarnwickfile, ANameLongerThanTheSystemTakesIsToldSo) {
  const ScratchFolder folder;
  try {
    const Tarnwickfile file(folder.file(std::string(300, 'x')), FileMode::Write);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "File name too long");
    EXPECT_EQ(failure.file, folder.file(std::string(300, 'x')));
  }
}

/// Why the file is not opened for its content; empty if it is.
std::string refusalOf(const std::string& path) {
  auto file = Tarnwickfile::unopened(path, FileMode::Read);
  try {
    file.openContent(FileMode::Read);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.file, path);
    EXPECT_FALSE(file.isOpen());
    return failure.message;
  }
  return "";
}

TEST(PosixTarnwickfile, DevicesPipesAndFilesOfTheKernelAreNotRead) {
  const ScratchFolder folder;
  ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
  ASSERT_EQ(::symlink("/dev/zero", folder.file("link to a device").c_str()), 0);
  ASSERT_EQ(::symlink("pipe", folder.file("link to a pipe").c_str()), 0);
  for (const auto& path : {folder.file("pipe"), folder.file("link to a device"), folder.file("link to a pipe"),
                           std::string("/dev/zero"), std::string("/proc/self/maps")}) {
    EXPECT_EQ(refusalOf(path), "Not a regular file") << path;
    EXPECT_THROW(Tarnwickfile(path, FileMode::Read), Tarnwickfile::FileNotOpenE) << path;
  }
  writeFile(folder.file("plain"), "x");
  ASSERT_EQ(::symlink("plain", folder.file("link to a file").c_str()), 0);
  EXPECT_EQ(refusalOf(folder.file("link to a file")), "");
  EXPECT_EQ(refusalOf(folder.file("missing")), "No such file or directory");
  EXPECT_EQ(refusalOf(folder.path()), "Is a directory");
}

TEST(PosixTarnwickfile, ADeviceMayBeWritten) {
  Tarnwickfile device("/dev/null", FileMode::Write);
  EXPECT_TRUE(device.isOpen());
}

TEST(PosixTarnwickfile, MoreThan64MebibytesAreNotRead) {
  const ScratchFolder folder;
  writeFile(folder.file("large"), "");
  // A hole takes no room on the disk.
  ASSERT_EQ(::truncate(folder.file("large").c_str(), 64L * 1024 * 1024), 0);
  EXPECT_EQ(refusalOf(folder.file("large")), "");
  ASSERT_EQ(::truncate(folder.file("large").c_str(), 64L * 1024 * 1024 + 1), 0);
  EXPECT_EQ(refusalOf(folder.file("large")), "Larger than 64 MiB");
  EXPECT_TRUE(Tarnwickfile(folder.file("large"), FileMode::Read).isOpen()) << "it is there all the same";
}

TEST(PosixTarnwickfile, ARelativeNameInAFolderWithALineEndIsRefused) {
  const ScratchFolder folder;
  const std::string bad = folder.file("a\nb");
  ASSERT_TRUE(platform::makeFolders(bad));
  writeFile(bad + "/x.txt", "");
  const std::string before = platform::currentDirectory();
  ASSERT_TRUE(platform::changeDirectory(bad));
  EXPECT_EQ(refusalOf("x.txt"), "The name holds a line end");
  platform::changeDirectory(before);
}

}  // namespace
}  // namespace tarnwick
