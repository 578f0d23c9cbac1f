// A debugger and its program as two children of one console, played by scripts.
#include "console/DebuggedRun.h"
#include "support/Children.h"
#include "support/ConsoleFixture.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <mutex>
#include <system_error>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using std::chrono::milliseconds;

const char banner[] = "****  Tarnwick:  E n d   o f   j a v a   e x e c u t i o n   ****";
const char listening[] = "Listening at address: localhost:4711\n";

class DebuggedRunTest : public test::ConsoleFixture {
 protected:
  DebuggedRunTest() {
    program.exeFile = "jdb";
    program.runArguments = listeningArguments("-sourcepath s");
    program.leavesNothing = true;
    program.debugged = DebuggedProgram{"java", " -ea Main"};
    program.start = [this](const platform::ChildCommand& command) -> std::unique_ptr<platform::ChildProcess> {
      const std::lock_guard guard(lock);
      if (command.executable == failing) throw platform::SystemError{"CreateProcess", 2, "No such file"};
      commands.push_back(command);
      return std::make_unique<test::FakeChild>(command.executable == "jdb" ? jdb : java);
    };
  }
  ~DebuggedRunTest() override { view.reset(); }  // before what the children know

  std::size_t started() {
    const std::lock_guard guard(lock);
    return commands.size();
  }
  void openWaiting() {
    openWith(program);
    ASSERT_TRUE(until([&] { return started() == 1; }));
  }
  /// As far as the debugger has hold of its program, which waits for its first command.
  void openConnected() {
    openWaiting();
    jdb->out(listening);
    ASSERT_TRUE(until([&] { return started() == 2; }));
    jdb->out("VM Started:\nmain[1] ");
    ASSERT_TRUE(until([&] { return lastLine() == "main[1] "; }));
  }
  bool shows(const std::string& line) {
    const auto all = lines();
    return std::find(all.begin(), all.end(), line) != all.end();
  }
  bool ended() { return view->childState() == 0 && shows(banner); }
  /// The kind of the first segment that holds the text.
  int kindOf(const std::string& text) {
    const TextGuard guard(document.textLock());
    for (const auto& line : document.lines()) {
      for (const auto& segment : line.segments()) {
        if (segment.text.find(text) != std::string::npos) return segment.kind;
      }
    }
    return KIND_NONE;
  }

  std::mutex lock;
  std::string failing;
  std::vector<platform::ChildCommand> commands;
  std::shared_ptr<test::ChildScript> jdb = std::make_shared<test::ChildScript>();
  std::shared_ptr<test::ChildScript> java = std::make_shared<test::ChildScript>();
};

TEST_F(DebuggedRunTest, TheDebuggerWaitsOnThisComputerAloneAndNotForEver) {
  EXPECT_EQ(listeningArguments(""), " -connect com.sun.jdi.SocketListen:localAddress=127.0.0.1,timeout=30000");
  EXPECT_EQ(listeningArguments("-sourcepath a"),
            " -connect com.sun.jdi.SocketListen:localAddress=127.0.0.1,timeout=30000 -sourcepath a");
  const ConsoleTiming timing;
  EXPECT_EQ(timing.connectWait, milliseconds(29000)) << "before the debugger gives up by itself";
  EXPECT_EQ(timing.debuggerWait, milliseconds(5000));
}

TEST_F(DebuggedRunTest, TheProgramStartsWhenTheDebuggerTellsWhereItWaits) {
  openWaiting();
  EXPECT_EQ(commands[0].executable, "jdb");
  EXPECT_EQ(commands[0].arguments, listeningArguments("-sourcepath s"));
  jdb->err("Picked up JAVA_TOOL_OPTIONS: a:1\n");
  ASSERT_TRUE(until([&] { return shows("Picked up JAVA_TOOL_OPTIONS: a:1"); }));
  jdb->out("Listening at address: local");
  ASSERT_TRUE(until([&] { return lastLine() == "Listening at address: local"; }));
  EXPECT_EQ(started(), 1U);
  jdb->out("host:4711\n");
  ASSERT_TRUE(until([&] { return started() == 2; }));
  EXPECT_EQ(commands[1].executable, "java");
  EXPECT_EQ(commands[1].arguments,
            " -agentlib:jdwp=transport=dt_socket,server=n,suspend=y,address=127.0.0.1:4711 -ea Main");
}

