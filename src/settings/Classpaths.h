// The class paths that hold beside what a project or a run adds. All have ";" between their elements.
#pragma once

#include <string>

namespace tarnwick {

class Settings;

/// That of the environment, as it stands on a command line: an element with a blank in it is in quotes. Empty if there
/// is none.
std::string classpathOfEnvironment();

/// The class path that the user has set, here or in the environment; empty if he has set none.
std::string usersClasspath(const Settings& settings);

}  // namespace tarnwick
