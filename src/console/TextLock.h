#pragma once

#include <mutex>

namespace tarnwick {

/// The lock of the console's text. Whoever already waits comes before the one that has just let go: a reader that
/// takes the lock thousands of times a second can't keep the user-interface thread from it.
class TextLock {
 public:
  void lock() {
    next_.lock();
    text_.lock();
    next_.unlock();
  }
  void unlock() { text_.unlock(); }

 private:
  std::mutex next_;  ///< held while waiting, so that the others queue behind
  std::mutex text_;
};

using TextGuard = std::lock_guard<TextLock>;

}  // namespace tarnwick
