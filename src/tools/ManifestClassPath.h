#pragma once

#include <string>

namespace tarnwick {

/// The value of a manifest's "Class-Path" as Java reads it: URLs with blanks between them. `list` is a list of paths,
/// in which blanks outside of double quotes separate, too. A path that leads below the archive's folder is named from
/// there; one that is not absolute is seen from there. A URL that begins with "file:" is one already.
std::string manifestClassPath(const std::string& list, const std::string& archiveFolder);

/// The lines of a manifest with each that is longer than Java takes continued on the next ones.
std::string continuedLines(const std::string& lines);

}  // namespace tarnwick
