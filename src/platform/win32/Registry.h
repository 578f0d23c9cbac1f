#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tarnwick::platform {

/// A key of the registry was not there. The message names the path as far as it was walked, that key included.
struct NoSuchRegistryEntryE {
  std::string message;
};

/// A key that is open for reading; closed at the end of its life.
class RegistryKey {
 public:
  /// `view` is KEY_WOW64_64KEY, KEY_WOW64_32KEY, or 0 for the process's own.
  RegistryKey(HKEY above, const std::string& name, REGSAM view);
  ~RegistryKey();
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  /// Null if there is no such key.
  HKEY handle() const { return key_; }
  /// A value that is a text; empty if it is none, is not there, or is longer than any path.
  std::string text(const char* name) const;
  /// The names of the keys right below.
  std::vector<std::string> subkeys() const;

 private:
  HKEY key_ = nullptr;
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
