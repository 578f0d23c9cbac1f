#pragma once

#include "console/ConsoleChild.h"
#include "console/ConsoleProgram.h"
#include "console/ConsoleScreen.h"
#include "console/JdbAddress.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace tarnwick {

class Desktop;

/// What makes `jdb` wait on this computer for a program, before what else it is told; as a child's command line.
std::string listeningArguments(const std::string& options);

/// The program beside its debugger: two children of one console, of which neither is to outlive the other. A thread of
/// its own starts the program as soon as the debugger tells where it waits, and ends the one when the other has ended.
/// What keeps them apart it tells in the text.
class DebuggedRun {
 public:
  /// `whole` is a debugger's with a program to take hold of. `screen` and `desktop` outlive the object; `wake` may be
  /// called by any thread until `close` returns.
  DebuggedRun(ConsoleScreen& screen, Desktop& desktop, const ConsoleProgram& whole, std::function<void()> wake);
  ~DebuggedRun();
  DebuggedRun(const DebuggedRun&) = delete;
  DebuggedRun& operator=(const DebuggedRun&) = delete;

  /// What the debugger's child is to be made from. It is closed before this object goes.
  const ConsoleProgram& debuggersPart() const { return debuggersPart_; }
  /// To be called once, before this child, made from that part, starts. Throws std::system_error if there is no thread
  /// to be had.
  void watchOver(ConsoleChild& debugger);
  ConsoleChild& program() { return program_; }
  /// True if the program has ended while its debugger ran.
  bool programEndedFirst();

  /// Ends the program with all that it started and waits for the threads; comes before the debugger's own close.
  void close();

 private:
  struct Ends {
    bool debugger = false;
    bool program = false;
    bool debuggersWords = false;  ///< all that it has said is in the text
    bool programsWords = false;
  };

  ConsoleProgram partOfDebugger(const ConsoleProgram& whole);
  ConsoleProgram partOfProgram(const ConsoleProgram& whole);
  void hear(std::string_view block);
  void note(bool Ends::*end);
  /// False if the console closes meanwhile.
  bool awaitProgramsLastWord();
  void watch();
  bool awaitAddress(std::unique_lock<std::mutex>& guard);
  bool awaitConnection(std::unique_lock<std::mutex>& guard);
  void awaitEnds(std::unique_lock<std::mutex>& guard);
  void startProgram(std::unique_lock<std::mutex>& guard);
  /// These let the lock go for as long as they take.
  void endDebugger(std::unique_lock<std::mutex>& guard);
  void endProgram(std::unique_lock<std::mutex>& guard);
  void tell(std::unique_lock<std::mutex>& guard, const std::string& words);

  ConsoleScreen& screen_;
  const ConsoleTiming timing_;
  const platform::ThreadFactory thread_;
  const std::function<void()> wake_;
  ConsoleChild* debugger_ = nullptr;

  std::mutex lock_;  ///< of what follows
  std::condition_variable changed_;
  JdbAddress address_;
  Ends ended_;
  bool programBegun_ = false;
  bool programEndedFirst_ = false;
  bool closing_ = false;
  bool watched_ = false;  ///< the watch is over: nobody starts the program any more

  ConsoleProgram debuggersPart_;
  ConsoleChild program_;
  std::thread watch_;
};

}  // namespace tarnwick
