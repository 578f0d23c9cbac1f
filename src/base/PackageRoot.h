// Packages and the folders that they are kept in.
#pragma once

#include "base/Filename.h"

#include <optional>
#include <string>

namespace tarnwick {

/// The folder where the packages begin, for a source or class that lies in `folder` and belongs to `package`, as in
/// "org.x": the folder less those of the package. Nothing where they are not named so. The text alone counts: ".."
/// takes away what stands before it, and links are left alone. No separator ends the root unless it is all of it, and
/// where nothing is left it is ".".
std::optional<std::string> rootOfPackage(const std::string& folder, const std::string& package);

/// The same of a source file: the folder in which it lies where that is not named as its package.
std::string rootOfSource(const Filename& source, const std::string& package);

/// The folders of a package below its root, as in "org/x"; empty for the unnamed package.
std::string foldersOfPackage(const std::string& package);

}  // namespace tarnwick
