// Compiling and running a project.
#pragma once

#include "app/CompileForUser.h"
#include "project/ProjectContext.h"

namespace tarnwick {

class FileForSubprocess;

/// Whether the settings have just been saved, or the user been told why they can't be.
enum class SettingsSaved { NotYet, JustNow };

/// Compiles all sources, or those that are not up to date; one log for all. Sounds and shows the log as the settings
/// say. Shows failures itself; the first one ends the batch.
CompileEnd compileProject(Settings& settings, ProjectContext& project, bool all,
                          SettingsSaved saved = SettingsSaved::NotYet);

/// The class file that a run is given: `target` holds what the user typed, and has its arguments.
void completeRunTarget(const Settings& settings, const ProjectContext& project, FileForSubprocess& target);

}  // namespace tarnwick
