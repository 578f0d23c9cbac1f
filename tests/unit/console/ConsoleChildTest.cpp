// The child behind the console, played by a script.
#include "console/ConsoleChild.h"
#include "platform/Path.h"
#include "support/ConsoleFixture.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <thread>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

const char banner[] = "****  Tarnwick:  E n d   o f   j a v a   e x e c u t i o n   ****";

/// At once, as a busy machine sees it. What must not be waited for takes far longer, or never ends.
constexpr std::chrono::seconds soon(10);

bool namesIgnoreCase() {
  return platform::sameFileName("a", "A");
}

class ConsoleChildTest : public test::ConsoleFixture {
 protected:
  bool bannerShows() {
    const auto all = lines();
    return std::find(all.begin(), all.end(), banner) != all.end();
  }
  bool shows(const std::string& line) {
    const auto all = lines();
    return std::find(all.begin(), all.end(), line) != all.end();
  }
  void openRunningVerbose() {
    open();
    ASSERT_TRUE(until([&] { return view->childState() == 1 && lineCount() == 4; }));
  }
  bool ended() { return view->childState() == 0 && bannerShows(); }
};

TEST_F(ConsoleChildTest, WaitsAsLongAsItShouldByDefault) {
  const ConsoleTiming timing;
  EXPECT_EQ(timing.settle, milliseconds(200));
  EXPECT_EQ(timing.readerWait, milliseconds(400));
  EXPECT_EQ(timing.readerTries, 8);
}

TEST_F(ConsoleChildTest, StartsTheExecutableWithTheRunArgumentsUnchanged) {
  program.runArguments = " -cp \"a b\"  Main \\/b";
  openRunning();
  EXPECT_EQ(started.executable, "C:\\Jdk\\Bin\\Java.exe");
  EXPECT_EQ(started.arguments, " -cp \"a b\"  Main \\/b");
  EXPECT_TRUE(started.interactive);
  EXPECT_FALSE(started.leavesNothing);
  EXPECT_EQ(started.consoleTitle, "C:\\Jdk\\Bin\\Java.exe");
}

TEST_F(ConsoleChildTest, StepsThatFailedAtTheStartAreToldAndTheRunGoesOn) {
  program.start = [this](const platform::ChildCommand& command) -> std::unique_ptr<platform::ChildProcess> {
    command.report({"AllocConsole()", 5, "Access is denied."});
    command.report({"CreatePipe()", 8, "No memory."});
    return std::make_unique<test::FakeChild>(child);
  };
  openWith(program);
  ASSERT_TRUE(until([&] { return desktop.messages.size() == 2; }));
  EXPECT_EQ(desktop.messages, (Lines{"AllocConsole() error 5\nAccess is denied.", "CreatePipe() error 8\nNo memory."}));
  EXPECT_TRUE(until([&] { return view->childState() == 1; }));
  EXPECT_EQ(surface.closes, 0);
}

TEST_F(ConsoleChildTest, StepsThatFailedAreToldBeforeTheFailureOfAll) {
  program.start = [](const platform::ChildCommand& command) -> std::unique_ptr<platform::ChildProcess> {
    command.report({"AllocConsole()", 5, "Access is denied."});
    throw platform::SystemError{"CreateProcess", 2, "No such file"};
  };
  openWith(program);
  ASSERT_TRUE(until([&] { return desktop.messages.size() == 2; }));
  EXPECT_EQ(desktop.messages[0], "AllocConsole() error 5\nAccess is denied.");
  EXPECT_NE(desktop.messages[1].find("CreateProcess error 2\nNo such file"), std::string::npos);
}

TEST_F(ConsoleChildTest, EachReaderBeginsALine) {
  openRunning();
  EXPECT_EQ(lines(), (Lines{"", "", ""}));
}

TEST_F(ConsoleChildTest, OutputIsBlueAndErrorsAreRed) {
  openRunning();
  child->out("to out\n");
  ASSERT_TRUE(until([&] { return shows("to out"); }));
  child->err("to err\n");
  ASSERT_TRUE(until([&] { return shows("to err"); }));
  const TextGuard guard(document.textLock());
  EXPECT_EQ(document.lines()[2].segments()[0].kind, KIND_OUTPUT);
  EXPECT_EQ(document.lines()[3].segments()[0].kind, KIND_ERROR);
}

