// Starting programs. No shell is ever involved.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick::platform {

/// A call of the operating system that failed.
struct SystemError {
  std::string label;   ///< the call, for example "CreateProcess"
  int code = 0;        ///< the system's number for the failure
  std::string reason;  ///< the system's sentence for that number

  /// The label, " error %d\n" with the number, and the system's sentence.
  std::string text() const;
};

/// The failure that the operating system has just noted for this thread.
SystemError lastSystemError(const std::string& label);

/// What a child is started with.
struct ChildCommand {
  std::string executable;
  /// The command line behind the tool's own name. On Linux it is split at blanks; double quotes group.
  std::string arguments;
  /// True: standard input is a pipe. Otherwise there is nothing to read.
  bool interactive = false;
  /// The title of the console window that the child gets where programs of the command line have such windows. Nothing:
  /// it gets none.
  std::optional<std::string> consoleTitle = std::nullopt;
  /// Told of each step of the start that failed and did not keep the child from starting; by the thread that starts it,
  /// and before `start` returns or throws. What could not be had is missing: a stream without a pipe is at its end.
  std::function<void(const SystemError&)> report = nullptr;
  /// What the child has started ends when the child itself has ended, as by `endTree`.
  bool leavesNothing = false;
};

/// A running child with its standard output and standard error on pipes, and its standard input if it is interactive.
/// While the child runs, it and all that it starts end with this process, however that goes, or with `endTree`.
/// The destructor closes the pipes and leaves the child alone. One thread may read each of the two outputs, one may
/// write, one may wait.
class ChildProcess {
 public:
  /// Starts the child in the current folder. Throws SystemError.
  static std::unique_ptr<ChildProcess> start(const ChildCommand& command);

  virtual ~ChildProcess() = default;

  enum class Stream { Output, Error };

  /// Waits for bytes and reads at most `size` of them. 0 at the end of the stream and after `stopReading`.
  virtual std::size_t read(Stream stream, char* buffer, std::size_t size) = 0;

  /// What lies in the pipes still comes; then `read` gives 0 although somebody may hold the other end.
  virtual void stopReading() = 0;

  /// How many bytes have come from the stream so far, whether they were read or lie in the pipe.
  virtual std::uint64_t arrived(Stream stream) = 0;

  /// Writes to the child's standard input. Gives the count written; -1 on failure.
  virtual std::ptrdiff_t write(const char* bytes, std::size_t size) = 0;

  /// The child's standard input is at its end once it has read what was written. By the thread that writes, which
  /// writes nothing afterwards.
  virtual void closeInput() = 0;

  /// Waits until the child itself has ended, or until `stopWaiting`.
  virtual void wait() = 0;

  /// After `wait`: the system's word for the signal that ended the child, such as "Killed"; empty if it ended by
  /// itself, and where there are no signals.
  virtual std::string causeOfDeath() const { return ""; }

  /// After `wait`: the code that the child itself has ended with; of no meaning where there is a cause of death.
  virtual int exitCode() const { return 0; }

  /// Makes a `wait` or a `write` that another thread is in return at once, and every later one; any thread may call it.
  virtual void stopWaiting() = 0;

  /// Ends the child and everything that it started; does not wait for it.
  virtual void endTree() = 0;

  /// The same for a child that has been asked to end: it and what it started get so long to do it by themselves, where
  /// `endTree` gives no time of its own.
  virtual void endTreeWithin(std::chrono::milliseconds /*grace*/) { endTree(); }
};

/// How a child is started.
using ChildFactory = std::function<std::unique_ptr<ChildProcess>(const ChildCommand&)>;

/// Starts a program that goes its own way: no pipes, no wait. The program may stand in double quotes; without a folder
/// it is looked for as the system does. `arguments` hold the program's own name first; empty ones are as good as none.
/// Where a program takes one command line, the arguments are joined by single blanks, unquoted.
/// Throws SystemError whose code is the C run-time's `errno`.
void startDetached(const std::string& executable, const std::vector<std::string>& arguments);

/// A path as an argument for `startDetached`: in double quotes if a blank stands in it at a position above 0 where the
/// arguments become one command line, as it stands elsewhere.
std::string detachedArgument(const std::string& path);

/// Starts a program that goes its own way with one command line, whose first word is the program's own name.
/// Throws SystemError with the label "CreateProcess".
void startCommandLine(const std::string& executable, const std::string& commandLine);

/// A path as one word of a ChildCommand's arguments: in double quotes if a blank stands in it at a position above 0
/// (on Linux at any), and with the double quotes of its own, where a name may hold such, escaped.
std::string commandWord(const std::string& path);

/// A command text split into arguments by the C run-time's rules: blanks separate, double quotes group.
std::vector<std::string> splitCommandText(const std::string& text);

}  // namespace tarnwick::platform
