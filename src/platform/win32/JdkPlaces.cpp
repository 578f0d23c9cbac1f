#include "platform/JdkPlaces.h"

#include "platform/FileSystem.h"

#include <windows.h>

#include <algorithm>

namespace tarnwick::platform {

namespace {

constexpr int deepest = 5;  // SOFTWARE\<vendor>\JDK\<version>\hotspot\MSI

/// An open key of the registry.
class Key {
 public:
  Key(HKEY above, const std::string& name, REGSAM view) {
    if (RegOpenKeyExA(above, name.c_str(), 0, KEY_READ | view, &key_) != ERROR_SUCCESS) key_ = nullptr;
  }
  ~Key() {
    if (key_ != nullptr) RegCloseKey(key_);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;

  HKEY handle() const { return key_; }

  std::string value(const char* name) const {
    char buffer[1024];
    DWORD size = sizeof buffer;
    DWORD type = 0;
    if (RegQueryValueExA(key_, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size) != ERROR_SUCCESS ||
        type != REG_SZ) {
      return {};
    }
    return std::string(buffer, std::find(buffer, buffer + size, '\0'));
  }

  std::vector<std::string> subkeys() const {
    std::vector<std::string> names;
    char buffer[256];
    for (DWORD index = 0;; ++index) {
      DWORD size = sizeof buffer;
      if (RegEnumKeyExA(key_, index, buffer, &size, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
      names.emplace_back(buffer, size);
    }
    return names;
  }

 private:
  HKEY key_ = nullptr;
};

/// The folders that a key and those below it name, by the words that the vendors use.
void collectHomes(HKEY above, const std::string& name, REGSAM view, int depth, std::vector<std::string>& homes) {
  const Key key(above, name, view);
  if (key.handle() == nullptr) return;
  for (const char* word : {"JavaHome", "Path", "InstallationPath"}) {
    const std::string home = key.value(word);
    if (!home.empty()) homes.push_back(home);
  }
  if (depth == deepest) return;
  for (const auto& below : key.subkeys()) collectHomes(key.handle(), below, view, depth + 1, homes);
}

std::vector<std::string> homesInRegistry() {
  std::vector<std::string> homes;
  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
    for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
      for (const char* vendor :
           {"JavaSoft\\JDK", "JavaSoft\\Java Development Kit", "Eclipse Adoptium\\JDK", "Eclipse Foundation\\JDK",
            "AdoptOpenJDK\\JDK", "Microsoft\\JDK", "Semeru\\JDK", "Azul Systems\\Zulu", "BellSoft\\Liberica",
            "Amazon Corretto", "JavaSoft\\Amazon Corretto"}) {
        collectHomes(root, std::string("SOFTWARE\\") + vendor, view, 0, homes);
      }
    }
  }
  return homes;
}

}  // namespace

JdkPlaces jdkPlaces() {
  JdkPlaces places;
  places.homes = homesInRegistry();
  for (const char* variable : {"ProgramW6432", "ProgramFiles", "ProgramFiles(x86)"}) {
    const auto programs = environment(variable);
    if (!programs) continue;
    for (const char* vendor : {"Java", "Eclipse Adoptium", "Eclipse Foundation", "AdoptOpenJDK", "Microsoft", "Semeru",
                               "Zulu", "BellSoft", "Amazon Corretto", "RedHat", "OpenJDK"}) {
      places.parents.push_back(*programs + '\\' + vendor);
    }
  }
  const std::string home = homeFolder();
  for (const char* folder : {"\\.jdks", "\\.sdkman\\candidates\\java", "\\.jabba\\jdk", "\\.gradle\\jdks",
                             "\\.jbang\\cache\\jdks", "\\AppData\\Local\\mise\\installs\\java"}) {
    places.parents.push_back(home + folder);
  }
  // Each archive that Gradle fetched is unpacked in a folder of its own, and that may hold the JDK's folder.
  for (const auto& unpacked : subfolders(home + "\\.gradle\\jdks")) places.parents.push_back(unpacked);
  return places;
}

std::vector<std::string> subfolders(const std::string& folder) {
  std::vector<std::string> found;
  WIN32_FIND_DATAA entry{};
  const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return found;
  do {
    const std::string name = entry.cFileName;
    const bool isFolder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (isFolder && name != "." && name != "..") found.push_back(folder + '\\' + name);
  } while (FindNextFileA(search, &entry));
  FindClose(search);
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace tarnwick::platform
