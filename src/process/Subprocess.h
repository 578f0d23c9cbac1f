#pragma once

#include "process/NameReplacer.h"
#include "process/RunResult.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class Desktop;
class FileForSubprocess;
class Filename;
class LoggedRun;
class ToolLog;
enum class FileMode;
struct BusyWork;
struct RunMeans;
namespace platform {
class ChildProcess;
struct SystemError;
}  // namespace platform

/// Makes the folder of a file the current one, if its name has one. Gives what to tell the user if that fails.
std::optional<std::string> enterFolderOf(const Filename& file);

/// What has failed, and below it the system's reason.
std::string withReason(const std::string& what, const platform::SystemError& failure);

/// What the user is told of a program that should have gone its own way and could not be started.
std::string detachedStartFailure(const std::string& program, const platform::SystemError& failure);

/// The text of a failure, behind those that nobody would be told of otherwise.
std::string behind(const std::vector<std::string>& earlier, const std::string& text);

/// A tool that runs to its end with its output caught in the log. A tool's exit code is never read: a run counts as
/// having something to say if any byte came from either stream.
class Subprocess {
 public:
  /// `log` and `desktop` outlive the object; the desktop stays alive while a tool is waited for. `executable` is the
  /// path handed to the system.
  Subprocess(Desktop& desktop, ToolLog& log, std::string executable);
  /// With other means than the system's own.
  Subprocess(Desktop& desktop, ToolLog& log, std::string executable, const RunMeans& means);
  virtual ~Subprocess() = default;

  /// Arguments are never quoted here; whoever adds one with blanks in it quotes it. An empty one adds no text to the
  /// command, but takes a place. The first is the tool's own name.
  void addArg(const std::string& text);
  void addArg(const std::string& prefix, const std::string& tail);

  /// The marks "*" and "?" among the arguments stand for names, as the tool itself fills them in on Windows; the log
  /// shows them as they are.
  void fillInNames() { fillsInNames_ = true; }

  /// In the log the second name stands for the first, from the next run on.
  void replaceInLog(const std::string& name, const std::string& shown) { replaced_.emplace_back(name, shown); }
  /// From the next run on all names stand as they are.
  void replaceNothingInLog() { replaced_.clear(); }

  /// From the next run on the user sees what lasts, by this name of what the tool works on, and may stop it.
  void showWhileItRuns(const std::string& on) { shown_ = on; }

  /// From the next run on the tool has no console window, where programs of the command line have such windows.
  void withoutConsole() { hasConsole_ = false; }

  /// Takes another executable and drops all arguments.
  void reset(const std::string& executable);

  /// Runs the tool and waits. `file`, if not null, gives the folder to run in and further arguments.
  /// Where no log can be opened the tool runs to its end, and then Tarnwickfile::FileNotOpenE is thrown: what the tool
  /// said is lost, so nobody may take it for silent. What had failed before stands in its text.
  virtual RunResult run(const FileForSubprocess* file, FileMode logOpenMode);

  const std::string& executable() const { return executable_; }
  const std::vector<std::string>& arguments() const { return arguments_; }

 protected:
  using Failures = std::vector<std::string>;

  /// Own arguments, then those of `file`; nothing if there are too many.
  std::optional<std::vector<std::string>> collectVector(const FileForSubprocess* file, Failures& failures) const;
  /// Enters the folder of `file`, if there is one. False if that fails.
  static bool enterFolder(const FileForSubprocess* file, Failures& failures);

 private:
  /// Null if it did not start.
  std::unique_ptr<platform::ChildProcess> startChild(const std::string& arguments, const std::string& title,
                                                     Failures& failures) const;
  BusyWork shownFor(LoggedRun& run) const;

  Desktop& desktop_;
  ToolLog& log_;
  std::string executable_;
  std::vector<std::string> arguments_;
  bool fillsInNames_ = false;
  NameReplacer::Names replaced_;
  std::optional<std::string> shown_;  ///< what a run works on, for its user
  bool hasConsole_ = true;
  std::shared_ptr<const RunMeans> means_;
};

/// A program that is started and goes its own way: no pipes, no log, no wait.
class DetachedSubprocess : public Subprocess {
 public:
  using Subprocess::Subprocess;
  /// Starts the program as `run` does.
  RunResult start(const FileForSubprocess& file) const;
  /// It has never said anything, so that nobody shows a log for it.
  RunResult run(const FileForSubprocess* file, FileMode logOpenMode) override;

 private:
  RunResult startIn(const FileForSubprocess* file) const;
};

}  // namespace tarnwick
