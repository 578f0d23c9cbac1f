#include "platform/ThreadPriority.h"

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tarnwick::platform {

void lowerThreadPriority() {
  constexpr int lowest = 19;
  // Linux keeps this value for each thread by itself, under the number that the kernel has for it.
  ::setpriority(PRIO_PROCESS, static_cast<id_t>(::syscall(SYS_gettid)), lowest);
}

}  // namespace tarnwick::platform
