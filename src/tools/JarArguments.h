#pragma once

#include <string>
#include <vector>

namespace tarnwick {

enum class JarOperation { None = 0, Create = 1, Update = 2, CreateIndex = 3 };

/// What a run of `jar` is made of.
struct JarRun {
  JarOperation operation = JarOperation::None;
  std::string archive;  ///< may stand in double quotes
  /// Words of the command line: names with a blank stand in double quotes.
  std::string manifest;
  std::string subfolders;
  std::string individualFiles;
  /// A single word: the folder of the individual files where it is not the current one.
  std::string lastFilesFolder;
  bool allFiles = false;
  bool verbose = false;
  bool noCompression = false;
  bool noManifest = false;
};

/// The arguments of a `jar` run whose current folder is the base folder. A list of names is one element, as its edit
/// field holds it.
std::vector<std::string> jarArguments(const JarRun& run);

/// The lines of a manifest; an empty value makes none.
std::string manifestLines(const std::string& mainClass, const std::string& classPath);

/// The archive's name for a run in the base folder. `jar` leaves the archive itself out of what it packs if it meets it
/// under the very name that it was given: so an archive that lies below the base folder gets its name as seen from
/// there. Any other, one whose files all come from another folder, and one that only gets an index keep their own.
std::string archiveForRun(const JarRun& run, const std::string& baseFolder);

}  // namespace tarnwick
