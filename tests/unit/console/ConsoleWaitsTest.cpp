// How long a console waits for a child's last words: by the waits themselves, not by the clock.
#include "console/ConsoleChild.h"
#include "support/Children.h"
#include "support/ConsoleFixture.h"
#include "support/ThreadPriorities.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <new>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;
using std::chrono::milliseconds;

constexpr milliseconds settle(1);
constexpr milliseconds readerWait(2);
const char banner[] = "****  Tarnwick:  E n d   o f   j a v a   e x e c u t i o n   ****";

class ConsoleWaitsTest : public testing::Test {
 protected:
  ConsoleWaitsTest() {
    program_.timing = {settle, readerWait, 8, [this](milliseconds time) { onWait(time); }};
    program_.start = [this](const platform::ChildCommand&) {
      priorityAtStart_ = test::threadPriority();
      return std::make_unique<test::FakeChild>(script_);
    };
    child_ = std::make_unique<ConsoleChild>(screen_, desktop_, program_, [this] {
      if (memoryGone_.exchange(false)) throw std::bad_alloc();
    });
  }
  ~ConsoleWaitsTest() override { child_.reset(); }

  /// Runs a child that says something and ends, while somebody holds its pipes, until its end has been told.
  void runToTheEnd() {
    child_->start();
    say("x");
    script_->end(false);
    ASSERT_TRUE(test::waitUntil([this] { return child_->childState() == 0; }));
  }

  /// Says it, and returns when it stands in the text.
  void say(const std::string& text) {
    said_ += text;
    script_->out(text);
    EXPECT_TRUE(test::waitUntil([this] {
      std::string all;
      for (const auto& line : lines()) all += line;
      return all == said_;
    }));
  }

  bool tellsTheEnd() { return child_->childState() == 0; }

  Lines lines() {
    const TextGuard guard(document_.textLock());
    return test::textOf(document_);
  }
  std::ptrdiff_t waitsOf(milliseconds time) const { return std::count(waits_.begin(), waits_.end(), time); }

  /// Of the child run thread when it starts the child.
  int priorityAtStart_ = -1000;
  /// What happens within a wait.
  std::function<void(milliseconds)> during_ = [](milliseconds) {};
  std::shared_ptr<test::ChildScript> script_ = std::make_shared<test::ChildScript>();
  test::RecordingDesktop desktop_;
  std::unique_ptr<ConsoleChild> child_;
  /// The next block of output finds no memory on its way to the window.
  std::atomic<bool> memoryGone_{false};

 private:
  /// On the child run thread, which has told the end before anybody asks.
  void onWait(milliseconds time) {
    waits_.push_back(time);
    during_(time);
  }

  TarnwickDoc document_{""};
  ConsoleScreen screen_{document_};
  ConsoleProgram program_{"java", " Main", {}, {}};
  std::vector<milliseconds> waits_;
  std::string said_;
};

TEST_F(ConsoleWaitsTest, AQuietEndIsToldAfterOneLookAtTheOutputAndOneAtTheReaders) {
  runToTheEnd();
  EXPECT_EQ(waitsOf(settle), 1);
  EXPECT_EQ(waitsOf(readerWait), 1);
}

TEST_F(ConsoleWaitsTest, OnceTheChildHasEndedItsRunThreadHasTheLowestPriority) {
  std::vector<int> priorities;
  during_ = [&](milliseconds) { priorities.push_back(test::threadPriority()); };
  const int own = test::threadPriority();
  if (own == test::lowestThreadPriority()) GTEST_SKIP() << "all of this run has the lowest priority already";
  runToTheEnd();
  EXPECT_EQ(priorityAtStart_, own) << "a child may inherit it";
  EXPECT_EQ(priorities, std::vector<int>(2, test::lowestThreadPriority()));
  EXPECT_EQ(test::threadPriority(), own) << "no other thread has changed";
}

TEST_F(ConsoleWaitsTest, TheBannerWaitsUntilTheOutputHasSettled) {
  int said = 0;
  during_ = [&](milliseconds time) {
    if (time == settle && ++said <= 5) say("a");
  };
  runToTheEnd();
  EXPECT_EQ(waitsOf(settle), 6);
  EXPECT_EQ(waitsOf(readerWait), 1);
  EXPECT_EQ(lines(), (Lines{"", "", "xaaaaa", "", banner, ""}));
}

TEST_F(ConsoleWaitsTest, AReaderThatIsActiveAgainAndAgainIsWaitedForEightTimesAtMost) {
  during_ = [&](milliseconds time) {
    if (time == readerWait) say("y");
  };
  runToTheEnd();
  EXPECT_EQ(waitsOf(settle), 1);
  EXPECT_EQ(waitsOf(readerWait), 8);
  EXPECT_EQ(lines(), (Lines{"", "", "xyyyyyyyy", "", banner, ""}));
}

