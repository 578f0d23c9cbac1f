#include "platform/ProjectType.h"

#include "platform/FileSystem.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <cstdio>
#include <string_view>

namespace tarnwick::platform {
namespace {

const char contentType[] = "application/x-tarnwick-project";

const char typeDescription[] =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">
  <mime-type type="application/x-tarnwick-project">
    <comment>Java Development Project</comment>
    <sub-class-of type="text/plain"/>
    <glob pattern="*.twp" weight="80"/>
  </mime-type>
</mime-info>
)";

/// A program as the first word of an Exec line: in double quotes, with the quoted word's own escapes, which the escapes
/// of texts in such files come on top of.
std::string execWord(const std::string& program) {
  std::string word;
  for (const char c : program) {
    if (std::string_view("\"`$").find(c) != std::string_view::npos) word += "\\\\";
    if (c == '\\') word += "\\\\\\";
    if (c == '%') word += '%';
    word += c;
  }
  return '"' + word + '"';
}

std::string launcherFor(const std::string& program) {
  // The system would look for the first word without making one of its two percent signs.
  const std::string starter = program.find('%') == std::string::npos ? "" : "env ";
  return "[Desktop Entry]\nType=Application\nName=Tarnwick\nComment=Java Development Project\nExec=" + starter +
         execWord(program) + " %f\nMimeType=" + contentType +
         ";\nCategories=Development;\nNoDisplay=true\nStartupNotify=false\n";
}

/// False if the file could not be written whole.
bool writeText(const std::string& folder, const std::string& name, const std::string& content) {
  if (!makeFolders(folder)) return false;
  std::FILE* file = openFile(folder + name, "w");
  if (!file) return false;
  const bool written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
  return std::fclose(file) == 0 && written;
}

/// Brings an index of the user's data up to date, where its tool is installed. Nobody hears what it says.
void runIndexer(std::string tool, std::string folder) {
  char* words[] = {tool.data(), folder.data(), nullptr};
  const auto flags =
      static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL);
  // Without the index the type is not known, and nothing else is lost.
  g_spawn_sync(nullptr, words, nullptr, flags, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
}

}  // namespace

void registerProjectType(const std::string& program) {
  const std::string data = std::string(g_get_user_data_dir()) + '/';
  const std::string launcher = "tarnwick-project.desktop";
  if (!writeText(data + "mime/packages/", "tarnwick-project.xml", typeDescription)) return;
  if (!writeText(data + "applications/", launcher, launcherFor(program))) return;
  runIndexer("update-mime-database", data + "mime");
  runIndexer("update-desktop-database", data + "applications");
  GDesktopAppInfo* app = g_desktop_app_info_new_from_filename((data + "applications/" + launcher).c_str());
  if (app == nullptr) return;
  // Whatever opened such files before opens them no more.
  g_app_info_set_as_default_for_type(G_APP_INFO(app), contentType, nullptr);
  g_object_unref(app);
}

}  // namespace tarnwick::platform
