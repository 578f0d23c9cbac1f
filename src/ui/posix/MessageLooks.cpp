#include "ui/MessageLooks.h"

#include "ui/posix/DesktopPictures.h"

#include <gtk/gtk.h>

namespace tarnwick::ui {

namespace {

void embolden(GtkLabel* label) {
  const std::size_t length = headlineLength(gtk_label_get_text(label));
  if (length == 0) return;
  PangoAttrList* const attributes = pango_attr_list_new();
  PangoAttribute* const bold = pango_attr_weight_new(PANGO_WEIGHT_BOLD);
  bold->start_index = 0;
  bold->end_index = static_cast<guint>(length);
  pango_attr_list_insert(attributes, bold);
  gtk_label_set_attributes(label, attributes);
  pango_attr_list_unref(attributes);
}

/// The desktop's picture for what kind of message it is. The toolkit itself shows none.
const char* pictureOf(GtkWidget* box) {
  GtkMessageType type = GTK_MESSAGE_OTHER;
  g_object_get(box, "message-type", &type, nullptr);
  switch (type) {
    case GTK_MESSAGE_INFO:
      return "dialog-information";
    case GTK_MESSAGE_WARNING:
      return "dialog-warning";
    case GTK_MESSAGE_QUESTION:
      return "dialog-question";
    case GTK_MESSAGE_ERROR:
      return "dialog-error";
    case GTK_MESSAGE_OTHER:
      break;
  }
  return nullptr;
}

void addPicture(GtkWidget* box) {
  const char* const picture = pictureOf(box);
  if (picture == nullptr || !canShow(picture, GTK_ICON_SIZE_DIALOG)) return;
  GtkWidget* const image = gtk_image_new_from_icon_name(picture, GTK_ICON_SIZE_DIALOG);
  gtk_widget_set_valign(image, GTK_ALIGN_START);
  gtk_widget_show(image);
  g_object_set(box, "image", image, nullptr);
}

/// The first label of a message box is its text.
gboolean onShow(GSignalInvocationHint*, guint, const GValue* values, gpointer) {
  auto* const shown = static_cast<GtkWidget*>(g_value_get_object(values));
  if (!GTK_IS_MESSAGE_DIALOG(shown)) return TRUE;
  addPicture(shown);
  GtkWidget* const area = gtk_message_dialog_get_message_area(GTK_MESSAGE_DIALOG(shown));
  GList* const labels = gtk_container_get_children(GTK_CONTAINER(area));
  if (labels != nullptr && GTK_IS_LABEL(labels->data)) embolden(GTK_LABEL(labels->data));
  g_list_free(labels);
  return TRUE;  // for the next one, too
}

guint showSignal() {
  static const gpointer known = g_type_class_ref(GTK_TYPE_WIDGET);  // a class that is unknown has no signals
  static_cast<void>(known);
  return g_signal_lookup("show", GTK_TYPE_WIDGET);
}

}  // namespace

MessageLooks::MessageLooks() : hook_(g_signal_add_emission_hook(showSignal(), 0, onShow, nullptr, nullptr)) {}

MessageLooks::~MessageLooks() {
  g_signal_remove_emission_hook(showSignal(), hook_);
}

}  // namespace tarnwick::ui
