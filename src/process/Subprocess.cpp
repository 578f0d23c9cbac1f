#include "process/Subprocess.h"

#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Folders.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace tarnwick {
namespace {

/// The vector's slots; the last one is for its end mark.
constexpr std::size_t vectorSlots = 256;
constexpr std::size_t blockSize = 512;
constexpr std::chrono::milliseconds settlingTime{400};

/// One tool on its way, with its output going to the log.
class LoggedRun {
 public:
  LoggedRun(platform::ChildProcess& child, ToolLog& log, std::string command, std::atomic<std::size_t>& outputBytes)
      : child_(child), log_(log), command_(std::move(command)), outputBytes_(outputBytes) {}

  void waitForEnd() {
    std::thread output([this] { copyToLog(platform::ChildProcess::Stream::Output); });
    std::thread error([this] { copyToLog(platform::ChildProcess::Stream::Error); });
    child_.wait();
    settle();
    child_.stopReading();
    output.join();
    error.join();
    noteDeath();
    log_.close();
  }

 private:
  void copyToLog(platform::ChildProcess::Stream stream) {
    char block[blockSize];
    // Reading goes on even if nothing can be logged: a tool must not get stuck on a full pipe.
    while (const std::size_t size = child_.read(stream, block, sizeof block)) {
      try {
        append(block, size);
      } catch (const Tarnwickfile::FileNotOpenE&) {
      }
    }
    const std::lock_guard lock(endLock_);
    ++endedOutputs_;
    outputEnded_.notify_all();
  }

  /// A tool that was killed may not have said a word, and nobody may take that for success.
  void noteDeath() {
    const std::string cause = child_.causeOfDeath();
    if (cause.empty()) return;
    const std::string note = std::string(outputBytes_ > 0 ? "\n" : "") + "Ended by a signal: " + cause + '\n';
    try {
      append(note.data(), note.size());
    } catch (const Tarnwickfile::FileNotOpenE&) {
    }
  }

  void append(const char* block, std::size_t size) {
    const std::lock_guard lock(log_.lock());
    if (outputBytes_ == 0) {
      const std::string twoLineEnds = std::string(platform::lineEnd) + platform::lineEnd;
      const std::string header = twoLineEnds + command_ + twoLineEnds;
      log_.append(header.data(), header.size());
    }
    log_.append(block, size);
    // What could not be written counts too: the tool has said it.
    outputBytes_ += size;
  }

  /// Something that the tool left behind may still be writing; the run ends when nothing more comes. Where both outputs
  /// have ended nothing more can come.
  void settle() {
    std::size_t before = 0;
    do {
      before = outputBytes_;
      {
        // Not between the log's own writing and flushing, which has to see its failure.
        const std::lock_guard lock(log_.lock());
        std::fflush(nullptr);
      }
      std::unique_lock lock(endLock_);
      if (outputEnded_.wait_for(lock, settlingTime, [this] { return endedOutputs_ == 2; })) return;
    } while (outputBytes_ != before);
  }

  platform::ChildProcess& child_;
  ToolLog& log_;
  const std::string command_;
  std::atomic<std::size_t>& outputBytes_;
  std::mutex endLock_;
  std::condition_variable outputEnded_;
  int endedOutputs_ = 0;
};

/// The command text: empty arguments add nothing to it, not even a blank.
std::string joined(const std::vector<std::string>& arguments) {
  std::string text;
  for (const auto& argument : arguments) {
    if (!argument.empty()) text += ' ';
    text += argument;
  }
  return trimLeft(text);
}

}  // namespace

bool enterFolderOf(Desktop& desktop, const Filename& file) {
  const std::string folder = file.directory();
  if (folder.empty() || platform::changeDirectory(folder)) return true;
  desktop.message("Subprocess::run(): _chdir error");
  return false;
}

std::string detachedStartFailure(const std::string& program, const platform::SystemError& failure) {
  return "Unable to start " + program + ".\n\n" + failure.reason + "  (" + std::to_string(failure.code) + ')';
}

Subprocess::Subprocess(Desktop& desktop, ToolLog& log, std::string executable)
    : desktop_(desktop), log_(log), executable_(std::move(executable)) {}

void Subprocess::addArg(const std::string& text) {
  arguments_.push_back(text);
}

void Subprocess::addArg(const std::string& prefix, const std::string& tail) {
  arguments_.push_back(prefix + tail);
}

void Subprocess::reset(const std::string& executable) {
  executable_ = executable;
  arguments_.clear();
}

std::optional<std::vector<std::string>> Subprocess::collectVector(const FileForSubprocess* file) {
  std::vector<std::string> collected = arguments_;
  const char* fault = collected.size() >= vectorSlots ? "Subprocess argument list too long (1)." : nullptr;
  if (fault == nullptr && file != nullptr && !file->args().empty()) {
    collected.insert(collected.end(), file->args().begin(), file->args().end());
    if (collected.size() >= vectorSlots) fault = "Subprocess argument list too long (2).";
  }
  if (fault == nullptr) return collected;
  desktop_.message(fault);
  return std::nullopt;
}

bool Subprocess::enterFolder(const FileForSubprocess* file) {
  return file == nullptr || enterFolderOf(desktop_, file->name());
}

std::unique_ptr<platform::ChildProcess> Subprocess::startChild(const std::string& arguments, const std::string& title) {
  std::vector<std::string> texts;
  std::unique_ptr<platform::ChildProcess> child;
  const auto report = [&texts](const platform::SystemError& fault) { texts.push_back(fault.text()); };
  try {
    child = platform::ChildProcess::start({executable_, arguments, false, title, report});
  } catch (const platform::SystemError& error) {
    texts.push_back("Can't start " + executable_ + '\n' + error.text());
  }
  for (const auto& text : texts) desktop_.message(text);
  return child;
}

bool Subprocess::run(FileForSubprocess* file, FileMode logOpenMode) {
  const auto collected = collectVector(file);
  if (!collected) return false;
  const std::string command = joined(*collected);
  if (!enterFolder(file)) return false;

  // The first word is the tool's own name, in whose place the system gets the executable.
  const auto blank = command.find(' ');
  const std::string tail = blank == std::string::npos ? "" : command.substr(blank);
  const auto child = startChild(fillsInNames_ ? platform::withNamesFilledIn(tail) : tail, command);
  if (!child) return false;

  std::optional<Tarnwickfile::FileNotOpenE> logFault;
  try {
    log_.open(logOpenMode);
  } catch (const Tarnwickfile::FileNotOpenE& e) {
    logFault.emplace(e.message + "\nCan't open log file " + e.file, e.file);
  }
  outputBytes_ = 0;
  LoggedRun run(*child, log_, command, outputBytes_);
  desktop_.whileBusy([&run] { run.waitForEnd(); }, [&child] { child->endTree(); });
  if (logFault) throw Tarnwickfile::FileNotOpenE(*logFault);
  const std::string unwritten = log_.fault();
  if (!unwritten.empty()) desktop_.message(unwritten + "\nCan't write log file " + log_.path());
  return outputBytes_ > 0;
}

bool DetachedSubprocess::run(FileForSubprocess* file, FileMode /*logOpenMode*/) {
  const auto collected = collectVector(file);
  if (!collected || !enterFolder(file)) return false;
  std::fflush(nullptr);
  try {
    platform::startDetached(executable(), *collected);
  } catch (const platform::SystemError& error) {
    desktop_.message(detachedStartFailure(executable(), error));
  }
  return false;
}

}  // namespace tarnwick
