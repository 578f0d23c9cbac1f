#pragma once

#include <string>

namespace tarnwick {

class ProjectContext;
class Settings;

/// Where the classic way of reading has refused a source in which the newer one finds no fault, asks whether sources
/// are to be read that way from now on; with Yes the settings say so and are saved. An empty `refused` is no source.
/// True if the user wants it: the source can be compiled now.
bool offerNewerJava(Settings& settings, const std::string& refused);

/// Asks the same where a source of a project that has been looked at holds no type for the classic way, but does so for
/// the newer one: it would never be compiled anew.
bool offerNewerJava(Settings& settings, const ProjectContext& project);

}  // namespace tarnwick
