#include "platform/FileSystem.h"

#include <windows.h>

#include <cstdlib>

namespace tarnwick::platform {

std::optional<std::string> environment(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  if (!value) return std::nullopt;
  return value;
}

bool setEnvironment(const std::string& definition) {
  const auto equals = definition.find('=');
  if (equals == std::string::npos || equals == 0) return false;
  return _putenv(definition.c_str()) == 0 || definition.size() == equals + 1;
}

std::string defaultConfigDirectory(const std::string& programDirectory) {
  return programDirectory;
}

std::string homeFolder() {
  if (const auto profile = environment("USERPROFILE")) return *profile;
  return environment("HOMEDRIVE").value_or("C:") + environment("HOMEPATH").value_or("\\");
}

int processId() {
  return static_cast<int>(GetCurrentProcessId());
}

void prepareProcess() {
  // The process keeps the 8-bit character set that it was started with: Java's tools write in the same one.
}

}  // namespace tarnwick::platform
