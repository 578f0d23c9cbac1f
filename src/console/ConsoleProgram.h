#pragma once

#include "platform/ConsoleWindows.h"
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

/// How long the console waits for a child's last words, and at its close.
struct ConsoleTiming {
  std::chrono::milliseconds settle{200};      ///< the output has settled when nothing comes for so long
  std::chrono::milliseconds readerWait{400};  ///< for a reader that was active lately
  int readerTries = 8;
  /// Hears, on the thread that waits, of each of the waits above as it begins.
  std::function<void(std::chrono::milliseconds)> onWait = {};
  std::chrono::milliseconds restoreWait{500};  ///< for the child's console window to be no icon any longer
  int restoreTries = 6;
  std::chrono::milliseconds closeGrace{2000};  ///< for what runs in a console window that was told to close
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
  /// What the child has started does not outlive it.
  bool leavesNothing = false;
  platform::ConsoleWindows* windows = &platform::ConsoleWindows::ofSystem();
};

}  // namespace tarnwick
