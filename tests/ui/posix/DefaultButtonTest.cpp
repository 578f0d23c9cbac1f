// What GTK is told of the button that Return presses.
#include "ui/DialogFixture.h"

#include <gtk/gtk.h>

namespace tarnwick::test {

TEST_F(DialogTest, OnlyTheDefaultButtonStandsOut) {
  DialogLayout layout;
  layout.title = "Buttons";
  layout.content =
      layout::row({layout::button(IDOK_CONTROL, "OK").asDefault(), layout::button(IDCANCEL_CONTROL, "Cancel")});
  waitForDialog();
  steps.then("look", [this] {
    const auto standsOut = [this](int control) {
      GtkStyleContext* const style = gtk_widget_get_style_context(top().windowOf(control)->GetHandle());
      return gtk_style_context_has_class(style, GTK_STYLE_CLASS_SUGGESTED_ACTION) != FALSE;
    };
    EXPECT_TRUE(standsOut(IDOK_CONTROL));
    EXPECT_FALSE(standsOut(IDCANCEL_CONTROL));
  });
  thenClose();
  desktop().runDialog(layout, rules);
}

}  // namespace tarnwick::test
