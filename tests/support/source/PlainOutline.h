#pragma once

#include "source/JavaSourcefile.h"

#include <string>

namespace tarnwick::test {

/// What the analysis of a source ends with, as text: its message if it fails, the package, and all types.
std::string outlineOf(const std::string& path);

/// The same by the rules of the analysis once more, on the plain reader.
std::string plainOutlineOf(const std::string& path);

/// The message alone, without the file and the line that it names; empty if the analysis does not fail.
std::string messageOf(const std::string& path);

}  // namespace tarnwick::test
