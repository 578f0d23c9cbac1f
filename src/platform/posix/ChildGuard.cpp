#include "platform/posix/ChildGuard.h"

#include "platform/posix/ChildPipes.h"
#include "platform/posix/Descendants.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <initializer_list>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

// Between fork and the end of the guards only calls that are safe beside other threads: the copies have this one
// thread, and whatever lock another one held stays locked. (The C library sees to it that memory can still be had.)

constexpr int lineEnd = 0;
constexpr int reportEnd = 1;
constexpr long grace = 2000;
/// In the place of the child's status: a guard has ended what was left, by force if need be.
constexpr int endedByGuard = -1;

/// What the holder says first.
struct Start {
  int failure;  ///< the system's number for what kept the child from starting, 0 if nothing did
  pid_t group;
};

/// The owner may no longer want to hear it.
void tell(int status) {
  [[maybe_unused]] const ssize_t ignored = write(reportEnd, &status, sizeof status);
}

/// The process right below a guard: the child for the holder, the holder for the watcher.
struct Ward {
  pid_t process;
  bool isChild;
  bool ended = false;
};

/// Takes leave of all that has ended below the guard, tells the child's status, and sets a holder going again that was
/// stopped. False once nothing is left below.
bool reap(Ward& ward) {
  for (;;) {
    int status = 0;
    const pid_t gone = waitpid(-1, &status, WNOHANG | WUNTRACED);
    if (gone == 0) return true;
    if (gone < 0 && errno != EINTR) return false;
    if (gone != ward.process) continue;
    if (WIFSTOPPED(status)) {
      if (!ward.isChild) kill(gone, SIGCONT);
      continue;
    }
    ward.ended = true;
    if (ward.isChild) tell(status);
  }
}

/// Milliseconds since some beginning.
long now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return time.tv_sec * 1000 + time.tv_nsec / 1000000;
}

/// Can be read from when one of these signals, which are blocked, has come.
int listenTo(std::initializer_list<int> signals) {
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : signals) sigaddset(&set, signal);
  return signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC);
}

void forgetSignals(int signals) {
  signalfd_siginfo ignored{};
  while (read(signals, &ignored, sizeof ignored) > 0) {
  }
}

/// Kills what is below the guard, after so many milliseconds, until nothing is left there; then the guard goes.
[[noreturn]] void endTree(Ward& ward, long killAfter, int signals) {
  constexpr long lastTries = 5000;
  constexpr int step = 50;
  const long begin = now();
  while (reap(ward) && now() - begin < lastTries) {
    // Again and again: what is killed may have had a child just then.
    if (now() - begin >= killAfter) signalDescendants(SIGKILL);
    pollfd waiting{signals, POLLIN, 0};
    poll(&waiting, 1, step);
    forgetSignals(signals);
  }
  tell(endedByGuard);
  _exit(0);
}

[[noreturn]] void hold(Ward child, pid_t watcher) {
  // SIGHUP is what the system sends when the watcher goes.
  const int signals = listenTo({SIGCHLD, SIGHUP});
  for (bool mayLeave = false;;) {
    if (!reap(child) && mayLeave) _exit(0);
    // A holder that went on alone could be killed without anybody to notice.
    if (getppid() != watcher) endTree(child, 0, signals);
    std::array<pollfd, 2> waiting{pollfd{signals, POLLIN, 0}, pollfd{lineEnd, 0, 0}};
    if (poll(waiting.data(), mayLeave ? 1 : 2, -1) < 0) continue;
    forgetSignals(signals);
    if (mayLeave || waiting[1].revents == 0) continue;
    // The line has gone, and the watcher knows what is to be done. Somebody may have stopped it.
    kill(watcher, SIGCONT);
    mayLeave = true;
  }
}

[[noreturn]] void watch(Ward holder) {
  const int signals = listenTo({SIGCHLD});
  for (;;) {
    reap(holder);
    if (holder.ended) endTree(holder, 0, signals);
    std::array<pollfd, 2> waiting{pollfd{lineEnd, POLLIN, 0}, pollfd{signals, POLLIN, 0}};
    if (poll(waiting.data(), waiting.size(), -1) < 0) continue;
    forgetSignals(signals);
    if (waiting[0].revents == 0) continue;
    char word = 0;
    const ssize_t count = read(lineEnd, &word, 1);
    if (count > 0) {
      // What is left goes its own way.
      kill(holder.process, SIGKILL);
      _exit(0);
    }
    if (count == 0) {
      kill(-holder.process, SIGTERM);  // the holder blocks it
      signalDescendants(SIGTERM);
      endTree(holder, grace, signals);
    }
  }
}

