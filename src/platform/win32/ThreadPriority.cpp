#include "platform/ThreadPriority.h"

#include <windows.h>

namespace tarnwick::platform {

void lowerThreadPriority() {
  SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_LOWEST);
}

}  // namespace tarnwick::platform
