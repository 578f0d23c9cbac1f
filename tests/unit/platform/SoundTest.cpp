#include "platform/Sound.h"

#include <chrono>
#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

TEST(SoundTest, AFloodOfAlertsHoldsNobodyUp) {
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < 200; ++i) {
    for (const Alert alert : {Alert::Exclamation, Alert::Asterisk, Alert::Beep}) playAlert(alert);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

}  // namespace
}  // namespace tarnwick::platform
