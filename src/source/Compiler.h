#pragma once

#include "base/Tarnwickexception.h"
#include "process/FileForSubprocess.h"
#include "process/Subprocess.h"
#include "settings/Settings.h"
#include "source/SourceSplitter.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// What `javac` is told of the class path: the alternative unless it is null, even if empty, otherwise what the
/// settings say. Nothing if they say nothing.
std::optional<std::string> compilerClasspath(const Settings& settings, const char* alternativeClasspath);

/// The options that the settings give to `javac`, its own name first. An element may be empty. None is quoted: a path
/// with blanks in a setting carries its own quotes.
std::vector<std::string> javacArguments(const Settings& settings, const std::optional<std::string>& classpath);

/// Runs `javac` for one user command, for which it saves the settings.
class Compiler {
 public:
  using CannotCompileE = SourceSplitter::CannotCompileE;
  using DontWantToSplitE = SourceSplitter::DontWantToSplitE;

  /// Asks for the tools' folder if it is unknown. `alternativeClasspath` may be null. Throws CannotCompileE, and
  /// Tarnwickfile::FileNotOpenE if the compiler can't be read.
  Compiler(Settings& settings, const char* alternativeClasspath);
  virtual ~Compiler() = default;
  Compiler(const Compiler&) = delete;
  Compiler& operator=(const Compiler&) = delete;

  /// Compiles one source, split if it has several public types; `logMode` is Write for a new log, Append to go on with
  /// the last one. True if `javac` wrote anything at all. Puts the names that `javac` is given into the source's
  /// arguments. Throws CannotCompileE, DontWantToSplitE and Tarnwickfile::FileNotOpenE.
  bool compile(FileForSubprocess& source, FileMode logMode);

 private:
  void checkTool() const;
  /// Warns before a split. False if the user gives up.
  bool maySplit();

  Settings& settings_;
  Subprocess tool_;
  /// The settings are on the disk as far as possible.
  bool saved_ = false;
};

}  // namespace tarnwick
