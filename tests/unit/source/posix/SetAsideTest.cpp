// What bears the name of a piece and is no file like others; disks that are full; a process that is killed.
#include "platform/OwnFiles.h"
#include "source/SplitPieces.h"
#include "support/SplitterFixture.h"
#include "support/posix/FullDisk.h"
#include "support/posix/OrdinaryUser.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;

const char twoPublic[] = "public class A {} public class B {}";

class SetAsidePosixTest : public SplitterFixture {
 protected:
  Names names() const {
    Names all = platform::namesIn(scratch_.path());
    std::sort(all.begin(), all.end());
    return all;
  }

  void expectSplit() {
    const Outcome outcome = split("X.java", twoPublic);
    EXPECT_EQ(outcome.fault, std::nullopt);
    EXPECT_EQ(outcome.pieces, (Names{"public class A {}", " public class B {}"}));
  }
};

TEST_F(SetAsidePosixTest, AFileToWhichALinkOfAPiecesNameLeadsIsNotWritten) {
  fs::create_directory(path("elsewhere"));
  writeFile(path("elsewhere/precious"), "mine");
  fs::create_symlink("elsewhere/precious", path("A.java"));
  expectSplit();
  EXPECT_EQ(contentOf(path("elsewhere/precious")), "mine");
  EXPECT_EQ(fs::read_symlink(path("A.java")), "elsewhere/precious") << "the link is there again";
  EXPECT_EQ(names(), (Names{"A.java", "X.java", "elsewhere"}));
}

TEST_F(SetAsidePosixTest, AFileOfAPiecesNameThatHasASecondNameIsNotWritten) {
  fs::create_directory(path("elsewhere"));
  writeFile(path("elsewhere/precious"), "mine");
  fs::create_hard_link(path("elsewhere/precious"), path("A.java"));
  expectSplit();
  EXPECT_EQ(contentOf(path("elsewhere/precious")), "mine");
  EXPECT_TRUE(fs::equivalent(path("elsewhere/precious"), path("A.java")));
}

TEST_F(SetAsidePosixTest, ASecondNameOfTheSourceItselfIsSetAsideToo) {
  writeFile(path("X.java"), twoPublic);
  fs::create_hard_link(path("X.java"), path("A.java"));
  expectSplit();
  EXPECT_EQ(contentOf(path("X.java")), twoPublic);
  EXPECT_TRUE(fs::equivalent(path("X.java"), path("A.java")));
}

TEST_F(SetAsidePosixTest, ALinkThatLeadsNowhereMakesNothingThere) {
  fs::create_symlink("nowhere", path("A.java"));
  expectSplit();
  EXPECT_FALSE(isThere("nowhere"));
  EXPECT_EQ(fs::read_symlink(path("A.java")), "nowhere");
}

TEST_F(SetAsidePosixTest, APipeOfAPiecesNameIsNotWaitedForAndComesBack) {
  ASSERT_EQ(::mkfifo(path("B.java").c_str(), 0600), 0);
  expectSplit();
  EXPECT_TRUE(fs::is_fifo(path("B.java")));
}

TEST_F(SetAsidePosixTest, AFileThatMayNotBeWrittenComesBackAsItWas) {
  writeFile(path("A.java"), "mine");
  ASSERT_EQ(::chmod(path("A.java").c_str(), 0440), 0);
  struct stat before {};
  ASSERT_EQ(::stat(path("A.java").c_str(), &before), 0);
  expectSplit();
  struct stat after {};
  ASSERT_EQ(::stat(path("A.java").c_str(), &after), 0);
  EXPECT_EQ(after.st_mode & 07777, 0440U);
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
  EXPECT_EQ(contentOf(path("A.java")), "mine");
}

TEST_F(SetAsidePosixTest, ASourceThatMayNotBeWrittenIsSplitAndStaysSo) {
  writeFile(path("X.java"), twoPublic);
  ASSERT_EQ(::chmod(path("X.java").c_str(), 0440), 0);
  const Outcome outcome = split("X.java");
  EXPECT_EQ(outcome.pieces.size(), 2U);
  struct stat after {};
  ASSERT_EQ(::stat(path("X.java").c_str(), &after), 0);
  EXPECT_EQ(after.st_mode & 07777, 0440U);
  EXPECT_EQ(contentOf(path("X.java")), twoPublic);
}

