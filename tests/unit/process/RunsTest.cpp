#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "process/Subprocess.h"
#include "process/ToolLog.h"
#include "support/Children.h"
#include "support/ProcessCounts.h"
#include "support/ScriptedDesktop.h"
#include "support/Shown.h"

#include <fstream>
#include <gtest/gtest.h>
#include <utility>

namespace tarnwick {
namespace {

using test::StandInScript;

class RunsTest : public testing::Test {
 protected:
  void runOnce(const std::string& tool) {
    Subprocess run(desktop_, log_, tool);
    run.addArg("javac");
    test::shown(desktop_, run.run(nullptr, FileMode::Write));
  }

  void failToStart() {
    const std::string missing = script_.folder().file("nothing");
    try {
      platform::ChildProcess::start({missing, "", false});
    } catch (const platform::SystemError& error) {
      desktop_.expectMessage("Can't start " + missing + '\n' + error.text());
    }
    runOnce(missing);
  }

  /// As a console does.
  void runInteractive() {
    const auto child = platform::ChildProcess::start({StandInScript::tool("java"), "", true, "interactive"});
    child->write("z\n", 2);
    EXPECT_EQ(test::readAll(*child, platform::ChildProcess::Stream::Output), "x\n");
    child->wait();
  }

  void startDetached() {
    DetachedSubprocess run(desktop_, log_, StandInScript::tool("java"));
    run.addArg("java");
    run.addArg("--stand-in-sleep=0");  // it shares our output, and has nothing to say there
    test::shown(desktop_, run.run(nullptr, FileMode::Write));
  }

  StandInScript script_{"out x\nerr y"};
  test::ScriptedDesktop desktop_;
  ToolLog log_{script_.folder().path()};
};

TEST_F(RunsTest, HundredsOfRunsLeaveNoProcessNoHandleAndNoThread) {
  const auto round = [this](int number) {
    try {
      if (number % 10 == 9) return failToStart();
      if (number % 10 == 4) return startDetached();
      if (number % 10 == 2) return runInteractive();
      runOnce(StandInScript::tool("javac"));
    } catch (const platform::SystemError& error) {
      FAIL() << "run " << number << ": " << error.text();
    }
  };
  const long threads = test::runningThreads();
  const auto settle = [threads] {
    // Those that wait for detached programs go with them.
    return test::waitUntil([threads] { return test::runningThreads() <= threads; });
  };
  // Where consoles are made and lost, a run takes half a second.
  const long lostPerConsole = test::handlesLostPerConsole();
  const int runs = lostPerConsole > 0 ? 200 : 500;
  // All but the detached ones get a console where there are such.
  const long lostBySystem = lostPerConsole * (runs / 2 - runs / 20);
  // A system makes this and that once, some of it late, and keeps it: the second half may add nothing.
  for (int i = 0; i < runs / 2; ++i) round(i);
  ASSERT_TRUE(settle()) << test::runningThreads();
  const long handles = test::openHandles() + lostBySystem;
  {
    const std::ofstream probe(script_.folder().file("probe"));
    ASSERT_GT(test::openHandles() + lostBySystem, handles) << "the count tells nothing";
  }
  for (int i = 0; i < runs / 2; ++i) round(i);
  EXPECT_TRUE(settle()) << test::runningThreads();
  EXPECT_TRUE(test::waitUntil([&] { return test::openHandles() <= handles; })) << test::openHandles() - handles;
  EXPECT_TRUE(test::waitUntil([] { return test::unreapedChildren() == 0; })) << test::unreapedChildren();
}

/// Reads one stream's letters out of a log in which both lie mixed.
class CounterReader {
 public:
  explicit CounterReader(char first) : first_(first) {}

  void read(char letter) {
    const long digit = letter - first_;
    if (digit < 0 || digit > 15) return;
    value_ = value_ * 16 + digit;
    if (++letters_ % 8 != 0) return;
    if (std::exchange(value_, 0) != letters_ / 8 - 1) ++faults_;
  }
  long letters() const { return letters_; }
  long faults() const { return faults_; }

 private:
  char first_;
  long value_ = 0;
  long letters_ = 0;
  long faults_ = 0;
};

TEST_F(RunsTest, AFloodOfBothStreamsIsLoggedWholeAndInOrderWithoutBeingKeptInMemory) {
  constexpr long bytes = 50'000'000;
  script_.setScript("floodboth " + std::to_string(bytes));
  Subprocess run(desktop_, log_, StandInScript::tool("javac"));
  run.addArg("0");  // no letters in the header
  test::forgetPeakMemory();
  const long long before = test::peakMemory();
  EXPECT_TRUE(test::shown(desktop_, run.run(nullptr, FileMode::Write)));
  EXPECT_LT(test::peakMemory() - before, 20'000'000);
  CounterReader out('A');
  CounterReader err('a');
  std::ifstream log(log_.path(), std::ios::binary);
  for (char block[65536]; log.read(block, sizeof block), log.gcount() > 0;) {
    for (std::streamsize i = 0; i < log.gcount(); ++i) {
      out.read(block[i]);
      err.read(block[i]);
    }
  }
  EXPECT_EQ(out.letters(), bytes);
  EXPECT_EQ(err.letters(), bytes);
  EXPECT_EQ(out.faults(), 0);
  EXPECT_EQ(err.faults(), 0);
}

}  // namespace
}  // namespace tarnwick
