#include "ui/Toolkit.h"

#include <wx/bitmap.h>
#include <wx/dc.h>
#include <wx/notebook.h>
#include <wx/toplevel.h>

#include <algorithm>
#include <cstdlib>
#include <gtk/gtk.h>
#include <string_view>

namespace tarnwick::ui {

namespace {

GtkWidget* widget(const wxWindow& window) {
  return window.GetHandle();
}

bool onX11() {
  GdkDisplay* const display = gdk_display_get_default();
  return display && std::string_view(G_OBJECT_TYPE_NAME(display)) == "GdkX11Display";
}

}  // namespace

void prepareToolkit() {}

std::string displayName() {
  for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"}) {
    const char* name = std::getenv(variable);
    if (name && *name) return name;
  }
  return "(DISPLAY is not set)";
}

void nameByLabel(wxWindow& control, wxWindow& label) {
  gtk_label_set_mnemonic_widget(GTK_LABEL(widget(label)), widget(control));
}

// The open list has a grab of its own and gets its keys first.
bool isListOpen(wxWindow&) {
  return false;
}

bool handlesKey() {
  GdkEvent* const event = gtk_get_current_event();
  if (!event) return false;
  const bool isKey = gdk_event_get_event_type(event) == GDK_KEY_PRESS;
  gdk_event_free(event);
  return isKey;
}

std::optional<Point> normalPosition(const wxTopLevelWindow& window) {
  if (!onX11()) return std::nullopt;
  const wxPoint at = window.GetPosition();
  return Point{at.x, at.y};
}

void moveWindow(wxTopLevelWindow& window, const Point& leftTop) {
  window.Move(leftTop.x, leftTop.y, wxSIZE_ALLOW_MINUS_ONE);
  // The toolkit takes a window that was never moved to be in that corner, and would leave its place to others.
  if (leftTop == Point{0, 0}) gtk_window_move(GTK_WINDOW(widget(window)), 0, 0);
}

void makeMainWindow(wxTopLevelWindow& window) {
  gtk_window_set_type_hint(GTK_WINDOW(widget(window)), GDK_WINDOW_TYPE_HINT_NORMAL);
}

void useAsDefaultIcon(const wxBitmap& picture) {
  gtk_window_set_default_icon(picture.GetPixbuf());
}

wxSize sizeWithTabs(wxNotebook& tabs, const wxSize& page) {
  wxSize size = tabs.CalcSizeFromPage(page);
  // With scrolling off the control asks for the width of all of its tabs, and gets it: nothing has to scroll.
  gtk_notebook_set_scrollable(GTK_NOTEBOOK(widget(tabs)), FALSE);
  GtkRequisition least{};
  gtk_widget_get_preferred_size(widget(tabs), &least, nullptr);
  size.x = std::max(size.x, least.width);
  return size;
}

void invertColours(wxDC& dc, const wxRect& rect) {
  auto* const context = static_cast<cairo_t*>(dc.GetHandle());
  if (!context) return;
  cairo_save(context);
  cairo_set_operator(context, CAIRO_OPERATOR_DIFFERENCE);
  cairo_set_source_rgb(context, 1, 1, 1);
  cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
  cairo_fill(context);
  cairo_restore(context);
}

}  // namespace tarnwick::ui