TEST_F(SetAsidePosixTest, ADiskThatFailsAfterAnyCountOfBytesCostsNothing) {
  const std::string text = "public class A { /* */ int a; } public class B {" + std::string(9000, ' ') + "}";
  writeFile(path("A.java"), "mine");
  writeFile(path("B.java"), "mine too");
  writeFile(path("X.java"), text);
  for (const rlim_t bytes : {0, 1, 10, 25, 26, 4095, 4096, 9000}) {
    Outcome outcome;
    {
      const FullDisk disk(bytes);
      outcome = split("X.java");
    }
    const char* piece = bytes < 26 ? "A.java" : "B.java";
    EXPECT_EQ(outcome.fault, "File too large\nCan't write to file \"" + path(piece) + "\"") << bytes;
    EXPECT_EQ(contentOf(path("A.java")), "mine");
    EXPECT_EQ(contentOf(path("B.java")), "mine too");
    EXPECT_EQ(contentOf(path("X.java")), text);
    EXPECT_EQ(names(), (Names{"A.java", "B.java", "X.java"}));
  }
}

TEST_F(SetAsidePosixTest, APieceWhoseTwinTheDiskDoesNotTakeIsRefusedAndNothingStays) {
  for (const std::size_t length : {1, 20000}) {
    {
      SplitPieces pieces{Filename(path("X.java"))};
      pieces.begin("A.java", std::string(length, ' '));
      // Full only now, as a disk may be that takes the piece and not its twin.
      ASSERT_EQ(::symlink("/dev/full", path("Tarnwick_split1.tmp/alone/A.java").c_str()), 0);
      std::string fault = "none";
      try {
        pieces.end();
      } catch (const SplitPieces::CannotWriteE& failure) {
        fault = failure.message;
      }
      EXPECT_EQ(fault, "No space left on device\nCan't write to file \"" + path("A.java") + "\"") << length;
    }
    EXPECT_EQ(names(), Names{}) << length;
  }
}

TEST_F(SetAsidePosixTest, WhatWasSetAsideIsNobodyElsesToRead) {
  writeFile(path("X.java"), twoPublic);
  Tarnwickfile source = Tarnwickfile::unopened(path("X.java"), FileMode::Read);
  SourceSplitter splitter(source.name(), [] { return true; });
  splitter.run();
  struct stat folder {};
  ASSERT_EQ(::stat(path("Tarnwick_split1.tmp").c_str(), &folder), 0);
  EXPECT_EQ(folder.st_mode & 07777, 0700U);
}

TEST_F(SetAsidePosixTest, ALinkThatTheUserPutsInTheirPlaceIsNoPiece) {
  writeFile(path("X.java"), twoPublic);
  {
    Tarnwickfile source = Tarnwickfile::unopened(path("X.java"), FileMode::Read);
    SourceSplitter splitter(source.name(), [] { return true; });
    splitter.run();
    fs::rename(path("A.java"), path("elsewhere"));
    fs::create_symlink("elsewhere", path("A.java"));
  }
  EXPECT_EQ(fs::read_symlink(path("A.java")), "elsewhere");
  EXPECT_EQ(contentOf(path("elsewhere")), "public class A {}");
}

/// A disk of a few pages in the place of the fixture's folder, for a child process alone.
class SmallDiskTest : public SetAsidePosixTest {
 protected:
  static constexpr std::size_t page = 4096;
  static constexpr int notAllowed = 77;

