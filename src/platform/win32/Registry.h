#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tarnwick::platform {

/// A key of the registry was not there. The message names the path as far as it was walked, that key included.
struct NoSuchRegistryEntryE {
  std::string message;
};

/// Names of keys from a root on.
using RegistryPath = std::vector<std::string>;

/// Walks a path from a root and opens its last key for reading; the root itself for an empty path. Who does not close
/// the key leaves it to the end of the process. Throws NoSuchRegistryEntryE.
HKEY openKeyPath(HKEY root, const RegistryPath& path);

/// Takes the unnamed text of a key, with the variables of the environment in it replaced where it is kept with such.
/// False, and nothing taken, if there is none or it is longer than a command may be.
bool readDefaultValue(HKEY root, const RegistryPath& path, std::string& text);

/// Removes a key with what is below it, as far as that goes: every second subkey is passed over, and a key that then
/// still has one stays.
void deleteKeyTree(HKEY parent, const std::string& name);

/// Removes what programs have claimed for ".twp" files.
void removeFileTypeTraces();

/// Writes the unnamed text of a key, which is made if need be. False on failure.
bool writeDefaultValue(HKEY root, const std::string& path, const std::string& value);

/// True if the system tells of itself, in this key of the machine's, that it is Windows 98.
bool tellsOfWindows98(HKEY root, const RegistryPath& path);

}  // namespace tarnwick::platform
