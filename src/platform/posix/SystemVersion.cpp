#include "platform/SystemVersion.h"

namespace tarnwick::platform {

bool isWindows98() {
  return false;
}

}  // namespace tarnwick::platform
