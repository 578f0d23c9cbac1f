#pragma once

#include <functional>
#include <thread>
#include <utility>

namespace tarnwick::platform {

/// How threads are started. Throws std::system_error when there is none to be had.
using ThreadFactory = std::function<std::thread(std::function<void()>)>;

/// A thread as the system gives it.
inline std::thread startThread(std::function<void()> work) {
  return std::thread(std::move(work));
}

}  // namespace tarnwick::platform
