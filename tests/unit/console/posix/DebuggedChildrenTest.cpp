// A debugger and its program as real processes: however one of them ends, nothing of the two is left behind.
#include "console/DebuggedRun.h"
#include "platform/FileSystem.h"
#include "support/Children.h"
#include "support/ConsoleFixture.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

const char banner[] = "****  Tarnwick:  E n d   o f   j a v a   e x e c u t i o n   ****";

/// Says what the debugger says; each of its processes notes its number, one in a session of its own as well.
const char debuggersScript[] =
    "#!/bin/sh\n"
    "cd \"$(dirname \"$0\")\"\n"
    "setsid sleep 1000 &\n"
    "echo $$ $! > jdb.pids.new; mv jdb.pids.new jdb.pids\n"
    "echo 'Listening at address: localhost:4711'\n"
    "echo 'VM Started:'\n"
    "while read -r line; do echo \"jdb: $line\"; [ \"$line\" = exit ] && exit 0; done\n"
    "exec sleep 1000\n";

/// As a program that the debugger holds, it does not mind being asked to end.
const char programsScript[] =
    "#!/bin/sh\n"
    "trap '' TERM\n"
    "cd \"$(dirname \"$0\")\"\n"
    "setsid sleep 1000 &\n"
    "echo $$ $! > java.pids.new; mv java.pids.new java.pids\n"
    "read -r line; echo \"java: $line\"; echo oops >&2\n"
    "while :; do sleep 1; done\n";

class DebuggedChildrenTest : public test::ConsoleFixture {
 protected:
  DebuggedChildrenTest() {
    program.exeFile = script("jdb", debuggersScript);
    program.runArguments = listeningArguments("");
    program.leavesNothing = true;
    program.debugged = DebuggedProgram{script("java", programsScript), " Main"};
    program.start = &platform::ChildProcess::start;
  }
  ~DebuggedChildrenTest() override {
    view.reset();
    // A test that fails leaves nothing behind either.
    for (const char* const name : {"jdb", "java"}) {
      for (const int process : processesOf(name)) test::endProcess(process);
    }
  }

  std::string script(const std::string& name, const std::string& text) {
    test::writeFile(folder.file(name), text);
    std::filesystem::permissions(folder.file(name), std::filesystem::perms::owner_all);
    return folder.file(name);
  }
  std::vector<int> processesOf(const std::string& name) const {
    std::vector<int> numbers;
    std::ifstream file(folder.file(name + ".pids"));
    for (int number = 0; file >> number;) numbers.push_back(number);
    return numbers;
  }
  void openBoth() {
    openWith(program);
    ASSERT_TRUE(until([&] { return processesOf("jdb").size() == 2 && processesOf("java").size() == 2; }));
    ASSERT_TRUE(until([&] { return shows("VM Started:"); }));
    for (const char* const name : {"jdb", "java"}) {
      for (const int process : processesOf(name)) EXPECT_TRUE(test::processLives(process)) << name;
    }
  }
  bool shows(const std::string& line) {
    const auto all = lines();
    return std::find(all.begin(), all.end(), line) != all.end();
  }
  void expectNothingLeft() {
    for (const char* const name : {"jdb", "java"}) {
      for (const int process : processesOf(name))
        EXPECT_TRUE(test::waitUntil([&] { return !test::processLives(process); })) << name << ' ' << process;
    }
  }

  test::ScratchFolder folder;
};

TEST_F(DebuggedChildrenTest, EachGetsItsOwnInput) {
  openBoth();
  view->directInput(InputTarget::Program);
  type("Ada\r");
  ASSERT_TRUE(until([&] { return shows("java: Ada") && shows("oops"); }));
  view->directInput(InputTarget::Debugger);
  type("where\r");
  ASSERT_TRUE(until([&] { return shows("jdb: where"); }));
  EXPECT_FALSE(shows("jdb: Ada"));
}

TEST_F(DebuggedChildrenTest, ClosingTheConsoleLeavesNothing) {
  openBoth();
  view->onClose();
  expectNothingLeft();
}

TEST_F(DebuggedChildrenTest, ADebuggerThatIsToldToEndLeavesNothing) {
  openBoth();
  type("exit\r");
  ASSERT_TRUE(until([&] { return view->childState() == 0 && shows(banner); }));
  expectNothingLeft();
}

TEST_F(DebuggedChildrenTest, ADebuggerThatIsKilledLeavesNothing) {
  openBoth();
  test::endProcess(processesOf("jdb")[0]);
  ASSERT_TRUE(until([&] { return view->childState() == 0 && shows(banner); }));
  expectNothingLeft();
}

TEST_F(DebuggedChildrenTest, AProgramThatIsKilledLeavesNothing) {
  program.timing.debuggerWait = std::chrono::milliseconds(50);
  openBoth();
  test::endProcess(processesOf("java")[0]);
  ASSERT_TRUE(until([&] { return view->childState() == 0 && shows(banner); }));
  expectNothingLeft();
}

}  // namespace
}  // namespace tarnwick
