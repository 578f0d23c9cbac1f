#include "platform/SystemVersion.h"

#include "platform/win32/Registry.h"

namespace tarnwick::platform {

bool isWindowsDesktop() {
  return true;
}

bool isWindows98() {
  return tellsOfWindows98(HKEY_LOCAL_MACHINE, {"Software", "Microsoft", "Windows", "CurrentVersion"});
}

}  // namespace tarnwick::platform
