// The toolkit places the tip of a low control beside it, and all others beside the mouse; a field with large letters is
// one of the others.
#include "ui/TipPlace.h"

#include <wx/window.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

namespace tarnwick::ui {

namespace {

constexpr int gap = 4;

/// The control that was asked last for its tip.
GtkWidget* asked = nullptr;

gboolean noteAsked(GtkWidget* control, int, int, gboolean, GtkTooltip*, gpointer) {
  g_set_weak_pointer(&asked, control);
  return FALSE;  // the text is the toolkit's matter
}

/// Where the control stands on the screen.
GdkRectangle placeOf(GtkWidget* control) {
  GtkWidget* const window = gtk_widget_get_toplevel(control);
  GdkRectangle place{0, 0, gtk_widget_get_allocated_width(control), gtk_widget_get_allocated_height(control)};
  gtk_widget_translate_coordinates(control, window, 0, 0, &place.x, &place.y);
  int left = 0;
  int top = 0;
  gdk_window_get_origin(gtk_widget_get_window(window), &left, &top);
  place.x += left;
  place.y += top;
  return place;
}

void moveOff(GdkWindow* tip, GtkWidget* control) {
  const GdkRectangle place = placeOf(control);
  GdkRectangle shown{0, 0, gdk_window_get_width(tip), gdk_window_get_height(tip)};
  gdk_window_get_origin(tip, &shown.x, &shown.y);
  if (!gdk_rectangle_intersect(&shown, &place, nullptr)) return;
  GdkRectangle room{};
  GdkMonitor* const monitor = gdk_display_get_monitor_at_window(gdk_window_get_display(tip), tip);
  gdk_monitor_get_workarea(monitor, &room);
  const int below = place.y + place.height + gap;
  const int above = place.y - gap - shown.height;
  if (below + shown.height <= room.y + room.height) {
    gdk_window_move(tip, shown.x, below);
  } else if (above >= room.y) {
    gdk_window_move(tip, shown.x, above);
  }
}

gboolean onShow(GSignalInvocationHint*, guint, const GValue* values, gpointer) {
  auto* const shown = static_cast<GtkWidget*>(g_value_get_object(values));
  if (asked == nullptr || !GTK_IS_WINDOW(shown)) return TRUE;
  if (gtk_window_get_type_hint(GTK_WINDOW(shown)) != GDK_WINDOW_TYPE_HINT_TOOLTIP) return TRUE;
  GdkWindow* const tip = gtk_widget_get_window(shown);
  // Other window systems neither tell where a window stands nor let it move.
  if (tip != nullptr && GDK_IS_X11_WINDOW(tip) && gtk_widget_get_mapped(asked)) moveOff(tip, asked);
  g_clear_weak_pointer(&asked);
  return TRUE;  // for the next one, too
}

void listenForTips() {
  static const gpointer known = g_type_class_ref(GTK_TYPE_WIDGET);  // a class that is unknown has no signals
  static const gulong hook =
      g_signal_add_emission_hook(g_signal_lookup("show", GTK_TYPE_WIDGET), 0, onShow, nullptr, nullptr);
  static_cast<void>(known);
  static_cast<void>(hook);
}

}  // namespace

void keepTipBeside(wxWindow& control) {
  listenForTips();
  g_signal_connect(control.GetHandle(), "query-tooltip", G_CALLBACK(noteAsked), nullptr);
}

}  // namespace tarnwick::ui
