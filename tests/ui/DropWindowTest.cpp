// Files dropped on windows, as the window system hands them over.
#include "ui/SampleDialog.h"
#include "ui/Text.h"
#include "ui/WindowTest.h"

#include <wx/dnd.h>

namespace tarnwick::test {

namespace {

using Heard = std::vector<std::string>;

class DropWindowTest : public WindowTest {
 protected:
  void play() {
    rules.onPress[IDOK_CONTROL] = [this] { rules.window->close(1); };
    desktop().runMainDialog(smallLayout("Main"), rules);
  }
  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  }
  static bool drop(wxWindow& on) {
    auto* const target = dynamic_cast<wxFileDropTarget*>(on.GetDropTarget());
    if (!target) return false;
    wxArrayString names;
    names.Add(ui::toWx("Äpfel.java"));
    names.Add(ui::toWx("b c.txt"));
    return target->OnDropFiles(0, 0, names);
  }

  Recorder rules;
};

}  // namespace

TEST_F(DropWindowTest, TheMainWindowAndAllThatIsInItTakeThem) {
  waitForDialog();
  steps.then("drop", [this] {
    EXPECT_TRUE(drop(top().dialog()));
    ASSERT_FALSE(top().dialog().GetChildren().empty());
    for (wxWindow* child : top().dialog().GetChildren()) EXPECT_TRUE(drop(*child));
    for (const auto& heard : rules.heard) EXPECT_EQ(heard, "dropped Äpfel.java;b c.txt;");
    EXPECT_EQ(rules.heard.size(), top().dialog().GetChildren().size() + 1);
  });
  steps.then("OK", [this] { press(top(), IDOK_CONTROL); });
  play();
}

TEST_F(DropWindowTest, BelowADialogItTakesNone) {
  Recorder inner;
  inner.onPress[IDOK_CONTROL] = [&inner] { inner.window->close(1); };
  waitForDialog();
  wxWindow* main = nullptr;
  steps.then("another dialog", [&] {
    main = &top().dialog();
    desktop().runDialog(smallLayout("Inner"), inner);
  });
  steps.until("it shows", [this] { return openDialogs() == 2 && top().dialog().IsActive(); });
  steps.then("drop", [&] {
    EXPECT_FALSE(drop(*main));
    EXPECT_EQ(rules.heard, Heard{});
    EXPECT_EQ(top().dialog().GetDropTarget(), nullptr);
  });
  steps.then("OK", [this] { press(top(), IDOK_CONTROL); });
  steps.until("it has gone", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
  steps.then("OK", [this] { press(top(), IDOK_CONTROL); });
  play();
}

}  // namespace tarnwick::test
