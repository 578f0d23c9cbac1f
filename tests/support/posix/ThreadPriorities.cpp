#include "support/ThreadPriorities.h"

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tarnwick::test {

int threadPriority() {
  return ::getpriority(PRIO_PROCESS, static_cast<id_t>(::syscall(SYS_gettid)));
}

int lowestThreadPriority() {
  return 19;
}

}  // namespace tarnwick::test
