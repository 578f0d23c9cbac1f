// How the operating system writes paths, names its tools and spells lists of paths.
#pragma once

#include <string>

namespace tarnwick::platform {

/// A path taken apart; the pieces joined give the path again.
struct PathParts {
  std::string drive;      ///< "C:" on Windows, always empty on Linux
  std::string folder;     ///< with its last separator; empty if the path names none
  std::string base;       ///< the file's name without its extension
  std::string extension;  ///< from the last dot of the name on, dot included
};

/// The folder separator.
extern const char folderSeparator;

/// The sign "broken bar" in the platform's character set.
extern const char brokenBar[];

/// Takes a path apart as the C run-time's `_splitpath` does.
PathParts splitPath(const std::string& path);

/// True if `path` ends in something that separates folders here.
bool endsInSeparator(const std::string& path);

/// The file of a JDK tool: "javac" gives "javac.exe" on Windows and "javac" on Linux, "javaw" gives "java" there.
std::string toolFileName(const std::string& tool);

/// True if the two names are the same file name here.
bool sameFileName(const std::string& left, const std::string& right);

/// A list of paths with ";" between them, as it stands on a tool's command line.
std::string commandLineList(const std::string& list);

/// A list of paths as the user typed it, in the stored form with ";" between them.
std::string storedList(const std::string& typed);

/// The text with the characters at even places (counted from 0) in lower case and those at odd places in upper case.
std::string foldExecutable(std::string value);

/// The value of the switch EXEFILE as it is kept here: folded on Windows, as it stands on Linux.
std::string keptExecutable(const std::string& value);

/// The start folder of a file dialog for which the program has nothing better than "C:\" or "C:".
std::string startFolder(const std::string& windowsFolder);

/// The address under which a browser shows a document at an anchor such as "#paths"; the anchor may be empty.
/// On Windows the path with the anchor behind it, on Linux a file address, since a path would take the "#" for a
/// letter.
std::string documentAddress(const std::string& path, const std::string& anchor);

/// Drops the file name from a program's command line, so that what the user gave is left.
/// On Linux the arguments joined by single blanks.
std::string rawCommandLine(int argc, char** argv);

}  // namespace tarnwick::platform
