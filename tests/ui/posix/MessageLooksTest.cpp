#include "ui/WindowTest.h"

#include <gtk/gtk.h>
#include <string>
#include <vector>

namespace tarnwick::test {

namespace {

/// The text of the message box that shows; null for none.
GtkLabel* shownText() {
  GtkLabel* found = nullptr;
  GList* const windows = gtk_window_list_toplevels();
  for (GList* one = windows; one != nullptr; one = one->next) {
    if (!GTK_IS_MESSAGE_DIALOG(one->data) || !gtk_widget_get_visible(GTK_WIDGET(one->data))) continue;
    GList* const labels =
        gtk_container_get_children(GTK_CONTAINER(gtk_message_dialog_get_message_area(GTK_MESSAGE_DIALOG(one->data))));
    found = GTK_LABEL(labels->data);
    g_list_free(labels);
  }
  g_list_free(windows);
  return found;
}

/// The name of the picture beside a message's text.
std::string shownPicture() {
  GtkWidget* image = nullptr;
  g_object_get(gtk_widget_get_toplevel(GTK_WIDGET(shownText())), "image", &image, nullptr);
  if (image == nullptr) return "";
  const char* name = nullptr;
  gtk_image_get_icon_name(GTK_IMAGE(image), &name, nullptr);
  const std::string found = name == nullptr || !gtk_widget_get_visible(image) ? "" : name;
  g_object_unref(image);
  return found;
}

/// What is bold of it.
std::string boldPart(GtkLabel* label) {
  PangoAttrList* const attributes = gtk_label_get_attributes(label);
  if (attributes == nullptr) return "";
  std::string bold;
  PangoAttrIterator* const at = pango_attr_list_get_iterator(attributes);
  do {
    int begin = 0;
    int end = 0;
    pango_attr_iterator_range(at, &begin, &end);
    const auto* const weight = reinterpret_cast<PangoAttrInt*>(pango_attr_iterator_get(at, PANGO_ATTR_WEIGHT));
    if (weight == nullptr || weight->value != PANGO_WEIGHT_BOLD) continue;
    bold += std::string(gtk_label_get_text(label))
                .substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
  } while (pango_attr_iterator_next(at) != FALSE);
  pango_attr_iterator_destroy(at);
  return bold;
}

class MessageLooksTest : public WindowTest {
 protected:
  void thenLook(const std::string& text, const std::string& bold) {
    steps.until("the box shows", [] { return shownText() != nullptr; });
    steps.then("look", [text, bold] {
      EXPECT_EQ(gtk_label_get_text(shownText()), text) << "whole";
      EXPECT_EQ(boldPart(shownText()), bold);
    });
    steps.settle(10);
    steps.then("Return", [] { key(WXK_RETURN); });
  }
};

}  // namespace

TEST_F(MessageLooksTest, TheFirstLineOfSeveralIsBold) {
  const std::string text = "Can't open /home/\xC3\xA4/Greeter.java\nNo such file or directory";
  thenLook(text, text.substr(0, text.find('\n')));
  desktop().message(text);
}

TEST_F(MessageLooksTest, EachKindHasItsPicture) {
  std::vector<std::string> pictures;
  for (int i = 0; i < 3; ++i) {
    steps.until("the box shows", [] { return shownText() != nullptr; });
    steps.then("look", [&pictures] { pictures.push_back(shownPicture()); });
    steps.settle(10);
    steps.then("Return", [] { key(WXK_RETURN); });
    if (i == 2) break;  // nothing is open behind it that could play another step
    steps.until("it is gone, or the next one shows", [&pictures, i] {
      return shownText() == nullptr || gtk_label_get_text(shownText()) != std::to_string(i);
    });
  }
  desktop().message("0");
  desktop().hint("1");
  desktop().askYesNo("2");
  EXPECT_EQ(pictures, (std::vector<std::string>{"dialog-warning", "dialog-information", "dialog-question"}));
}

TEST_F(MessageLooksTest, ASingleLineIsNot) {
  thenLook("Wait", "");
  desktop().message("Wait");
}

}  // namespace tarnwick::test
