#pragma once

#include "base/Filename.h"

#include <optional>
#include <string>

namespace tarnwick {

class Settings;

/// What `java` and `jdb` are told to run, by the file that the user names.
struct RunTarget {
  /// As it stands on the command line: the class's name, or the option for an archive with its file.
  std::string words;
  bool isArchive = false;
  /// The folder that the class path has to hold beside what the user has set; empty for none. The path has no
  /// separator at its end, but for a root's.
  std::string root;
  /// What the user has to know before the run; empty for nothing.
  std::string warning;
};

/// In the classic way the file's plain name. In the newer one (`NEWER_JAVA`) a class file itself tells the class's full
/// name, and so the root of its packages; a ".jar" is an archive. `tool` is "java" or "jdb".
RunTarget runTargetOf(const Settings& settings, const Filename& file, const std::string& tool);

/// The class path for a run of the target: `given` or, if it is nothing, that of the settings, and behind it the
/// target's root. Nothing means that none is told: `java` then goes by the environment.
std::optional<std::string> runClasspath(const Settings& settings, const std::optional<std::string>& given,
                                        const RunTarget& target, const Filename& file);

/// A class's name so that `java`, which `jdb` hands it on to, takes it neither for an option nor for a file of options.
std::string classArgument(const std::string& name);

}  // namespace tarnwick
