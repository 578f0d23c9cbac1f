#include "ui/Toolkit.h"

#include "ui/posix/Gtk.h"

#include <wx/bitmap.h>
#include <wx/dc.h>
#include <wx/notebook.h>
#include <wx/toplevel.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace tarnwick::ui {

namespace {

struct Requisition {  // GtkRequisition
  int width;
  int height;
};

constexpr int typeHintNormal = 0;       // GDK_WINDOW_TYPE_HINT_NORMAL
constexpr int keyPress = 8;             // GDK_KEY_PRESS
constexpr int operatorDifference = 23;  // CAIRO_OPERATOR_DIFFERENCE

bool onX11() {
  const auto display = gtk::function<void*()>("gdk_display_get_default");
  const auto typeName = gtk::function<const char*(void*)>("g_type_name_from_instance");
  if (!display || !typeName || !display()) return false;
  return std::string_view(typeName(display())) == "GdkX11Display";
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
  const auto setTarget = gtk::function<void(void*, void*)>("gtk_label_set_mnemonic_widget");
  if (setTarget) setTarget(label.GetHandle(), control.GetHandle());
}

// The open list has a grab of its own and gets its keys first.
bool isListOpen(wxWindow&) {
  return false;
}

bool handlesKey() {
  const auto current = gtk::function<int*()>("gtk_get_current_event");
  int* const event = current ? current() : nullptr;
  if (!event) return false;
  const bool isKey = *event == keyPress;  // an event begins with its type
  gtk::function<void(void*)>("gdk_event_free")(event);
  return isKey;
}

std::optional<Point> normalPosition(const wxTopLevelWindow& window) {
  if (!onX11()) return std::nullopt;
  const wxPoint at = window.GetPosition();
  return Point{at.x, at.y};
}

void makeMainWindow(wxTopLevelWindow& window) {
  const auto setHint = gtk::function<void(void*, int)>("gtk_window_set_type_hint");
  if (setHint) setHint(window.GetHandle(), typeHintNormal);
}

void useAsDefaultIcon(const wxBitmap& picture) {
  const auto setIcon = gtk::function<void(void*)>("gtk_window_set_default_icon");
  if (setIcon) setIcon(picture.GetPixbuf());
}

wxSize sizeWithTabs(wxNotebook& tabs, const wxSize& page) {
  wxSize size = tabs.CalcSizeFromPage(page);
  const auto setScrollable = gtk::function<void(void*, int)>("gtk_notebook_set_scrollable");
  const auto preferred = gtk::function<void(void*, Requisition*, Requisition*)>("gtk_widget_get_preferred_size");
  if (!setScrollable || !preferred) return size;
  // With scrolling off the control asks for the width of all of its tabs, and gets it: nothing has to scroll.
  setScrollable(tabs.GetHandle(), 0);
  Requisition least{};
  preferred(tabs.GetHandle(), &least, nullptr);
  size.x = std::max(size.x, least.width);
  return size;
}

void invertColours(wxDC& dc, const wxRect& rect) {
  void* const context = dc.GetHandle();
  if (!context) return;
  gtk::function<void(void*)>("cairo_save")(context);
  gtk::function<void(void*, int)>("cairo_set_operator")(context, operatorDifference);
  gtk::function<void(void*, double, double, double)>("cairo_set_source_rgb")(context, 1, 1, 1);
  gtk::function<void(void*, double, double, double, double)>("cairo_rectangle")(context, rect.x, rect.y, rect.width,
                                                                                rect.height);
  gtk::function<void(void*)>("cairo_fill")(context);
  gtk::function<void(void*)>("cairo_restore")(context);
}

}  // namespace tarnwick::ui
