#pragma once

#include "process/Subprocess.h"
#include "source/CompileFailures.h"
#include "source/CompilerPaths.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

class FileForSubprocess;
class Filename;
class Settings;
struct JavaOutline;

/// What the settings say to `javac` of the class path; nothing if they say nothing.
std::optional<std::string> compilerClasspath(const Settings& settings);

/// The options that the settings give to `javac`, its own name first. An element may be empty. None is quoted: a path
/// with blanks in a setting carries its own quotes.
std::vector<std::string> javacArguments(const Settings& settings, const std::optional<std::string>& classpath);
/// The same with other paths than those that are set.
std::vector<std::string> javacArguments(const Settings& settings, const CompilerPaths& paths);

/// Runs `javac` for one user command, for which it saves the settings.
class Compiler {
 public:
  using CannotCompileE = tarnwick::CannotCompileE;
  using RefusedE = tarnwick::RefusedE;
  using DontWantToSplitE = tarnwick::DontWantToSplitE;

  /// Asked before a source is split; false if the user would rather not.
  using SplitQuestion = std::function<bool()>;

  /// Reads the settings. `classpath` is what `javac` is told. Throws CannotCompileE if the tools' folder is unknown,
  /// and Tarnwickfile::FileNotOpenE if the compiler can't be read.
  Compiler(
      Settings& settings, const std::optional<std::string>& classpath, SplitQuestion maySplit = [] { return true; });
  /// No class path is std::nullopt: a null pointer would be taken for a text.
  Compiler(Settings& settings, std::nullptr_t, SplitQuestion maySplit = {}) = delete;
  Compiler(const Compiler&) = delete;
  Compiler& operator=(const Compiler&) = delete;

  /// From now on the sources are those of a project, which has its folder and these roots. Counts where sources are
  /// read the newer way: otherwise all lie in one folder.
  void knowProject(const std::string& folder, std::vector<std::string> roots) {
    project_ = {folder, "", std::move(roots), folder};
  }

  /// The settings need not be saved before the first source: they are on the disk, or the user has been told why not.
  void takeSettingsForSaved();

  /// Compiles one source, split if it has several public types; `logMode` is Write for a new log, Append to go on with
  /// the last one. Puts the names that `javac` is given into the source's arguments. Throws CannotCompileE,
  /// DontWantToSplitE and Tarnwickfile::FileNotOpenE.
  RunResult compile(FileForSubprocess& source, FileMode logMode);

  /// The same for several sources of one folder, or of one root where they are read the newer way, in one run. The
  /// names go through a file that is gone afterwards; the log shows the first of them. No two may declare the same
  /// type.
  RunResult compileTogether(const std::vector<std::string>& sources, FileMode logMode);

 private:
  /// What goes to `javac`, with all that has to live as long as it runs.
  struct GatheredSources;

  void checkTool() const;
  void tellTool(const CompilerPaths& paths);
  /// The user sees this of what is compiled: so many sources.
  void show(const std::string& sources, std::size_t count);
  void beginRun();
  /// Adds what `javac` is given for the source.
  void gather(const Filename& source, GatheredSources& gathered);
  /// Pieces are private, and the log calls them by the source's name.
  void gatherNewer(const Filename& source, GatheredSources& gathered);
  void findRoot(const Filename& source, const JavaOutline& outline, GatheredSources& gathered) const;
  /// Runs the tool on what `first` has as its arguments, in its folder or in the project's.
  RunResult run(const FileForSubprocess& first, const GatheredSources& gathered, FileMode logMode);
  /// Adds the notes to the log. False if there are none.
  bool tellMisplaced(const std::vector<std::string>& notes);
  /// Saves the settings unless they are on the disk.
  void saveSettings();

  Settings& settings_;
  const SplitQuestion maySplit_;
  Subprocess tool_;
  SourcePlaces project_;  ///< without a folder as long as no project is known
  /// What is on the disk, as far as that is possible.
  std::optional<std::string> saved_;
};

}  // namespace tarnwick
