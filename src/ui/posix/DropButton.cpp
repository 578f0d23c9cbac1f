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

void freePress(gpointer listener, GClosure*) {
  delete static_cast<Press*>(listener);
}

void onIconPress(GtkEntry*, GtkEntryIconPosition, GdkEvent* event, gpointer listener) {
  guint button = 0;
  if (gdk_event_get_button(event, &button) && button == GDK_BUTTON_PRIMARY) (*static_cast<Press*>(listener))();
}

/// Else readers of the screen say the picture's name. It is the field's only child.
void nameForReaders(GtkEntry* entry) {
  AtkObject* const button = atk_object_ref_accessible_child(gtk_widget_get_accessible(GTK_WIDGET(entry)), 0);
  if (!button) return;
  atk_object_set_name(button, "Last files");
  g_object_unref(button);
}

}  // namespace

void prepareDropButton(wxTextCtrl& field, const std::function<void()>& pressed) {
  g_signal_connect_data(entryOf(field), "icon-press", G_CALLBACK(onIconPress), new Press(pressed), freePress,
                        static_cast<GConnectFlags>(0));
}

void showDropButton(wxTextCtrl& field, bool on) {
  constexpr const char* arrow = "pan-down-symbolic";
  GtkEntry* const entry = entryOf(field);
  if (on && !canShow(arrow, GTK_ICON_SIZE_MENU)) return;  // the keyboard opens it all the same
  gtk_entry_set_icon_from_icon_name(entry, GTK_ENTRY_ICON_SECONDARY, on ? arrow : nullptr);
  if (!on) return;
  gtk_entry_set_icon_tooltip_text(entry, GTK_ENTRY_ICON_SECONDARY, "Last files (Alt+Down)");
  nameForReaders(entry);
}

}  // namespace tarnwick::ui
