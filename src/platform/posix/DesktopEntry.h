// Words of the files that start programs on a desktop.
#pragma once

#include <string>
#include <vector>

namespace tarnwick::platform {

/// A text as one word of the value of "Exec": in double quotes, with the quoted word's own escapes. Files have escapes
/// for all values on top of these.
std::string execWord(const std::string& text);

/// The value of "Exec" that starts a program with these arguments.
std::string execLine(const std::string& program, const std::vector<std::string>& arguments);

/// A drawing of ours, beside the program or where desktops look for those of a kind such as "apps"; empty if there is
/// none.
std::string drawingOf(const std::string& program, const std::string& kind, const std::string& name);

/// The program's picture: its drawing's file, or else what the desktop knows by its name.
std::string programPicture(const std::string& program);

}  // namespace tarnwick::platform
