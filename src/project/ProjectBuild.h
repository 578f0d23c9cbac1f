// Compiling and running a project.
#pragma once

#include "process/FileForSubprocess.h"
#include "project/ProjectContext.h"

#include <string>

namespace tarnwick {

/// Compiles all sources, or those that are not up to date; one log for all. Sounds and shows the log as the settings
/// say. Shows failures itself; the first one ends the batch.
void compileProject(Settings& settings, ProjectContext& project, bool all);

/// The class file that a run is given: `target` holds what the user typed, and has its arguments.
void completeRunTarget(const Settings& settings, const ProjectContext& project, FileForSubprocess& target);

}  // namespace tarnwick
