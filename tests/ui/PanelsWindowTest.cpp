// The panels as real windows, with their own rules: every arrangement in both views.
#include "ui/DialogChecks.h"
#include "ui/PanelsFixture.h"

#include <wx/button.h>
#include <wx/dcscreen.h>
#include <wx/dialog.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <map>
#include <memory>

namespace tarnwick::test {

namespace {

using Bytes = std::vector<unsigned char>;

/// The outermost pixels of a window as the screen shows them.
Bytes rimOf(const wxWindow& window) {
  const wxRect all = window.GetScreenRect();
  Bytes rim;
  for (const wxRect& side : {wxRect(all.x, all.y, all.width, 1), wxRect(all.x, all.GetBottom(), all.width, 1),
                             wxRect(all.x, all.y, 1, all.height), wxRect(all.GetRight(), all.y, 1, all.height)}) {
    const wxImage picture = screen(side);
    rim.insert(rim.end(), picture.GetData(), picture.GetData() + std::ptrdiff_t{3} * side.width * side.height);
  }
  return rim;
}

/// As the window system leaves what nobody has painted yet.
bool isEmpty(const Bytes& rim) {
  return std::all_of(rim.begin(), rim.end(), [](unsigned char colour) { return colour == 0xFF; });
}

class PanelsWindowTest : public PanelsFixture, public testing::WithParamInterface<View> {
 protected:
  PanelsWindowTest() : PanelsFixture(GetParam()) {}
};

}  // namespace

TEST_P(PanelsWindowTest, EveryControlShowsWholeInsideTheWindow) {
  waitForView();
  steps.then("look", [this] {
    shoot("panel-" + nameOf(GetParam()));
    expectGoodLooks(panel());
    // Enlarged, the flat arrangement may be wider than the screen, which then cuts the window. The panel has the
    // window's size with its frame.
    const wxSize whole = panel().surface().GetSize();
    const bool fits = top().dialog().GetPosition().x + whole.x <= wxScreenDC().GetSize().x;
    const wxRect room(fits ? top().dialog().GetClientSize() : whole);
    for (const int control : panel().controls()) {
      const wxWindow& one = *panel().windowOf(control);
      const wxRect rect = one.GetRect();
      if (!one.IsShown()) continue;
      EXPECT_TRUE(room.Contains(rect)) << control << " ends at " << rect.GetRight() << "," << rect.GetBottom() << " of "
                                       << room.width << "x" << room.height;
    }
    EXPECT_FALSE(panel(!GetParam().project).surface().IsShownOnScreen());
    if (!isScaledRun()) {
      EXPECT_TRUE(fits || panel().surface().GetSize().x <= wxScreenDC().GetSize().x) << room.width;
    }
  });
  for (const int tab : {1, 2}) {
    steps.then("another tab", [this, tab] { choose(panel(), TABS, tab); });
    steps.settle(3);
    steps.then("look", [this, tab] {
      shoot("panel-" + nameOf(GetParam()) + "-tab" + std::to_string(tab));
      expectGoodLooks(panel());
    });
  }
  run();
}

TEST_P(PanelsWindowTest, NoControlIsPaintedOverByItsGroup) {
  std::map<int, Bytes> atFirst;
  const auto eachControl = [this](const std::function<void(int, wxWindow&)>& look) {
    for (const int control : panel().controls()) {
      wxWindow& one = *panel().windowOf(control);
      const bool isMeant = dynamic_cast<wxButton*>(&one) || dynamic_cast<wxTextCtrl*>(&one);
      if (isMeant && one.IsShownOnScreen()) look(control, one);
    }
  };
  waitForView();
  steps.until("the window system shows each of them", [&] {
    bool shows = true;
    eachControl([&](int, wxWindow& one) { shows = shows && !isEmpty(rimOf(one)); });
    return shows;
  });
  steps.settle(20);
  steps.then("look", [&] {
    eachControl([&](int control, wxWindow& one) {
      atFirst[control] = rimOf(one);
      one.Refresh();
    });
  });
  steps.settle(20);
  steps.then("look again", [&] {
    EXPECT_GE(atFirst.size(), 5U);
    eachControl([&](int control, wxWindow& one) { EXPECT_EQ(rimOf(one), atFirst[control]) << control; });
  });
  run();
}

TEST_P(PanelsWindowTest, ThePagesStandWhereTheArrangementTookThemToStand) {
  waitForView();
  steps.then("look", [this] {
    const wxPoint tabs = panel().windowOf(TABS)->GetScreenPosition();
    const wxRect real(page(0).surface().GetScreenPosition() - tabs, page(0).surface().GetSize());
    const Rect taken = page(0).windowRect();
    EXPECT_NEAR(real.x, taken.left, 1);
    EXPECT_NEAR(real.y, taken.top, 1);
    EXPECT_NEAR(real.width, taken.width(), 2);
    EXPECT_NEAR(real.height, taken.height(), 2);
  });
  run();
}

class FlatFileViewTest : public PanelsWindowTest {};

TEST_P(FlatFileViewTest, TheRowsStandLevel) {
  waitForView();
  steps.then("look", [this] {
    const int field = panel().windowOf(1009)->GetScreenPosition().y;
    EXPECT_NEAR(field, page(0).windowOf(PanelPage::LEFT)->GetScreenPosition().y, 2);
    EXPECT_NEAR(field, page(0).windowOf(PanelPage::FIELD)->GetScreenPosition().y, 2);
    EXPECT_NEAR(field, bar().windowOf(ButtonBar::EXIT)->GetScreenPosition().y, 4);
  });
  run();
}

TEST_P(PanelsWindowTest, TheLayoutButtonsSizeTheWindowAndLeaveItsPlace) {
  const bool project = GetParam().project;
  const int home = GetParam().layout;
  wxRect before;
  bool stays = true;
  waitForView();
  steps.then("note", [&] { before = top().dialog().GetRect(); });
  for (int round = 0; round < 3; ++round) {
    // The button on the right leads from each layout to another, and the one on the left back to "VERTICAL".
    steps.then("press", [this, project] {
      press(bar(project, settings_.panelLayout.value),
            settings_.panelLayout.value == LayoutValue::HORIZONTAL ? ButtonBar::LAYOUT_LEFT : ButtonBar::LAYOUT_RIGHT);
    });
    steps.settle(8);
    steps.then("look", [&, home] {
      expectGoodLooks(panel());
      const wxRect now = top().dialog().GetRect();
      // A window manager moves a window that is wider than the screen.
      stays = stays && before.x + now.width <= wxScreenDC().GetSize().x;
      if (stays) {
        EXPECT_EQ(now.GetTopLeft(), before.GetTopLeft());
      }
      if (settings_.panelLayout.value == home)
        EXPECT_EQ(now.GetSize(), before.GetSize());
      else
        EXPECT_NE(now.GetSize(), before.GetSize());
      EXPECT_EQ(wxWindow::FindFocus()->GetParent(), &bar(GetParam().project, settings_.panelLayout.value).surface());
    });
  }
  run();
}

class LeavingTest : public PanelsWindowTest {
 protected:
  void waitUntilMovedByHand() {
    waitForView();
    steps.then("move it by hand", [this] { top().dialog().Move(61, 72); });
    steps.until("it is there", [this] { return top().position() == Point{61, 72}; });
  }

