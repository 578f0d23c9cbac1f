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

}  // namespace
}  // namespace tarnwick
