#pragma once

#include "platform/Process.h"
#include "platform/ThreadFactory.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace tarnwick {

class Desktop;

/// Writes to the child's standard input, in order, on a thread of its own: a child that does not read what is sent to
/// it must not bring the window to a stop. What is sent before the child runs waits for it.
class InputWriter {
 public:
  /// `desktop` outlives the program's windows.
  explicit InputWriter(Desktop& desktop) : desktop_(desktop) {}
  ~InputWriter();

  /// One write to the child. Any thread.
  void send(std::string bytes);
  /// The child's input ends behind what has been sent; what is sent from here on goes nowhere. Any thread.
  void end();
  /// Begins to write to this child, which outlives the writer. Throws std::system_error if there is no thread to be
  /// had.
  void start(platform::ChildProcess& child, const platform::ThreadFactory& thread);
  /// From here on nothing more is written, and a write that is broken off is no failure.
  void breakOff();
  /// Lets the rest go and waits for the thread; whoever calls has made the child's `write` return.
  void stop();

 private:
  void run(platform::ChildProcess& child);
  /// False if there is nothing more to write.
  bool next(platform::ChildProcess& child, std::string& bytes);
  void report(const char* text);

  Desktop& desktop_;
  std::mutex lock_;
  std::condition_variable changed_;
  std::deque<std::string> waiting_;
  bool stopping_ = false;
  bool ending_ = false;
  std::thread thread_;
  /// True while a failure is on the screen: more of the same are not piled on it. Shared, since the message may be
  /// shown when the console has gone.
  std::shared_ptr<std::atomic<bool>> reporting_ = std::make_shared<std::atomic<bool>>(false);
};

}  // namespace tarnwick
