#include "base/ProgramInfo.h"

#include "platform/FileSystem.h"

namespace tarnwick {

const char defaultConfigurationName[] = "Tarnwickdefault.CFG";

std::string ProgramInfo::configDirectory() const {
  const auto set = platform::environment(configDirVariable);
  // An empty value counts as none, as it does on systems that cannot hold one.
  return set && !set->empty() ? *set : platform::defaultConfigDirectory(programDirectory);
}

}  // namespace tarnwick