TEST_F(ConsoleChildTest, BlocksOfTheTwoOutputsDoNotMix) {
  openRunning();
  const std::string outBlock(512, 'o');
  const std::string errBlock(512, 'e');
  for (int block = 0; block < 200; ++block) {
    child->out(outBlock);
    child->err(errBlock);
  }
  ASSERT_TRUE(until([&] { return child->unread() == 0 && lastLine().size() == 2 * 200 * 512; }));
  const TextGuard guard(document.textLock());
  for (const auto& segment : document.lastLine().segments()) {
    EXPECT_EQ(segment.text.size() % 512, 0U) << "a block was cut";
  }
}

TEST_F(ConsoleChildTest, TheEndIsTold) {
  openRunning();
  child->out("done\n");
  ASSERT_TRUE(until([&] { return shows("done"); }));
  child->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  const auto all = lines();
  // Two lines, the banner, and a line for the caret. The ends of the two streams add nothing.
  EXPECT_EQ(all, (Lines{"", "", "done", "", "", banner, ""}));
  {
    const TextGuard guard(document.textLock());
    EXPECT_EQ(document.lines()[all.size() - 2].segments()[0].kind, KIND_BANNER);
  }
  EXPECT_EQ(surface.closes, 0);
}

TEST_F(ConsoleChildTest, TheBannersPaintingIsAskedFor) {
  openRunning();
  child->out("x");
  ASSERT_TRUE(until([&] { return shows("x"); }));
  child->end();
  ASSERT_TRUE(until([&] { return bannerShows() && view->childState() == 0; }));
  ASSERT_TRUE(until([&] { return surface.allInvalidated > 0; }));
}

TEST_F(ConsoleChildTest, AChildThatWritesOnlyErrorsGetsItsBanner) {
  openRunning();
  child->err("broken\n");
  ASSERT_TRUE(until([&] { return shows("broken"); }));
  child->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  const TextGuard guard(document.textLock());
  EXPECT_EQ(document.lines()[2].segments()[0].kind, KIND_ERROR);
}

TEST_F(ConsoleChildTest, AChildThatSaidNothingLeavesNoConsoleBehind) {
  openRunning();
  child->end();
  ASSERT_TRUE(until([&] { return surface.closes > 0; }));
  EXPECT_FALSE(bannerShows());
  EXPECT_EQ(view->childState(), 0);
}

TEST_F(ConsoleChildTest, AGrandchildThatHoldsThePipesDoesNotKeepTheBannerAway) {
  openRunning();
  child->out("parent\n");
  ASSERT_TRUE(until([&] { return shows("parent"); }));
  child->end(false);
  ASSERT_TRUE(until([&] { return ended(); }));
  // Whoever holds the pipes, the banner stands in the same place.
  EXPECT_EQ(lines(), (Lines{"", "", "parent", "", "", banner, ""}));
  // What it says later still shows.
  child->out("late\n");
  EXPECT_TRUE(until([&] { return shows("late"); }));
}

TEST_F(ConsoleChildTest, AVerboseRunShowsItsCommandFirst) {
  program.exeFile = std::string("C:") + platform::folderSeparator + "Jdk" + platform::folderSeparator + "JaVa.eXe";
  program.runArguments = " -verbose -cp x Main";
  openRunningVerbose();
  const TextGuard guard(document.textLock());
  const std::string name = namesIgnoreCase() ? "java" : "JaVa";
  EXPECT_EQ(test::segmentsOf(document.lines()[0]), (Lines{"1:" + name + "  -verbose -cp x Main"}));
}

TEST_F(ConsoleChildTest, AVerboseRunQuotesANameWithABlank) {
  program.exeFile = std::string("dir") + platform::folderSeparator + "my java.exe";
  program.runArguments = " -verbose Main";
  openRunningVerbose();
  EXPECT_EQ(lines()[0], "\"my java\"  -verbose Main");
}

