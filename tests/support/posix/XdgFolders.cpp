#include "support/posix/XdgFolders.h"

#include <filesystem>

namespace tarnwick::test {

XdgFolders::XdgFolders(const std::string& folder)
    : data_(folder + "data/"),
      config_(folder + "config/"),
      dataHome_("XDG_DATA_HOME", data_),
      dataFolders_("XDG_DATA_DIRS", data_),
      configHome_("XDG_CONFIG_HOME", config_),
      configFolders_("XDG_CONFIG_DIRS", config_) {
  std::filesystem::create_directories(data_ + "applications");
  std::filesystem::create_directories(data_ + "mime");
  std::filesystem::create_directories(config_);
  writeFile(data_ + "mime/globs2",
            "50:application/zip:*.zip\n50:text/html:*.htm\n50:application/x-java-archive:*.jar\n50:text/plain:*.txt\n");
}

void XdgFolders::addApplication(const std::string& name, const std::string& exec, const std::string& mimeTypes,
                                const std::string& more) const {
  writeFile(data_ + "applications/" + name + ".desktop", "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" +
                                                             exec + "\nMimeType=" + mimeTypes + "\n" + more);
  // The index by types, which a package would have brought up to date.
  std::string cache = "[MIME Cache]\n";
  for (const char* type : {"application/zip", "text/html", "application/x-java-archive", "text/plain"}) {
    std::string line;
    for (const auto& entry : std::filesystem::directory_iterator(data_ + "applications")) {
      if (entry.path().extension() != ".desktop") continue;
      if (contentOf(entry.path().string()).find(type) == std::string::npos) continue;
      line += entry.path().filename().string() + ';';
    }
    if (!line.empty()) cache += std::string(type) + '=' + line + '\n';
  }
  writeFile(data_ + "applications/mimeinfo.cache", cache);
}

void XdgFolders::setDefaults(const std::string& lines) const {
  writeFile(config_ + "mimeapps.list", "[Default Applications]\n" + lines);
}

}  // namespace tarnwick::test