/// Our copies of all files are gone afterwards, but for the guard's two.
void keepOnly(int line, int report) {
  const int high = fcntl(report, F_DUPFD, STDERR_FILENO + 1);
  dup2(line, lineEnd);
  dup2(high, reportEnd);
  syscall(SYS_close_range, static_cast<unsigned>(reportEnd) + 1, ~0U, 0U);
  if (chdir("/") != 0) _exit(errno);
}

/// Waits until nobody else has the other end of this pipe.
void waitForEnd(const int (&pipe)[2]) {
  close(pipe[1]);
  char word = 0;
  while (read(pipe[0], &word, 1) < 0 && errno == EINTR) {
  }
}

[[noreturn]] void becomeHolder(Launch& what, int line, int report, const int (&watchersCopies)[2], pid_t watcher) {
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  prctl(PR_SET_PDEATHSIG, SIGHUP);
  if (setpgid(0, 0) != 0) _exit(errno);
  what.group = getpgrp();
  Start start{0, what.group};
  pid_t child = -1;
  start.failure = launch(what, child);
  // The copies of all files are gone before the owner goes on, so that the ends of its pipes are seen at once.
  waitForEnd(watchersCopies);
  keepOnly(line, report);
  const bool told = write(reportEnd, &start, sizeof start) == sizeof start;
  if (start.failure != 0 || !told) _exit(start.failure);
  hold({child, true}, watcher);
}

[[noreturn]] void becomeWatcher(Launch& what, int line, int report) {
  prctl(PR_SET_NAME, "tarnwick-guard");
  // What loses its parent becomes the nearest guard's own child.
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  const pid_t self = getpid();
  int copies[2];
  const pid_t holder = pipe2(copies, O_CLOEXEC) == 0 ? fork() : -1;
  if (holder == 0) becomeHolder(what, line, report, copies, self);
  const Start failed{errno, 0};
  keepOnly(line, report);
  if (holder > 0) watch({holder, false});
  [[maybe_unused]] const ssize_t ignored = write(reportEnd, &failed, sizeof failed);
  _exit(0);
}

/// Runs in the first copy: makes the guards children of nobody, so that they leave nothing behind for us to wait for.
[[noreturn]] void becomeGuards(Launch& what, int line, int report) {
  if (setpgid(0, 0) != 0) _exit(errno);
  const pid_t copy = fork();
  if (copy < 0) _exit(errno);
  if (copy > 0) _exit(0);
  becomeWatcher(what, line, report);
}

/// Blocks all signals for its lifetime. The copies inherit that: the TERM for the group is not meant for the guards.
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

/// False if the guards have nothing to say any more.
template <typename Answer>
bool hear(int report, Answer& answer) {
  ssize_t count = 0;
  do {
    count = read(report, &answer, sizeof answer);
  } while (count < 0 && errno == EINTR);
  return count == sizeof answer;
}

}  // namespace

ChildGuard::ChildGuard(Launch what) {
  Pipe line = makePipe();
  Pipe report = makePipe();
  pid_t copy = -1;
  {
    const SignalsBlocked blocked;
    copy = fork();
    if (copy == 0) becomeGuards(what, line.read.number(), report.write.number());
  }
  if (copy < 0) throw startFailure(errno);

  int status = 0;
  while (waitpid(copy, &status, 0) < 0 && errno == EINTR) {
  }
  if (!WIFEXITED(status)) throw startFailure(EAGAIN);
  if (WEXITSTATUS(status) != 0) throw startFailure(WEXITSTATUS(status));
  report.write.close();
  // A child may have killed the holder before that could tell of the start: it ran, and has been ended by force.
  Start start{};
  if (!hear(report.read.number(), start)) start = {0, 0};
  if (start.failure != 0) throw startFailure(start.failure);
  group_ = start.group;
  line_ = std::move(line.write);
  report_ = std::move(report.read);
}

void ChildGuard::release() {
  if (line_.number() < 0) return;
  // If the guards have been ended by force, there is nobody to tell.
  [[maybe_unused]] const ssize_t ignored = write(line_.number(), "r", 1);
  line_.close();
}

ChildGuard::End ChildGuard::settle() {
  int status = endedByGuard;
  if (!hear(report_.number(), status) && group_ > 0) kill(-group_, SIGKILL);
  if (status == endedByGuard) return {SIGKILL, 0};
  return WIFSIGNALED(status) ? End{WTERMSIG(status), 0} : End{0, WEXITSTATUS(status)};
}

}  // namespace tarnwick::platform
