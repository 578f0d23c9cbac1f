// A tool's console window while it runs.
#include "base/Tarnwickfile.h"
#include "platform/ConsoleWindows.h"
#include "process/Subprocess.h"
#include "process/ToolLog.h"
#include "support/Children.h"
#include "support/ScriptedDesktop.h"
#include "support/Shown.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <thread>

namespace tarnwick {
namespace {

class SubprocessConsoleTest : public testing::Test {
 protected:
  bool run(const std::string& executable, const std::string& argument = "out") {
    Subprocess tool(desktop_, log_, executable);
    tool.addArg("javac");
    tool.addArg("-d ", argument);
    return test::shown(desktop_, tool.run(nullptr, FileMode::Write));
  }
  static std::string javac() { return test::StandInScript::tool("javac"); }
  static std::string allocConsoleText() {
    SetLastError(ERROR_ACCESS_DENIED);
    return platform::lastSystemError("AllocConsole()").text();
  }
  void expectCannotStart(const std::string& executable) {
    try {
      platform::ChildProcess::start({executable, "", false});
      FAIL() << "started " << executable;
    } catch (const platform::SystemError& error) {
      desktop_.expectMessage("Can't start " + executable + '\n' + error.text());
    }
  }

  test::StandInScript script_{"out x"};
  test::ScriptedDesktop desktop_;
  ToolLog log_{script_.folder().path()};
};

TEST_F(SubprocessConsoleTest, ItsTitleIsTheCommandAndItStaysForAsLongAsTheToolRuns) {
  script_.setScript("out x\nsleep 1500");
  auto& windows = platform::ConsoleWindows::ofSystem();
  const std::string command = "javac -d " + script_.folder().file("classes");
  platform::WindowNumber window = 0;
  bool iconic = true;
  std::thread watcher([&] {
    test::waitUntil([&] { return (window = windows.titled(command)) != 0; });
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    iconic = windows.isIconic(window);
  });
  EXPECT_TRUE(run(javac(), script_.folder().file("classes")));
  watcher.join();
  EXPECT_NE(window, 0U);
  EXPECT_FALSE(iconic) << "nothing hides it";
  EXPECT_TRUE(test::waitUntil([&] { return !windows.lives(window); }));
}

TEST_F(SubprocessConsoleTest, AConsoleThatCannotBeHadIsToldAndTheRunGoesOn) {
  ASSERT_TRUE(AllocConsole());
  desktop_.expectMessage(allocConsoleText());
  EXPECT_TRUE(run(javac()));
  EXPECT_NE(test::contentOf(log_.path()).find("javac -d out"), std::string::npos);
  // The one that was in the way has gone to the tool; now each has its own.
  EXPECT_TRUE(run(javac()));
}

TEST_F(SubprocessConsoleTest, ItGetsNoneWhereNoneIsWanted) {
  script_.setScript("console");
  for (const bool wanted : {true, false}) {
    Subprocess tool(desktop_, log_, javac());
    tool.addArg("javac");
    if (!wanted) tool.withoutConsole();
    EXPECT_TRUE(test::shown(desktop_, tool.run(nullptr, FileMode::Write)));
    const std::string log = test::contentOf(log_.path());
    EXPECT_NE(log.find(wanted ? "\r\na console\n" : "\r\nno console\n"), std::string::npos) << log;
  }
}

TEST_F(SubprocessConsoleTest, WhatFailedIsToldBeforeTheFailureOfAll) {
  const std::string missing = script_.folder().file("nothing.exe");
  ASSERT_TRUE(AllocConsole());
  desktop_.expectMessage(allocConsoleText());
  expectCannotStart(missing);
  EXPECT_FALSE(run(missing));
  FreeConsole();
}

TEST_F(SubprocessConsoleTest, AfterAStartThatFailedTheNextRunIsAsAnyOther) {
  const std::string missing = script_.folder().file("nothing.exe");
  for (int times = 0; times < 3; ++times) {
    expectCannotStart(missing);
    EXPECT_FALSE(run(missing));
  }
  EXPECT_TRUE(run(javac()));
}

}  // namespace
}  // namespace tarnwick
