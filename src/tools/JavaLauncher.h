#pragma once

#include "process/FileForSubprocess.h"
#include "settings/Settings.h"

#include <string>
#include <vector>

namespace tarnwick {

/// What a run of `java` or `jdb` is made of. Null texts stand for "not given".
struct JavaRun {
  std::string tool = "java";
  bool debugging = false;
  const char* extraOption = nullptr;
  const char* classpath = nullptr;
  const char* sourcepath = nullptr;
};

/// The arguments with which the program starts a second copy of itself as the console of this run. Every value with
/// blanks travels between marks; behind RUN stands the child's command line.
std::vector<std::string> relaunchArguments(const Settings& settings, const FileForSubprocess& file, const JavaRun& run);

/// Starts `java` on a class file in a console of its own. Shows failures itself. `classpath` may be null.
void runJava(Settings& settings, FileForSubprocess& file, const char* classpath);

/// Starts `jdb` on a class file in a console of its own, with the debugger's commands. Either path may be null.
void runJdb(Settings& settings, FileForSubprocess& file, const char* classpath, const char* sourcepath);

/// The same for either tool.
void buildAndLaunch(Settings& settings, FileForSubprocess& file, const JavaRun& run);

}  // namespace tarnwick
