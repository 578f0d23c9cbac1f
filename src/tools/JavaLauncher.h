#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class FileForSubprocess;
class Settings;

/// What a run of `java` or `jdb` is made of.
struct JavaRun {
  std::string tool = "java";
  bool debugging = false;
  std::string extraOption;
  std::optional<std::string> classpath = std::nullopt;
  std::optional<std::string> sourcepath = std::nullopt;
  /// `java` runs the program, with an input and an output of its own, and `jdb` takes hold of it there.
  bool ownStreams = false;
};

/// The arguments with which the program starts a second copy of itself as the console of this run. Every value with
/// blanks travels between marks; behind RUN stands the child's command line. Where the program has its own streams that
/// is the one of `java`, which PROGRAM names, and JDBOPTIONS holds what only `jdb` is told.
std::vector<std::string> relaunchArguments(const Settings& settings, const FileForSubprocess& file, const JavaRun& run);

/// The user's further options for `java`, as `jdb` takes them: what it does not hand on by itself gets "-R" in front.
std::string debuggerOptions(const std::string& options);

/// Starts `java` on a class file in a console of its own. Shows failures itself. Without a class path the settings
/// tell.
void runJava(Settings& settings, const FileForSubprocess& file,
             const std::optional<std::string>& classpath = std::nullopt);
/// No class path is std::nullopt: a null pointer would be taken for a text.
void runJava(Settings& settings, const FileForSubprocess& file, std::nullptr_t) = delete;

/// Starts `jdb` on a class file in a console of its own, with the debugger's commands. Likewise.
void runJdb(Settings& settings, const FileForSubprocess& file,
            const std::optional<std::string>& classpath = std::nullopt,
            const std::optional<std::string>& sourcepath = std::nullopt);
void runJdb(Settings& settings, const FileForSubprocess& file, std::nullptr_t,
            const std::optional<std::string>& sourcepath = std::nullopt) = delete;

/// The same for either tool.
void buildAndLaunch(Settings& settings, const FileForSubprocess& file, const JavaRun& run);

}  // namespace tarnwick
