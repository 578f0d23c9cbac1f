#include "platform/ProjectType.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/posix/DesktopEntry.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace tarnwick::platform {
namespace {

const char contentType[] = "application/x-tarnwick-project";

/// What a package brings: the launcher, the type and its picture.
const char packagedLauncher[] = "example.tarnwick.tarnwick.desktop";

const char drawingName[] = "application-x-tarnwick-project";

using App = std::unique_ptr<GDesktopAppInfo, decltype(&g_object_unref)>;
using GText = std::unique_ptr<char, decltype(&g_free)>;

const char typeDescription[] =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">
  <mime-type type="application/x-tarnwick-project">
    <comment>Java Development Project</comment>
    <sub-class-of type="text/plain"/>
    <generic-icon name="text-x-generic"/>
    <glob pattern="*.twp" weight="80"/>
  </mime-type>
</mime-info>
)";

/// A value of such a file with the escapes that all values have.
std::string escaped(const std::string& value) {
  std::string text;
  for (const char c : value) text += c == '\\' ? std::string("\\\\") : std::string(1, c);
  return text;
}

std::string launcherFor(const std::string& program) {
  return "[Desktop Entry]\nType=Application\nName=Tarnwick\nComment=Java Development Project\nExec=" +
         escaped(execLine(program, {})) + " %f\nIcon=" + escaped(programPicture(program)) +
         "\nMimeType=" + contentType + ";\nCategories=Development;\nNoDisplay=true\nStartupNotify=false\n";
}

/// False if the file could not be written whole.
bool writeText(const std::string& folder, const std::string& name, const std::string& content) {
  return makeFolders(folder) && g_file_set_contents((folder + name).c_str(), content.data(),
                                                    static_cast<gssize>(content.size()), nullptr) != FALSE;
}

/// Brings an index of the user's data up to date, where its tool is installed. Nobody hears what it says.
void runIndexer(std::string tool, std::string folder) {
  char* words[] = {tool.data(), folder.data(), nullptr};
  const auto flags =
      static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL);
  // Without the index the type is not known, and nothing else is lost.
  g_spawn_sync(nullptr, words, nullptr, flags, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
}

bool opensProjects(GDesktopAppInfo* app) {
  const char** const types = g_app_info_get_supported_types(G_APP_INFO(app));
  if (types == nullptr) return false;
  return std::any_of(types, types + g_strv_length(const_cast<char**>(types)),
                     [](std::string_view type) { return type == contentType; });
}

/// The package's launcher, if there is one and it starts this very program.
App installedLauncherOf(const std::string& program) {
  App app(g_desktop_app_info_new(packagedLauncher), g_object_unref);
  if (app == nullptr || !opensProjects(app.get())) return {nullptr, g_object_unref};
  const GText found(g_find_program_in_path(g_app_info_get_executable(G_APP_INFO(app.get()))), g_free);
  if (found == nullptr || resolvedPath(found.get()) != resolvedPath(program)) return {nullptr, g_object_unref};
  return app;
}

/// The picture of projects, where the desktop looks for a type's. Without it they have that of any text.
void writePicture(const std::string& program, const std::string& data) {
  const std::string drawing = drawingOf(program, "mimetypes", drawingName);
  char* content = nullptr;
  gsize length = 0;
  if (drawing.empty() || g_file_get_contents(drawing.c_str(), &content, &length, nullptr) == FALSE) return;
  const GText owned(content, g_free);
  writeText(data + "icons/hicolor/scalable/mimetypes/", std::string(drawingName) + ".svg", {content, length});
}

/// What a package would have brought, in the user's own folders; none if it could not be written.
App ownLauncherOf(const std::string& program) {
  const std::string data = std::string(g_get_user_data_dir()) + '/';
  const std::string launcher = "tarnwick-project.desktop";
  if (!writeText(data + "mime/packages/", "tarnwick-project.xml", typeDescription)) return {nullptr, g_object_unref};
  if (!writeText(data + "applications/", launcher, launcherFor(program))) return {nullptr, g_object_unref};
  writePicture(program, data);
  runIndexer("update-mime-database", data + "mime");
  runIndexer("update-desktop-database", data + "applications");
  return {g_desktop_app_info_new_from_filename((data + "applications/" + launcher).c_str()), g_object_unref};
}

}  // namespace

void registerProjectType(const std::string& program) {
  App app = installedLauncherOf(program);
  if (app == nullptr) app = ownLauncherOf(program);
  // Whatever opened such files before opens them no more.
  if (app != nullptr) g_app_info_set_as_default_for_type(G_APP_INFO(app.get()), contentType, nullptr);
}

}  // namespace tarnwick::platform
