// What bears the name of a piece and is no file like others; disks that are full; a process that is killed.
#include "platform/OwnFiles.h"
#include "support/SplitterFixture.h"
#include "support/posix/FullDisk.h"
#include "support/posix/OrdinaryUser.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <sys/stat.h>
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
      SourceSplitter splitter(source, [] { return true; });
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
