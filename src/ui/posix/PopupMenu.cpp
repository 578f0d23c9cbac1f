#include "ui/PopupMenu.h"

#include <wx/window.h>

#include <gtk/gtk.h>

namespace tarnwick::ui {

namespace {

using Choice = std::function<void()>;

void onActivate(GtkMenuItem*, gpointer choice) {
  (*static_cast<Choice*>(choice))();
}

void freeChoice(gpointer choice, GClosure*) {
  delete static_cast<Choice*>(choice);
}

void addEntry(GtkWidget* menu, const wxString& label, const Choice& chosen) {
  GtkWidget* const item = gtk_menu_item_new_with_label(label.utf8_str());
  g_signal_connect_data(item, "activate", G_CALLBACK(onActivate), new Choice(chosen), freeChoice,
                        static_cast<GConnectFlags>(0));
  gtk_menu_shell_append(GTK_MENU_SHELL(menu), item);
}

}  // namespace

// The toolkit's own menus wait in a loop of their own, which a program that is told to end could not leave.
void openMenu(wxWindow& window, const wxRect& area, const std::vector<wxString>& labels, bool byKey,
              const std::function<void(int)>& chosen) {
  GtkWidget* const owner = window.GetHandle();
  GdkWindow* const top = gtk_widget_get_window(gtk_widget_get_toplevel(owner));
  if (top == nullptr) return;
  GtkWidget* const menu = gtk_menu_new();
  for (std::size_t i = 0; i < labels.size(); ++i) {
    // The menu goes first.
    addEntry(menu, labels[i], [&window, chosen, i] { window.CallAfter([chosen, i] { chosen(static_cast<int>(i)); }); });
  }
  gtk_menu_attach_to_widget(GTK_MENU(menu), owner, nullptr);
  // It must not outlive what it was opened for.
  g_signal_connect_object(owner, "destroy", G_CALLBACK(gtk_widget_destroy), menu, G_CONNECT_SWAPPED);
  g_signal_connect(menu, "selection-done", G_CALLBACK(gtk_widget_destroy), nullptr);
  gtk_widget_set_size_request(menu, area.width, -1);
  gtk_widget_show_all(menu);
  int left = 0;
  int upper = 0;
  gdk_window_get_origin(top, &left, &upper);
  const wxPoint at = window.ClientToScreen(area.GetTopLeft());
  const GdkRectangle place{at.x - left, at.y - upper, area.width, area.height};
  gtk_menu_popup_at_rect(GTK_MENU(menu), top, &place, GDK_GRAVITY_SOUTH_WEST, GDK_GRAVITY_NORTH_WEST, nullptr);
  if (byKey) gtk_menu_shell_select_first(GTK_MENU_SHELL(menu), TRUE);
}

}  // namespace tarnwick::ui
