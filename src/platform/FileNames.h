// What the operating system takes as the name of a file.
#pragma once

#include <string>

namespace tarnwick::platform {

/// Why no file of this name can be opened, whatever the disk holds, in a sentence; empty if one could.
std::string whyNoFile(const std::string& path);

}  // namespace tarnwick::platform
