#pragma once

#include "platform/Process.h"
#include "platform/ThreadFactory.h"
#include "process/NameReplacer.h"
#include "process/RunResult.h"
#include "process/ToolLog.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

namespace tarnwick {

/// What a run stands on. Tests have children, threads and times of their own.
struct RunMeans {
  platform::ChildFactory start = &platform::ChildProcess::start;
  platform::ThreadFactory thread = &platform::startThread;
  /// The output has settled when nothing comes for so long after the tool's end.
  std::chrono::milliseconds settle{400};
  /// So long the output may take to settle, counted in the waits above.
  std::chrono::milliseconds longestSettling{10000};
  /// Hears, on the thread that waits, of each of these waits as it begins.
  std::function<void()> onWait = {};
};

/// One tool on its way, with its output going to the log.
class LoggedRun {
 public:
  /// All but the command and the names outlive the object. `command` heads the log, in which `names` are replaced.
  LoggedRun(platform::ChildProcess& child, ToolLog& log, const RunMeans& means, std::string command,
            NameReplacer::Names names = {})
      : child_(child), log_(log), means_(means), command_(std::move(command)), names_(std::move(names)) {}
  /// Ends the tool if nobody has waited for it.
  ~LoggedRun();
  LoggedRun(const LoggedRun&) = delete;
  LoggedRun& operator=(const LoggedRun&) = delete;

  /// Waits for the tool's end and its last words, and closes the log. Throws NoThreadE, the tool having been ended, if
  /// nobody could listen to it.
  void waitForEnd();
  /// Makes `waitForEnd` return soon: ends the tool with all that it has started, and no more words are waited for. Any
  /// thread.
  void giveUp();
  /// The same for a user who has had enough, of which the log tells. Nothing happens once the tool has ended by itself
  /// and nothing more of it is waited for. Any thread.
  void stop();

  /// How it has ended.
  RunEnd end() const { return end_; }
  /// True if the tool has said anything.
  bool hadOutput() const { return outputBytes_ > 0 || lostOutput_; }
  /// True if some of what it said was lost for lack of memory.
  bool lostOutput() const { return lostOutput_; }

 private:
  void listen();
  void copyToLog(platform::ChildProcess::Stream stream);
  /// Adds what `said` has become; `said` counts even where nothing of it goes to the log yet.
  void append(std::string_view text, std::size_t said);
  void appendRest(NameReplacer& replacer);
  /// Adds a line of ours behind what the tool has said.
  void note(const std::string& text);
  /// Takes down how the tool has ended, and tells it if that was not by itself.
  void noteEnd();
  /// From now on nobody can stop it; true if somebody has.
  bool endsStopped();
  /// False if something still writes.
  bool settle();
  void finish();

  platform::ChildProcess& child_;
  ToolLog& log_;
  const RunMeans& means_;
  const std::string command_;
  const NameReplacer::Names names_;
  std::thread output_;
  std::thread error_;
  std::atomic<std::size_t> outputBytes_{0};
  std::atomic<bool> lostOutput_{false};
  RunEnd end_ = RunEnd::ByItself;
  bool finished_ = false;
  std::mutex endLock_;  ///< of the four below
  int endedOutputs_ = 0;
  bool stopped_ = false;
  bool givenUp_ = false;
  bool isOver_ = false;
  std::condition_variable ended_;
};

}  // namespace tarnwick
