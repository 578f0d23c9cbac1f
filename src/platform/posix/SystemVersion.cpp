#include "platform/SystemVersion.h"

namespace tarnwick::platform {

bool isWindowsDesktop() {
  return false;
}

bool isWindows98() {
  return false;
}

}  // namespace tarnwick::platform
