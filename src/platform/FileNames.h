// What the operating system takes as the name of a file.
#pragma once

#include <string>

namespace tarnwick::platform {

/// Why no file of this name can be opened, whatever the disk holds, in a sentence; empty if one could.
std::string whyNoFile(const std::string& path);

/// A name in UTF-8 as the system spells a file's. One that is no UTF-8, or has letters that no file's name can have
/// here, stays as it is.
std::string fileNameOf(const std::string& utf8);

}  // namespace tarnwick::platform
