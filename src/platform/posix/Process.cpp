#include "platform/Process.h"

#include "platform/Path.h"
#include "platform/posix/ChildGuard.h"
#include "platform/posix/ChildPipes.h"
#include "platform/posix/Event.h"
#include "platform/posix/Launch.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <poll.h>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

class Child final : public ChildProcess {
 public:
  explicit Child(const ChildCommand& command)
      : Child(command, makePipe(), makePipe(), command.interactive ? makePipe() : Pipe{}) {}

  std::size_t read(Stream stream, char* buffer, std::size_t size) override {
    return (stream == Stream::Output ? output_ : error_).read(buffer, size);
  }
  void stopReading() override { stopReading_.set(); }
  std::uint64_t arrived(Stream stream) override { return (stream == Stream::Output ? output_ : error_).arrived(); }

  std::ptrdiff_t write(const char* bytes, std::size_t size) override { return input_.write(bytes, size); }
  void closeInput() override { input_.close(); }

  void wait() override {
    while (!hasEnded()) {
      if (!waitFor(guard_->ended(), POLLIN, stopWaiting_) && !hasEnded()) return;
    }
    const std::lock_guard lock(stateLock_);
    if (ended_) return;
    ended_ = true;
    end_ = guard_->settle();
    if (leavesNothing_) {
      guard_->endTree();
    } else {
      // What the child has left behind goes its own way.
      guard_->release();
    }
  }
  std::string causeOfDeath() const override {
    if (end_.signal == 0) return "";
    const char* const word = sigdescr_np(end_.signal);
    return word != nullptr ? word : std::to_string(end_.signal);
  }
  int exitCode() const override { return end_.code; }
  void stopWaiting() override { stopWaiting_.set(); }

  void endTree() override {
    const std::lock_guard lock(stateLock_);
    if (!ended_) guard_->endTree();
  }

 private:
  Child(const ChildCommand& command, Pipe output, Pipe error, Pipe input)
      : output_(std::move(output.read), stopReading_),
        error_(std::move(error.read), stopReading_),
        input_(std::move(input.write), stopWaiting_) {
    Launch what;
    what.executable = command.executable;
    const auto name = splitPath(command.executable);
    what.arguments = splitCommandText(command.arguments);
    what.arguments.insert(what.arguments.begin(), name.base + name.extension);
    what.input = input.read.number();
    what.output = output.write.number();
    what.error = error.write.number();
    leavesNothing_ = command.leavesNothing;
    guard_ = std::make_unique<ChildGuard>(what);
  }

  bool hasEnded() {
    const std::lock_guard lock(stateLock_);
    if (ended_) return true;
    pollfd report{guard_->ended(), POLLIN, 0};
    return poll(&report, 1, 0) > 0;
  }

  Event stopReading_;
  Event stopWaiting_;
  OutputPipe output_;
  OutputPipe error_;
  InputPipe input_;
  std::mutex stateLock_;
  bool ended_ = false;
  bool leavesNothing_ = false;
  ChildGuard::End end_;
  std::unique_ptr<ChildGuard> guard_;
};

std::string withoutQuotes(const std::string& text) {
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return text;
  return text.substr(1, text.size() - 2);
}

void startOnItsOwn(const std::string& label, const std::string& executable, std::vector<std::string> arguments) {
  Launch what;
  what.executable = executable;
  what.arguments = std::move(arguments);
  what.searchPath = true;
  what.ownSession = true;
  pid_t process = -1;
  if (const int failure = launch(what, process)) throw systemError(label, failure);
  reapLater(process);
}

}  // namespace

SystemError lastSystemError(const std::string& label) {
  return systemError(label, errno);
}

std::unique_ptr<ChildProcess> ChildProcess::start(const ChildCommand& command) {
  return std::make_unique<Child>(command);
}

void startDetached(const std::string& executable, const std::vector<std::string>& arguments) {
  auto words = arguments;
  // On one command line an empty argument would vanish, so it does here.
  if (!words.empty()) words.erase(std::remove(words.begin() + 1, words.end(), ""), words.end());
  startOnItsOwn("spawn", withoutQuotes(executable), std::move(words));
}

std::string commandWord(const std::string& path) {
  std::string word;
  std::size_t backslashes = 0;
  for (const char c : path) {
    // Backslashes are plain characters unless a double quote follows.
    if (c == '"') word.append(backslashes + 1, '\\');
    backslashes = c == '\\' ? backslashes + 1 : 0;
    word += c;
  }
  if (path.find_first_of(" \t") == std::string::npos) return word;
  return '"' + word.append(backslashes, '\\') + '"';
}

std::string detachedArgument(const std::string& path) {
  return path;
}

void startCommandLine(const std::string& executable, const std::string& commandLine) {
  startOnItsOwn("CreateProcess", executable, splitCommandText(commandLine));
}

}  // namespace tarnwick::platform
