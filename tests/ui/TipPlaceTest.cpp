// A tool tip leaves in sight what it tells of.
#include "ui/DialogFixture.h"
#include "ui/Tips.h"

#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/uiaction.h>

namespace tarnwick::test {

namespace {

enum TipControl { NAME = 1, TALL, CHOICE, PRESS, MARK };

enum class Edge { None, Bottom, Right, Left };

struct Resting {
  std::string name;
  int control;
  Edge edge;
  /// Where in the control, in hundredths of its size.
  int across;
  int down;
};

std::ostream& operator<<(std::ostream& out, const Resting& resting) {
  return out << resting.name;
}

DialogLayout fieldsLayout() {
  using namespace layout;
  DialogLayout dialog;
  dialog.title = "Fields with tips";
  dialog.content = column({
      row({comboBox(CHOICE, {"this", "that"}), checkBox(MARK, "A box"), button(PRESS, "Two lines\non one button")}),
      edit(TALL, 40),
      row({label("Name"), edit(NAME, 40).stretched()}),
  });
  return dialog;
}

class TipPlaceTest : public DialogTest, public testing::WithParamInterface<Resting> {
 protected:
  wxRect place() const { return top().windowOf(GetParam().control)->GetScreenRect(); }

  /// As with large letters, at the dialog's lower end.
  void makeTall() {
    constexpr int height = 64;
    const Rect last = top().rect(NAME);
    const Rect now = top().rect(TALL);
    top().show(NAME, false);
    top().setRect(TALL, {now.left, last.bottom - height, now.right, last.bottom});
  }

  void moveToEdge() {
    const wxRect room = wxDisplay(&top().dialog()).GetClientArea();
    const wxSize size = top().dialog().GetSize();
    wxPoint to = room.GetPosition() + wxPoint(300, 300);
    if (GetParam().edge == Edge::Bottom) to.y = room.GetBottom() + 1 - size.y;
    if (GetParam().edge == Edge::Right) to.x = room.GetRight() + 1 - size.x;
    if (GetParam().edge == Edge::Left) to.x = room.x;
    rules.window->moveTo({to.x, to.y});
  }

  void rest() {
    const wxRect here = place();
    wxUIActionSimulator hands;
    const wxPoint at(here.x + here.width * GetParam().across / 100, here.y + here.height * GetParam().down / 100);
    hands.MouseMove(at - wxPoint(2, 0));
    hands.MouseMove(at);
  }

  /// One look. The window may be still on its way to where it was moved: then the mouse follows it.
  bool restUntilTold() {
    constexpr int patience = 100;
    if (shownTip()) return true;
    if (looks_++ % patience == 0) rest();
    return false;
  }

  static void leave() { wxUIActionSimulator().MouseMove(5, 5); }

 private:
  int looks_ = 0;
};

}  // namespace

TEST_P(TipPlaceTest, ItStandsBesideTheControl) {
  steps.then("the mouse is away", [] { leave(); });
  waitForDialog();
  steps.until("no tip shows", [] { return !shownTip(); });
  steps.then("fill", [this] {
    for (const int control : top().controls())
      top().setToolTip(control, "What is to be known of this control, in a line that is not short at all");
    if (GetParam().control == TALL) makeTall();
    moveToEdge();
  });
  steps.settle(10);
  steps.until("the tip shows", [this] { return restUntilTold(); });
  steps.settle(5);
  steps.then("look", [this] {
    const auto tip = shownTip();
    ASSERT_TRUE(tip);
    shoot("tip-" + GetParam().name);
    const wxRect control = place();
    const auto told = [](const wxRect& rect) {
      return std::to_string(rect.x) + "," + std::to_string(rect.y) + " " + std::to_string(rect.width) + "x" +
             std::to_string(rect.height);
    };
    EXPECT_FALSE(tip->Intersects(control)) << told(*tip) << " over " << told(control);
    EXPECT_TRUE(wxDisplay(&top().dialog()).GetClientArea().Contains(*tip)) << told(*tip);
    const int gap = tip->y > control.y ? tip->y - control.GetBottom() : control.y - tip->GetBottom();
    EXPECT_LE(gap, top().dialog().FromDIP(16)) << "It stands close to the control";
    EXPECT_EQ(tip->y < control.y, GetParam().edge == Edge::Bottom) << "Below, where there is room";
  });
  steps.then("the mouse leaves", [] { leave(); });
  steps.until("the tip has gone", [] { return !shownTip(); });
  thenClose();
  desktop().runDialog(fieldsLayout(), rules);
}

INSTANTIATE_TEST_SUITE_P(
    Places, TipPlaceTest,
    testing::Values(Resting{"FieldsMiddle", NAME, Edge::None, 50, 50}, Resting{"FieldsTop", NAME, Edge::None, 10, 10},
                    Resting{"FieldsEnd", NAME, Edge::None, 95, 70}, Resting{"FieldRight", NAME, Edge::Right, 97, 50},
                    Resting{"FieldLeft", NAME, Edge::Left, 3, 50}, Resting{"FieldBottom", NAME, Edge::Bottom, 50, 50},
                    Resting{"TallField", TALL, Edge::None, 50, 15}, Resting{"TallFieldLow", TALL, Edge::None, 50, 90},
                    Resting{"TallFieldBottom", TALL, Edge::Bottom, 50, 30},
                    Resting{"TallFieldRight", TALL, Edge::Right, 98, 30}, Resting{"Choice", CHOICE, Edge::None, 30, 50},
                    Resting{"Button", PRESS, Edge::None, 50, 20}, Resting{"Mark", MARK, Edge::None, 50, 50}),
    [](const auto& info) { return info.param.name; });

}  // namespace tarnwick::test
