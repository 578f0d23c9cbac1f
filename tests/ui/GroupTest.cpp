// A group of controls: its heading, and what belongs to it.
#include "ui/DialogFixture.h"

#include <wx/statbox.h>

namespace tarnwick::test {

namespace {

constexpr int GROUP = 10;
constexpr int BOX = 11;
constexpr int TAB_GROUP = 12;
constexpr int TAB_BOX = 13;

DialogLayout groupLayout() {
  DialogLayout layout;
  layout.title = "Groups";
  layout.content = layout::column(
      {layout::group(GROUP, " Things ", {layout::row({layout::button(BOX, "One of them").stretched()})}),
       layout::group(TAB_GROUP, " More ", {layout::row({layout::button(TAB_BOX, "Another").stretched()})})
           .inLineWithTabs(),
       layout::button(IDOK_CONTROL, "OK").asDefault()});
  return layout;
}

class GroupTest : public DialogTest {
 protected:
  wxWindow& at(int control) const { return *top().windowOf(control); }
  wxRect onScreen(int control) const { return at(control).GetScreenRect(); }
  int pixels(int count) const { return at(GROUP).FromDIP(count); }
};

/// Whether all of it has one colour.
bool isPlain(const wxImage& image) {
  for (int y = 0; y < image.GetHeight(); ++y) {
    for (int x = 0; x < image.GetWidth(); ++x) {
      if (image.GetRed(x, y) != image.GetRed(0, 0) || image.GetGreen(x, y) != image.GetGreen(0, 0) ||
          image.GetBlue(x, y) != image.GetBlue(0, 0))
        return false;
    }
  }
  return true;
}

}  // namespace

TEST_F(GroupTest, IsABoldHeadingWithItsContentIndentedBelow) {
  waitForDialog();
  steps.settle(8);
  steps.then("look", [this] {
    shoot("groups");
    const wxRect group = onScreen(GROUP);
    const wxRect box = onScreen(BOX);
    EXPECT_EQ(at(GROUP).GetFont().GetWeight(), wxFONTWEIGHT_BOLD);
    EXPECT_EQ(box.x, group.x + pixels(12));
    EXPECT_EQ(box.GetRight(), group.GetRight());
    EXPECT_EQ(box.GetBottom(), group.GetBottom());
    EXPECT_GE(box.y, group.y + at(GROUP).GetCharHeight() + pixels(6));
  });
  thenClose();
  desktop().runDialog(groupLayout(), rules);
}

TEST_F(GroupTest, AboveTabsItsContentIsInLineWithTheirs) {
  waitForDialog();
  steps.then("look", [this] {
    EXPECT_EQ(onScreen(TAB_BOX).x, onScreen(TAB_GROUP).x + pixels(8));
    EXPECT_EQ(onScreen(TAB_BOX).GetRight(), onScreen(TAB_GROUP).GetRight() - pixels(8));
  });
  thenClose();
  desktop().runDialog(groupLayout(), rules);
}

TEST_F(GroupTest, NothingIsDrawnAroundIt) {
  waitForDialog();
  steps.settle(8);
  steps.then("look", [this] {
    const wxRect group = onScreen(GROUP);
    const wxRect box = onScreen(BOX);
    const int below = box.y - 2;
    EXPECT_TRUE(isPlain(screen({group.x, below, pixels(10), group.GetBottom() - below}))) << "left of its content";
    const wxRect heading(group.x, group.y, group.width / 2, box.y - group.y);
    EXPECT_FALSE(isPlain(screen(heading)));
    const wxRect beside(group.x + group.width * 4 / 5, group.y, group.width / 5, box.y - group.y - 2);
    EXPECT_TRUE(isPlain(screen(beside))) << "beside its heading";
    EXPECT_FALSE(isPlain(screen({group.x, group.y, pixels(5), box.y - group.y}))) << "the heading begins at its left";
  });
  thenClose();
  desktop().runDialog(groupLayout(), rules);
}

}  // namespace tarnwick::test
