#include "ui/EmptyText.h"

#include <wx/window.h>

#include <algorithm>
#include <gtk/gtk.h>

namespace tarnwick::ui {

namespace {

constexpr const char* shownWords = "tarnwick-words-in-empty";
constexpr int margin = 12;
/// How much of the letters' usual colour is left.
constexpr double faint = 0.7;

/// Where the entries of a list would stand.
GdkRectangle roomIn(GtkWidget* part) {
  const int width = gtk_widget_get_allocated_width(part);
  const int height = gtk_widget_get_allocated_height(part);
  return {margin, margin, std::max(width - 2 * margin, 1), std::max(height - 2 * margin, 1)};
}

gboolean onDraw(GtkWidget* part, cairo_t* context, gpointer) {
  const auto* const words = static_cast<const char*>(g_object_get_data(G_OBJECT(part), shownWords));
  if (words == nullptr || *words == '\0') return FALSE;
  GtkStyleContext* const style = gtk_widget_get_style_context(part);
  GdkRGBA colour{};
  gtk_style_context_get_color(style, gtk_style_context_get_state(style), &colour);
  const GdkRectangle room = roomIn(part);
  PangoLayout* const layout = gtk_widget_create_pango_layout(part, words);
  pango_layout_set_width(layout, room.width * PANGO_SCALE);
  pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
  pango_layout_set_alignment(layout, PANGO_ALIGN_CENTER);
  int height = 0;
  pango_layout_get_pixel_size(layout, nullptr, &height);
  cairo_set_source_rgba(context, colour.red, colour.green, colour.blue, colour.alpha * faint);
  cairo_move_to(context, room.x, room.y + std::max((room.height - height) / 2, 0));
  pango_cairo_show_layout(context, layout);
  g_object_unref(layout);
  return FALSE;
}

}  // namespace

void showInEmpty(wxWindow& control, const std::string& words) {
  GtkWidget* const part = control.GetConnectWidget();
  if (GTK_IS_ENTRY(part)) return gtk_entry_set_placeholder_text(GTK_ENTRY(part), words.c_str());
  const bool isNew = g_object_get_data(G_OBJECT(part), shownWords) == nullptr;
  g_object_set_data_full(G_OBJECT(part), shownWords, g_strdup(words.c_str()), g_free);
  if (isNew) g_signal_connect_after(part, "draw", G_CALLBACK(onDraw), nullptr);
  gtk_widget_queue_draw(part);
}

}  // namespace tarnwick::ui
