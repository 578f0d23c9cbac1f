#pragma once

#include "platform/ConsoleWindows.h"
#include "platform/Process.h"
#include "platform/ThreadFactory.h"

#include <chrono>
#include <functional>
#include <string>

namespace tarnwick {

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

/// What runs in a console.
struct ConsoleProgram {
  std::string exeFile;
  std::string runArguments;
  platform::ChildFactory start = &platform::ChildProcess::start;
  ConsoleTiming timing;
  platform::ThreadFactory thread = &platform::startThread;
  /// What the child has started does not outlive it.
  bool leavesNothing = false;
  /// The console of today rather than the classic one.
  bool today = false;
  /// If it says nothing at all, its console closes with it.
  bool closesSilently = true;
  platform::ConsoleWindows* windows = &platform::ConsoleWindows::ofSystem();
};

}  // namespace tarnwick
