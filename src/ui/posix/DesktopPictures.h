// The pictures of the desktop's own theme.
#pragma once

#include <gtk/gtk.h>

namespace tarnwick::ui {

/// Whether the theme's picture can be shown. GTK ends the program over one that it finds, but cannot read, as on a
/// computer without the table of file types.
bool canShow(const char* picture, GtkIconSize size);

}  // namespace tarnwick::ui
