// What stands in the place of entries and of a text as long as there are none.
#include "ui/DialogFixture.h"
#include "ui/Pixels.h"

#include <wx/dialog.h>

#include <algorithm>

namespace tarnwick::test {

namespace {

class EmptyTextTest : public DialogTest {
 protected:
  EmptyTextTest() {
    rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  }

  DialogWindow& window() { return *rules.window; }

  /// How many colours show in the middle of the control, between its sides and its frame.
  int ink(int control) {
    wxRect area = top().windowOf(control)->GetScreenRect();
    area.Deflate(area.width / 4, 6);
    const wxImage picture = screen(area);
    return static_cast<int>(picture.CountColours(1000));
  }
  void expectInk(const std::string& when, const std::vector<int>& controls, bool there) {
    steps.until(when, [this, controls, there] {
      return std::all_of(controls.begin(), controls.end(), [&](int control) { return (ink(control) > 4) == there; });
    });
  }
};

}  // namespace

TEST_F(EmptyTextTest, TheWordsShowAsLongAsThereIsNothingElse) {
  const std::vector<int> all{SAMPLE_LIST, SAMPLE_EDIT};
  waitForDialog();
  steps.then("focus elsewhere", [this] { window().focus(SAMPLE_BUTTON); });
  expectInk("nothing shows at first", all, false);
  steps.then("words", [this, all] {
    for (const int control : all) window().setEmptyText(control, "Press a button to fill this");
  });
  expectInk("the words show", all, true);
  steps.then("they are no part of what is there", [this] {
    shoot("empty-text");
    EXPECT_EQ(window().entries(SAMPLE_LIST), Heard{});
    EXPECT_EQ(window().selection(SAMPLE_LIST), -1);
    EXPECT_EQ(window().text(SAMPLE_EDIT), "");
    EXPECT_EQ(rules.heard, Heard{}) << "nobody is told of it";
    expectGoodLooks(top());
    // An entry of blanks leaves no ink of its own.
    window().setEntries(SAMPLE_LIST, {"  "});
    window().setText(SAMPLE_EDIT, "  ");
  });
  expectInk("they have gone", all, false);
  steps.then("empty again", [this] {
    window().setEntries(SAMPLE_LIST, {});
    window().setText(SAMPLE_EDIT, "");
  });
  expectInk("they are back", all, true);
  steps.then("no words", [this, all] {
    for (const int control : all) window().setEmptyText(control, "");
  });
  expectInk("nothing shows at the end", all, false);
  thenClose();
  play();
}

}  // namespace tarnwick::test
