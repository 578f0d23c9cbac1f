// The folders that tests work in, with names as bytes in the platform's character set.
//
// std::filesystem takes and gives UTF-8 or the C locale's set on Windows, depending on the function; these go by the
// system's own calls.
#pragma once

#include <string>

namespace tarnwick::test {

/// The folder for temporary files, with its last separator.
std::string temporaryFolder();

/// Removes a folder with all in it. True if nothing is left of it.
bool removeTree(const std::string& folder);

}  // namespace tarnwick::test
