#pragma once

#include "base/Tarnwickfile.h"
#include "dialogbase/Desktop.h"
#include "platform/Process.h"
#include "process/FileForSubprocess.h"
#include "process/LoggedRun.h"
#include "process/ToolLog.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// Makes the folder of a file the current one, if its name has one. False after its message.
bool enterFolderOf(Desktop& desktop, const Filename& file);

/// What the user is told of a program that should have gone its own way and could not be started.
std::string detachedStartFailure(const std::string& program, const platform::SystemError& failure);

/// A tool that runs to its end with its output caught in the log. A tool's exit code is never read: a run counts as
/// having something to say if any byte came from either stream.
class Subprocess {
 public:
  /// `log` and `desktop` outlive the object. `executable` is the path handed to the system.
  Subprocess(Desktop& desktop, ToolLog& log, std::string executable, RunMeans means = {});
  virtual ~Subprocess() = default;

  /// Arguments are never quoted here; whoever adds one with blanks in it quotes it. An empty one adds no text to the
  /// command, but takes a place. The first is the tool's own name.
  void addArg(const std::string& text);
  void addArg(const std::string& prefix, const std::string& tail);

  /// The marks "*" and "?" among the arguments stand for names, as the tool itself fills them in on Windows; the log
  /// shows them as they are.
  void fillInNames() { fillsInNames_ = true; }

  /// Takes another executable and drops all arguments.
  void reset(const std::string& executable);

  /// Runs the tool and waits. `file`, if not null, gives the folder to run in and further arguments.
  /// Shows failures itself. True if the tool wrote anything. Where no log can be opened the tool runs to its end, and
  /// then Tarnwickfile::FileNotOpenE is thrown: what the tool said is lost, so nobody may take it for silent. A tool
  /// that was ended by a signal counts as having said that.
  virtual bool run(FileForSubprocess* file, FileMode logOpenMode);

  const std::string& executable() const { return executable_; }
  const std::vector<std::string>& arguments() const { return arguments_; }

 protected:
  /// Own arguments, then those of `file`; nothing after the message that there are too many.
  std::optional<std::vector<std::string>> collectVector(const FileForSubprocess* file);
  /// Enters the folder of `file`, if there is one. False after its message.
  bool enterFolder(const FileForSubprocess* file);

  Desktop& desktop_;

 private:
  /// Null after the message that it did not start.
  std::unique_ptr<platform::ChildProcess> startChild(const std::string& arguments, const std::string& title);

  ToolLog& log_;
  std::string executable_;
  std::vector<std::string> arguments_;
  bool fillsInNames_ = false;
  RunMeans means_;
};

/// A program that is started and goes its own way: no pipes, no log, no wait.
class DetachedSubprocess : public Subprocess {
 public:
  using Subprocess::Subprocess;
  /// Always false, so that nobody shows a log for it.
  bool run(FileForSubprocess* file, FileMode logOpenMode) override;
};

}  // namespace tarnwick
