#include "settings/Classpaths.h"

#include "base/Filename.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "settings/Settings.h"

#include <algorithm>

namespace tarnwick {

std::string classpathOfEnvironment() {
  const std::string list = platform::storedList(platform::environment("CLASSPATH").value_or(""));
  std::string quoted;
  for (std::size_t begin = 0; begin <= list.size();) {
    const auto end = std::min(list.find(';', begin), list.size());
    quoted += (begin == 0 ? "" : ";") + Filename(list.substr(begin, end - begin)).quoted();
    begin = end + 1;
  }
  return quoted;
}

std::string usersClasspath(const Settings& settings) {
  const std::string inForce = settings.classpathFromEnvironmentAlways ? "" : settings.classpath;
  if (!inForce.empty() || (settings.classpathFromEnvironmentNever && !settings.classpathFromEnvironmentAlways))
    return inForce;
  return classpathOfEnvironment();
}

}  // namespace tarnwick
