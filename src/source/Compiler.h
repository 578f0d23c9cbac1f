#pragma once

#include "base/Tarnwickexception.h"
#include "process/FileForSubprocess.h"
#include "process/Subprocess.h"
#include "settings/Settings.h"

#include <string>
#include <vector>

namespace tarnwick {

/// The options that the settings give to `javac`, its own name first. An element may be empty. None is quoted: a path
/// with blanks in a setting carries its own quotes. `alternativeClasspath` may be null.
std::vector<std::string> javacArguments(const Settings& settings, const char* alternativeClasspath);

/// Runs `javac` for one user command.
class Compiler {
 public:
  struct CannotCompileE : Tarnwickexception {
    using Tarnwickexception::Tarnwickexception;
  };

  /// Asks for the tools' folder if it is unknown. Throws CannotCompileE, and Tarnwickfile::FileNotOpenE if the compiler
  /// can't be read.
  Compiler(Settings& settings, const char* alternativeClasspath);
  virtual ~Compiler() = default;
  Compiler(const Compiler&) = delete;
  Compiler& operator=(const Compiler&) = delete;

  /// Compiles one source; `logMode` is Write for a new log, Append to go on with the last one. True if `javac` wrote
  /// anything at all. Throws CannotCompileE and Tarnwickfile::FileNotOpenE.
  bool compile(FileForSubprocess& source, FileMode logMode);

 private:
  void checkTool() const;

  Settings& settings_;
  Subprocess tool_;
};

}  // namespace tarnwick
