// What the system knows about the program's own project files.
#pragma once

#include <string>

namespace tarnwick::platform {

/// Makes `program` the opener of ".twp" files, whatever opened them before. No failure is told: what could not be
/// registered is not there.
void registerProjectType(const std::string& program);

}  // namespace tarnwick::platform
