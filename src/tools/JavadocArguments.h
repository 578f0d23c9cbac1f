#pragma once

#include "settings/SettingsValues.h"

#include <string>
#include <vector>

namespace tarnwick {

/// What a run of `javadoc` is made of beside the settings.
struct JavadocRun {
  /// Lists of paths with ";" between them.
  std::string sourcePath;
  std::string classPath;
  std::string bootClassPath;
  std::string extDirs;
  /// The file that lists the sources; counts only where there is no `packageText`.
  std::string listFile;
  /// The sources as words of the command line.
  std::string packageText;
};

/// The arguments of a `javadoc` run, a value in one element with its option. Values are given as the user typed them;
/// whoever wants a title with blanks types the double quotes.
std::vector<std::string> javadocArguments(const SettingsValues& settings, const JavadocRun& run);

}  // namespace tarnwick
