#include "platform/ArgumentFiles.h"

namespace tarnwick::platform {

bool fitsArgumentFile(const std::string& name) {
  return !name.empty() && name.front() != '#' && name.find_first_of(" \t\n\v\f\r\"'") == std::string::npos;
}

}  // namespace tarnwick::platform
