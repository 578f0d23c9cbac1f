#include "platform/Process.h"

#include "platform/Path.h"
#include "platform/posix/ChildGuard.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/Launch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

/// The same file under a number that no standard stream of a child can collide with.
Descriptor aboveStandardStreams(Descriptor low) {
  if (low.number() > STDERR_FILENO) return low;
  Descriptor high(fcntl(low.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
  if (high.number() < 0) throw lastSystemError("CreatePipe()");
  return high;
}

SystemError systemError(const std::string& label, int code) {
  return {label, code, std::generic_category().message(code)};
}

/// What we read from one of the child's outputs.
class OutputPipe {
 public:
  OutputPipe(Descriptor end, int stopEvent) : end_(std::move(end)), stopEvent_(stopEvent) {}

  std::size_t read(char* buffer, std::size_t size) {
    if (!stopped_) waitForBytes();
    if (stopped_) size = std::min(size, remaining_);
    if (size == 0) return 0;
    ssize_t count = 0;
    do {
      count = ::read(end_.number(), buffer, size);
    } while (count < 0 && errno == EINTR);
    if (count <= 0) return 0;
    if (stopped_) remaining_ -= static_cast<std::size_t>(count);
    return static_cast<std::size_t>(count);
  }

 private:
  void waitForBytes() {
    std::array<pollfd, 2> events{pollfd{end_.number(), POLLIN, 0}, pollfd{stopEvent_, POLLIN, 0}};
    while (poll(events.data(), events.size(), -1) < 0 && errno == EINTR) {
    }
    if (events[1].revents == 0) return;
    // From here on only what lies in the pipe now: somebody who goes on writing must not keep us for ever.
    stopped_ = true;
    int count = 0;
    if (ioctl(end_.number(), FIONREAD, &count) == 0 && count > 0) remaining_ = static_cast<std::size_t>(count);
  }

  Descriptor end_;
  int stopEvent_;
  bool stopped_ = false;
  std::size_t remaining_ = 0;
};

class Child final : public ChildProcess {
 public:
  explicit Child(const ChildCommand& command)
      : Child(command, makePipe(), makePipe(), command.interactive ? makePipe() : Pipe{}) {}

  ~Child() override {
    if (!ended_) reapLater(process_);
  }

  std::size_t read(Stream stream, char* buffer, std::size_t size) override {
    return (stream == Stream::Output ? output_ : error_).read(buffer, size);
  }

  void stopReading() override {
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t ignored = ::write(stopEvent_.number(), &one, sizeof one);
  }

  std::ptrdiff_t write(const char* bytes, std::size_t size) override {
    std::size_t written = 0;
    while (written < size) {
      const ssize_t count = ::write(input_.number(), bytes + written, size - written);
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return -1;
      written += static_cast<std::size_t>(count);
    }
    return static_cast<std::ptrdiff_t>(written);
  }

  void wait() override {
    siginfo_t info{};
    // The ended child keeps its number until `endTree` can no longer signal it.
    while (!ended() && waitid(P_PID, static_cast<id_t>(process_), &info, WEXITED | WNOWAIT) < 0 && errno == EINTR) {
    }
    const std::lock_guard lock(stateLock_);
    if (ended_) return;
    ended_ = true;
    if (guard_) guard_->release();
    int status = 0;
    waitpid(process_, &status, 0);
  }

  void endTree() override {
    const std::lock_guard lock(stateLock_);
    if (ended_) return;
    if (guard_) {
      guard_->endGroup();
    } else {
      kill(-process_, SIGKILL);
    }
  }

 private:
  Child(const ChildCommand& command, Pipe output, Pipe error, Pipe input)
      : stopEvent_(eventfd(0, EFD_CLOEXEC)),
        output_(std::move(output.read), stopEvent_.number()),
        error_(std::move(error.read), stopEvent_.number()),
        input_(std::move(input.write)) {
    if (stopEvent_.number() < 0) throw lastSystemError("CreatePipe()");
    Launch what;
    what.executable = command.executable;
    const auto name = splitPath(command.executable);
    what.arguments = splitCommandText(command.arguments);
    what.arguments.insert(what.arguments.begin(), name.base + name.extension);
    what.input = input.read.number();
    what.output = output.write.number();
    what.error = error.write.number();
    if (const int failure = launch(what, process_)) throw systemError("CreateProcess", failure);
    if (command.interactive) guardOrGiveUp();
  }

  void guardOrGiveUp() {
    try {
      guard_ = std::make_unique<ChildGuard>(process_);
    } catch (...) {
      kill(-process_, SIGKILL);
      reapLater(process_);
      throw;
    }
  }

  bool ended() {
    const std::lock_guard lock(stateLock_);
    return ended_;
  }

  Descriptor stopEvent_;
  OutputPipe output_;
  OutputPipe error_;
  Descriptor input_;
  pid_t process_ = -1;
  std::mutex stateLock_;
  bool ended_ = false;
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

Pipe makePipe() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw lastSystemError("CreatePipe()");
  Descriptor read(ends[0]);
  Descriptor write(ends[1]);
  return {aboveStandardStreams(std::move(read)), aboveStandardStreams(std::move(write))};
}

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

std::string detachedArgument(const std::string& path) {
  return path;
}

void startCommandLine(const std::string& executable, const std::string& commandLine) {
  startOnItsOwn("CreateProcess", executable, splitCommandText(commandLine));
}

}  // namespace tarnwick::platform
