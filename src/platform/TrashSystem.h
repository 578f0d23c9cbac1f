// What the trash asks of the system.
#pragma once

#include <string>

namespace tarnwick::platform {

/// Writes all of one file into another that is there. False if that failed on the way.
bool copyBytes(const std::string& from, const std::string& to);

/// False if there is no trash for that place; then the file is still there.
bool moveToTrash(const std::string& path);

}  // namespace tarnwick::platform