TEST_F(ConsoleChildTest, OnlyVerboseBetweenBlanksCounts) {
  for (const std::string arguments : {"-verbose Main", " -verbose", " -verbose:gc Main"}) {
    test::RecordingDesktop ownDesktop;
    TarnwickDoc text("");
    ConsoleScreen screen(text);
    auto script = std::make_shared<test::ChildScript>();
    ConsoleChild quiet(screen, ownDesktop,
                       {"java",
                        arguments,
                        [&](const platform::ChildCommand&) { return std::make_unique<test::FakeChild>(script); },
                        {}},
                       [] {});
    quiet.start();
    ASSERT_TRUE(until([&] { return quiet.childState() == 1; }));
    quiet.close();
    EXPECT_EQ(text.lines()[0].text(), "") << arguments;
  }
}

TEST_F(ConsoleChildTest, AFailedStartIsToldAndLeavesTheWindow) {
  program.start = [](const platform::ChildCommand&) -> std::unique_ptr<platform::ChildProcess> {
    throw platform::SystemError{"CreateProcess", 2, "No such file"};
  };
  openWith(program);
  ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
  const std::string name = namesIgnoreCase() ? "c:\\jdk\\bin\\java.exe" : "C:\\Jdk\\Bin\\Java.exe";
  const platform::SystemError error{"CreateProcess", 2, "No such file"};
  EXPECT_EQ(error.text(), "CreateProcess error 2\nNo such file");
  EXPECT_EQ(desktop.messages, (Lines{"Can't start " + name + "\nCreateProcess error 2\nNo such file"}));
  EXPECT_EQ(view->childState(), -1);
  // Keys do nothing to the window.
  view->onKey(ConsoleKey::Other, 0);
  type("x\r");
  pump();
  EXPECT_EQ(surface.closes, 0);
  EXPECT_EQ(desktop.messages.size(), 1U);
}

TEST_F(ConsoleChildTest, WhatNobodyExpectedAtTheStartEndsTheConsole) {
  program.start = [](const platform::ChildCommand&) -> std::unique_ptr<platform::ChildProcess> {
    throw std::runtime_error("anything");
  };
  openWith(program);
  ASSERT_TRUE(until([&] { return surface.closes > 0 && !desktop.messages.empty(); }));
  EXPECT_EQ(desktop.messages, (Lines{"Can't open C:\\Jdk\\Bin\\Java.exe.\nCheck java path in settings."}));
  EXPECT_EQ(view->childState(), 0);
}

/// Threads as the system gives them, but for the one that it refuses.
platform::ThreadFactory refusing(int refused) {
  return [refused, count = std::make_shared<std::atomic<int>>(0)](std::function<void()> work) {
    if (++*count == refused) throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
    return std::thread(std::move(work));
  };
}

TEST_F(ConsoleChildTest, AThreadThatCantBeHadIsToldAndLeavesTheWindow) {
  program.thread = refusing(1);
  open();
  EXPECT_EQ(desktop.messages, (Lines{"Tarnwick Internal error: Thread creation (subprocess) failed.\n"}));
  EXPECT_EQ(view->childState(), -1);
  EXPECT_EQ(started.executable, "");
  type("x\r");
  pump();
  EXPECT_EQ(surface.closes, 0);
  view->onClose();
}

TEST_F(ConsoleChildTest, WithoutAReadersOrTheWritersThreadTheChildEndsAndTheConsoleToo) {
  for (const int reader : {2, 3, 4}) {
    child = std::make_shared<test::ChildScript>();
    desktop.messages.clear();
    surface.closes = 0;
    program.thread = refusing(reader);
    open();
    ASSERT_TRUE(until([&] { return surface.closes > 0 && !desktop.messages.empty(); })) << reader;
    EXPECT_EQ(desktop.messages, (Lines{"Tarnwick Internal error: Thread creation (subprocess) failed.\n"})) << reader;
    EXPECT_EQ(child->treesEnded(), 1) << reader;
    EXPECT_EQ(view->childState(), 0) << reader;
    view->onClose();
  }
}

