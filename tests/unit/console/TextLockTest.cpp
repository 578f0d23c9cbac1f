#include "console/TextLock.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace tarnwick {
namespace {

/// Gives the lock back while somebody waits for it, and takes it again at once. True if the other had it in between.
bool otherComesFirst() {
  TextLock lock;
  std::atomic<bool> ready{false};
  std::atomic<bool> had{false};
  lock.lock();
  std::thread other([&] {
    ready = true;
    const TextGuard guard(lock);
    had = true;
  });
  while (!ready) std::this_thread::yield();
  std::this_thread::sleep_for(std::chrono::milliseconds(3));
  lock.unlock();
  lock.lock();
  const bool first = had;
  lock.unlock();
  other.join();
  return first;
}

TEST(TextLock, WhoWaitsForItComesBeforeTheOneThatHasJustLetGo) {
  // On a busy machine the other may now and then not have come to wait yet.
  constexpr int rounds = 20;
  int first = 0;
  for (int round = 0; round < rounds; ++round) first += otherComesFirst() ? 1 : 0;
  EXPECT_GE(first, rounds / 2);
}

}  // namespace
}  // namespace tarnwick