  bool mountDisk() const {
    return ::unshare(CLONE_NEWNS) == 0 && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("small disk", scratch_.path().c_str(), "tmpfs", 0, "size=128k") == 0;
  }
  std::size_t freePages() const {
    struct statvfs disk {};
    ::statvfs(scratch_.path().c_str(), &disk);
    return disk.f_bavail * disk.f_bsize / page;
  }
  void leavePages(std::size_t count) const {
    std::string filler;
    writeFile(path("filler"), filler);
    while (freePages() > count) writeFile(path("filler"), filler += std::string(page, 'f'));
  }
  /// Runs the body of a test in a child. Its result: 0 if nothing failed there.
  int inAChild(const std::function<void()>& body) const {
    const pid_t child = ::fork();
    if (child == 0) {
      if (!mountDisk()) ::_exit(notAllowed);
      body();
      std::fflush(nullptr);
      ::_exit(HasFailure() ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
};

TEST_F(SmallDiskTest, ADiskThatIsFullAtAnyPageCostsNothing) {
  const std::string body(9000, ' ');
  const int result = inAChild([&] {
    writeFile(path("A.java"), "mine");
    writeFile(path("X.java"), "public class A {" + body + "} public class B {}");
    bool hasFailed = false;
    bool hasWorked = false;
    for (std::size_t pages = 0; pages < 12; ++pages) {
      leavePages(pages);
      const Outcome outcome = split("X.java");
      if (outcome.fault) {
        EXPECT_TRUE(outcome.fault->starts_with("No space left on device\nCan't write to file ")) << *outcome.fault;
        hasFailed = true;
      } else {
        EXPECT_EQ(outcome.pieces, (Names{"public class A {" + body + "}", " public class B {}"})) << pages;
        hasWorked = true;
      }
      EXPECT_EQ(contentOf(path("A.java")), "mine") << pages;
      EXPECT_EQ(names(), (Names{"A.java", "X.java", "filler"})) << pages;
    }
    EXPECT_TRUE(hasFailed && hasWorked);
  });
  if (result == notAllowed) GTEST_SKIP() << "this process may not mount a disk";
  EXPECT_EQ(result, 0);
}

TEST_F(SetAsidePosixTest, AFileThatCanGetNoNameNowGetsItsOwnLater) {
  // Too long for ".1.kept" behind it.
  const std::string type(250, 'A');
  const std::string name = type + ".java";
  writeFile(path(name), "mine");
  writeFile(path("X.java"), "public class " + type + " {} public class B {}");
  {
    Tarnwickfile source = Tarnwickfile::unopened(path("X.java"), FileMode::Read);
    SourceSplitter splitter(source.name(), [] { return true; });
    splitter.run();
    writeFile(path(name), "newer");
  }
  EXPECT_EQ(contentOf(path(name)), "newer");
  EXPECT_EQ(names(), (Names{name, "Tarnwick_split1.tmp", "X.java"})) << "the older one waits";
  EXPECT_EQ(split("Z.java", "public class Z {}").fault, std::nullopt);
  EXPECT_EQ(contentOf(path(name)), "newer");
  fs::remove(path(name));
  EXPECT_EQ(split("Z.java").fault, std::nullopt);
  EXPECT_EQ(contentOf(path(name)), "mine");
  EXPECT_EQ(names(), (Names{name, "X.java", "Z.java"}));
}

/// While it lives this process can open so many more files.
class FewFiles {
 public:
  explicit FewFiles(int more) {
    ::getrlimit(RLIMIT_NOFILE, &before_);
    const int next = ::dup(STDIN_FILENO);
    ::close(next);
    rlimit few = before_;
    few.rlim_cur = static_cast<rlim_t>(next + more);
    ::setrlimit(RLIMIT_NOFILE, &few);
  }
  ~FewFiles() { ::setrlimit(RLIMIT_NOFILE, &before_); }
  FewFiles(const FewFiles&) = delete;
  FewFiles& operator=(const FewFiles&) = delete;

 private:
  rlimit before_{};
};

TEST_F(SetAsidePosixTest, AFolderThatCannotBeLockedIsToldAndNothingOfItStays) {
  writeFile(path("A.java"), "mine");
  writeFile(path("X.java"), twoPublic);
  Outcome outcome;
  {
    const FewFiles sourceAlone(1);
    outcome = split("X.java");
  }
  EXPECT_EQ(outcome.fault, "Too many open files\nCan't process file " + path("A.java"));
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "X.java"}));
}

