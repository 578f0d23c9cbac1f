// What lies in a folder, and how a tool is given all of it.
#pragma once

#include <string>
#include <vector>

namespace tarnwick::platform {

/// The names of the folders in a folder, links to such included, the entries "." and ".." not, in no order; none if it
/// can't be read.
std::vector<std::string> foldersIn(const std::string& folder);

/// True if the folder can be made the current one, which stays as it is.
bool canEnter(const std::string& folder);

/// The words of a command text as a tool that knows "*" and "?" takes them. On Windows such tools fill them in
/// themselves, and the text stays as it is; on Linux each word with such a mark outside double quotes gives way to the
/// names that fit, sorted, without those that begin with a dot. A word that fits nothing stays.
std::string withNamesFilledIn(const std::string& commandText);

/// The most characters that a command line may have here, as far as that can be told beforehand.
std::size_t longestCommandLine();

}  // namespace tarnwick::platform
