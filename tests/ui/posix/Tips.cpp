#include "ui/Tips.h"

#include <gtk/gtk.h>

namespace tarnwick::test {

std::optional<wxRect> shownTip() {
  std::optional<wxRect> found;
  GList* const windows = gtk_window_list_toplevels();
  for (const GList* one = windows; one != nullptr; one = one->next) {
    auto* const window = static_cast<GtkWidget*>(one->data);
    const bool isTip = gtk_window_get_type_hint(GTK_WINDOW(window)) == GDK_WINDOW_TYPE_HINT_TOOLTIP;
    if (!isTip || !gtk_widget_get_mapped(window)) continue;
    GdkWindow* const shown = gtk_widget_get_window(window);
    wxPoint at;
    gdk_window_get_origin(shown, &at.x, &at.y);
    found = wxRect(at, wxSize(gdk_window_get_width(shown), gdk_window_get_height(shown)));
  }
  g_list_free(windows);
  return found;
}

}  // namespace tarnwick::test