TEST_F(DebuggedRunTest, BothAreInteractiveLeaveNothingAndShareOneConsoleWindow) {
  openConnected();
  for (const auto& command : commands) {
    EXPECT_TRUE(command.interactive) << command.executable;
    EXPECT_TRUE(command.leavesNothing) << command.executable;
  }
  EXPECT_EQ(commands[0].consoleTitle, "jdb");
  EXPECT_EQ(commands[1].consoleTitle, std::nullopt);
}

TEST_F(DebuggedRunTest, EachHasItsOwnColours) {
  openConnected();
  jdb->err("a fault of jdb\n");
  java->out("hello\n");
  java->err("oops\n");
  ASSERT_TRUE(until(
      [&] { return kindOf("a fault") != KIND_NONE && kindOf("hello") != KIND_NONE && kindOf("oops") != KIND_NONE; }));
  EXPECT_EQ(kindOf("main[1]"), KIND_DEBUGGER);
  EXPECT_EQ(kindOf("a fault"), KIND_DEBUGGER);
  EXPECT_EQ(kindOf("hello"), KIND_OUTPUT);
  EXPECT_EQ(kindOf("oops"), KIND_ERROR);
}

TEST_F(DebuggedRunTest, WhatIsTypedGoesToTheOneThatIsChosen) {
  openConnected();
  type("run\r");
  ASSERT_TRUE(until([&] { return jdb->writes() == Lines{"run\n"}; }));
  view->directInput(InputTarget::Program);
  EXPECT_EQ(view->inputTarget(), InputTarget::Program);
  type("Ada\r");
  ASSERT_TRUE(until([&] { return java->writes() == Lines{"Ada\n"}; }));
  view->directInput(InputTarget::Debugger);
  type("cont\r");
  ASSERT_TRUE(until([&] { return jdb->writes() == (Lines{"run\n", "cont\n"}); }));
  EXPECT_EQ(java->writes(), Lines{"Ada\n"});
}

TEST_F(DebuggedRunTest, ALineThatIsBegunComesBackWithTheChoice) {
  openConnected();
  type("stop at");
  view->directInput(InputTarget::Program);
  EXPECT_EQ(lastLine(), "main[1] ");
  type("Ada");
  view->directInput(InputTarget::Debugger);
  EXPECT_EQ(lastLine(), "main[1] stop at");
  type(" A:5\r");
  ASSERT_TRUE(until([&] { return jdb->writes() == Lines{"stop at A:5\n"}; }));
  view->directInput(InputTarget::Program);
  EXPECT_EQ(lastLine(), "Ada");
  type("!\r");
  ASSERT_TRUE(until([&] { return java->writes() == Lines{"Ada!\n"}; }));
}

TEST_F(DebuggedRunTest, EachHasItsOwnHistory) {
  openConnected();
  type("run\r");
  view->directInput(InputTarget::Program);
  EXPECT_TRUE(view->onKey(ConsoleKey::Up, 0));
  EXPECT_EQ(lastLine(), "") << "nothing has been typed for it";
  type("Ada\r");
  view->directInput(InputTarget::Debugger);
  EXPECT_TRUE(view->onKey(ConsoleKey::Up, 0));
  EXPECT_EQ(lastLine(), "run");
}

TEST_F(DebuggedRunTest, AButtonsCommandGoesToTheDebuggerWhateverIsTyped) {
  openConnected();
  view->directInput(InputTarget::Program);
  type("Ad");
  view->sendKeys("step\\n");
  ASSERT_TRUE(until([&] { return jdb->writes() == Lines{"step\n"}; }));
  EXPECT_EQ(view->inputTarget(), InputTarget::Program) << "the choice is the user's";
  EXPECT_EQ(lastLine(), "Ad");
  EXPECT_TRUE(shows("main[1] step"));
  type("a\r");
  ASSERT_TRUE(until([&] { return java->writes() == Lines{"Ada\n"}; }));
}

TEST_F(DebuggedRunTest, SoDoesAFunctionKeys) {
  openConnected();
  view->directInput(InputTarget::Program);
  keyText = "next\\n";
  EXPECT_TRUE(view->onKey(ConsoleKey::F10, 0));
  ASSERT_TRUE(until([&] { return jdb->writes() == Lines{"next\n"}; }));
  EXPECT_EQ(view->inputTarget(), InputTarget::Program);
  keyText = "";
  EXPECT_TRUE(view->onKey(ConsoleKey::F10, SHIFT_BIT));
  EXPECT_EQ(view->inputTarget(), InputTarget::Program) << "an empty text sends nothing";
}

