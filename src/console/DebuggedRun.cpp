#include "console/DebuggedRun.h"

#include "base/NoThreadE.h"
#include "console/HeldInput.h"

#include <chrono>
#include <exception>
#include <memory>
#include <system_error>
#include <utility>

namespace tarnwick {

std::string listeningArguments(const std::string& options) {
  // Nobody beyond this computer may come to it, and it is not to wait for ever.
  const std::string own = " -connect com.sun.jdi.SocketListen:localAddress=127.0.0.1,timeout=30000";
  return options.empty() ? own : own + ' ' + options;
}

DebuggedRun::DebuggedRun(ConsoleScreen& screen, Desktop& desktop, const ConsoleProgram& whole,
                         std::function<void()> wake)
    : screen_(screen),
      timing_(whole.timing),
      thread_(whole.thread),
      wake_(std::move(wake)),
      debuggersPart_(partOfDebugger(whole)),
      program_(screen, desktop, partOfProgram(whole), wake_) {}

DebuggedRun::~DebuggedRun() {
  close();
}

ConsoleProgram DebuggedRun::partOfDebugger(const ConsoleProgram& whole) {
  ConsoleProgram debugger = whole;
  // What keeps it from its program is told in the text, whether it says anything itself or not.
  debugger.closesSilently = false;
  debugger.part.outputKind = debugger.part.errorKind = KIND_DEBUGGER;
  debugger.part.onOutput = [this](std::string_view block) { hear(block); };
  debugger.part.onEnd = [this] { note(&Ends::debugger); };
  debugger.part.onLastWord = [this] { return awaitProgramsLastWord(); };
  return debugger;
}

ConsoleProgram DebuggedRun::partOfProgram(const ConsoleProgram& whole) {
  ConsoleProgram program = whole;
  program.exeFile = whole.debugged->exeFile;
  program.runArguments = whole.debugged->runArguments;
  // Where the debugger waits is known only when the program starts.
  program.start = [this, start = whole.start](platform::ChildCommand command) {
    std::string address;
    {
      const std::lock_guard guard(lock_);
      address = address_.address();
    }
    command.arguments = " -agentlib:jdwp=transport=dt_socket,server=n,suspend=y,address=" + address + command.arguments;
    return start(command);
  };
  program.part.beginsLine = program.part.ownWindow = program.part.tellsEnd = false;
  program.part.onEnd = [this] { note(&Ends::program); };
  program.part.onLastWord = [this] {
    note(&Ends::programsWords);
    return true;
  };
  return program;
}

void DebuggedRun::watchOver(ConsoleChild& debugger) {
  debugger_ = &debugger;
  watch_ = thread_([this] { watch(); });
}

bool DebuggedRun::programEndedFirst() {
  const std::lock_guard guard(lock_);
  return programEndedFirst_;
}

void DebuggedRun::close() {
  {
    const std::lock_guard guard(lock_);
    closing_ = true;
    changed_.notify_all();
  }
  // It may be about to start the program, so it goes first.
  if (watch_.joinable()) watch_.join();
  program_.close();
}

void DebuggedRun::hear(std::string_view block) {
  const std::lock_guard guard(lock_);
  address_.take(block);
  changed_.notify_all();
}

void DebuggedRun::note(bool Ends::*end) {
  const std::lock_guard guard(lock_);
  ended_.*end = true;
  changed_.notify_all();
}

bool DebuggedRun::awaitProgramsLastWord() {
  note(&Ends::debuggersWords);
  std::unique_lock guard(lock_);
  changed_.wait(guard, [this] { return closing_ || (watched_ && (ended_.programsWords || !programBegun_)); });
  return !closing_;
}

void DebuggedRun::watch() {
  std::unique_lock guard(lock_);
  if (awaitAddress(guard)) {
    startProgram(guard);
    if (awaitConnection(guard)) awaitEnds(guard);
  }
  watched_ = true;
  changed_.notify_all();
}

bool DebuggedRun::awaitAddress(std::unique_lock<std::mutex>& guard) {
  const bool told = changed_.wait_for(guard, timing_.connectWait,
                                      [this] { return closing_ || ended_.debugger || !address_.address().empty(); });
  if (closing_) return false;
  if (!told) {
    tell(guard, "jdb has not begun to wait for the program within 30 seconds.");
    endDebugger(guard);
    return false;
  }
  if (!ended_.debugger) return true;
  changed_.wait(guard, [this] { return closing_ || ended_.debuggersWords; });
  // Where it has not even started, a message tells why.
  if (!closing_ && debugger_->childState() != -1) tell(guard, "jdb has ended before it could wait for the program.");
  return false;
}

void DebuggedRun::startProgram(std::unique_lock<std::mutex>& guard) {
  programBegun_ = true;
  guard.unlock();
  std::string fault;
  try {
    program_.startThread();
  } catch (const std::system_error&) {
    fault = NoThreadE().message;
  }
  guard.lock();
  if (fault.empty()) return;
  ended_.program = ended_.programsWords = true;
  tell(guard, fault);
}

bool DebuggedRun::awaitConnection(std::unique_lock<std::mutex>& guard) {
  const bool any = changed_.wait_for(guard, timing_.connectWait, [this] {
    return closing_ || ended_.debugger || ended_.program || address_.saidMore();
  });
  if (closing_) return false;
  if (address_.saidMore()) return true;
  const bool programEnded = ended_.program;
  const bool debuggerEnded = ended_.debugger;
  if (!any) {
    tell(guard, "The program has not come to jdb within 30 seconds.");
  } else if (programEnded) {
    changed_.wait(guard, [this] { return closing_ || ended_.programsWords; });
    if (closing_) return false;
    if (program_.childState() != -1)
      tell(guard, "The program has ended before it came to jdb at " + address_.address() + ".");
  } else {
    changed_.wait(guard, [this] { return closing_ || ended_.debuggersWords; });
    if (closing_) return false;
    tell(guard, "jdb has ended before the program came to it.");
  }
  if (!programEnded) endProgram(guard);
  if (!debuggerEnded) endDebugger(guard);
  return false;
}

void DebuggedRun::awaitEnds(std::unique_lock<std::mutex>& guard) {
  changed_.wait(guard, [this] { return closing_ || ended_.debugger || ended_.program; });
  if (closing_) return;
  if (!ended_.program) {
    // What a debugger lets go runs on.
    endProgram(guard);
    return;
  }
  // Also where both have ended by now: the debugger does, because its program has.
  programEndedFirst_ = true;
  // A debugger that has lost its program ends by itself.
  changed_.wait_for(guard, timing_.debuggerWait, [this] { return closing_ || ended_.debugger; });
  if (!closing_ && !ended_.debugger) endDebugger(guard);
}

void DebuggedRun::endDebugger(std::unique_lock<std::mutex>& guard) {
  guard.unlock();
  debugger_->endWithOther();
  guard.lock();
}

void DebuggedRun::endProgram(std::unique_lock<std::mutex>& guard) {
  guard.unlock();
  program_.endWithOther();
  guard.lock();
}

void DebuggedRun::tell(std::unique_lock<std::mutex>& guard, const std::string& words) {
  guard.unlock();
  try {
    const TextGuard text(screen_.lock());
    const HeldInput input(screen_);
    if (screen_.document.lastLineLength() > 0) screen_.newLine();
    screen_.document.addText("****  Tarnwick:  " + words, KIND_BANNER);
    screen_.newLine();
    screen_.changes.everything = true;
    screen_.changes.ask(screen_.document.lineCount(), 0, 1);
  } catch (const std::exception&) {
    // Without memory for the words the two end all the same.
  }
  try {
    wake_();
  } catch (const std::exception&) {
    // The next wake shows it.
  }
  guard.lock();
}

}  // namespace tarnwick
