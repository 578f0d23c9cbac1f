#pragma once

#include <string>

namespace tarnwick {

/// The class path with ".;" before it, unless it is empty or the current folder stands on it. Keeps "." on a user's own
/// class path, so that a later `java` finds classes in the folder of the source.
std::string normalisedClasspath(const std::string& classpath);

/// A list of class names, separated by blanks, commas and semicolons, as options: each name with `prefix` before it
/// and a blank behind it.
std::string assertionOptions(const std::string& list, const std::string& prefix);

/// True if the setting JAVAC_DESTINATION names no folder of its own: in the newer way classes then lie where their
/// packages begin.
bool classesFollowPackages(const std::string& destination);

/// The folder that the compiler gives classes, by the setting JAVAC_DESTINATION: empty and "." stand for the folder of
/// the sources, in which the compiler runs, and a relative one begins there.
std::string classFolder(const std::string& destination, const std::string& sourceFolder);

}  // namespace tarnwick
