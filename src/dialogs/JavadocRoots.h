#pragma once

#include "tools/JavadocArguments.h"

#include <string>
#include <vector>

namespace tarnwick {

class Settings;

/// Where sources are read the newer way, adds the folders in which the packages of these files begin, and of an open
/// project's sources, behind the paths of the run. Names that are no files have no share in it.
void addRootsOfSources(JavadocRun& run, const Settings& settings, const std::vector<std::string>& names);

}  // namespace tarnwick
