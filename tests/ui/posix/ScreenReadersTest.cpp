// What a reader of the screen is told of windows that have gone.
#include "ui/DialogFixture.h"

#include <wx/dialog.h>

#include <gtk/gtk-a11y.h>
#include <gtk/gtk.h>
#include <string>
#include <vector>

namespace tarnwick::test {

namespace {

/// The complaints of the toolkit while it lives.
class Complaints {
 public:
  Complaints() : before_(g_log_set_default_handler(&Complaints::note, this)) {}
  ~Complaints() { g_log_set_default_handler(before_, nullptr); }
  Complaints(const Complaints&) = delete;
  Complaints& operator=(const Complaints&) = delete;

  const std::string& text() const { return text_; }

 private:
  static void note(const gchar* domain, GLogLevelFlags level, const gchar* message, gpointer self) {
    if ((level & (G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING)) == 0) return;
    static_cast<Complaints*>(self)->text_ += std::string(domain ? domain : "") + ": " + message + "\n";
  }

  GLogFunc before_;
  std::string text_;
};

/// A reader's hold on a window and all that is in it, which outlives them.
class Held {
 public:
  void take(AtkObject* one) {
    held_.push_back(one);
    for (int i = 0; i < atk_object_get_n_accessible_children(one); ++i) take(atk_object_ref_accessible_child(one, i));
  }
  ~Held() {
    for (AtkObject* one : held_) g_object_unref(one);
  }

  const std::vector<AtkObject*>& all() const { return held_; }

 private:
  std::vector<AtkObject*> held_;
};

/// All that a reader asks first of anything.
void expectAnswers(AtkObject* one) {
  const char* const kind = G_OBJECT_TYPE_NAME(one);
  AtkStateSet* const states = atk_object_ref_state_set(one);
  ASSERT_TRUE(states) << kind;
  if (GTK_IS_WIDGET_ACCESSIBLE(one)) {
    EXPECT_TRUE(atk_state_set_contains_state(states, ATK_STATE_DEFUNCT)) << kind;
  }
  g_object_unref(states);
  atk_object_get_n_accessible_children(one);
  atk_object_get_name(one);
  atk_object_get_index_in_parent(one);
}

/// All that a reader asks of a tab, while the tab control takes it out.
void askOnTheWay(GtkWidget*, GParamSpec*, gpointer tab) {
  AtkObject* const asked = ATK_OBJECT(tab);
  g_object_unref(atk_object_ref_state_set(asked));
  atk_object_get_name(asked);
  atk_object_get_index_in_parent(asked);
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  atk_component_get_extents(ATK_COMPONENT(asked), &x, &y, &width, &height, ATK_XY_SCREEN);
}

}  // namespace

TEST_F(DialogTest, ReadersOfTheScreenMayAskAboutAWindowThatHasGone) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  const Complaints complaints;
  Held held;
  waitForDialog();
  steps.then("hold", [&] {
    held.take(static_cast<AtkObject*>(g_object_ref(gtk_widget_get_accessible(top().dialog().GetHandle()))));
  });
  thenClose();
  play();
  EXPECT_GT(held.all().size(), 20U);
  for (AtkObject* one : held.all()) expectAnswers(one);
  EXPECT_EQ(complaints.text(), "");
}

TEST_F(DialogTest, ReadersOfTheScreenMayAskAboutATabOnItsWayOut) {
  GtkWidget* const window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  GtkWidget* const tabs = gtk_notebook_new();
  GtkWidget* const page = gtk_entry_new();
  gtk_container_add(GTK_CONTAINER(window), tabs);
  gtk_notebook_append_page(GTK_NOTEBOOK(tabs), page, gtk_label_new("Main"));
  gtk_notebook_append_page(GTK_NOTEBOOK(tabs), gtk_entry_new(), gtk_label_new("Other"));
  gtk_widget_show_all(window);
  AtkObject* const tab = atk_object_ref_accessible_child(gtk_widget_get_accessible(tabs), 0);
  ASSERT_TRUE(tab);
  atk_object_set_name(tab, "Main");
  int asked = 0;
  const auto count = +[](GtkWidget*, GParamSpec*, gpointer sum) { ++*static_cast<int*>(sum); };
  for (const char* step : {"notify::parent", "notify::visible", "notify::has-focus"}) {
    g_signal_connect(page, step, G_CALLBACK(&askOnTheWay), tab);
    g_signal_connect(page, step, G_CALLBACK(count), &asked);
  }
  const Complaints complaints;
  gtk_widget_destroy(window);
  EXPECT_GT(asked, 0);
  EXPECT_EQ(complaints.text(), "");
  g_object_unref(tab);
}

}  // namespace tarnwick::test
