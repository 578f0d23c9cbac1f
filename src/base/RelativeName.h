// Names of files that begin in some folder, with "/" between their folders on every system.
#pragma once

#include <string>

namespace tarnwick {

/// True if the name, in whatever spelling, leads down from the folder where it begins, or stays there.
bool leadsDown(const std::string& name);

/// The name with "/" between its folders. "./X.java" is just another way to write "X.java".
std::string relativeName(const std::string& name);

/// Such a name as the system spells it.
std::string localName(std::string name);

}  // namespace tarnwick