  bool placeIsSaved() const {
    return contentOf(scratch_.file("Tarnwickdefault.CFG")).find("WINDOW_POSITION  61;72") != std::string::npos;
  }
};

TEST_P(LeavingTest, EscapeNotesWhereTheWindowStands) {
  waitUntilMovedByHand();
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  TarnwickDlg(settings_).runModal();
  EXPECT_TRUE(placeIsSaved());
}

TEST_P(LeavingTest, SoDoesTheCloseBox) {
  waitUntilMovedByHand();
  steps.then("close box", [this] { top().dialog().Close(); });
  TarnwickDlg(settings_).runModal();
  EXPECT_TRUE(placeIsSaved());
}

TEST_P(PanelsWindowTest, TabReachesWhateverCanBeUsedInTheOrderOfReading) {
  const auto reached = std::make_shared<Stops>();
  waitForView();
  walkByTab(steps, reached);
  steps.then("look", [this, reached] {
    expectAllReached(panel(), *reached);
    // An arrangement leaves the order of the controls alone, which is meant: in the flat one the file view's field
    // stands before its buttons, and Tab comes to it after them.
    const bool moved = GetParam().layout == LayoutValue::FLAT && !GetParam().project;
    if (!moved) expectReadingOrder(*reached);
  });
  run();
}

TEST_P(PanelsWindowTest, TabReachesWhateverCanBeUsedAfterAChangeOfLayoutAndViewToo) {
  for (const int way : {ButtonBar::LAYOUT_RIGHT, ButtonBar::SWITCH_VIEW, ButtonBar::LAYOUT_LEFT}) {
    const auto reached = std::make_shared<Stops>();
    const auto projectShows = [this] { return panel(true).surface().IsShownOnScreen(); };
    if (way == ButtonBar::LAYOUT_RIGHT) waitForView();
    steps.then("change", [this, way, projectShows] { press(bar(projectShows(), settings_.panelLayout.value), way); });
    steps.settle(8);
    walkByTab(steps, reached);
    steps.then("look", [this, reached, projectShows] { expectAllReached(panel(projectShows()), *reached); });
  }
  run();
}

TEST_P(PanelsWindowTest, EveryControlHasANameForReadersOfTheScreen) {
  waitForView();
  for (const int tab : {0, 1, 2}) {
    steps.then("tab", [this, tab] { choose(panel(), TABS, tab); });
    steps.settle(3);
    steps.then("look", [this] { expectNames(panel()); });
  }
  run();
}

INSTANTIATE_TEST_SUITE_P(Views, PanelsWindowTest,
                         testing::Values(View{LayoutValue::VERTICAL, false}, View{LayoutValue::HORIZONTAL, false},
                                         View{LayoutValue::FLAT, false}, View{LayoutValue::VERTICAL, true},
                                         View{LayoutValue::HORIZONTAL, true}, View{LayoutValue::FLAT, true},
                                         View{LayoutValue::VERTICAL, false, true},
                                         View{LayoutValue::HORIZONTAL, false, true},
                                         View{LayoutValue::FLAT, false, true}, View{LayoutValue::VERTICAL, true, true},
                                         View{LayoutValue::HORIZONTAL, true, true},
                                         View{LayoutValue::FLAT, true, true}),
                         [](const auto& info) { return nameOf(info.param); });
INSTANTIATE_TEST_SUITE_P(Views, LeavingTest,
                         testing::Values(View{LayoutValue::VERTICAL, false}, View{LayoutValue::HORIZONTAL, true}),
                         [](const auto& info) { return nameOf(info.param); });
INSTANTIATE_TEST_SUITE_P(Views, FlatFileViewTest, testing::Values(View{LayoutValue::FLAT, false}));

}  // namespace tarnwick::test
