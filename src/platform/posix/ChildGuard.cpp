#include "platform/posix/ChildGuard.h"

#include "platform/posix/ChildPipes.h"
#include "platform/posix/Descendants.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

// Between fork and the end of the guard only calls that are safe beside other threads: the copy has this one thread,
// and whatever lock another one held stays locked. (The C library sees to it that memory can still be had.)

constexpr int lineEnd = 0;
constexpr int reportEnd = 1;
constexpr char endedWord = 'e';

/// Takes leave of all that has ended below the guard. False once nothing is left there.
bool reap(pid_t child) {
  for (;;) {
    const pid_t gone = waitpid(-1, nullptr, WNOHANG);
    if (gone == 0) return true;
    if (gone < 0 && errno != EINTR) return false;
    // The report may find nobody who still wants it.
    if (gone == child) [[maybe_unused]]
      const ssize_t ignored = write(reportEnd, &endedWord, 1);
  }
}

/// Milliseconds since some beginning.
long now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return time.tv_sec * 1000 + time.tv_nsec / 1000000;
}

[[noreturn]] void endTree(pid_t child, int childrenEnd) {
  constexpr long grace = 2000;
  constexpr long lastTries = 5000;
  constexpr int step = 50;
  const long begin = now();
  kill(-getpgrp(), SIGTERM);  // the guard blocks it
  signalDescendants(SIGTERM);
  while (reap(child) && now() - begin < lastTries) {
    // Again and again: what is killed may have had a child just then.
    if (now() - begin >= grace) signalDescendants(SIGKILL);
    pollfd waiting{childrenEnd, POLLIN, 0};
    poll(&waiting, 1, step);
    signalfd_siginfo ignored{};
    while (read(childrenEnd, &ignored, sizeof ignored) > 0) {
    }
  }
  _exit(0);
}

[[noreturn]] void watch(pid_t child) {
  sigset_t childEnds;
  sigemptyset(&childEnds);
  sigaddset(&childEnds, SIGCHLD);
  const int childrenEnd = signalfd(-1, &childEnds, SFD_NONBLOCK | SFD_CLOEXEC);
  for (;;) {
    reap(child);
    std::array<pollfd, 2> waiting{pollfd{lineEnd, POLLIN, 0}, pollfd{childrenEnd, POLLIN, 0}};
    if (poll(waiting.data(), waiting.size(), -1) < 0) continue;
    signalfd_siginfo ignored{};
    while (read(childrenEnd, &ignored, sizeof ignored) > 0) {
    }
    if (waiting[0].revents == 0) continue;
    char word = 0;
    const ssize_t count = read(lineEnd, &word, 1);
    if (count > 0) _exit(0);
    if (count == 0) endTree(child, childrenEnd);
  }
}

[[noreturn]] void guard(Launch& what, int line, int report) {
  prctl(PR_SET_NAME, "tarnwick-guard");
  // What loses its parent becomes the guard's own child.
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  what.group = getpgrp();
  pid_t child = -1;
  const int failure = launch(what, child);
  // Our copies of all files are gone before the owner goes on, so that the ends of its pipes are seen at once.
  const int high = fcntl(report, F_DUPFD, STDERR_FILENO + 1);
  dup2(line, lineEnd);
  dup2(high, reportEnd);
  syscall(SYS_close_range, static_cast<unsigned>(reportEnd) + 1, ~0U, 0U);
  const bool told = write(reportEnd, &failure, sizeof failure) == sizeof failure;
  if (failure != 0 || !told || chdir("/") != 0) _exit(failure);
  watch(child);
}

/// Runs in the first copy: makes the guard a child of nobody, so that it leaves nothing behind for us to wait for.
[[noreturn]] void becomeGuard(Launch& what, int line, int report) {
  if (setpgid(0, 0) != 0) _exit(errno);
  const pid_t copy = fork();
  if (copy < 0) _exit(errno);
  if (copy > 0) _exit(0);
  guard(what, line, report);
}

/// Blocks all signals for its lifetime. The copies inherit that: the TERM for the group is not meant for the guard.
class SignalsBlocked {
 public:
  SignalsBlocked() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~SignalsBlocked() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  SignalsBlocked(const SignalsBlocked&) = delete;
  SignalsBlocked& operator=(const SignalsBlocked&) = delete;

 private:
  sigset_t before_{};
};

SystemError startFailure(int code) {
  return systemError("CreateProcess", code);
}

/// The system's number for what kept the child from starting, 0 if nothing did.
int answer(int report) {
  int failure = 0;
  ssize_t count = 0;
  do {
    count = read(report, &failure, sizeof failure);
  } while (count < 0 && errno == EINTR);
  return count == sizeof failure ? failure : EAGAIN;
}

}  // namespace

ChildGuard::ChildGuard(Launch what) {
  Pipe line = makePipe();
  Pipe report = makePipe();
  {
    const SignalsBlocked blocked;
    group_ = fork();
    if (group_ == 0) becomeGuard(what, line.read.number(), report.write.number());
  }
  if (group_ < 0) throw startFailure(errno);

  int status = 0;
  while (waitpid(group_, &status, 0) < 0 && errno == EINTR) {
  }
  if (!WIFEXITED(status)) throw startFailure(EAGAIN);
  if (WEXITSTATUS(status) != 0) throw startFailure(WEXITSTATUS(status));
  report.write.close();
  if (const int failure = answer(report.read.number())) throw startFailure(failure);
  line_ = std::move(line.write);
  report_ = std::move(report.read);
}

void ChildGuard::release() {
  if (line_.number() < 0) return;
  // If the guard has been ended by force, there is nobody to tell.
  [[maybe_unused]] const ssize_t ignored = write(line_.number(), "r", 1);
  line_.close();
}

void ChildGuard::settle() {
  char word = 0;
  if (read(report_.number(), &word, 1) != 1 && line_.number() >= 0) kill(-group_, SIGKILL);
}

}  // namespace tarnwick::platform
