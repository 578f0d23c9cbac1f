// The console window that the system gives to a real child.
#include "support/Children.h"
#include "support/ConsoleFixture.h"

#include <windows.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using std::chrono::seconds;
using std::chrono::steady_clock;

class RealConsoleWindowTest : public test::ConsoleFixture {
 protected:
  ~RealConsoleWindowTest() override { view.reset(); }  // the child before its script

  void run(const std::string& script) {
    standIn_ = std::make_unique<test::StandInScript>(script);
    exeFile_ = test::StandInScript::tool("java");
    // As the program keeps it: in letters by turns, which tell this console from all other windows.
    for (std::size_t i = 0; i < exeFile_.size(); i += 2) {
      exeFile_[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(exeFile_[i])));
    }
    openWith({exeFile_, " Main", &platform::ChildProcess::start, {}});
  }
  platform::WindowNumber window() const { return view->consoleSearch().consoleWindow(); }
  bool shows(const std::string& line) {
    const auto all = lines();
    return std::find(all.begin(), all.end(), line) != all.end();
  }
  /// As the window's loop lets the search timer tick.
  bool untilFound() {
    return until([this] {
      if (desktop.timersOf(ConsoleWindowSearch::period) > 0) desktop.tick(ConsoleWindowSearch::period);
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      return view->consoleSearch().consoleSearchState() > 0;
    });
  }

  platform::ConsoleWindows& windows_ = platform::ConsoleWindows::ofSystem();
  std::unique_ptr<test::StandInScript> standIn_;
  std::string exeFile_;
};

TEST_F(RealConsoleWindowTest, IsFoundByItsTitleAndMinimised) {
  run("out up\nsleep 60000");
  ASSERT_TRUE(untilFound());
  EXPECT_EQ(windows_.title(window()), exeFile_);
  EXPECT_TRUE(until([this] { return windows_.isIconic(window()); }));
  EXPECT_EQ(surface.raised, 0);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RealConsoleWindowTest, ClosingTheViewClosesItWithAllThatRuns) {
  run("grandchild 60000\nout up\nsleep 60000");
  ASSERT_TRUE(until([this] { return shows("up"); }));
  ASSERT_TRUE(untilFound());
  ASSERT_TRUE(until([this] { return windows_.isIconic(window()); }));
  const int grandchild = standIn_->grandchildren(1).at(0);
  const auto begin = steady_clock::now();
  view->onClose();
  EXPECT_LT(steady_clock::now() - begin, seconds(6)) << "the sleeps and the time to end";
  EXPECT_TRUE(test::waitUntil([&] { return !test::processLives(grandchild); }));
  EXPECT_TRUE(test::waitUntil([this] { return !windows_.lives(window()); }));
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RealConsoleWindowTest, AUserWhoClosesItEndsTheProgram) {
  run("out up\nsleep 60000");
  ASSERT_TRUE(until([this] { return shows("up"); }));
  ASSERT_TRUE(untilFound());
  EXPECT_TRUE(windows_.askToClose(window()));
  EXPECT_TRUE(until([this] { return view->childState() == 0; }));
  EXPECT_TRUE(shows("****  Tarnwick:  E n d   o f   j a v a   e x e c u t i o n   ****"));
}

TEST_F(RealConsoleWindowTest, AConsoleOfOurOwnIsInTheWayAndThatIsTold) {
  ASSERT_TRUE(AllocConsole());
  run("out up\nsleep 60000");
  ASSERT_TRUE(until([this] { return shows("up"); }));
  SetLastError(ERROR_ACCESS_DENIED);
  const std::string text = platform::lastSystemError("AllocConsole()").text();
  ASSERT_TRUE(until([this] { return !desktop.messages.empty(); }));
  EXPECT_EQ(desktop.messages, (std::vector<std::string>{text}));
}

}  // namespace
}  // namespace tarnwick
