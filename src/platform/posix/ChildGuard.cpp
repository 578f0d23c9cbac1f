#include "platform/posix/ChildGuard.h"

#include "platform/Process.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

// Between fork and the end of the guard only calls that are safe beside other threads: the copy has this one thread,
// and whatever lock another one held stays locked.

[[noreturn]] void watch(pid_t group) {
  char word = 0;
  ssize_t count = 0;
  do {
    count = read(0, &word, 1);
  } while (count < 0 && errno == EINTR);
  if (count != 0) _exit(0);

  kill(-group, SIGTERM);
  const timespec grace{2, 0};
  nanosleep(&grace, nullptr);
  kill(-group, SIGKILL);  // the guard is one of them
  _exit(0);
}

/// Runs in the first copy: makes the guard a child of nobody, so that it leaves nothing behind for us to wait for.
[[noreturn]] void becomeGuard(int line) {
  if (setpgid(0, 0) != 0) _exit(errno);
  const pid_t group = getpid();
  // Our copies of other files are gone before the owner goes on, so that the ends of its pipes are seen at once.
  dup2(line, 0);
  syscall(SYS_close_range, 1U, ~0U, 0U);
  prctl(PR_SET_NAME, "tarnwick-guard");
  if (chdir("/") != 0) _exit(errno);
  const pid_t guard = fork();
  if (guard < 0) _exit(errno);
  if (guard > 0) _exit(0);
  watch(group);
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

}  // namespace

ChildGuard::ChildGuard() {
  Pipe pipe = makePipe();
  const SignalsBlocked blocked;
  const pid_t copy = fork();
  if (copy < 0) throw lastSystemError("CreateProcess");
  if (copy == 0) becomeGuard(pipe.read.number());

  group_ = copy;
  int status = 0;
  while (waitpid(copy, &status, 0) < 0 && errno == EINTR) {
  }
  errno = WIFEXITED(status) ? WEXITSTATUS(status) : EAGAIN;
  if (errno != 0) throw lastSystemError("CreateProcess");
  line_ = std::move(pipe.write);
}

void ChildGuard::release() {
  if (line_.number() < 0) return;
  // If the guard has been ended by force, there is nobody to tell.
  [[maybe_unused]] const ssize_t ignored = write(line_.number(), "r", 1);
  line_.close();
}

}  // namespace tarnwick::platform
