#pragma once

#include "base/TempFile.h"
#include "process/RunResult.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace tarnwick {

/// One of the runs that a log tells of, or notes of ours between them.
struct LoggedPart {
  std::size_t begin = 0;          ///< the first byte of it in the log
  std::string folder;             ///< in which the tool ran
  RunEnd end = RunEnd::ByItself;  ///< how it has ended
  bool hasCommand = true;         ///< notes have none
};

/// What the log tells of a user who has stopped the command.
inline constexpr const char* stoppedNote = "Stopped.";

/// The tools' output of one process: one temporary file, made with the first run and opened anew for each.
class ToolLog {
 public:
  /// `folder` gives the configuration folder, with its last separator. It is asked when the log is made, since the
  /// configuration may have moved by then.
  explicit ToolLog(std::function<std::string()> folder) : folder_(std::move(folder)) {}
  /// A folder that does not move.
  explicit ToolLog(const std::string& folder) : ToolLog([folder] { return folder; }) {}

  /// Makes the file if this process has none yet, and opens it. Throws Tarnwickfile::FileNotOpenE.
  void open(FileMode mode);
  /// Appends bytes, as they are, to the open log's file. Gives the count written. Throws Tarnwickfile::FileNotOpenE if
  /// it is closed.
  std::size_t append(const char* bytes, std::size_t size);
  /// The run that the log was opened for has ended so.
  void noteEnd(RunEnd end);
  void close();
  /// Adds lines of ours as a part of their own, which ends the command so. Throws as `open` does.
  void addNotes(FileMode mode, const std::vector<std::string>& notes, RunEnd end = RunEnd::ByItself);
  /// The system's sentence for the first thing since `open` that could not be written; empty if all went well.
  std::string fault() const;
  /// The log's path; empty before the first run.
  std::string path() const;

  /// How often the log has been opened so far.
  int runs() const;
  /// The runs since the log was last begun anew, and how long they have taken in all.
  std::vector<LoggedPart> parts() const;
  std::chrono::milliseconds elapsed() const;
  /// How the last of them has ended that did not end by itself.
  RunEnd end() const;

  /// The lock of the log; whoever puts several appends together holds it. Recursive.
  std::recursive_mutex& lock() { return lock_; }

 private:
  void noteFault();
  void beginPart(FileMode mode);

  std::function<std::string()> folder_;
  std::unique_ptr<TempFile> file_;
  std::string fault_;
  std::vector<LoggedPart> parts_;
  std::size_t size_ = 0;
  std::chrono::steady_clock::time_point opened_;
  std::chrono::steady_clock::duration elapsed_{};
  int runs_ = 0;
  bool isOpen_ = false;
  mutable std::recursive_mutex lock_;
};

}  // namespace tarnwick
