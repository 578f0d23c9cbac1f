#include "platform/JdkPlaces.h"

#include "platform/FileSystem.h"

#include <algorithm>
#include <filesystem>

namespace tarnwick::platform {

namespace {

/// A folder that a variable may have moved away from its usual place in the home folder.
std::string movable(const char* variable, const std::string& usual) {
  const auto moved = environment(variable);
  return moved && !moved->empty() ? *moved : homeFolder() + usual;
}

}  // namespace

JdkPlaces jdkPlaces() {
  const std::string home = homeFolder();
  JdkPlaces places;
  places.parents = {
      "/usr/lib/jvm",
      "/usr/lib64/jvm",
      "/usr/java",
      "/usr/local/java",
      "/usr/local/lib/jvm",
      "/opt",
      "/opt/java",
      "/opt/jdk",
      movable("SDKMAN_DIR", "/.sdkman") + "/candidates/java",
      home + "/.jdks",
      movable("ASDF_DATA_DIR", "/.asdf") + "/installs/java",
      movable("MISE_DATA_DIR", "/.local/share/mise") + "/installs/java",
      home + "/.local/share/rtx/installs/java",
      movable("JABBA_HOME", "/.jabba") + "/jdk",
      movable("JENV_ROOT", "/.jenv") + "/versions",
      home + "/.jbang/cache/jdks",
  };
  const std::string gradle = movable("GRADLE_USER_HOME", "/.gradle") + "/jdks";
  places.parents.push_back(gradle);
  // Each archive that Gradle fetched is unpacked in a folder of its own, and that may hold the JDK's folder.
  for (const auto& unpacked : subfolders(gradle)) places.parents.push_back(unpacked);
  return places;
}

std::vector<std::string> subfolders(const std::string& folder) {
  std::vector<std::string> found;
  std::error_code failure;
  for (std::filesystem::directory_iterator entry(folder, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    std::error_code ignored;
    if (entry->is_directory(ignored)) found.push_back(entry->path().string());
  }
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace tarnwick::platform
