#pragma once

#include <string>

namespace tarnwick {

/// A file's name for a tool: one that the tool would take for an option or for a file of options, since it begins with
/// "@", "-" or "+", gets the current folder in front ("./-x.java").
std::string fileArgument(const std::string& path);

}  // namespace tarnwick
