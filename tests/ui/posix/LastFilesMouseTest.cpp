// The button in a field's end, and the list that drops from it.
#include "ui/PanelsFixture.h"
#include "ui/posix/SpokenTree.h"

#include <wx/dialog.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <gtk/gtk.h>

namespace tarnwick::test {

namespace {

constexpr int SOURCE = 1009;

class LastFilesMouseTest : public PanelsFixture {
 protected:
  LastFilesMouseTest() : PanelsFixture({LayoutValue::VERTICAL, false}) {}

  wxTextCtrl& field() const { return dynamic_cast<wxTextCtrl&>(*panel().windowOf(SOURCE)); }
  GtkEntry* entry() const { return GTK_ENTRY(field().GetHandle()); }
  bool buttonShows() const {
    return gtk_entry_get_icon_storage_type(entry(), GTK_ENTRY_ICON_SECONDARY) != GTK_IMAGE_EMPTY;
  }

  static GtkWidget* openList() {
    GtkWidget* const grabbed = gtk_grab_get_current();
    return grabbed != nullptr && GTK_IS_MENU(grabbed) ? grabbed : nullptr;
  }
  static std::vector<std::string> labels() {
    std::vector<std::string> found;
    GList* const items = gtk_container_get_children(GTK_CONTAINER(openList()));
    for (GList* one = items; one != nullptr; one = one->next)
      found.emplace_back(gtk_menu_item_get_label(GTK_MENU_ITEM(one->data)));
    g_list_free(items);
    return found;
  }

  void clickButton() const {
    GdkRectangle area{};
    gtk_entry_get_icon_area(entry(), GTK_ENTRY_ICON_SECONDARY, &area);
    const wxPoint at = field().GetScreenPosition() + wxPoint(area.x + area.width / 2, area.y + area.height / 2);
    wxUIActionSimulator mouse;
    mouse.MouseMove(at);
    mouse.MouseClick();
  }
};

}  // namespace

TEST_F(LastFilesMouseTest, TheButtonShowsAsLongAsThereAreFilesAndTheMouseChoosesOne) {
  const wxPoint rested = wxGetMousePosition();
  const std::string longName = "/home/" + std::string(200, 'a') + "/Last.java";
  waitForView();
  steps.then("no list", [this, longName] {
    EXPECT_FALSE(buttonShows());
    settings_.lastSources.add("/one_two & three.java");
    settings_.lastSources.add(longName);
    panel().setEntries(SOURCE, settings_.lastSources.elements());
    EXPECT_TRUE(buttonShows());
  });
  steps.settle(8);
  steps.then("readers of the screen",
             [this] { EXPECT_EQ(namesIn(field(), ATK_ROLE_ICON), std::vector<std::string>{"Last files"}); });
  steps.then("click", [this] { clickButton(); });
  steps.until("the list", [] { return openList() != nullptr && gtk_widget_get_mapped(openList()); });
  steps.settle(8);
  steps.then("look", [this] {
    shoot("last-open");
    ASSERT_EQ(labels().size(), 2U);
    EXPECT_EQ(labels()[0], "/one_two & three.java");
    EXPECT_TRUE(labels()[1].starts_with("/home/aaa")) << labels()[1];
    EXPECT_TRUE(labels()[1].ends_with("aaa/Last.java")) << labels()[1];
    EXPECT_LT(labels()[1].size(), 150U);
    EXPECT_GE(gtk_widget_get_allocated_width(openList()), field().GetSize().x);
    EXPECT_EQ(panel().text(SOURCE), "");
  });
  steps.then("choose", [] {
    key(WXK_END);
    key(WXK_RETURN);
  });
  steps.until("the field has it", [this, longName] { return panel().text(SOURCE) == longName; });
  steps.until("the list is gone", [] { return openList() == nullptr; });
  // Elsewhere it would rest on what another test looks at.
  steps.then("back", [rested] { wxUIActionSimulator().MouseMove(rested); });
  steps.then("no list", [this] {
    panel().setEntries(SOURCE, {});
    EXPECT_FALSE(buttonShows());
  });
  run();
}

TEST_F(LastFilesMouseTest, APanelThatIsToldToEndWhileTheListIsOpenEnds) {
  waitForView();
  steps.then("open", [this] {
    panel().setEntries(SOURCE, {"/a.java"});
    field().SetFocus();
  });
  steps.until("the focus", [this] { return wxWindow::FindFocus() == &field(); });
  steps.then("open", [] { key(WXK_DOWN, wxMOD_ALT); });
  steps.until("the list", [] { return openList() != nullptr; });
  run();
  EXPECT_EQ(openList(), nullptr);
}

}  // namespace tarnwick::test