TEST_F(ConsoleChildTest, WhatIsTypedReachesTheChild) {
  openRunning();
  type("line one\r");
  ASSERT_TRUE(until([&] { return child->writes().size() == 1; }));
  EXPECT_EQ(child->writes(), (Lines{"line one\n"}));
}

TEST_F(ConsoleChildTest, AWriteThatFailsIsTold) {
  openRunning();
  child->answerWrites(-1);
  type("x\r");
  ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
  EXPECT_EQ(desktop.messages, (Lines{"WriteFile error to jStdin"}));
  // The run goes on.
  child->answerWrites(2);
  type("y\r");
  ASSERT_TRUE(until([&] { return child->writes().size() == 2; }));
  EXPECT_EQ(view->childState(), 1);
  child->answerWrites(-1);
  type("z\r");
  EXPECT_TRUE(until([&] { return desktop.messages.size() == 2; })) << "the next failure is told again";
}

TEST_F(ConsoleChildTest, AWriteThatComesShortIsTold) {
  openRunning();
  child->answerWrites(1);
  type("xyz\r");
  ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
  EXPECT_EQ(desktop.messages, (Lines{"WriteFile didn't write to jStdin"}));
}

TEST_F(ConsoleChildTest, FailuresAreNotPiledUponOneAnother) {
  openRunning();
  child->answerWrites(-1);
  for (int line = 0; line < 50; ++line) type("\x04");
  // The first message has not been shown yet, so the others have nothing to add.
  const auto deadline = Clock::now() + std::chrono::seconds(10);
  while (child->writes().size() < 50 && Clock::now() < deadline) std::this_thread::sleep_for(milliseconds(1));
  ASSERT_EQ(child->writes().size(), 50U);
  type("\x04");
  ASSERT_TRUE(until([&] { return child->writes().size() == 51 && !desktop.messages.empty(); }));
  EXPECT_LE(desktop.messages.size(), 2U);
}

TEST_F(ConsoleChildTest, AChildThatDoesNotReadItsInputDoesNotStopTheWindow) {
  openRunning();
  child->stopReadingInput();
  type("one\r");
  ASSERT_TRUE(until([&] { return child->writing(); }));
  type("two");
  EXPECT_EQ(lastLine(), "two");
  child->out("alive\n");
  EXPECT_TRUE(until([&] { return shows("twoalive"); }));
  const auto begin = Clock::now();
  view->onClose();
  EXPECT_LT(Clock::now() - begin, soon);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ConsoleChildTest, WhatIsTypedBeforeTheStartWaitsForIt) {
  std::promise<void> gate;
  program.start = [&](const platform::ChildCommand&) -> std::unique_ptr<platform::ChildProcess> {
    gate.get_future().wait();
    return std::make_unique<test::FakeChild>(child);
  };
  openWith(program);
  type("early\r");
  EXPECT_EQ(view->childState(), -1);
  gate.set_value();
  ASSERT_TRUE(until([&] { return !child->writes().empty(); }));
  EXPECT_EQ(child->writes(), (Lines{"early\n"}));
}

TEST_F(ConsoleChildTest, AfterTheEndNothingIsWritten) {
  openRunning();
  child->out("x");
  ASSERT_TRUE(until([&] { return shows("x"); }));
  child->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  child->answerWrites(-1);
  type("y\r");
  std::this_thread::sleep_for(milliseconds(50));  // as long as a writer would need
  pump();
  view->onClose();
  EXPECT_TRUE(child->writes().empty());
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ConsoleChildTest, ClosingEndsTheTreeOfARunningChildAndDoesNotWaitForIt) {
  openRunning();
  const auto begin = Clock::now();
  view->onClose();
  EXPECT_LT(Clock::now() - begin, soon);
  EXPECT_EQ(child->treesEnded(), 1);
  view->onClose();
  EXPECT_EQ(child->treesEnded(), 1);
}

TEST_F(ConsoleChildTest, ClosingAfterTheEndEndsNothing) {
  openRunning();
  child->out("x");
  ASSERT_TRUE(until([&] { return shows("x"); }));
  child->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  view->onClose();
  EXPECT_EQ(child->treesEnded(), 0);
}

