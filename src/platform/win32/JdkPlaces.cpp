#include "platform/JdkPlaces.h"

#include "platform/FileSystem.h"
#include "platform/win32/FolderWalk.h"
#include "platform/win32/Registry.h"

#include <windows.h>

#include <algorithm>

namespace tarnwick::platform {

namespace {

constexpr int deepest = 5;  // SOFTWARE\<vendor>\JDK\<version>\hotspot\MSI

/// The folders that a key and those below it name, by the words that the vendors use.
void collectHomes(HKEY above, const std::string& name, REGSAM view, int depth, std::vector<std::string>& homes) {
  const RegistryKey key(above, name, view);
  if (key.handle() == nullptr) return;
  for (const char* word : {"JavaHome", "Path", "InstallationPath"}) {
    const std::string home = key.text(word);
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
  for (const auto& name : namesWhere(folder, isFolderEntry)) found.push_back(folder + '\\' + name);
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace tarnwick::platform
