#include "base/ReplacingFile.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"
#include "support/posix/OwnDevice.h"

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick {
namespace {

using test::contentOf;
using test::ScratchFolder;
using test::writeFile;

/// Lets the process act as an ordinary user for a while: permissions bind nobody who is root.
class AsOrdinaryUser {
 public:
  explicit AsOrdinaryUser(const ScratchFolder& folder, const ScratchFolder* another = nullptr) : user_(::geteuid()) {
    if (user_ != 0) return;
    giveAway(folder.path(), nobody);
    if (another) giveAway(another->path(), nobody);
    if (::seteuid(nobody) != 0) ADD_FAILURE() << "can't act as another user";
  }
  ~AsOrdinaryUser() {
    if (::seteuid(user_) != 0) ADD_FAILURE() << "can't act as myself again";
  }
  AsOrdinaryUser(const AsOrdinaryUser&) = delete;
  AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

  /// False for a superuser who may not act as another one.
  static bool isPossible() { return ::geteuid() != 0 || (::seteuid(nobody) == 0 && ::seteuid(0) == 0); }

 private:
  static constexpr uid_t nobody = 65534;

  static void giveAway(const std::string& path, uid_t user) {
    EXPECT_EQ(::chown(path.c_str(), user, static_cast<gid_t>(-1)), 0);
    for (const auto& entry : std::filesystem::directory_iterator(path))
      EXPECT_EQ(::lchown(entry.path().c_str(), user, static_cast<gid_t>(-1)), 0);
  }

  uid_t user_;
};

/// No file may grow beyond a size for a while: a disk that fails after so many bytes.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &before_), 0);
    rlimit small = before_;
    small.rlim_cur = bytes;
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  }
  ~SmallDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

mode_t permissionsOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0);
  return status.st_mode & 07777;
}

std::ptrdiff_t countIn(const ScratchFolder& folder) {
  return std::distance(std::filesystem::directory_iterator(folder.path()), std::filesystem::directory_iterator());
}

/// The message with which the save of `target` fails; the exception must bear the target's name.
std::string failureOfSave(const std::string& target, const std::string& content = "new") {
  try {
    ReplacingFile file(target);
    std::fputs(content.c_str(), file.stream());
    file.commit();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.file, target);
    return failure.message;
  }
  return "";
}

TEST(PosixReplacingFile, TheTargetKeepsItsPermissions) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  ASSERT_EQ(::chmod(folder.file("x.cfg").c_str(), 0640), 0);
  EXPECT_EQ(failureOfSave(folder.file("x.cfg")), "");
  EXPECT_EQ(permissionsOf(folder.file("x.cfg")), 0640u);
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
}

TEST(PosixReplacingFile, ANewTargetHasThePermissionsOfAnyNewFile) {
  const ScratchFolder folder;
  const mode_t before = ::umask(027);
  EXPECT_EQ(failureOfSave(folder.file("x.cfg")), "");
  ::umask(before);
  EXPECT_EQ(permissionsOf(folder.file("x.cfg")), 0640u);
}

TEST(PosixReplacingFile, WhatIsToReplaceAFileIsItsOwnersAloneUntilItDoes) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  ASSERT_EQ(::chmod(folder.file("x.cfg").c_str(), 0644), 0);
  ReplacingFile file(folder.file("x.cfg"));
  EXPECT_EQ(permissionsOf(folder.file("x.cfg.tarnwick-1.tmp")), 0600u);
  file.commit();
  EXPECT_EQ(permissionsOf(folder.file("x.cfg")), 0644u);
}

TEST(PosixReplacingFile, AFreshFileOfAnotherUserIsPassedOver) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make another user's file";
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  writeFile(folder.file("x.cfg.tarnwick-1.tmp"), "theirs");
  ASSERT_EQ(::chown(folder.file("x.cfg.tarnwick-1.tmp").c_str(), 65534, 65534), 0);
  EXPECT_EQ(failureOfSave(folder.file("x.cfg")), "");
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_EQ(contentOf(folder.file("x.cfg.tarnwick-1.tmp")), "theirs");
  EXPECT_EQ(countIn(folder), 2);
}

TEST(PosixReplacingFile, ALinkUnderTheFreshFilesNameIsPassedOver) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  writeFile(folder.file("precious"), "content");
  std::filesystem::create_symlink("precious", folder.file("x.cfg.tarnwick-1.tmp"));
  EXPECT_EQ(failureOfSave(folder.file("x.cfg")), "");
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_EQ(contentOf(folder.file("precious")), "content");
}