TEST_F(SetAsidePosixTest, AFolderOfAnotherUserUnderOurNameIsPassedOver) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make another user's folder";
  fs::create_directories(path("Tarnwick_split1.tmp/kept"));
  writeFile(path("Tarnwick_split1.tmp/in_use"), "");
  writeFile(path("Tarnwick_split1.tmp/kept/B.java"), "planted");
  ASSERT_EQ(::chown(path("Tarnwick_split1.tmp").c_str(), 65534, 65534), 0);
  expectSplit();
  EXPECT_EQ(contentOf(path("Tarnwick_split1.tmp/kept/B.java")), "planted");
  EXPECT_EQ(names(), (Names{"Tarnwick_split1.tmp", "X.java"}));
}

TEST_F(SetAsidePosixTest, ALinkUnderOurFoldersNameIsNotFollowed) {
  fs::create_directories(path("elsewhere/kept"));
  writeFile(path("elsewhere/in_use"), "");
  writeFile(path("elsewhere/kept/B.java"), "not ours");
  fs::create_symlink("elsewhere", path("Tarnwick_split1.tmp"));
  expectSplit();
  EXPECT_EQ(contentOf(path("elsewhere/kept/B.java")), "not ours");
  EXPECT_EQ(names(), (Names{"Tarnwick_split1.tmp", "X.java", "elsewhere"}));
}

TEST_F(SetAsidePosixTest, ADiskThatNamesAnotherOwnerOfAllFilesIsNoHindrance) {
  if (!OrdinaryUser::isBound()) GTEST_SKIP() << permissionsBindNobody;
  if (::geteuid() != 0) GTEST_SKIP() << "only root's files can belong to another user";
  ASSERT_EQ(::chmod(scratch_.path().c_str(), 0777), 0);
  writeFile(path("X.java"), twoPublic);
  writeFile(path("A.java"), "mine");
  {
    // What this thread makes belongs to somebody else than the process.
    const OrdinaryUser user;
    const Outcome outcome = split("X.java");
    EXPECT_EQ(outcome.fault, std::nullopt);
    EXPECT_EQ(outcome.pieces.size(), 2U);
  }
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "X.java"}));
}

/// A process that is killed in the middle: what it has set aside comes back with the next compile.
class KilledSplit : public SetAsidePosixTest {
 protected:
  /// Splits in a child that is killed while the pieces are there.
  void splitAndKill() {
    writeFile(path("X.java"), twoPublic);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      Tarnwickfile source = Tarnwickfile::unopened(path("X.java"), FileMode::Read);
      SourceSplitter splitter(source.name(), [] { return true; });
      splitter.run();
      ::raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
  }
};

TEST_F(KilledSplit, TheNextCompilePutsTheFileBack) {
  writeFile(path("A.java"), "mine");
  splitAndKill();
  EXPECT_EQ(contentOf(path("A.java")), "public class A {}") << "killed while the piece was there";
  EXPECT_EQ(split("Z.java", "public class Z {}").fault, std::nullopt);
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "X.java", "Z.java"}));
}

TEST_F(KilledSplit, ALinkAndAPipeComeBackToo) {
  fs::create_symlink("nowhere", path("A.java"));
  ASSERT_EQ(::mkfifo(path("B.java").c_str(), 0600), 0);
  splitAndKill();
  EXPECT_TRUE(fs::is_regular_file(path("B.java")));
  EXPECT_EQ(split("Z.java", "public class Z {}").fault, std::nullopt);
  EXPECT_EQ(fs::read_symlink(path("A.java")), "nowhere");
  EXPECT_TRUE(fs::is_fifo(path("B.java")));
}

TEST_F(KilledSplit, TheSameSourceCanBeSplitAtOnce) {
  writeFile(path("A.java"), "mine");
  for (int i = 0; i < 3; ++i) splitAndKill();
  expectSplit();
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_EQ(names(), (Names{"A.java", "X.java"}));
}

}  // namespace
}  // namespace tarnwick::test