TEST_F(ConsoleWaitsTest, AReaderIsWaitedForAsLongAsItWasActiveInTheWaitBefore) {
  int said = 0;
  during_ = [&](milliseconds time) {
    if (time == readerWait && ++said <= 3) say("y");
  };
  runToTheEnd();
  EXPECT_EQ(waitsOf(readerWait), 4);
  EXPECT_EQ(lines(), (Lines{"", "", "xyyy", "", banner, ""}));
}

/// A child whose outputs end with it.
class EndedOutputs : public ConsoleWaitsTest {
 public:
  void TestBody() override {
    child_->start();
    say("x");
    script_->end();
    ASSERT_TRUE(test::waitUntil([this] { return tellsTheEnd(); }));
    EXPECT_LE(waitsOf(settle), 1);
    EXPECT_LE(waitsOf(readerWait), 1);
    EXPECT_EQ(lines(), (Lines{"", "", "x", "", banner, ""}));
  }
  bool waited() const { return waitsOf(settle) + waitsOf(readerWait) > 0; }
};

TEST(ConsoleEndedOutputs, NothingIsWaitedFor) {
  // On a busy machine a wait may begin before the readers have come to the ends, which cut it short; but not each time.
  bool waited = true;
  for (int round = 0; round < 200 && waited; ++round) {
    EndedOutputs run;
    run.TestBody();
    waited = run.waited();
  }
  EXPECT_FALSE(waited);
}

TEST_F(ConsoleWaitsTest, AReaderThatDoesNotGetOnStillBringsTheLastWordsBeforeTheBanner) {
  child_->start();
  say("x");
  script_->starveReaders(true);
  script_->out("last");
  script_->err(" words");
  script_->end(false);
  EXPECT_FALSE(test::waitInNaps(milliseconds(200), [this] { return tellsTheEnd(); })) << "though nothing comes";
  script_->starveReaders(false);
  ASSERT_TRUE(test::waitUntil([this] { return tellsTheEnd(); }));
  const auto all = lines();
  ASSERT_EQ(all.size(), 6U);
  EXPECT_TRUE(all[2] == "xlast words" || all[2] == "x wordslast") << all[2];
  EXPECT_EQ(all[4], banner);
}

TEST_F(ConsoleWaitsTest, AChildWhoseOnlyWordsLieInThePipeIsNoSilentOne) {
  script_->starveReaders(true);
  script_->out("only words");
  script_->end(false);
  child_->start();
  EXPECT_FALSE(test::waitInNaps(milliseconds(200), [this] { return tellsTheEnd(); }));
  script_->starveReaders(false);
  ASSERT_TRUE(test::waitUntil([this] { return tellsTheEnd(); }));
  EXPECT_EQ(lines(), (Lines{"", "", "only words", "", banner, ""}));
}

TEST_F(ConsoleWaitsTest, ClosingEndsTheWaitForAReaderThatDoesNotGetOn) {
  child_->start();
  say("x");
  script_->starveReaders(true);
  script_->out("unread");
  script_->end(false);
  child_->close();
  EXPECT_EQ(child_->childState(), 1);
}

TEST_F(ConsoleWaitsTest, WhatCanNoLongerBeReadIsNotWaitedFor) {
  child_->start();
  say("x");
  script_->starveReaders(true);
  script_->out("unreadable");
  script_->breakReading();
  script_->end(false);
  script_->starveReaders(false);
  ASSERT_TRUE(test::waitUntil([this] { return tellsTheEnd(); }));
  EXPECT_EQ(lines(), (Lines{"", "", "x", "", banner, ""}));
}

TEST_F(ConsoleWaitsTest, ALackOfMemoryInAReaderIsToldOnceAndTheProgramGoesOn) {
  child_->start();
  say("one ");
  for (const char* text : {"two ", "three "}) {
    memoryGone_ = true;
    say(text);
    ASSERT_TRUE(test::waitUntil([this] { return !memoryGone_; }));
  }
  say("four");
  script_->takeMemoryAway();
  say(" five");
  script_->end();
  ASSERT_TRUE(test::waitUntil([this] { return tellsTheEnd(); }));
  desktop_.runPosted();
  EXPECT_EQ(desktop_.messages, (Lines{"Not enough memory for all that the program says."}));
  EXPECT_EQ(lines(), (Lines{"", "", "one two three four five", "", banner, ""}));
}

}  // namespace
}  // namespace tarnwick