TEST_F(ConsoleChildTest, ClosingWhileTheOutputSettlesIsQuick) {
  program.timing.settle = milliseconds(60000);
  openRunning();
  child->end();
  const auto begin = Clock::now();
  view->onClose();
  EXPECT_LT(Clock::now() - begin, soon);
}

TEST_F(ConsoleChildTest, ClosingDuringTheStartEndsWhatHasStarted) {
  std::promise<void> gate;
  program.start = [&](const platform::ChildCommand&) -> std::unique_ptr<platform::ChildProcess> {
    gate.get_future().wait();
    return std::make_unique<test::FakeChild>(child);
  };
  openWith(program);
  std::thread opener([&] {
    std::this_thread::sleep_for(milliseconds(20));
    gate.set_value();
  });
  view->onClose();
  opener.join();
  EXPECT_EQ(child->treesEnded(), 1);
}

TEST_F(ConsoleChildTest, ClosingUnderAFloodIsQuick) {
  openRunning();
  std::atomic<bool> flooding{true};
  std::string line(80, 'x');
  line.back() = '\n';
  std::thread flood([&] {
    while (flooding) {
      if (child->unread() < 100000) child->out(line);
    }
  });
  EXPECT_TRUE(until([&] { return lineCount() > 100; }));
  const auto begin = Clock::now();
  view->onClose();
  EXPECT_LT(Clock::now() - begin, soon);
  flooding = false;
  flood.join();
}

TEST_F(ConsoleChildTest, ClosingLeavesTheUnfinishedLineAlone) {
  openRunning();
  child->out("half");
  ASSERT_TRUE(until([&] { return shows("half"); }));
  const int before = lineCount();
  view->onClose();
  EXPECT_EQ(lineCount(), before);
}

TEST_F(ConsoleChildTest, BeepsAreMerged) {
  openRunning();
  child->out("a\a\a\ab");
  ASSERT_TRUE(until([&] { return shows("ab") && !desktop.alerts.empty(); }));
  EXPECT_EQ(desktop.alerts, (std::vector{AlertSound::Beep}));
}

TEST_F(ConsoleChildTest, AFloodCostsOneWakeUntilTheWindowHasFollowed) {
  openRunning();
  until([&] { return surface.wakes == 0; });
  for (int line = 0; line < 5000; ++line) child->out("line\n");
  const auto deadline = Clock::now() + std::chrono::seconds(10);
  while (child->unread() > 0 && Clock::now() < deadline) std::this_thread::sleep_for(milliseconds(1));
  EXPECT_EQ(child->unread(), 0U);
  EXPECT_LE(surface.wakes, 1);
  surface.forget();
  ASSERT_TRUE(until([&] { return lineCount() == 1500; }));
  EXPECT_LE(surface.sizeChanges, 3);
}

TEST_F(ConsoleChildTest, AKeyIsEchoedDuringAFlood) {
  openRunning();
  std::atomic<bool> flooding{true};
  std::thread flood([&] {
    while (flooding) {
      if (child->unread() < 100000) child->out(std::string(4000, '\n'));
    }
  });
  EXPECT_TRUE(until([&] { return lineCount() == 1500; }));
  milliseconds slowest{0};
  for (int key = 0; key < 50; ++key) {
    const auto begin = Clock::now();
    type("k");
    slowest = std::max(slowest, std::chrono::duration_cast<milliseconds>(Clock::now() - begin));
  }
  flooding = false;
  flood.join();
  EXPECT_LT(slowest, soon);
}

TEST_F(ConsoleChildTest, AStreamThatEndsFirstDoesNotCutALineOfTheOther) {
  openRunning();
  child->out("one li");
  ASSERT_TRUE(until([&] { return shows("one li"); }));
  child->closeError();
  ASSERT_TRUE(until([&] { return child->endsSeen() == 1; }));
  child->out("ne\n");
  ASSERT_TRUE(until([&] { return shows("one line"); }));
  EXPECT_EQ(view->childState(), 1);
  child->end();
  ASSERT_TRUE(until([&] { return ended(); }));
  EXPECT_EQ(lines(), (Lines{"", "", "one line", "", "", banner, ""}));
}

}  // namespace
}  // namespace tarnwick
