#pragma once

#include "platform/Process.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace tarnwick {

/// How the console's child is started.
using ChildFactory = std::function<std::unique_ptr<platform::ChildProcess>(const platform::ChildCommand&)>;

/// How long the console waits for a child's last words.
struct ConsoleTiming {
  std::chrono::milliseconds settle{200};      ///< the output has settled when nothing comes for so long
  std::chrono::milliseconds readerWait{400};  ///< for a reader that was active lately
  int readerTries = 8;
};

/// What runs in a console.
struct ConsoleProgram {
  std::string exeFile;
  std::string runArguments;
  ChildFactory start = &platform::ChildProcess::start;
  ConsoleTiming timing;
};

}  // namespace tarnwick
