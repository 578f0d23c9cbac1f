#include "ui/WakeGate.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace tarnwick::test {

namespace {

class WakeGateTest : public testing::Test {
 protected:
  /// Wakes until a wake has to keep its distance to the one before. Both are woken by then where no timer serves.
  void wakeUntilOneIsLate() {
    while (asked_ == 0) gate_->wake();
  }

  bool timersWork_ = true;
  int asked_ = 0;  ///< how often a timer was asked for
  int woken_ = 0;
  std::vector<ui::WakeGate::Task> late_;
  std::shared_ptr<ui::WakeGate> gate_ = std::make_shared<ui::WakeGate>([](const ui::WakeGate::Task& task) { task(); },
                                                                       [this](int, const ui::WakeGate::Task& task) {
                                                                         ++asked_;
                                                                         if (timersWork_) late_.push_back(task);
                                                                         return timersWork_;
                                                                       },
                                                                       [this] { ++woken_; });
};

TEST_F(WakeGateTest, WakesThatComeBeforeOneHasPassedAreMerged) {
  wakeUntilOneIsLate();
  const int before = woken_;
  for (int wake = 0; wake < 100; ++wake) gate_->wake();
  EXPECT_EQ(asked_, 1);
  EXPECT_EQ(woken_, before);
  late_.at(0)();
  EXPECT_EQ(woken_, before + 1);
}

TEST_F(WakeGateTest, WithoutATimerAWakePassesAtOnceAndKeepsNoneBack) {
  timersWork_ = false;
  wakeUntilOneIsLate();
  const int before = woken_;
  EXPECT_GE(before, 2);
  gate_->wake();
  EXPECT_EQ(woken_, before + 1);
}

TEST_F(WakeGateTest, NothingPassesAGateThatIsShut) {
  wakeUntilOneIsLate();
  const int before = woken_;
  gate_->shut();
  late_.at(0)();
  EXPECT_EQ(woken_, before);
}

TEST_F(WakeGateTest, ATimerThatTicksAfterTheGatesEndDoesNoHarm) {
  wakeUntilOneIsLate();
  const int before = woken_;
  gate_.reset();
  late_.at(0)();
  EXPECT_EQ(woken_, before);
}

}  // namespace

}  // namespace tarnwick::test
