// Where JDKs are usually installed here.
#pragma once

#include <string>
#include <vector>

namespace tarnwick::platform {

/// Folders to look into. They need not exist.
struct JdkPlaces {
  std::vector<std::string> homes;    ///< each may be a JDK's own folder, the one above its "bin"
  std::vector<std::string> parents;  ///< each may hold such folders
};

/// The system's usual places, and those of version managers in the user's home folder.
JdkPlaces jdkPlaces();

/// The folders in a folder, by name, with their whole paths; links to folders count. Empty if it can't be read.
std::vector<std::string> subfolders(const std::string& folder);

}  // namespace tarnwick::platform
