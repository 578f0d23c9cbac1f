#include "support/ThreadPriorities.h"

#include <windows.h>

namespace tarnwick::test {

int threadPriority() {
  return GetThreadPriority(GetCurrentThread());
}

int lowestThreadPriority() {
  return THREAD_PRIORITY_LOWEST;
}

}  // namespace tarnwick::test
