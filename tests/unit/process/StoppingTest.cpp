// A run that its user has had enough of.
#include "base/Tarnwickfile.h"
#include "process/LoggedRun.h"
#include "process/Subprocess.h"
#include "process/ToolLog.h"
#include "support/Children.h"
#include "support/FakeChild.h"
#include "support/ScriptedDesktop.h"
#include "support/Shown.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>

namespace tarnwick {
namespace {

/// Shows nothing, but keeps what it was to show.
class WatchedDesktop : public test::ScriptedDesktop {
 public:
  std::optional<BusyWork> shown;
  void whileBusy(const BusyWork& busy) override {
    shown = busy;
    busy.work();
  }
};

class StoppingTest : public testing::Test {
 protected:
  StoppingTest() {
    means_.start = [this](const platform::ChildCommand&) { return std::make_unique<test::FakeChild>(child_); };
    means_.settle = std::chrono::milliseconds(1);
    means_.longestSettling = std::chrono::milliseconds(3);
    means_.onWait = [this] { settling_(); };
    tool_.emplace(desktop_, log_, "javac", means_);
    tool_->addArg("javac");
    tool_->addArg("-g");
  }

  RunResult run() { return tool_->run(nullptr, FileMode::Write); }
  std::string logText() const {
    std::string text = test::contentOf(log_.path());
    std::erase(text, '\r');
    return text;
  }

  test::ScratchFolder folder_;
  WatchedDesktop desktop_;
  ToolLog log_{folder_.path()};
  std::shared_ptr<test::ChildScript> child_ = std::make_shared<test::ChildScript>();
  RunMeans means_;
  std::optional<Subprocess> tool_;
  std::function<void()> settling_ = [] {};
};

TEST_F(StoppingTest, WhatIsNotToBeSeenCannotBeStopped) {
  child_->end();
  const RunResult result = run();
  ASSERT_TRUE(desktop_.shown);
  EXPECT_FALSE(desktop_.shown->stop);
  EXPECT_EQ(desktop_.shown->tool, "");
  EXPECT_TRUE(desktop_.shown->giveUp) << "the program's end is another matter";
  EXPECT_EQ(result.end, RunEnd::ByItself);
}

TEST_F(StoppingTest, WhatIsSeenIsTheToolAndWhatItWorksOn) {
  child_->end();
  tool_->showWhileItRuns("A.java");
  const RunResult result = run();
  EXPECT_EQ(desktop_.shown->tool, "javac");
  EXPECT_EQ(desktop_.shown->on, "A.java");
  EXPECT_TRUE(desktop_.shown->stop);
  EXPECT_EQ(result.end, RunEnd::ByItself);
  EXPECT_FALSE(result.said);
}

TEST_F(StoppingTest, WhoStopsItEndsAllThatItStartedAndTheLogTells) {
  child_->out("a warning\n");
  child_->end(false);
  tool_->showWhileItRuns("A.java");
  settling_ = [this] {
    EXPECT_TRUE(test::waitUntil([this] { return logText().find("a warning") != std::string::npos; }));
    desktop_.shown->stop();
  };
  const RunResult result = run();
  EXPECT_EQ(result.end, RunEnd::Stopped);
  EXPECT_TRUE(result.said);
  EXPECT_EQ(child_->treesEnded(), 1);
  EXPECT_EQ(logText(), "\n\njavac -g\n\na warning\n\nStopped.\n");
  EXPECT_EQ(log_.end(), RunEnd::Stopped);
}

TEST_F(StoppingTest, ASilentOneThatWasStoppedIsNoSuccess) {
  child_->end(false);
  tool_->showWhileItRuns("A.java");
  settling_ = [this] { desktop_.shown->stop(); };
  const RunResult result = run();
  EXPECT_TRUE(result.said);
  EXPECT_EQ(logText(), "\n\njavac -g\n\nStopped.\n");
}

TEST_F(StoppingTest, WhatHasEndedIsNotStopped) {
  child_->end();
  tool_->showWhileItRuns("A.java");
  struct Late : test::ScriptedDesktop {
    void whileBusy(const BusyWork& busy) override {
      busy.work();
      busy.stop();
    }
  } desktop;
  Subprocess tool(desktop, log_, "javac", means_);
  tool.addArg("javac");
  tool.showWhileItRuns("A.java");
  const RunResult result = tool.run(nullptr, FileMode::Write);
  EXPECT_EQ(result.end, RunEnd::ByItself);
  EXPECT_FALSE(result.said);
  EXPECT_EQ(child_->treesEnded(), 0);
}

}  // namespace
}  // namespace tarnwick
