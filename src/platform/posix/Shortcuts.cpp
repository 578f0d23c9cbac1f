#include "platform/Shortcuts.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "platform/Replacement.h"
#include "platform/posix/DesktopEntry.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace tarnwick::platform {

namespace {

struct Releaser {
  void operator()(char* text) const { g_free(text); }
  void operator()(GKeyFile* file) const { g_key_file_free(file); }
  void operator()(GFile* file) const { g_object_unref(file); }
  void operator()(GDesktopAppInfo* app) const { g_object_unref(app); }
};
template <typename Type>
using Owned = std::unique_ptr<Type, Releaser>;

[[noreturn]] void fail(int reason) {
  throw ShortcutFailure{std::strerror(reason)};
}

std::string withoutQuotes(const std::string& path) {
  const bool quoted = path.size() > 1 && path.front() == '"' && path.back() == '"';
  return quoted ? path.substr(1, path.size() - 2) : path;
}

class Entry {
 public:
  void set(const char* key, const std::string& value) {
    // Such files are UTF-8 throughout. A path in another character set would not be found by what was read back.
    if (g_utf8_validate(value.data(), static_cast<gssize>(value.size()), nullptr) == FALSE) fail(EILSEQ);
    if (!value.empty()) g_key_file_set_string(file_.get(), G_KEY_FILE_DESKTOP_GROUP, key, value.c_str());
  }
  std::string text() const { return Owned<char>(g_key_file_to_data(file_.get(), nullptr, nullptr)).get(); }

 private:
  const Owned<GKeyFile> file_{g_key_file_new()};
};

std::string launcherFor(const Shortcut& shortcut) {
  const auto arguments =
      shortcut.oneArgument ? std::vector<std::string>{shortcut.arguments} : splitCommandText(shortcut.arguments);
  Entry entry;
  entry.set(G_KEY_FILE_DESKTOP_KEY_TYPE, G_KEY_FILE_DESKTOP_TYPE_APPLICATION);
  entry.set(G_KEY_FILE_DESKTOP_KEY_NAME, shortcut.name);
  entry.set(G_KEY_FILE_DESKTOP_KEY_COMMENT, shortcut.description);
  entry.set(G_KEY_FILE_DESKTOP_KEY_EXEC, execLine(withoutQuotes(shortcut.target), arguments));
  entry.set(G_KEY_FILE_DESKTOP_KEY_PATH, shortcut.workingFolder);
  entry.set(G_KEY_FILE_DESKTOP_KEY_ICON, programPicture(shortcut.picture));
  entry.set(G_KEY_FILE_DESKTOP_KEY_CATEGORIES, "Development;");
  return entry.text();
}

/// A fresh file beside `file`, open for writing; none with `errno`.
std::FILE* openFresh(const std::string& file, std::string& fresh) {
  constexpr int mostAtOnce = 20;
  for (int i = 1; i <= mostAtOnce; ++i) {
    fresh = file + ".tarnwick-" + std::to_string(i) + ".tmp";
    std::FILE* const stream = openReplacement(fresh, "wb", false);
    if (stream != nullptr || (errno != EBUSY && errno != EACCES && errno != ELOOP)) return stream;
  }
  return nullptr;
}

/// Makes the file executable for all who may read it.
bool makeExecutable(std::FILE* stream) {
  struct stat status {};
  if (::fstat(::fileno(stream), &status) != 0) return false;
  return ::fchmod(::fileno(stream), status.st_mode | ((status.st_mode & 0444) >> 2)) == 0;
}

void writeProgram(const std::string& text, const std::string& file) {
  std::string fresh;
  std::FILE* const stream = openFresh(file, fresh);
  if (stream == nullptr) fail(errno);
  // Unlike elsewhere a link is not followed: whatever bears a shortcut's name is to be this shortcut.
  const bool done = std::fwrite(text.data(), 1, text.size(), stream) == text.size() && flushToDisk(stream) &&
                    makeExecutable(stream) && std::rename(fresh.c_str(), file.c_str()) == 0;
  const int reason = errno;
  if (!done) discardReplacement(stream, fresh);
  std::fclose(stream);
  if (!done) fail(reason);
}

class Launchers : public ShortcutShell {
 public:
  std::string extension() const override { return ".desktop"; }

  std::string desktopFolder() override { return made(desktopPath()); }
  std::string startMenuFolder() override { return made(std::string(g_get_user_data_dir()) + "/applications"); }

  std::string write(const Shortcut& shortcut, const std::string& file) override {
    writeProgram(launcherFor(shortcut), file);
    const std::string folder = splitPath(file).folder;
    if (resolvedPath(folder) == resolvedPath(desktopPath())) trust(file);
    if (!Owned<GDesktopAppInfo>(g_desktop_app_info_new_from_filename(file.c_str()))) fail(ENOENT);
    return shortcut.arguments;
  }

 private:
  static std::string desktopPath() {
    // Where it is stands in a file of the user's, which may have changed since it was last asked for.
    g_reload_user_special_dirs_cache();
    const char* const folder = g_get_user_special_dir(G_USER_DIRECTORY_DESKTOP);
    return folder != nullptr ? folder : homeFolder();
  }

  /// A user who has never needed such a folder has none.
  static std::string made(const std::string& folder) {
    makeFolders(folder);
    return folder;
  }

  /// Some desktops start only what the user has declared harmless. Where nothing keeps such marks none is asked for.
  static void trust(const std::string& file) {
    const Owned<GFile> launcher(g_file_new_for_path(file.c_str()));
    g_file_set_attribute_string(launcher.get(), "metadata::trusted", "true", G_FILE_QUERY_INFO_NOFOLLOW_SYMLINKS,
                                nullptr, nullptr);
  }
};

}  // namespace

std::unique_ptr<ShortcutShell> openShortcutShell() {
  return std::make_unique<Launchers>();
}

}  // namespace tarnwick::platform
