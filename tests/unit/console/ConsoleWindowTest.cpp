// The child's own console window, as the view looks for it and closes it.
#include "support/ConsoleFixture.h"
#include "support/FakeWindows.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace tarnwick {
namespace {

using Graces = std::vector<std::chrono::milliseconds>;
using Numbers = std::vector<platform::WindowNumber>;
using std::chrono::milliseconds;

class ConsoleWindowTest : public test::ConsoleFixture {
 protected:
  ConsoleWindowTest() {
    program.windows = &windows;
    program.timing.restoreWait = milliseconds(1);
    windows.all = {{3, program.exeFile}};
  }
  ~ConsoleWindowTest() override { view.reset(); }  // before the windows go

  void openFound() {
    openRunning();
    ASSERT_TRUE(until([&] { return view->consoleSearch().consoleWindow() == 3; }));
  }

  test::FakeWindows windows;
};

TEST_F(ConsoleWindowTest, IsMinimisedAsSoonAsTheChildRuns) {
  openFound();
  EXPECT_EQ(windows.minimised, (Numbers{3}));
  EXPECT_EQ(view->consoleSearch().consoleSearchState(), 1);
}

TEST_F(ConsoleWindowTest, AChildThatDidNotStartHasNone) {
  program.start = [](const platform::ChildCommand&) -> std::unique_ptr<platform::ChildProcess> {
    throw platform::SystemError{"CreateProcess", 2, "No such file"};
  };
  openWith(program);
  ASSERT_TRUE(until([&] { return !desktop.messages.empty(); }));
  view->onWake();
  EXPECT_EQ(view->consoleSearch().consoleSearchState(), -1);
  view->onClose();
  EXPECT_TRUE(windows.minimised.empty());
  EXPECT_TRUE(windows.closed.empty());
}

TEST_F(ConsoleWindowTest, ClosingTheViewClosesItAndGivesTheProgramTwoSeconds) {
  openFound();
  view->onClose();
  EXPECT_EQ(windows.closed, (Numbers{3}));
  EXPECT_EQ(child->graces(), (Graces{milliseconds(2000)}));
  EXPECT_EQ(child->treesEnded(), 1);
  EXPECT_EQ(desktop.runningTimers(), 0U);
  view->onClose();
  EXPECT_EQ(windows.closed.size(), 1U);
  EXPECT_EQ(child->treesEnded(), 1);
}

TEST_F(ConsoleWindowTest, WithoutItTheProgramGetsNoTime) {
  windows.all.clear();
  openRunning();
  view->onClose();
  EXPECT_TRUE(child->graces().empty());
  EXPECT_EQ(child->treesEnded(), 1);
  EXPECT_EQ(desktop.runningTimers(), 0U);
}

TEST_F(ConsoleWindowTest, NobodyWaitsForTheChildAnyLongerWhenItIsToldToClose) {
  openFound();
  bool stopped = false;
  windows.onClose = [&] { stopped = child->waitingStopped(); };
  view->onClose();
  EXPECT_TRUE(stopped) << "whoever waits would let go what the child leaves behind";
}

TEST_F(ConsoleWindowTest, AProgramsLastWordsDoNotBlockIt) {
  openFound();
  windows.onClose = [&] {
    child->out(std::string(200000, 'x'));
    child->err(std::string(200000, 'y'));
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (child->unread() > 0 && std::chrono::steady_clock::now() < end) {
      std::this_thread::sleep_for(milliseconds(1));
    }
    EXPECT_EQ(child->unread(), 0U);
  };
  const auto before = lines();
  view->onClose();
  EXPECT_EQ(lines(), before) << "nobody sees them any longer";
}

TEST_F(ConsoleWindowTest, AWriteThatIsBrokenOffByTheCloseIsNoFailure) {
  openFound();
  child->stopReadingInput();
  type("one\r");
  ASSERT_TRUE(until([&] { return child->writing(); }));
  windows.onClose = [&] { std::this_thread::sleep_for(milliseconds(50)); };
  view->onClose();
  desktop.runPosted();
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ConsoleWindowTest, AWindowThatCannotBeClosedIsLeftToTheUser) {
  openFound();
  windows.at(3).takesClose = false;
  view->onClose();
  EXPECT_EQ(desktop.hints, (std::vector<std::string>{"Please close also the console window associated with JDK."}));
  EXPECT_EQ(child->treesEnded(), 1) << "and what runs in it ends all the same";
}

TEST_F(ConsoleWindowTest, AfterTheChildsEndItIsLeftAlone) {
  openFound();
  child->out("x");
  child->end();
  ASSERT_TRUE(until([&] { return view->childState() == 0; }));
  view->onClose();
  EXPECT_TRUE(windows.closed.empty());
  EXPECT_EQ(child->treesEnded(), 0);
}

}  // namespace
}  // namespace tarnwick