TEST_F(DebuggedRunTest, ACommandThatIsToBeCompletedKeepsTheInputUntilReturn) {
  openConnected();
  view->directInput(InputTarget::Program);
  view->sendKeys("stop at ");
  EXPECT_EQ(view->inputTarget(), InputTarget::Debugger);
  type("A:5\r");
  ASSERT_TRUE(until([&] { return jdb->writes() == Lines{"stop at A:5\n"}; }));
  EXPECT_EQ(view->inputTarget(), InputTarget::Program);
  EXPECT_TRUE(java->writes().empty());
}

TEST_F(DebuggedRunTest, SeveralCommandsOfAKeyAllGoToTheDebugger) {
  openConnected();
  view->directInput(InputTarget::Program);
  view->sendKeys("locals\\nwhere\\n");
  EXPECT_EQ(view->inputTarget(), InputTarget::Debugger) << "the second one waits";
  desktop.tick(100);
  ASSERT_TRUE(until([&] { return jdb->writes() == (Lines{"locals\n", "where\n"}); }));
  EXPECT_EQ(view->inputTarget(), InputTarget::Program);
}

TEST_F(DebuggedRunTest, LinesThatWaitGoToTheProgramAlthoughAButtonComesBetween) {
  openConnected();
  view->directInput(InputTarget::Program);
  desktop.clipboard = "one\ntwo\n";
  view->paste();
  view->sendKeys("step\\n");
  ASSERT_TRUE(until([&] { return jdb->writes() == Lines{"step\n"}; }));
  desktop.tick(100);
  ASSERT_TRUE(until([&] { return java->writes() == (Lines{"one\n", "two\n"}); }));
  EXPECT_EQ(jdb->writes(), Lines{"step\n"});
}

TEST_F(DebuggedRunTest, WhatIsTypedBeforeTheProgramRunsWaitsForIt) {
  openWaiting();
  view->directInput(InputTarget::Program);
  type("Ada\r");
  jdb->out(listening);
  ASSERT_TRUE(until([&] { return java->writes() == Lines{"Ada\n"}; }));
}

TEST_F(DebuggedRunTest, TheEndOfTheInputIsTheOnesWhoIsChosen) {
  // The console of today has a key for it.
  program.today = true;
  openConnected();
  view->directInput(InputTarget::Program);
  ASSERT_TRUE(view->canEndInput());
  view->endInput();
  ASSERT_TRUE(until([&] { return java->inputClosed(); }));
  EXPECT_FALSE(jdb->inputClosed());
  EXPECT_FALSE(view->canEndInput());
  view->directInput(InputTarget::Debugger);
  EXPECT_TRUE(view->canEndInput());
}

TEST_F(DebuggedRunTest, AProgramThatEndsLetsTheDebuggerEndByItself) {
  openConnected();
  java->out("last words\n");
  java->end();
  ASSERT_TRUE(until([&] { return shows("last words") || kindOf("last words") != KIND_NONE; }));
  EXPECT_EQ(jdb->treesEnded(), 0);
  jdb->out("\nThe application exited\n");
  jdb->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  EXPECT_EQ(jdb->treesEnded(), 0);
  const auto all = lines();
  EXPECT_EQ(std::count(all.begin(), all.end(), banner), 1);
}

TEST_F(DebuggedRunTest, ADebuggerThatDoesNotEndWithItsProgramIsEnded) {
  program.timing.debuggerWait = milliseconds(20);
  openConnected();
  java->end();
  ASSERT_TRUE(until([&] { return jdb->treesEnded() == 1; }));
  jdb->end();
  ASSERT_TRUE(until([&] { return ended(); }));
}

TEST_F(DebuggedRunTest, AProgramThatHasLostItsDebuggerIsEndedAndItsLastWordsComeBeforeTheBanner) {
  openConnected();
  jdb->end();
  ASSERT_TRUE(until([&] { return java->treesEnded() == 1; }));
  EXPECT_FALSE(shows(banner)) << "it has not gone yet";
  java->out("from the hook\n");
  java->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  const auto all = lines();
  const auto words =
      std::find_if(all.begin(), all.end(), [](const auto& line) { return line.ends_with("from the hook"); });
  EXPECT_LT(words, std::find(all.begin(), all.end(), banner));
}

