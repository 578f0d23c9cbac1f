// How a file's name is given to a tool that would read some names as something else.
#pragma once

#include <string>

namespace tarnwick::platform {

/// A file's name for a tool: one that the tool would take for an option or for a file of options, since it begins with
/// "@", "-" or "+", gets the current folder in front ("./-x.java").
std::string fileArgument(const std::string& name);

/// The same as one word of a command text, in double quotes if a blank stands anywhere in it.
std::string fileWord(const std::string& name);

}  // namespace tarnwick::platform
