// Where a run of `javac` writes, and where it looks.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class Settings;

/// What `javac` is told of folders, as it stands on its command line. Lists have ";" between their elements.
struct CompilerPaths {
  std::string destination;
  std::string sourcepath;  ///< empty for none
  std::optional<std::string> classpath;
  /// Only the sources that are given become classes, not those that are found on the way. One with another root would
  /// leave a class here that nobody renews.
  bool onlyGiven = false;
};

/// What is known of the places of the sources that are compiled.
struct SourcePlaces {
  std::string folder;                     ///< where the compiler runs
  std::string root;                       ///< where their packages begin
  std::vector<std::string> otherRoots{};  ///< those of the project's other sources
  std::string lastPlace{};                ///< looked at for classes when all else is; may be empty
};

/// The paths as the settings say.
CompilerPaths pathsAsSet(const Settings& settings, const std::optional<std::string>& classpath);

/// The same for sources whose root is known. What the user has set comes first.
CompilerPaths pathsFor(const Settings& settings, const SourcePlaces& places);

}  // namespace tarnwick