TEST_F(DebuggedRunTest, ClosingTheWindowEndsBoth) {
  openConnected();
  view->onClose();
  EXPECT_EQ(java->treesEnded(), 1);
  EXPECT_EQ(jdb->treesEnded(), 1);
}

TEST_F(DebuggedRunTest, TheWindowMayCloseWhileTheDebuggerIsAwaited) {
  openWaiting();
  view->onClose();
  EXPECT_EQ(jdb->treesEnded(), 1);
  EXPECT_EQ(started(), 1U);
}

TEST_F(DebuggedRunTest, TheWindowMayCloseWhileTheLastWordsAreAwaited) {
  openConnected();
  jdb->end();
  ASSERT_TRUE(until([&] { return java->treesEnded() == 1; }));
  view->onClose();
  EXPECT_FALSE(shows(banner));
}

TEST_F(DebuggedRunTest, ADebuggerThatEndsBeforeItWaitsIsTold) {
  openWaiting();
  jdb->err("Error: no such connector\n");
  jdb->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  EXPECT_TRUE(shows("****  Tarnwick:  jdb has ended before it could wait for the program."));
  EXPECT_EQ(started(), 1U);
  EXPECT_EQ(surface.closes, 0);
}

TEST_F(DebuggedRunTest, EvenOneThatSaysNothingAtAllIsTold) {
  openWaiting();
  jdb->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  EXPECT_TRUE(shows("****  Tarnwick:  jdb has ended before it could wait for the program."));
  EXPECT_EQ(surface.closes, 0) << "a console that closes tells nobody";
}

TEST_F(DebuggedRunTest, ADebuggerThatDoesNotWaitInTimeIsToldAndEnded) {
  program.timing.connectWait = milliseconds(20);
  openWaiting();
  ASSERT_TRUE(until([&] { return jdb->treesEnded() == 1; }));
  EXPECT_TRUE(shows("****  Tarnwick:  jdb has not begun to wait for the program within 30 seconds."));
  jdb->end();
  ASSERT_TRUE(until([&] { return ended(); }));
}

TEST_F(DebuggedRunTest, AProgramThatDoesNotComeInTimeIsToldAndBothAreEnded) {
  program.timing.connectWait = milliseconds(200);
  openWaiting();
  jdb->out(listening);
  ASSERT_TRUE(until([&] { return jdb->treesEnded() == 1 && java->treesEnded() == 1; }));
  EXPECT_TRUE(shows("****  Tarnwick:  The program has not come to jdb within 30 seconds."));
}

TEST_F(DebuggedRunTest, AProgramThatIsRefusedIsToldAndTheDebuggerEnds) {
  openWaiting();
  jdb->out(listening);
  ASSERT_TRUE(until([&] { return started() == 2; }));
  java->err("ERROR: transport error 202: connect failed: Connection refused\n");
  java->endWith(2);
  ASSERT_TRUE(until([&] { return jdb->treesEnded() == 1; }));
  const auto all = lines();
  const auto told = std::find(all.begin(), all.end(),
                              "****  Tarnwick:  The program has ended before it came to jdb at 127.0.0.1:4711.");
  ASSERT_NE(told, all.end());
  EXPECT_NE(std::find_if(all.begin(), told, [](const auto& line) { return line.ends_with("Connection refused"); }),
            told)
      << "behind what it said itself";
  jdb->end();
  ASSERT_TRUE(until([&] { return ended(); }));
}

TEST_F(DebuggedRunTest, ADebuggerThatDiesBeforeItsProgramComesIsToldAndTheProgramEnds) {
  openWaiting();
  jdb->out(listening);
  ASSERT_TRUE(until([&] { return started() == 2; }));
  jdb->end();
  ASSERT_TRUE(until([&] { return java->treesEnded() == 1; }));
  java->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  EXPECT_TRUE(shows("****  Tarnwick:  jdb has ended before the program came to it."));
}

TEST_F(DebuggedRunTest, AProgramThatIsStillStartingWhenItsDebuggerDiesEndsAsSoonAsItRuns) {
  std::atomic<bool> goesOn = false;
  program.start = [this, &goesOn, start = program.start](const platform::ChildCommand& command) {
    auto process = start(command);
    const bool ready = command.executable != "java" || test::waitUntil([&] { return goesOn.load(); });
    EXPECT_TRUE(ready);
    return process;
  };
  openWaiting();
  jdb->out(listening);
  ASSERT_TRUE(until([&] { return started() == 2; }));
  jdb->end();
  ASSERT_TRUE(until([&] { return shows("****  Tarnwick:  jdb has ended before the program came to it."); }));
  EXPECT_EQ(java->treesEnded(), 0);
  goesOn = true;
  ASSERT_TRUE(until([&] { return java->treesEnded() > 0; }));
  java->end();
  ASSERT_TRUE(until([&] { return ended(); }));
}

