// The system's trash.
#pragma once

#include <string>

namespace tarnwick::platform {

/// Puts a copy of a file into the system's trash, from where the user can take it back; the file itself stays as it is.
/// The copy is called "NAME (copy).EXT", or "NAME (copy 2).EXT" and so on. False if there is no trash for that place or
/// no copy could be made; then nothing has happened.
bool copyToTrash(const std::string& path);

}  // namespace tarnwick::platform
