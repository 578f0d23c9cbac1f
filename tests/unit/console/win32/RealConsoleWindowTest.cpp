// The console window that the system gives to a real child.
#include "platform/win32/Handle.h"
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

/// The system's windows, but one that is asked to close tells the programs in it themselves, by an event that they may
/// handle. So does a console of Windows; Wine's ends them without a word.
class TellingWindows : public platform::ConsoleWindows {
 public:
  bool exist() const override { return real_.exist(); }
  platform::WindowNumber titled(const std::string& title) const override { return real_.titled(title); }
  std::vector<platform::WindowNumber> below(platform::WindowNumber window) const override {
    return real_.below(window);
  }
  std::string title(platform::WindowNumber window) const override { return real_.title(window); }
  bool lives(platform::WindowNumber window) const override { return real_.lives(window); }
  bool isIconic(platform::WindowNumber window) const override { return real_.isIconic(window); }
  bool askToMinimise(platform::WindowNumber window) override { return real_.askToMinimise(window); }
  void restore(platform::WindowNumber window) override { real_.restore(window); }

  bool askToClose(platform::WindowNumber) override {
    // Only who is in a console may send the event there; we are not to be ended by it.
    if (!AttachConsole(static_cast<DWORD>(inside))) return false;
    SetConsoleCtrlHandler(nullptr, TRUE);
    told = GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0) != FALSE;
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    FreeConsole();
    SetConsoleCtrlHandler(nullptr, FALSE);
    return true;
  }

  int inside = 0;  ///< number of a process in the console
  bool told = false;

 private:
  platform::ConsoleWindows& real_ = platform::ConsoleWindows::ofSystem();
};

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
    ConsoleProgram real{exeFile_, " Main", &platform::ChildProcess::start, {}};
    real.windows = shown_;
    real.timing.closeGrace = grace_;
    openWith(real);
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
  TellingWindows telling_;
  platform::ConsoleWindows* shown_ = &windows_;
  std::chrono::milliseconds grace_ = seconds(10);  ///< on a busy machine, too, enough for what ends by itself
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

TEST_F(RealConsoleWindowTest, ItsCloseEndsTheProgramsInItBeforeForceDoes) {
  run("grandchild 60000\nout up\nsleep 60000");
  ASSERT_TRUE(until([this] { return shows("up"); }));
  ASSERT_TRUE(untilFound());
  const int grandchild = standIn_->grandchildren(1).at(0);
  const platform::Handle process(
      OpenProcess(SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(grandchild)));
  ASSERT_TRUE(process);
  view->onClose();
  ASSERT_EQ(WaitForSingleObject(process.get(), 10000), WAIT_OBJECT_0);
  DWORD code = 0;
  ASSERT_TRUE(GetExitCodeProcess(process.get(), &code));
  constexpr DWORD byForce = 1;
  EXPECT_NE(code, byForce) << "its console told it to end";
}

TEST_F(RealConsoleWindowTest, AProgramThatIsToldOfTheEndHasTimeForItsLastWork) {
  shown_ = &telling_;
  run("lastwork 700\ngrandchild 60000\nout up\nsleep 60000");
  ASSERT_TRUE(until([this] { return shows("up"); }));
  ASSERT_TRUE(untilFound());
  telling_.inside = standIn_->grandchildren(1).at(0);
  EXPECT_FALSE(standIn_->lastWorkDone());
  const auto begin = steady_clock::now();
  view->onClose();
  EXPECT_LT(steady_clock::now() - begin, seconds(8)) << "the sleeps and the time to end";
  EXPECT_TRUE(telling_.told);
  EXPECT_TRUE(standIn_->lastWorkDone());
  EXPECT_TRUE(test::waitUntil([this] { return !test::processLives(telling_.inside); }));
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RealConsoleWindowTest, AProgramWhoseLastWorkTakesTooLongIsEnded) {
  shown_ = &telling_;
  grace_ = seconds(1);
  run("lastwork 60000\ngrandchild 60000\nout up\nsleep 60000");
  ASSERT_TRUE(until([this] { return shows("up"); }));
  ASSERT_TRUE(untilFound());
  telling_.inside = standIn_->grandchildren(1).at(0);
  const platform::WindowNumber itsWindow = window();
  view->onClose();
  EXPECT_TRUE(telling_.told);
  EXPECT_FALSE(standIn_->lastWorkDone());
  EXPECT_TRUE(test::waitUntil([&] { return !windows_.lives(itsWindow); })) << "nothing is left in it";
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
