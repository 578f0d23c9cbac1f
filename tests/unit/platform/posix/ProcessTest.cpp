#include "platform/FileSystem.h"
#include "platform/Process.h"
#include "support/Children.h"
#include "support/posix/ProcessTable.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

using test::outputOf;
using test::processFields;
using test::processLives;
using test::readAll;
using test::StandInScript;
using test::waitUntil;
using Stream = ChildProcess::Stream;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

std::string java() {
  return StandInScript::tool("java");
}

/// Counts processes whose field with this index (0 state, 1 parent, 2 group) is `value`, and whose state is `state` if
/// that is given.
int processesWith(std::size_t field, int value, const std::string& state = "") {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    const std::string name = entry.path().filename().string();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    const auto fields = processFields(name);
    if (fields.size() > field && fields[field] == std::to_string(value) && (state.empty() || fields[0] == state)) {
      ++count;
    }
  }
  return count;
}

int ourZombies() {
  return processesWith(1, getpid(), "Z");
}

std::ptrdiff_t openDescriptors() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
}

/// Runs `work` in a copy of this process, which then ends with its result.
pid_t inACopy(const std::function<int()>& work) {
  const pid_t copy = fork();
  if (copy == 0) _exit(work());
  return copy;
}

int resultOf(pid_t copy) {
  int status = 0;
  waitpid(copy, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

TEST(PosixProcessTest, SentencesComeFromTheSystem) {
  errno = ENOENT;
  EXPECT_EQ(lastSystemError("CreatePipe()").text(), "CreatePipe() error 2\nNo such file or directory");
}

TEST(PosixProcessTest, AFileWithoutTheRightToRunIsTold) {
  const test::ScratchFolder folder;
  test::writeFile(folder.file("plain"), "text");
  try {
    ChildProcess::start({folder.file("plain"), "", false});
    FAIL() << "started a plain file";
  } catch (const SystemError& error) {
    EXPECT_EQ(error.text(), "CreateProcess error 13\nPermission denied");
  }
}

TEST(PosixProcessTest, AFolderIsToldAsOneThatMayNotRun) {
  const test::ScratchFolder folder;
  try {
    ChildProcess::start({folder.path(), "", false});
    FAIL() << "started a folder";
  } catch (const SystemError& error) {
    EXPECT_EQ(error.text(), "CreateProcess error 13\nPermission denied");
  }
}

TEST(PosixProcessTest, AFileInNoFormatForProgramsIsTold) {
  const test::ScratchFolder folder;
  test::writeFile(folder.file("plain"), "text");
  chmod(folder.file("plain").c_str(), 0755);
  try {
    ChildProcess::start({folder.file("plain"), "", true});
    FAIL() << "started a plain file";
  } catch (const SystemError& error) {
    EXPECT_EQ(error.text(), "CreateProcess error 8\nExec format error") << "and no shell plays it";
  }
}

TEST(PosixProcessTest, AWorkingFolderThatHasGoneIsNoMissingProgram) {
  const StandInScript script("out started");
  const std::string before = currentDirectory();
  {
    const test::ScratchFolder gone;
    ASSERT_TRUE(changeDirectory(gone.path()));
    std::filesystem::remove(gone.path());
    EXPECT_EQ(outputOf(java(), ""), "started\n");
  }
  changeDirectory(before);
}

TEST(PosixProcessTest, AChildInheritsNothingButItsStreams) {
  const int extra = open("/dev/null", O_RDONLY);
  EXPECT_EQ(outputOf("/bin/ls", "/proc/self/fd"), "0\n1\n2\n3\n") << "3 is the folder that ls reads";
  close(extra);
}

TEST(PosixProcessTest, AChildStartsWithDefaultSignals) {
  std::signal(SIGPIPE, SIG_IGN);
  // The masks' low 28 bits; two of the higher numbers belong to the C library.
  EXPECT_EQ(outputOf("/bin/grep", "-cE ^Sig(Blk|Ign):.*0{7}$ /proc/self/status"), "2\n");
}

TEST(PosixProcessTest, AChildHasAGroupOfItsOwn) {
  const StandInScript script("grandchild 60000");
  const auto child = ChildProcess::start({java(), "", true});
  const int grandchild = script.grandchildren(1).at(0);
  EXPECT_NE(getpgid(grandchild), getpgrp());
  kill(grandchild, SIGKILL);
  child->wait();
}

TEST(PosixProcessTest, ADetachedProgramLivesInASessionOfItsOwn) {
  const test::ScratchFolder folder;
  const std::string note = folder.file("note");
  startDetached("/bin/sh", {"sh", "-c", "echo $$ > \"" + note + "\"; exec sleep 60"});
  const auto noted = [&note] { return std::filesystem::exists(note) && test::contentOf(note).ends_with('\n'); };
  ASSERT_TRUE(waitUntil(noted));
  const pid_t program = std::stoi(test::contentOf(note));
  EXPECT_EQ(getsid(program), program) << "it stays when our terminal goes";
  kill(program, SIGKILL);
}

TEST(PosixProcessTest, WhatIgnoresTermIsKilledAfterTwoSeconds) {
  const StandInScript script("ignoreterm\ngrandchild 60000\nsleep 60000");
  const auto child = ChildProcess::start({java(), "", true});
  const int grandchild = script.grandchildren(1).at(0);
  const auto begin = steady_clock::now();
  child->endTree();
  EXPECT_LT(steady_clock::now() - begin, milliseconds(1900)) << "nobody waits for it";
  child->wait();
  EXPECT_TRUE(waitUntil([&] { return !processLives(grandchild); }));
  const auto taken = steady_clock::now() - begin;
  EXPECT_GT(taken, milliseconds(1900));
  EXPECT_LT(taken, milliseconds(8000));
}

TEST(PosixProcessTest, ATreeThatHeedsTermEndsAtOnce) {
  const StandInScript script("grandchild 60000\nsleep 60000");
  const auto child = ChildProcess::start({java(), "", true});
  const int grandchild = script.grandchildren(1).at(0);
  const auto begin = steady_clock::now();
  child->endTree();
  child->wait();
  EXPECT_TRUE(waitUntil([&] { return !processLives(grandchild); }));
  EXPECT_LT(steady_clock::now() - begin, milliseconds(1900)) << "without the time that others are given";
}

TEST(PosixProcessTest, TheTreeEndsWhenItsOwnerIsKilled) {
  for (const bool interactive : {true, false}) {
    const StandInScript script("ignoreterm\ngrandchild 60000\norphan 60000\nsleep 60000");
    const pid_t owner = inACopy([interactive] {
      const auto child = ChildProcess::start({java(), "", interactive});
      child->wait();
      return 0;
    });
    const auto below = script.grandchildren(2);
    const int group = getpgid(below.at(0));
    kill(owner, SIGKILL);
    EXPECT_EQ(resultOf(owner), -SIGKILL);
    for (const int process : below) EXPECT_TRUE(waitUntil([&] { return !processLives(process); })) << interactive;
    EXPECT_TRUE(waitUntil([&] { return processesWith(2, group) == 0; })) << "the child itself";
  }
}

TEST(PosixProcessTest, AToolThatIsEndedTakesWhatWentIntoASessionOfItsOwnAlong) {
  const StandInScript script("orphan 60000\nsleep 60000");
  const auto child = ChildProcess::start({java(), "", false});
  const int orphan = script.grandchildren(1).at(0);
  child->endTree();
  child->wait();
  EXPECT_TRUE(waitUntil([&] { return !processLives(orphan); }));
}

TEST(PosixProcessTest, WhatWentIntoASessionOfItsOwnEndsWithTheTree) {
  const StandInScript script("orphan 60000\nsleep 60000");
  const auto child = ChildProcess::start({java(), "", true});
  const int orphan = script.grandchildren(1).at(0);
  EXPECT_EQ(getsid(orphan) == getsid(0), false);
  const auto begin = steady_clock::now();
  child->endTree();
  child->wait();
  EXPECT_TRUE(waitUntil([&] { return !processLives(orphan); }));
  EXPECT_LT(steady_clock::now() - begin, milliseconds(1900)) << "it heeds TERM";
}

TEST(PosixProcessTest, AStubbornProcessInASessionOfItsOwnIsKilledAlsoWhenTheOwnerIsKilled) {
  const StandInScript script("ignoreterm\norphan 60000\nsleep 60000");
  const pid_t owner = inACopy([] {
    const auto child = ChildProcess::start({java(), "", true});
    child->wait();
    return 0;
  });
  const int orphan = script.grandchildren(1).at(0);
  const auto begin = steady_clock::now();
  kill(owner, SIGKILL);
  EXPECT_EQ(resultOf(owner), -SIGKILL);
  EXPECT_TRUE(waitUntil([&] { return !processLives(orphan); }));
  EXPECT_LT(steady_clock::now() - begin, milliseconds(8000));
}

TEST(PosixProcessTest, WhatEndsBelowTheChildLeavesNoZombie) {
  const StandInScript script("orphan 10\norphan 10\nout done\nsleep 60000");
  const auto child = ChildProcess::start({java(), "", true});
  const auto orphans = script.grandchildren(2);
  for (const int orphan : orphans) {
    EXPECT_TRUE(waitUntil([orphan] { return processFields(std::to_string(orphan)).empty(); }));
  }
  child->endTree();
  child->wait();
}

/// A child with a descendant in a session of its own and whose parent has gone, and its guards.
struct Guarded {
  Guarded() {
    const std::string script = "(setsid sleep 60 & echo $!); echo $PPID $$; exec sleep 60";
    child = ChildProcess::start({"/bin/sh", "-c \"" + script + "\"", false});
    std::string said;
    while (std::count(said.begin(), said.end(), '\n') < 2) {
      char text[64];
      const std::size_t count = child->read(Stream::Output, text, sizeof text);
      if (count == 0) break;
      said.append(text, count);
    }
    std::istringstream(said) >> orphan >> holder >> process;
    const auto fields = processFields(std::to_string(holder));
    if (fields.size() > 1) watcher = std::stoi(fields[1]);
  }

  bool isWhole() const {
    return processLives(orphan) && processLives(process) && processLives(holder) && watcher > 1 &&
           processLives(watcher);
  }
  bool hasGone() const {
    return waitUntil([this] {
      return !processLives(orphan) && !processLives(process) && !processLives(holder) && !processLives(watcher);
    });
  }

  std::unique_ptr<ChildProcess> child;
  int orphan = 0;
  int holder = 0;
  int process = 0;
  int watcher = 0;
};

TEST(PosixProcessTest, WithoutOneOfItsGuardsAChildEndsAtOnceWithAllThatItHasStarted) {
  for (const bool parent : {true, false}) {
    const Guarded tree;
    ASSERT_TRUE(tree.isWhole());
    kill(parent ? tree.holder : tree.watcher, SIGKILL);
    EXPECT_TRUE(tree.hasGone()) << parent;
    tree.child->wait();
    EXPECT_EQ(tree.child->causeOfDeath(), "Killed");
  }
}

TEST(PosixProcessTest, AGuardThatWasStoppedStillEndsTheTree) {
  for (const bool parent : {true, false}) {
    const Guarded tree;
    ASSERT_TRUE(tree.isWhole());
    kill(parent ? tree.holder : tree.watcher, SIGSTOP);
    tree.child->endTree();
    EXPECT_TRUE(tree.hasGone()) << parent;
    tree.child->wait();
  }
}

TEST(PosixProcessTest, AGuardThatWasStoppedStillEndsTheTreeOfAnOwnerWhoWasKilled) {
  for (const bool parent : {true, false}) {
    int tell[2];
    ASSERT_EQ(pipe(tell), 0);
    const pid_t owner = inACopy([&tell, parent] {
      const Guarded tree;
      kill(parent ? tree.holder : tree.watcher, SIGSTOP);
      const int numbers[] = {tree.orphan, tree.process, tree.holder, tree.watcher};
      if (write(tell[1], numbers, sizeof numbers) != sizeof numbers) return 1;
      tree.child->wait();
      return 0;
    });
    int numbers[4] = {};
    ASSERT_EQ(read(tell[0], numbers, sizeof numbers), static_cast<ssize_t>(sizeof numbers));
    kill(owner, SIGKILL);
    EXPECT_EQ(resultOf(owner), -SIGKILL);
    for (const int number : numbers) {
      ASSERT_GT(number, 1);
      EXPECT_TRUE(waitUntil([number] { return !processLives(number); })) << parent;
    }
    close(tell[0]);
    close(tell[1]);
  }
}

TEST(PosixProcessTest, TheEndOfAChildThatHasStoppedItsGuardIsSeen) {
  const auto child = ChildProcess::start({"/bin/sh", "-c \"kill -STOP $PPID; exit 3\"", false});
  child->wait();
  EXPECT_EQ(child->causeOfDeath(), "");
}

TEST(PosixProcessTest, AChildThatKillsItsGuardOrItsGroupLeavesNothingBehind) {
  for (const std::string last : {"kill -9 $PPID", "kill -9 0"}) {
    // Not before its start has been told.
    const auto child = ChildProcess::start(
        {"/bin/sh", "-c \"read go; (setsid sleep 600 >/dev/null 2>&1 & echo $!); " + last + "; sleep 60\"", true});
    child->write("\n", 1);
    const int orphan = std::atoi(readAll(*child, Stream::Output).c_str());
    ASSERT_GT(orphan, 1);
    child->wait();
    EXPECT_TRUE(waitUntil([orphan] { return !processLives(orphan); })) << last;
    EXPECT_EQ(child->causeOfDeath(), "Killed") << last;
  }
}

TEST(PosixProcessTest, AChildThatKillsItsGuardBeforeItsStartIsToldHasRun) {
  for (int round = 0; round < 100; ++round) {
    const auto child = ChildProcess::start({"/bin/sh", "-c \"kill -9 $PPID; sleep 600\"", false});
    child->wait();
    EXPECT_EQ(child->causeOfDeath(), "Killed") << round;
  }
}

TEST(PosixProcessTest, NoGuardStaysWhenTheChildHasEnded) {
  const auto child = ChildProcess::start({"/bin/sh", "-c \"echo $PPID; read line\"", true});
  char said[32] = "";
  child->read(Stream::Output, said, sizeof said - 1);
  const int holder = std::atoi(said);
  ASSERT_GT(holder, 1);
  const auto fields = processFields(std::to_string(holder));
  ASSERT_GT(fields.size(), 1U);
  const int watcher = std::stoi(fields[1]);
  ASSERT_GT(watcher, 1);
  child->write("\n", 1);
  child->wait();
  for (const int guard : {holder, watcher}) EXPECT_TRUE(waitUntil([guard] { return !processLives(guard); }));
}

TEST(PosixProcessTest, AFileThatMayNotGrowAnyMoreFailsAndDoesNotEndTheProgram) {
  const test::ScratchFolder folder;
  const std::string path = folder.file("file");
  const pid_t copy = inACopy([&path] {
    std::signal(SIGXFSZ, SIG_DFL);
    prepareProcess();
    const rlimit small{10, 10};
    setrlimit(RLIMIT_FSIZE, &small);
    const int file = open(path.c_str(), O_WRONLY | O_CREAT, 0600);
    if (write(file, "0123456789", 10) != 10) return 1;
    return write(file, "more", 4) == -1 && errno == EFBIG ? 0 : 2;
  });
  EXPECT_EQ(resultOf(copy), 0);
}

TEST(PosixProcessTest, TheOwnerMayLeaveRightAfterEndTree) {
  const StandInScript script("ignoreterm\ngrandchild 60000\nsleep 60000");
  const pid_t owner = inACopy([&script] {
    auto child = ChildProcess::start({java(), "", true});
    script.grandchildren(1);
    child->endTree();
    child.release();  // as a process leaves that cleans up nothing
    return 7;
  });
  const int grandchild = script.grandchildren(1).at(0);
  EXPECT_EQ(resultOf(owner), 7);
  EXPECT_TRUE(waitUntil([&] { return !processLives(grandchild); }));
}

TEST(PosixProcessTest, AGuardGoesWithoutHarmWhenTheChildHasEnded) {
  const StandInScript script("grandchild 60000");
  const auto child = ChildProcess::start({java(), "", true});
  const int grandchild = script.grandchildren(1).at(0);
  const int group = getpgid(grandchild);
  child->wait();
  EXPECT_TRUE(waitUntil([&] { return processesWith(2, group) == 1; })) << "only the grandchild is left of the group";
  EXPECT_TRUE(processLives(grandchild));
  kill(grandchild, SIGKILL);
}

TEST(PosixProcessTest, AChildMaySignalItsOwnGroupWithoutHarmToUs) {
  const StandInScript script("out bye\nsignal 9");
  const auto child = ChildProcess::start({java(), "", true});
  EXPECT_EQ(readAll(*child, Stream::Output), "bye\n");
  child->wait();
  child->endTree();
}

TEST(PosixProcessTest, FiftyRunsLeaveNoZombieAndNoOpenFile) {
  const StandInScript script("out x\nerr y");
  EXPECT_TRUE(waitUntil([] { return ourZombies() == 0; }));
  const auto before = openDescriptors();
  for (int i = 0; i < 50; ++i) {
    auto child = ChildProcess::start({java(), "", i % 2 == 0});
    EXPECT_EQ(readAll(*child, Stream::Output), "x\n");
    if (i % 3 == 0) child->endTree();
    if (i % 5 != 0) child->wait();
    if (i % 10 == 0) startDetached(java(), {"java"});
  }
  EXPECT_EQ(openDescriptors(), before);
  EXPECT_TRUE(waitUntil([] { return ourZombies() == 0; }));
}

TEST(PosixProcessTest, AFailedStartLeavesNothingOpen) {
  const auto before = openDescriptors();
  for (const bool interactive : {false, true}) {
    EXPECT_THROW(ChildProcess::start({"/nothing/here", "", interactive}), SystemError);
  }
  EXPECT_EQ(openDescriptors(), before);
}

TEST(PosixProcessTest, StreamsStayRightWhenOurOwnAreClosed) {
  const StandInScript script("readline\nout x\nerr y");
  const pid_t copy = inACopy([] {
    for (const int standard : {0, 1, 2}) close(standard);
    const auto child = ChildProcess::start({java(), "", true});
    if (child->write("in\n", 3) != 3) return 1;
    if (readAll(*child, Stream::Output) != "got: in\nx\n") return 2;
    if (readAll(*child, Stream::Error) != "y\n") return 3;
    return 0;
  });
  EXPECT_EQ(resultOf(copy), 0);
}

TEST(PosixProcessTest, OneChildDoesNotKeepAnothersPipes) {
  const StandInScript script("out x");
  const auto sleeper = [] {
    const test::ScratchFolder folder;
    test::writeFile(folder.file("script"), "sleep 60000");
    const test::ScopedEnvironment longer("STANDIN_SCRIPT", folder.file("script"));
    auto child = ChildProcess::start({java(), "", true});
    std::this_thread::sleep_for(milliseconds(100));
    return child;
  };
  const auto first = sleeper();
  const auto child = ChildProcess::start({java(), "", true});
  const auto second = sleeper();
  EXPECT_EQ(readAll(*child, Stream::Output), "x\n") << "the end is seen though others, and their guards, live";
  child->wait();
  first->endTree();
  second->endTree();
  first->wait();
  second->wait();
}

}  // namespace
}  // namespace tarnwick::platform
