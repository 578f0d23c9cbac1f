#pragma once

#include "console/TraceLink.h"

#include <string>
#include <vector>

namespace tarnwick {

class Settings;

/// Where the sources of a program that runs in a console may lie.
struct TraceFolders {
  std::string startFolder;           ///< in which the program began
  std::string projectFolder;         ///< of the project that it belongs to; empty for none
  std::vector<std::string> sources;  ///< the project's, as its file names them
  std::vector<std::string> roots;    ///< the source path's folders, then those of the class path
};

/// Those of a console with this configuration, begun in the current folder with these arguments for `java` or `jdb`.
TraceFolders traceFolders(const Settings& settings, const std::string& configFile, const std::string& runArguments);

/// The files that a stack trace may mean, each once: in the folder of its package among the project's sources, below
/// the roots and below the start folder. Where there is none, those of that name that lie elsewhere in the project, or
/// in those folders themselves.
std::vector<std::string> traceSources(const TraceFolders& folders, const TraceLink& trace);

}  // namespace tarnwick
