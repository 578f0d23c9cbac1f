#include "settings/JdkDiscovery.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"

#include <cstdlib>
#include <fstream>

namespace tarnwick {

namespace {

/// The folder if a `javac` lies in it; links lead to the real folder.
std::string toolsIn(const std::string& folder) {
  const std::string javac = Filename(folder, platform::toolFileName("javac")).fullName();
  return platform::isFile(javac) ? Filename(platform::resolvedPath(javac)).directory() : "";
}

std::string onSearchPath() {
  const std::string path = platform::storedList(platform::environment("PATH").value_or(""));
  for (std::size_t begin = 0; begin <= path.size();) {
    const auto end = std::min(path.find(';', begin), path.size());
    const std::string folder = path.substr(begin, end - begin);
    const std::string found = folder.empty() ? "" : toolsIn(folder);
    if (!found.empty()) return found;
    begin = end + 1;
  }
  return "";
}

}  // namespace

std::string discoverJdkTools() {
  const std::string home = platform::environment("JAVA_HOME").value_or("");
  if (!home.empty()) {
    const std::string found = toolsIn(Filename(home, "bin").fullName());
    if (!found.empty()) return found;
  }
  return onSearchPath();
}

int jdkVersion(const std::string& toolsFolder) {
  // <jdk>/release beside <jdk>/bin holds a line JAVA_VERSION="17.0.15"; up to 8 it begins with "1.".
  const std::string real = toolsIn(toolsFolder);
  const std::string home = Filename(Filename(real.empty() ? toolsFolder : real, "x").directoryNoSlash()).directory();
  std::ifstream release(home + "release");
  const std::string key = "JAVA_VERSION=";
  for (std::string line; std::getline(release, line);) {
    if (line.compare(0, key.size(), key) != 0) continue;
    std::string version = cleanedPath(line.substr(key.size()));
    if (version.compare(0, 2, "1.") == 0) version.erase(0, 2);
    return std::atoi(version.c_str());
  }
  return 0;
}

}  // namespace tarnwick
