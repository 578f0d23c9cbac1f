#pragma once

#include "console/ConsoleEnd.h"
#include "console/ConsoleProgram.h"
#include "console/ConsoleScreen.h"
#include "console/InputWriter.h"
#include "console/OutputReader.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace tarnwick {

class Desktop;

/// The program that runs in the console: one thread starts it and waits for its end, two bring its output into the
/// text, one writes its input. No thread touches the window: they note what has changed and call `wake`.
class ConsoleChild {
 public:
  /// `screen` and `desktop` outlive the object. `wake` may be called by any thread until `close` returns.
  ConsoleChild(ConsoleScreen& screen, Desktop& desktop, ConsoleProgram program, std::function<void()> wake);
  ~ConsoleChild();
  ConsoleChild(const ConsoleChild&) = delete;
  ConsoleChild& operator=(const ConsoleChild&) = delete;

  /// Starts the child run thread, once.
  void start();

  /// The same as the word of another child brings it about. Any thread; throws std::system_error if there is no thread
  /// to be had.
  void startThread();

  /// Bytes for the child's standard input, as one write.
  void write(std::string bytes);

  /// The child's input is at its end behind what has been written; whatever is written later goes nowhere.
  void endInput();
  bool inputEnded() const { return inputEnded_; }

  /// Ends the child with all that it started, if it runs, in the way of `close`; its end is told as any other.
  void stop(const std::function<bool()>& askToEnd = [] { return false; });

  /// The same at once, as the end of another child brings it about; one that is about to start ends as soon as it runs.
  /// Any thread.
  void endWithOther();

  /// Ends the child with all that it started, if it runs, and waits for the threads. `askToEnd` is called first, by
  /// this thread; where it asks the child to end by itself and gives true, the child is given a little time for that.
  void close(const std::function<bool()>& askToEnd = [] { return false; });

  /// -1 until the child runs and after a start that failed, 1 while it runs, 0 when it has ended.
  int childState() const { return childState_; }
  std::uint64_t totalOutputBytes() const { return totalOutputBytes_; }
  /// Once it has ended.
  const ConsoleEnd& howItEnded() const { return end_; }

 private:
  void run();
  /// Until its last words are in the text. False if it has not come to run, or the console closes meanwhile.
  bool runToEnd();
  void echoCommand();
  bool startProcess();
  void report(const platform::SystemError& fault);
  void endProcess(const std::function<bool()>& askToEnd);
  void endTree(const std::function<bool()>& askToEnd);
  void noteEnd();
  void startReaders();
  void read(platform::ChildProcess::Stream stream, OutputReader& reader);
  void handle(OutputReader& reader, const char* block, std::size_t count);
  void noteHandled(platform::ChildProcess::Stream stream, std::size_t count);
  void endReader(platform::ChildProcess::Stream stream, OutputReader& reader);
  void wake();
  void reportLoss();
  /// These give false if the console closes meanwhile.
  bool awaitLastWords();
  bool settle();
  bool waitForReaders();
  void writeBanner();
  void endWithMessage(const std::string& text);
  void requestClose();
  /// Ends early when both outputs have ended. False if the console closes meanwhile.
  bool pause(std::chrono::milliseconds time);
  bool stopping();
  bool bothEnded();

  ConsoleScreen& screen_;
  Desktop& desktop_;
  const ConsoleProgram program_;
  const std::function<void()> wake_;

  std::mutex stateLock_;  ///< of `process_` while it is set, and of what follows
  std::condition_variable stateChanged_;
  bool stopping_ = false;
  bool endsWithOther_ = false;
  bool outputEnded_[2] = {false, false};
  std::uint64_t handled_[2] = {0, 0};  ///< bytes of either stream that are in the text
  std::unique_ptr<platform::ChildProcess> process_;
  std::chrono::steady_clock::time_point began_;

  OutputReader stdoutReader_;
  OutputReader stderrReader_;
  ConsoleEnd end_;  ///< written before `childState_` tells the end
  std::atomic<int> childState_{-1};
  std::atomic<std::uint64_t> totalOutputBytes_{0};
  std::atomic<bool> readerActive_{false};  ///< a hint only
  std::atomic<bool> lossReported_{false};
  std::atomic<bool> processEnded_{false};  ///< by `close`: nobody waits for what it still says

  std::atomic<bool> stopped_{false};  ///< by the user
  bool inputEnded_ = false;           ///< of the user-interface thread

  InputWriter writer_;
  std::thread runThread_;
  std::thread stdoutThread_;
  std::thread stderrThread_;
};

/// The executable as messages name it: in small letters where file names ignore case.
std::string shownExecutable(const std::string& exeFile);

}  // namespace tarnwick