TEST(PosixReplacingFile, APipeUnderTheFreshFilesNameIsPassedOver) {
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  ASSERT_EQ(::mkfifo(folder.file("x.cfg.tarnwick-1.tmp").c_str(), 0600), 0);
  EXPECT_EQ(failureOfSave(folder.file("x.cfg")), "");
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_TRUE(std::filesystem::is_fifo(folder.file("x.cfg.tarnwick-1.tmp")));
}

TEST(PosixReplacingFile, ATargetThatIsALinkStaysOne) {
  const ScratchFolder folder;
  ASSERT_TRUE(platform::makeFolders(folder.file("inner")));
  writeFile(folder.file("inner/x.cfg"), "old");
  std::filesystem::create_symlink("inner/x.cfg", folder.file("link.cfg"));
  EXPECT_EQ(failureOfSave(folder.file("link.cfg")), "");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link.cfg")));
  EXPECT_EQ(contentOf(folder.file("inner/x.cfg")), "new");
}

TEST(PosixReplacingFile, ALinkToWhatDoesNotExistMakesIt) {
  const ScratchFolder folder;
  std::filesystem::create_symlink("x.cfg", folder.file("link.cfg"));
  EXPECT_EQ(failureOfSave(folder.file("link.cfg")), "");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link.cfg")));
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_EQ(countIn(folder), 2);
}

TEST(PosixReplacingFile, ALinkIntoAFolderThatIsMissingMakesBoth) {
  const ScratchFolder folder;
  std::filesystem::create_symlink("missing/inner/x.cfg", folder.file("link.cfg"));
  EXPECT_EQ(failureOfSave(folder.file("link.cfg")), "");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link.cfg")));
  EXPECT_EQ(contentOf(folder.file("missing/inner/x.cfg")), "new");
}

TEST(PosixReplacingFile, ALinkThatLeadsToItselfThrowsAndStays) {
  const ScratchFolder folder;
  std::filesystem::create_symlink("there.cfg", folder.file("here.cfg"));
  std::filesystem::create_symlink("here.cfg", folder.file("there.cfg"));
  EXPECT_EQ(failureOfSave(folder.file("here.cfg")), "Too many levels of symbolic links");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("here.cfg")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("there.cfg")));
  EXPECT_EQ(countIn(folder), 2);
}

TEST(PosixReplacingFile, APipeIsWrittenIfSomebodyReadsItAndStaysOne) {
  const ScratchFolder folder;
  const std::string path = folder.file("pipe");
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(failureOfSave(path), "No such device or address");
  const int reader = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  ASSERT_GE(reader, 0);
  EXPECT_EQ(failureOfSave(path), "");
  char text[10] = "";
  EXPECT_EQ(::read(reader, text, sizeof text), 3);
  EXPECT_STREQ(text, "new");
  ::close(reader);
  EXPECT_TRUE(std::filesystem::is_fifo(path));
  EXPECT_EQ(countIn(folder), 1);
}

TEST(PosixReplacingFile, ATargetThatIsNotWritableThrowsAndStays) {
  if (!AsOrdinaryUser::isPossible()) GTEST_SKIP() << "this superuser may not act as another user";
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "old");
  ASSERT_EQ(::chmod(folder.file("x.cfg").c_str(), 0444), 0);
  const AsOrdinaryUser ordinary(folder);
  EXPECT_EQ(failureOfSave(folder.file("x.cfg")), "Permission denied");
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "old");
  EXPECT_EQ(countIn(folder), 1);
}

TEST(PosixReplacingFile, AFolderThatTakesNoNewFileLetsTheTargetBeWritten) {
  if (!AsOrdinaryUser::isPossible()) GTEST_SKIP() << "this superuser may not act as another user";
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "a longer old content");
  const AsOrdinaryUser ordinary(folder);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
  EXPECT_EQ(failureOfSave(folder.file("x.cfg")), "");
  ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
}

