#include "ui/posix/DesktopPictures.h"

namespace tarnwick::ui {

bool canShow(const char* picture, GtkIconSize size) {
  int width = 0;
  int height = 0;
  gtk_icon_size_lookup(size, &width, &height);
  GdkPixbuf* const tried =
      gtk_icon_theme_load_icon(gtk_icon_theme_get_default(), picture, width, GTK_ICON_LOOKUP_USE_BUILTIN, nullptr);
  if (tried == nullptr) return false;
  g_object_unref(tried);
  return true;
}

}  // namespace tarnwick::ui
