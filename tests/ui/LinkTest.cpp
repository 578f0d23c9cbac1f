// A web address in a dialog, as a person sees and presses it.
#include "ui/DialogFixture.h"
#include "ui/Pixels.h"

#include <wx/hyperlink.h>

// Behind the header that it needs.
#include <wx/generic/hyperlink.h>

namespace tarnwick::test {

namespace {

constexpr int LINK = 10;

DialogLayout linkLayout() {
  DialogLayout layout;
  layout.title = "A link";
  layout.content =
      layout::column({layout::link(LINK, "https://one.example/"), layout::button(IDOK_CONTROL, "OK").asDefault()});
  return layout;
}

class LinkTest : public DialogTest {
 protected:
  wxGenericHyperlinkCtrl& link() const { return dynamic_cast<wxGenericHyperlinkCtrl&>(*top().windowOf(LINK)); }

  void mouse(wxEventType type, const wxPoint& at) const {
    wxMouseEvent event(type);
    event.SetEventObject(&link());
    event.SetPosition(at);
    link().GetEventHandler()->ProcessEvent(event);
  }
  wxPoint lastPixelRow() const { return {3, link().GetClientSize().y - 1}; }
};

}  // namespace

TEST_F(LinkTest, IsUnderlinedAndBlueAndRedUnderThePointer) {
  steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.settle();
  steps.then("look", [this] {
    EXPECT_TRUE(link().GetFont().GetUnderlined());
    mouse(wxEVT_LEAVE_WINDOW, {-1, -1});  // the screen's own pointer may rest on it
    EXPECT_EQ(link().GetForegroundColour(), *wxBLUE);
    mouse(wxEVT_MOTION, {3, 0});
    EXPECT_EQ(link().GetForegroundColour(), *wxRED);
    mouse(wxEVT_LEAVE_WINDOW, {-1, -1});
    EXPECT_EQ(link().GetForegroundColour(), *wxBLUE);
    mouse(wxEVT_MOTION, lastPixelRow());
    EXPECT_EQ(link().GetForegroundColour(), *wxRED) << "the last row of pixels counts as inside";
  });
  thenClose();
  desktop().runDialog(linkLayout(), rules);
}

TEST_F(LinkTest, TheKeyboardPressesItAndNotTheDefaultButton) {
  steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.settle();
  for (const int code : {WXK_RETURN, WXK_SPACE}) {
    steps.then("focus", [this] {
      rules.heard.clear();
      link().SetFocus();
    });
    steps.until("focus", [this] { return wxWindow::FindFocus() == &link(); });
    steps.then("press", [code] { key(code); });
    steps.until("something is heard", [this] { return !rules.heard.empty(); });
    steps.settle();
    steps.then("look", [this, code] { EXPECT_EQ(rules.heard, Heard{"command 10"}) << code; });
  }
  thenClose();
  desktop().runDialog(linkLayout(), rules);
}

TEST_F(LinkTest, ShowsThatItHasTheFocus) {
  wxImage without;
  steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.then("focus elsewhere", [this] { top().focus(IDOK_CONTROL); });
  steps.settle(20);
  steps.then("look", [&] {
    without = pictureOf(link());
    link().SetFocus();
  });
  steps.settle(20);
  steps.then("look", [&] {
    shoot("link-focus");
    const wxImage with = pictureOf(link());
    ASSERT_EQ(with.GetSize(), without.GetSize());
    int changed = 0;
    for (int x = 0; x < with.GetWidth(); ++x) changed += with.GetGreen(x, 0) != without.GetGreen(x, 0) ? 1 : 0;
    EXPECT_GT(changed, with.GetWidth() / 4) << "the upper edge of a frame";
  });
  thenClose();
  desktop().runDialog(linkLayout(), rules);
}

TEST_F(LinkTest, AClickTellsTheRulesAndOpensNothingByItself) {
  steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.settle();
  steps.then("click", [this] {
    mouse(wxEVT_MOTION, lastPixelRow());
    mouse(wxEVT_LEFT_DOWN, lastPixelRow());
    mouse(wxEVT_LEFT_UP, lastPixelRow());
    EXPECT_EQ(rules.heard, Heard{"command 10"});
    EXPECT_EQ(link().GetForegroundColour(), *wxBLUE) << "a visited link looks like any other";
  });
  thenClose();
  desktop().runDialog(linkLayout(), rules);
}

}  // namespace tarnwick::test
