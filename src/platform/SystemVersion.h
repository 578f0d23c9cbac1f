// Limits of old versions of the operating system.
#pragma once

namespace tarnwick::platform {

/// True on Windows 98, which keeps Alt+F6 for itself.
bool isWindows98();

}  // namespace tarnwick::platform
