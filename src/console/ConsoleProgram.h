#pragma once

#include "console/ConsoleSegment.h"
#include "platform/ConsoleWindows.h"
#include "platform/Process.h"
#include "platform/ThreadFactory.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

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
  /// For a debugger to get hold of its program; a little less than it waits by itself, so that it is told in our words.
  std::chrono::milliseconds connectWait{29000};
  std::chrono::milliseconds debuggerWait{5000};  ///< for a debugger's own end when its program has ended
};

/// The program that a debugger in the console takes hold of, with an input and an output of its own.
struct DebuggedProgram {
  std::string exeFile;
  std::string runArguments;
};

/// What becomes of a child's words, and who else waits for its end. The child's threads make the calls.
struct ConsolePart {
  int outputKind = KIND_OUTPUT;
  int errorKind = KIND_ERROR;
  /// Its output begins on a line of its own.
  bool beginsLine = true;
  /// Where there are such things, it gets a console window.
  bool ownWindow = true;
  /// The banner tells its end.
  bool tellsEnd = true;
  /// Hears each block of its standard output before that is in the text.
  std::function<void(std::string_view)> onOutput = {};
  /// Hears once that it runs no longer, or not at all, unless the console closes first.
  std::function<void()> onEnd = {};
  /// Hears once, behind that and before the banner, that its last words are in the text. False if the console closes
  /// and there is to be no banner.
  std::function<bool()> onLastWord = {};
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
  /// What the debugger, which is the child then, takes hold of.
  std::optional<DebuggedProgram> debugged = std::nullopt;
  ConsolePart part = {};
  platform::ConsoleWindows* windows = &platform::ConsoleWindows::ofSystem();
};

}  // namespace tarnwick
