// A change of places leaves nothing behind: what the window shows afterwards is what it shows after being painted anew.
#include "ui/PanelsFixture.h"

#include <wx/dialog.h>

#include <algorithm>
#include <memory>
#include <tuple>
#include <vector>

namespace tarnwick::test {

namespace {

/// The buttons of a bar that change the layout or the view.
using Change = std::tuple<View, int>;

std::string wayOf(const Change& change) {
  switch (std::get<int>(change)) {
    case ButtonBar::LAYOUT_LEFT:
      return "ByTheLeftButton";
    case ButtonBar::LAYOUT_RIGHT:
      return "ByTheRightButton";
    default:
      return "ToTheOtherView";
  }
}

using Pixels = std::vector<unsigned char>;

class RepaintTest : public PanelsFixture, public testing::WithParamInterface<Change> {
 protected:
  RepaintTest() : PanelsFixture(std::get<View>(GetParam())) {}

  wxRect room() const {
    const wxDialog& dialog = top().dialog();
    return wxRect(dialog.ClientToScreen(wxPoint(0, 0)), dialog.GetClientSize()).Intersect(wxRect(wxGetDisplaySize()));
  }

  Pixels pixels() const {
    const wxRect area = room();
    const wxImage picture = screen(area);
    return Pixels(picture.GetData(), picture.GetData() + std::ptrdiff_t{3} * area.width * area.height);
  }

  /// Waits until the picture has stood for a while: buttons fade into their new looks.
  void thenStill(Pixels& into) {
    auto rounds = std::make_shared<int>(0);
    steps.until("a picture that stands", [this, rounds, &into] {
      Pixels now = pixels();
      *rounds = now == into ? *rounds + 1 : 0;
      into = std::move(now);
      return *rounds >= 25;
    });
  }
};

/// How many pixels differ, and in which rectangle.
std::string difference(const Pixels& first, const Pixels& second, int width) {
  std::size_t count = 0;
  wxRect where;
  for (std::size_t i = 0; i + 2 < first.size(); i += 3) {
    if (std::equal(first.begin() + static_cast<std::ptrdiff_t>(i), first.begin() + static_cast<std::ptrdiff_t>(i + 3),
                   second.begin() + static_cast<std::ptrdiff_t>(i)))
      continue;
    ++count;
    const int pixel = static_cast<int>(i / 3);
    where.Union(wxRect(pixel % width, pixel / width, 1, 1));
  }
  return std::to_string(count) + " pixels between " + std::to_string(where.x) + "," + std::to_string(where.y) +
         " and " + std::to_string(where.GetRight()) + "," + std::to_string(where.GetBottom());
}

}  // namespace

TEST_P(RepaintTest, AChangeLeavesNothingBehindThatAFullRepaintWouldTakeAway) {
  Pixels before;
  Pixels changed;
  Pixels repainted;
  waitForView();
  thenStill(before);
  steps.then("change", [this] { press(bar(), std::get<int>(GetParam())); });
  steps.settle(8);
  thenStill(changed);
  steps.then("paint anew", [this] {
    top().dialog().Refresh();
    top().dialog().Update();
  });
  steps.settle(8);
  thenStill(repainted);
  steps.then("compare", [&] {
    shoot("repainted-" + nameOf(view_) + wayOf(GetParam()));
    EXPECT_NE(before, changed) << "the picture is not the screen's";
    ASSERT_EQ(changed.size(), repainted.size());
    EXPECT_TRUE(changed == repainted) << difference(changed, repainted, room().width);
  });
  run();
}

INSTANTIATE_TEST_SUITE_P(
    Changes, RepaintTest,
    testing::Combine(testing::Values(View{LayoutValue::VERTICAL, false}, View{LayoutValue::HORIZONTAL, false},
                                     View{LayoutValue::FLAT, false}, View{LayoutValue::VERTICAL, true},
                                     View{LayoutValue::HORIZONTAL, true}, View{LayoutValue::FLAT, true}),
                     testing::Values(ButtonBar::LAYOUT_LEFT, ButtonBar::LAYOUT_RIGHT, ButtonBar::SWITCH_VIEW)),
    [](const auto& info) { return nameOf(std::get<View>(info.param)) + wayOf(info.param); });

}  // namespace tarnwick::test
