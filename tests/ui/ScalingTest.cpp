// The tests of looks once more, with larger letters and finer pixels.
#include "support/TestProgram.h"
#include "ui/ProgramAnew.h"
#include "ui/Scaling.h"
#include "ui/WindowTest.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace tarnwick::test {

namespace {

class ScalingTest : public testing::TestWithParam<Scaling> {
 protected:
  void SetUp() override {
    const std::string reason = whyNoScaling();
    if (!reason.empty()) GTEST_SKIP() << reason;
  }

  ScratchFolder scratch_;
};

/// Waits for the run on another thread, since it takes longer than a test may stand still.
int runPatiently(const std::string& arguments, const std::string& output) {
  std::atomic<bool> done = false;
  int result = 0;
  std::thread runner([&] {
    result = runAnew(arguments, output, largeScreen());
    done = true;
  });
  while (!done) {
    signOfLife();
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
  }
  runner.join();
  return result;
}

}  // namespace

TEST_P(ScalingTest, ItIsReallyInForce) {
  const int usual = runAnew("--letter-height 0", scratch_.file("out"));
  const ScalingInForce scaling(GetParam());
  const int grown = runAnew("--letter-height 0", scratch_.file("out"));
  EXPECT_GT(usual, 8);
  EXPECT_NEAR(grown, usual * GetParam().growth, 3);
  EXPECT_EQ(runAnew("--dark-theme 0", scratch_.file("out")), GetParam().name == "darkTheme" ? 1 : 0);
}

TEST_P(ScalingTest, TheTestsOfLooksPass) {
  const ScopedEnvironment scaled("TARNWICK_TEST_SCALED", GetParam().name);
  const ScalingInForce scaling(GetParam());
  const int result = runPatiently("--gtest_filter=*ShowsWhole*:*TheRowsStandLevel*", scratch_.file("out"));
  const std::string told = contentOf(scratch_.file("out"));
  EXPECT_EQ(result, 0) << told;
  EXPECT_NE(told.find(" passed, 0 failed, 0 skipped"), std::string::npos) << told;
}

INSTANTIATE_TEST_SUITE_P(Program, ScalingTest, testing::ValuesIn(allScalings()),
                         [](const auto& info) { return info.param.name; });

}  // namespace tarnwick::test
