// Which program opens which file, and the system's own plain-text editor.
#pragma once

#include <string>
#include <vector>

namespace tarnwick::platform {

/// The command text of the program that opens files of this extension, with the file's placeholder ("%1" on Windows,
/// "%f" and its like on Linux); empty if there is none.
std::string openCommand(const std::string& extension);

/// Takes an association's command text apart: the program, in double quotes if it stood in such, and behind it the
/// arguments. False if no program can be found in it.
bool splitOpenCommand(const std::string& commandText, std::string& program, std::string& arguments);

/// The programs that serve as "Notepad", best first: each the words of a command to which the file is added.
std::vector<std::vector<std::string>> plainTextEditors();

}  // namespace tarnwick::platform
