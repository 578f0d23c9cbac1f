#pragma once

#include <string>

namespace tarnwick {

struct SettingsValues;

/// How a Java source is read: the classic way, which knows the Java of version 1.4 and refuses much of what came later,
/// or the newer one, which knows them all and refuses nothing.
struct JavaReading {
  bool newer = false;
  int javaVersion = 0;  ///< the JDK's main version as far as it is known: it decides what counts as a main method

  bool operator==(const JavaReading&) const = default;
};

/// The way that the settings say.
JavaReading javaReading(const SettingsValues& settings);

/// True if the source can be read and is, as the newer way sees it, one that a compiler could take: it declares
/// something, its braces match, and a single public type bears the file's name.
bool newerWayTakes(const std::string& path);

}  // namespace tarnwick
