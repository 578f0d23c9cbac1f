// The list of source files as the user gives it, and the forms in which `javadoc` takes it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// The names in a list of input files: blanks separate, and double quotes keep a name with blanks together. A quote
/// that is never closed reaches to the end.
std::vector<std::string> inputNames(const std::string& list);

/// A file as an element of such a list, with a blank behind it; nothing for a name that the list can't hold.
std::optional<std::string> inputElement(const std::string& path);

/// A name of the list as `javadoc` gets it: a file that would be taken for an option is named by way of its folder,
/// while an option that the user has typed stays one. `sourcePath` is where the name is looked for, too.
std::string inputArgument(const std::string& name, const std::string& sourcePath);

/// All names as words of a command text, each with a tab behind it.
std::string inputWords(const std::vector<std::string>& names, const std::string& sourcePath);

}  // namespace tarnwick
