#pragma once

#include "platform/Process.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>

namespace tarnwick {

/// How the console's child is started.
using ChildFactory = std::function<std::unique_ptr<platform::ChildProcess>(const platform::ChildCommand&)>;

/// How long the console waits for a child's last words.
struct ConsoleTiming {
  std::chrono::milliseconds settle{200};      ///< the output has settled when nothing comes for so long
  std::chrono::milliseconds readerWait{400};  ///< for a reader that was active lately
  int readerTries = 8;
  /// Hears, on the thread that waits, of each of these waits as it begins.
  std::function<void(std::chrono::milliseconds)> onWait = {};
};

/// How the console's threads are started. Throws std::system_error when there is none to be had.
using ThreadFactory = std::function<std::thread(std::function<void()>)>;

/// What runs in a console.
struct ConsoleProgram {
  std::string exeFile;
  std::string runArguments;
  ChildFactory start = &platform::ChildProcess::start;
  ConsoleTiming timing;
  ThreadFactory thread = [](std::function<void()> work) { return std::thread(std::move(work)); };
};

}  // namespace tarnwick
