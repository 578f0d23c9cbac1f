#include "platform/TrashSystem.h"

#include <gio/gio.h>

#include <memory>

namespace tarnwick::platform {

namespace {

struct Releaser {
  void operator()(GFile* file) const { g_object_unref(file); }
};
using File = std::unique_ptr<GFile, Releaser>;

}  // namespace

bool copyBytes(const std::string& from, const std::string& to) {
  const File source(g_file_new_for_path(from.c_str()));
  const File target(g_file_new_for_path(to.c_str()));
  return g_file_copy(source.get(), target.get(), G_FILE_COPY_OVERWRITE, nullptr, nullptr, nullptr, nullptr) != FALSE;
}

bool moveToTrash(const std::string& path) {
  const File file(g_file_new_for_path(path.c_str()));
  return g_file_trash(file.get(), nullptr, nullptr) != FALSE;
}

}  // namespace tarnwick::platform
