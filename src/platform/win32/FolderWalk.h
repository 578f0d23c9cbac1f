#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace tarnwick::platform {

/// The names of the wanted entries of a folder, "." and ".." never among them, in the order of the disk; none if the
/// folder can't be read.
std::vector<std::string> namesWhere(const std::string& folder,
                                    const std::function<bool(const WIN32_FIND_DATAA& entry)>& wanted);

/// True for the entry of a folder, or of a link to one.
bool isFolderEntry(const WIN32_FIND_DATAA& entry);

}  // namespace tarnwick::platform
