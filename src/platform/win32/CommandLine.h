#pragma once

#include <string>

namespace tarnwick::platform {

/// A process's whole command line without the program's own name, which may stand in double quotes.
std::string withoutProgramName(const std::string& commandLine);

}  // namespace tarnwick::platform