TEST_F(DebuggedRunTest, AProgramThatCannotStartIsToldAndTheDebuggerEnds) {
  failing = "java";
  openWaiting();
  jdb->out(listening);
  ASSERT_TRUE(until([&] { return !desktop.messages.empty() && jdb->treesEnded() == 1; }));
  EXPECT_EQ(desktop.messages, Lines{"Can't start java\nCreateProcess error 2\nNo such file"});
  jdb->end();
  ASSERT_TRUE(until([&] { return ended(); }));
}

TEST_F(DebuggedRunTest, ADebuggerThatCannotStartIsToldOnce) {
  failing = "jdb";
  openWith(program);
  ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
  EXPECT_EQ(desktop.messages, Lines{"Can't start jdb\nCreateProcess error 2\nNo such file"});
  view->onClose();
  EXPECT_EQ(kindOf("Tarnwick"), KIND_NONE);
}

TEST_F(DebuggedRunTest, NoThreadToWatchOverThemIsToldAndNothingStarts) {
  program.thread = [](const std::function<void()>&) -> std::thread {
    throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
  };
  openWith(program);
  EXPECT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(started(), 0U);
}

TEST_F(DebuggedRunTest, NoThreadForTheProgramIsToldAndTheDebuggerEnds) {
  std::atomic<int> left = 5;  // the watch, the debugger's run thread, its two readers and its writer
  program.thread = [&left](const std::function<void()>& work) {
    if (left-- <= 0) throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
    return platform::startThread(work);
  };
  openWaiting();
  ASSERT_TRUE(until([&] { return left == 0; }));
  jdb->out(listening);
  ASSERT_TRUE(until([&] { return jdb->treesEnded() == 1; }));
  EXPECT_EQ(kindOf("Tarnwick"), KIND_BANNER);
  jdb->end();
  ASSERT_TRUE(until([&] { return ended(); }));
}

TEST_F(DebuggedRunTest, WhatIsBeingTypedStaysBehindWhatIsTold) {
  program.today = true;
  program.timing.connectWait = milliseconds(200);
  openWaiting();
  type("st");
  ASSERT_TRUE(until([&] { return jdb->treesEnded() == 1; }));
  EXPECT_EQ(lastLine(), "st");
}

TEST_F(DebuggedRunTest, TheTitleTellsTheProgramsOwnEnd) {
  program.today = true;
  // The debugger is ended because its program has ended, at whatever time that comes to be known.
  program.timing.debuggerWait = milliseconds(1);
  openConnected();
  java->endWith(3);
  ASSERT_TRUE(until([&] { return jdb->treesEnded() == 1; }));
  jdb->endWith(0);
  ASSERT_TRUE(until([&] { return ended() && !surface.titles.empty(); }));
  EXPECT_TRUE(surface.titles.back().starts_with("a title - ended with 3 after ")) << surface.titles.back();
}

TEST_F(DebuggedRunTest, RunAgainStartsBothAnew) {
  program.today = true;
  openConnected();
  java->end();
  jdb->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  jdb = std::make_shared<test::ChildScript>();
  java = std::make_shared<test::ChildScript>();
  view->runAgain();
  ASSERT_TRUE(until([&] { return started() == 3; }));
  jdb->out("Listening at address: localhost:4712\n");
  ASSERT_TRUE(until([&] { return started() == 4; }));
  EXPECT_EQ(commands[3].arguments,
            " -agentlib:jdwp=transport=dt_socket,server=n,suspend=y,address=127.0.0.1:4712 -ea Main");
}

TEST_F(DebuggedRunTest, AConsoleOfOneChildHasNoChoice) {
  program.debugged.reset();
  openWaiting();
  EXPECT_FALSE(view->hasTwoInputs());
  view->directInput(InputTarget::Program);
  EXPECT_EQ(view->inputTarget(), InputTarget::Debugger);
  type("x\r");
  ASSERT_TRUE(until([&] { return jdb->writes() == Lines{"x\n"}; }));
}

}  // namespace
}  // namespace tarnwick
