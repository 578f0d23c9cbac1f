#include "platform/ArgumentFiles.h"

#include <algorithm>

namespace tarnwick::platform {

bool fitsArgumentFile(const std::string& name) {
  // A JDK from 18 on takes the file for UTF-8, an older one for the process's own set. They agree on ASCII.
  const bool isPlain = std::all_of(name.begin(), name.end(), [](unsigned char c) { return c < 128; });
  return isPlain && !name.empty() && name.front() != '#' && name.find_first_of(" \t\n\v\f\r\"'") == std::string::npos;
}

}  // namespace tarnwick::platform
