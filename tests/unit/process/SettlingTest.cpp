// The end of a tool's run: how long its last words are waited for, and what goes wrong on the way. The tool is
// scripted, and the waits are counted, not timed.
#include "base/NoThreadE.h"
#include "base/Tarnwickfile.h"
#include "process/LoggedRun.h"
#include "process/Subprocess.h"
#include "process/ToolLog.h"
#include "support/Children.h"
#include "support/FakeChild.h"
#include "support/ScriptedDesktop.h"
#include "support/Shown.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <system_error>

namespace tarnwick {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

/// Lets a test end what the program is busy with, or leave it without a thread for its work.
class BusyDesktop : public test::ScriptedDesktop {
 public:
  std::function<void()> giveUp;
  bool hasThread = true;
  void whileBusy(const BusyWork& busy) override {
    if (!hasThread) throw NoThreadE();
    giveUp = busy.giveUp;
    busy.work();
  }
};

class SettlingTest : public testing::Test {
 protected:
  SettlingTest() {
    means_.start = [this](const platform::ChildCommand&) { return std::make_unique<test::FakeChild>(child_); };
    means_.settle = milliseconds(1);
    means_.longestSettling = milliseconds(10);
    means_.onWait = [this] {
      ++waits_;
      during_();
    };
  }

  bool run() {
    Subprocess tool(desktop_, log_, "javac", means_);
    tool.addArg("javac");
    return test::shown(desktop_, tool.run(nullptr, FileMode::Write));
  }

  std::string logText() const {
    std::string text = test::contentOf(log_.path());
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
  }

  /// Says it, and returns when it counts.
  void say(const std::string& text) {
    said_ += text;
    child_->out(text);
    EXPECT_TRUE(test::waitUntil([this] { return logText() == "\n\njavac\n\n" + said_; })) << logText();
    const std::lock_guard counted(log_.lock());
  }

  bool logIsClosed() {
    try {
      log_.append("x", 1);
    } catch (const Tarnwickfile::FileNotOpenE&) {
      return true;
    }
    return false;
  }

  /// Threads as the system gives them, but for the one that it refuses.
  void refuse(int refused) {
    means_.thread = [refused, count = std::make_shared<int>(0)](std::function<void()> work) {
      if (++*count == refused) throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
      return std::thread(std::move(work));
    };
  }

  test::ScratchFolder folder_;
  BusyDesktop desktop_;
  ToolLog log_{folder_.path()};
  std::shared_ptr<test::ChildScript> child_ = std::make_shared<test::ChildScript>();
  RunMeans means_;
  int waits_ = 0;
  std::function<void()> during_ = [] {};

 private:
  std::string said_;
};

TEST_F(SettlingTest, ByDefaultFourHundredMillisecondsSettleAndTenSecondsAreEnough) {
  EXPECT_EQ(RunMeans().settle, milliseconds(400));
  EXPECT_EQ(RunMeans().longestSettling, milliseconds(10000));
}

TEST_F(SettlingTest, WhatWritesOnAndOnIsLeftAndTheLogSaysSo) {
  child_->end(false);
  during_ = [this] { say("tick\n"); };
  EXPECT_TRUE(run());
  EXPECT_EQ(waits_, 10);
  std::string ticks;
  for (int i = 0; i < 10; ++i) ticks += "tick\n";
  EXPECT_EQ(logText(),
            "\n\njavac\n\n" + ticks + "\nThe tool has ended, but something that it has left behind still writes.\n");
  EXPECT_EQ(child_->treesEnded(), 0) << "it goes its own way";
}

TEST_F(SettlingTest, WhatFallsSilentIsWaitedForNoLonger) {
  child_->end(false);
  during_ = [this] {
    if (waits_ <= 3) say("tick\n");
  };
  EXPECT_TRUE(run());
  EXPECT_EQ(waits_, 4);
  EXPECT_EQ(logText(), "\n\njavac\n\ntick\ntick\ntick\n");
}

TEST_F(SettlingTest, WhereBothOutputsHaveEndedNothingIsWaitedFor) {
  means_.settle = means_.longestSettling = seconds(60);
  child_->out("done\n");
  child_->end();
  const auto begin = steady_clock::now();
  EXPECT_TRUE(run());
  EXPECT_LT(steady_clock::now() - begin, seconds(30));
  EXPECT_EQ(logText(), "\n\njavac\n\ndone\n");
}

TEST_F(SettlingTest, WhereOneOutputHasEndedTheOtherIsWaitedFor) {
  child_->closeError();
  child_->end(false);
  during_ = [this] {
    if (waits_ == 1) say("late\n");
  };
  EXPECT_TRUE(run());
  EXPECT_EQ(waits_, 2);
}

TEST_F(SettlingTest, AnEndRequestEndsIt) {
  means_.settle = means_.longestSettling = hours(1);
  child_->end(false);
  during_ = [this] {
    say("tick\n");
    desktop_.giveUp();
  };
  EXPECT_TRUE(run());
  EXPECT_EQ(waits_, 1);
  EXPECT_EQ(logText(), "\n\njavac\n\ntick\n");
  EXPECT_EQ(child_->treesEnded(), 1) << "and the tool with all that it has started";
}

TEST_F(SettlingTest, AfterEveryRunTheLogIsClosed) {
  child_->end();
  EXPECT_FALSE(run());
  EXPECT_TRUE(logIsClosed());
}

TEST_F(SettlingTest, WithoutAReadersThreadTheToolIsEndedAndItIsTold) {
  for (const int reader : {1, 2}) {
    child_ = std::make_shared<test::ChildScript>();
    child_->out("unheard");
    child_->end(false);
    refuse(reader);
    try {
      run();
      FAIL() << "the run counts as one that was heard";
    } catch (const Tarnwickexception& failure) {
      EXPECT_EQ(failure.message, "Tarnwick Internal error: Thread creation (subprocess) failed.\n");
    }
    EXPECT_EQ(child_->treesEnded(), 1) << reader;
    EXPECT_TRUE(logIsClosed()) << reader;
  }
  refuse(0);
  child_ = std::make_shared<test::ChildScript>();
  child_->end();
  EXPECT_FALSE(run()) << "the next run is as any other";
}

TEST_F(SettlingTest, WithoutAThreadForTheWorkTheToolIsEnded) {
  desktop_.hasThread = false;
  child_->end(false);
  EXPECT_THROW(run(), NoThreadE);
  EXPECT_EQ(child_->treesEnded(), 1);
  EXPECT_TRUE(logIsClosed());
}

TEST_F(SettlingTest, WhatWentWrongBeforeIsToldWithTheLackOfAThread) {
  desktop_.hasThread = false;
  child_->end(false);
  means_.start = [this](const platform::ChildCommand& command) {
    command.report({"AllocConsole()", 5, "denied"});
    return std::make_unique<test::FakeChild>(child_);
  };
  const std::string before = platform::SystemError{"AllocConsole()", 5, "denied"}.text();
  try {
    static_cast<void>(run());
    ADD_FAILURE() << "the tool ran";
  } catch (const NoThreadE& fault) {
    EXPECT_EQ(fault.message, before + "\n\n" + NoThreadE().message);
  }
}

TEST_F(SettlingTest, ALackOfMemoryIsToldAndTheToolStillCountsAsHavingSpoken) {
  child_->out("said\n");
  child_->takeMemoryAway();
  child_->end();
  desktop_.expectMessage("Not enough memory for all that the tool has said.");
  EXPECT_TRUE(run());
  EXPECT_EQ(logText(), "\n\njavac\n\nsaid\n") << "and it is listened to as before";
}

}  // namespace
}  // namespace tarnwick