TEST(PosixReplacingFile, AFailedSaveInAFolderThatTakesNoNewFileLeavesTheTargetWhole) {
  if (!AsOrdinaryUser::isPossible()) GTEST_SKIP() << "this superuser may not act as another user";
  const ScratchFolder folder;
  const ScratchFolder temporary;
  const test::ScopedEnvironment variable("TMPDIR", temporary.path());
  const std::string target = folder.file("x.cfg");
  writeFile(target, "old");
  const AsOrdinaryUser ordinary(folder, &temporary);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
  {
    ReplacingFile file(target);
    std::fputs("half of the new", file.stream());
    std::fflush(file.stream());
    EXPECT_EQ(contentOf(target), "old") << "nothing happens before the commit";
    EXPECT_EQ(countIn(temporary), 1);
    EXPECT_EQ(permissionsOf(temporary.file("tarnwick-save.tarnwick-1.tmp")), 0600u) << "anybody may look in there";
  }
  EXPECT_EQ(contentOf(target), "old");
  {
    const SmallDisk disk(5000);
    EXPECT_EQ(failureOfSave(target, std::string(10000, 'x')), "File too large");
  }
  EXPECT_EQ(contentOf(target), "old");
  EXPECT_EQ(failureOfSave(target, "new"), "");
  EXPECT_EQ(contentOf(target), "new");
  EXPECT_EQ(countIn(temporary), 0) << "nothing is left there";
  ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
}

TEST(PosixReplacingFile, ANameThatIsTooLongForAFreshFileBesideItIsSavedAllTheSame) {
  const ScratchFolder folder;
  const std::string target = folder.file(std::string(253, 'x'));
  writeFile(target, "a longer old content");
  EXPECT_EQ(failureOfSave(target), "");
  EXPECT_EQ(contentOf(target), "new");
  EXPECT_EQ(countIn(folder), 1);
}

TEST(PosixReplacingFile, AFolderThatTakesNoNewFileAndHasNoTargetThrows) {
  if (!AsOrdinaryUser::isPossible()) GTEST_SKIP() << "this superuser may not act as another user";
  const ScratchFolder folder;
  const AsOrdinaryUser ordinary(folder);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
  EXPECT_EQ(failureOfSave(folder.file("x.cfg")), "Permission denied");
  ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
  EXPECT_EQ(countIn(folder), 0);
}

TEST(PosixReplacingFile, AFileThatWouldChangeHandsIsWrittenInItsPlace) {
  if (!AsOrdinaryUser::isPossible()) GTEST_SKIP() << "this superuser may not act as another user";
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make another user's file";
  const ScratchFolder folder;
  writeFile(folder.file("x.cfg"), "a longer old content");
  struct stat before {};
  {
    const AsOrdinaryUser ordinary(folder);
    ASSERT_EQ(::seteuid(0), 0);
    ASSERT_EQ(::chown(folder.file("x.cfg").c_str(), 0, 0), 0);
    ASSERT_EQ(::chmod(folder.file("x.cfg").c_str(), 0666), 0);
    ASSERT_EQ(::stat(folder.file("x.cfg").c_str(), &before), 0);
    ASSERT_EQ(::seteuid(65534), 0);
    EXPECT_EQ(failureOfSave(folder.file("x.cfg")), "");
  }
  struct stat after {};
  ASSERT_EQ(::stat(folder.file("x.cfg").c_str(), &after), 0);
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_uid, 0u);
  EXPECT_EQ(contentOf(folder.file("x.cfg")), "new");
  EXPECT_EQ(countIn(folder), 1);
}

TEST(PosixReplacingFile, ADiskThatFailsAfterAnyCountOfBytesCostsNothing) {
  const ScratchFolder folder;
  const std::string target = folder.file("x.cfg");
  writeFile(target, "old");
  const std::string content(10000, 'x');
  for (const rlim_t bytes : {0, 1, 100, 4095, 4096, 4097, 8192, 9999}) {
    std::string message;
    {
      const SmallDisk disk(bytes);
      message = failureOfSave(target, content);
    }
    EXPECT_EQ(message, "File too large") << bytes;
    EXPECT_EQ(contentOf(target), "old") << bytes;
    EXPECT_EQ(countIn(folder), 1) << bytes;
  }
  {
    const SmallDisk disk(content.size());
    EXPECT_EQ(failureOfSave(target, content), "");
  }
  EXPECT_EQ(contentOf(target), content);
}

TEST(PosixReplacingFile, ADeviceIsWrittenAndNotReplaced) {
  const test::OwnDevice device("null", 3);
  if (!device.isUsable()) GTEST_SKIP() << test::noOwnDevice;
  EXPECT_EQ(failureOfSave(device.path()), "");
  EXPECT_TRUE(std::filesystem::is_character_file(device.path()));
}

TEST(PosixReplacingFile, AFullDiskIsTold) {
  const test::OwnDevice device("full", 7);
  if (!device.isUsable()) GTEST_SKIP() << test::noOwnDevice;
  EXPECT_EQ(failureOfSave(device.path()), "No space left on device");
  EXPECT_TRUE(std::filesystem::is_character_file(device.path()));
}

}  // namespace
}  // namespace tarnwick
