// Files that hold arguments, as the JDK's tools read them behind "@".
#pragma once

#include <string>

namespace tarnwick::platform {

/// True if a name on a line of its own in such a file reaches every JDK's tool as one argument and unchanged. White
/// space and quotes group there, "#" begins a comment, and in which character set the rest is read depends on the JDK
/// where the system has no one set for all.
bool fitsArgumentFile(const std::string& name);

}  // namespace tarnwick::platform
