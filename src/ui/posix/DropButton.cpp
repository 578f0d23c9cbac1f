#include "ui/DropButton.h"

#include "ui/posix/DesktopPictures.h"

#include <wx/textctrl.h>

#include <gtk/gtk.h>

namespace tarnwick::ui {

namespace {

using Press = std::function<void()>;

GtkEntry* entryOf(const wxTextCtrl& field) {
  return GTK_ENTRY(field.GetHandle());
}

/// Owned by the signal that it listens to.
template <typename Listener>
void freeListener(gpointer listener, GClosure*) {
  delete static_cast<Listener*>(listener);
}

void onIconPress(GtkEntry*, GtkEntryIconPosition, GdkEvent* event, gpointer listener) {
  guint button = 0;
  if (gdk_event_get_button(event, &button) && button == GDK_BUTTON_PRIMARY) (*static_cast<Press*>(listener))();
}

void onActivate(GtkMenuItem*, gpointer listener) {
  (*static_cast<Press*>(listener))();
}

void addEntry(GtkWidget* menu, const wxString& label, const Press& chosen) {
  GtkWidget* const item = gtk_menu_item_new_with_label(label.utf8_str());
  g_signal_connect_data(item, "activate", G_CALLBACK(onActivate), new Press(chosen), freeListener<Press>,
                        static_cast<GConnectFlags>(0));
  gtk_menu_shell_append(GTK_MENU_SHELL(menu), item);
}

}  // namespace

void prepareDropButton(wxTextCtrl& field, const std::function<void()>& pressed) {
  g_signal_connect_data(entryOf(field), "icon-press", G_CALLBACK(onIconPress), new Press(pressed), freeListener<Press>,
                        static_cast<GConnectFlags>(0));
}

void showDropButton(wxTextCtrl& field, bool on) {
  constexpr const char* arrow = "pan-down-symbolic";
  GtkEntry* const entry = entryOf(field);
  if (on && !canShow(arrow, GTK_ICON_SIZE_MENU)) return;  // the keyboard opens it all the same
  gtk_entry_set_icon_from_icon_name(entry, GTK_ENTRY_ICON_SECONDARY, on ? arrow : nullptr);
  if (on) gtk_entry_set_icon_tooltip_text(entry, GTK_ENTRY_ICON_SECONDARY, "Last files (Alt+Down)");
}

// The toolkit's own menus wait in a loop of their own, which a program that is told to end could not leave.
void openDropMenu(wxTextCtrl& field, const std::vector<wxString>& labels, bool byKey,
                  const std::function<void(int)>& chosen) {
  GtkWidget* const owner = field.GetHandle();
  GtkWidget* const menu = gtk_menu_new();
  for (std::size_t i = 0; i < labels.size(); ++i) {
    // The menu goes first.
    addEntry(menu, labels[i], [&field, chosen, i] { field.CallAfter([chosen, i] { chosen(static_cast<int>(i)); }); });
  }
  gtk_menu_attach_to_widget(GTK_MENU(menu), owner, nullptr);
  // It must not outlive what it was opened for.
  g_signal_connect_object(owner, "destroy", G_CALLBACK(gtk_widget_destroy), menu, G_CONNECT_SWAPPED);
  g_signal_connect(menu, "selection-done", G_CALLBACK(gtk_widget_destroy), nullptr);
  gtk_widget_set_size_request(menu, field.GetSize().x, -1);
  gtk_widget_show_all(menu);
  gtk_menu_popup_at_widget(GTK_MENU(menu), owner, GDK_GRAVITY_SOUTH_WEST, GDK_GRAVITY_NORTH_WEST, nullptr);
  if (byKey) gtk_menu_shell_select_first(GTK_MENU_SHELL(menu), TRUE);
}

}  // namespace tarnwick::ui
