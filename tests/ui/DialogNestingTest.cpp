#include "ui/DialogFixture.h"
#include "ui/Pixels.h"
#include "ui/Text.h"

#include <wx/dialog.h>

namespace tarnwick::test {

TEST_F(DialogTest, PagesHearTheirOwnControlsAndCloseTheWholeDialog) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  firstPage.onPress[2] = [this] { firstPage.window->close(77); };
  waitForDialog();
  steps.then("use", [this] {
    type(*top().children()[0], 1, "on the page");
    press(*top().children()[2], 3);
    press(*top().children()[0], 2);
  });
  EXPECT_EQ(play(), 77);
  EXPECT_EQ(firstPage.heard, (Heard{"text 1", "command 2", "detached"}));
  EXPECT_EQ(secondPage.heard, Heard{"detached"});
  EXPECT_EQ(bar.heard, (Heard{"command 3", "detached"}));
  EXPECT_EQ(rules.heard, Heard{"detached"});
}

TEST_F(DialogTest, AChildWindowHidesAndShows) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  waitForDialog();
  steps.then("hide", [this] {
    bar.window->showWindow(false);
    EXPECT_FALSE(top().children()[2]->surface().IsShownOnScreen());
    bar.window->showWindow(true);
    EXPECT_TRUE(top().children()[2]->surface().IsShownOnScreen());
  });
  thenClose();
  play();
}

TEST_F(DialogTest, ChildWindowsThatShowHearOfEscapeFirstAndNothingOfTheCloseBox) {
  DialogLayout layout;
  layout.title = "Two children";
  layout.content =
      layout::column({layout::button(7, "Go on"), layout::layers({layout::slot(8), layout::slot(9).hiddenAtFirst()})});
  Heard closing;
  rules.onInitialise = [this](DialogWindow& window) {
    window.addChild(8, sampleBarLayout(), bar);
    window.addChild(9, sampleBarLayout(), secondPage).showWindow(false);
  };
  bar.onClose = [&closing] { closing.emplace_back("child"); };
  rules.onClose = [&] {
    closing.emplace_back("dialog");
    if (closing.size() > 2) rules.window->close(99);
  };
  waitForDialog();
  steps.settle(5);
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  steps.until("something is heard", [&closing] { return closing.size() >= 2; });
  steps.then("close box", [this] { top().dialog().Close(); });
  EXPECT_EQ(desktop().runDialog(layout, rules), 99);
  EXPECT_EQ(closing, (Heard{"child", "dialog", "dialog"}));
  EXPECT_EQ(secondPage.heard, Heard{"detached"}) << "it does not show";
}

TEST_F(DialogTest, ATabPageKeepsItsColourWhateverHappensAroundIt) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  const auto colour = [this] {
    const wxImage picture = pictureOf(top().children()[0]->surface());
    return std::vector<int>{picture.GetRed(2, 2), picture.GetGreen(2, 2), picture.GetBlue(2, 2)};
  };
  std::vector<int> atFirst;
  waitForDialog();
  steps.settle(20);
  steps.then("look", [&] {
    atFirst = colour();
    top().enable(SAMPLE_TABS, false);
  });
  steps.settle(20);
  steps.then("change", [this] { top().enable(SAMPLE_TABS, true); });
  steps.settle(40);
  steps.then("look", [&] { EXPECT_EQ(colour(), atFirst); });
  thenClose();
  play();
}

TEST_F(DialogTest, AListSpeaksOfDoubleClicks) {
  rules.onInitialise = [](DialogWindow& window) { window.setEntries(SAMPLE_LIST, {"one"}); };
  waitForDialog();
  steps.then("press twice", [this] {
    wxWindow& list = *top().windowOf(SAMPLE_LIST);
    wxCommandEvent event(wxEVT_LISTBOX_DCLICK, list.GetId());
    list.ProcessWindowEvent(event);
    EXPECT_EQ(rules.heard, Heard{"double 111"});
  });
  thenClose();
  play();
}

TEST_F(DialogTest, AnOuterDialogThatIsToCloseWaitsForTheInnerOne) {
  Recorder inner;
  int innerResult = 0;
  rules.onPress[SAMPLE_BUTTON] = [&] { innerResult = desktop().runDialog(smallLayout("Inner"), inner); };
  waitForDialog();
  steps.then("open the inner one", [this] { press(top(), SAMPLE_BUTTON); });
  steps.until("the inner one shows", [this] { return openDialogs() == 2; });
  steps.then("close the outer one", [this] { rules.window->close(5); });
  steps.settle(5);
  steps.then("look", [&] {
    EXPECT_EQ(openDialogs(), 2u);
    EXPECT_NE(inner.window, nullptr);
    inner.window->close(3);
  });
  EXPECT_EQ(play(), 5);
  EXPECT_EQ(innerResult, 3);
  EXPECT_EQ(inner.heard, Heard{"detached"});
  EXPECT_EQ(rules.heard, (Heard{"command 114", "detached"}));
}

TEST_F(DialogTest, ThreeDialogsDeepCloseInnermostFirst) {
  Recorder second;
  Recorder third;
  std::vector<int> results;
  rules.onPress[SAMPLE_BUTTON] = [&] { results.push_back(desktop().runDialog(smallLayout("Second"), second)); };
  second.onPress[IDOK_CONTROL] = [&] { results.push_back(desktop().runDialog(smallLayout("Third"), third)); };
  waitForDialog();
  steps.then("second", [this] { press(top(), SAMPLE_BUTTON); });
  steps.until("it shows", [this] { return openDialogs() == 2; });
  steps.then("third", [this] { press(top(), IDOK_CONTROL); });
  steps.until("it shows", [this] { return openDialogs() == 3; });
  steps.then("close all", [&] {
    rules.window->close(10);
    second.window->close(20);
    third.window->close(30);
  });
  EXPECT_EQ(play(), 10);
  EXPECT_EQ(results, (std::vector<int>{30, 20}));
}

TEST_F(DialogTest, TheFirstResultCounts) {
  waitForDialog();
  steps.then("close twice", [this] {
    DialogWindow& window = *rules.window;
    window.close(8);
    window.close(9);
  });
  EXPECT_EQ(play(), 8);
}

TEST_F(DialogTest, TheFocusComesBackToItsControlFromADialog) {
  Recorder inner;
  inner.onPress[IDOK_CONTROL] = [&inner] { inner.window->close(1); };
  std::vector<std::string> labels;
  waitForDialog();
  for (int round = 0; round < 10; ++round) {
    steps.then("another dialog", [&inner] { desktop().runDialog(smallLayout("Inner"), inner); });
    steps.until("it shows", [this] { return openDialogs() == 2 && top().dialog().IsActive(); });
    steps.then("OK", [this] { press(top(), IDOK_CONTROL); });
    steps.until("it has gone", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    steps.settle(10);
    steps.then("look", [&labels] {
      const wxWindow* const focus = wxWindow::FindFocus();
      labels.push_back(focus ? ui::fromWx(focus->GetLabel()) : "");
    });
  }
  thenClose();
  desktop().runMainDialog(smallLayout("Main"), rules);
  EXPECT_EQ(labels, std::vector<std::string>(10, "OK"));
}

}  // namespace tarnwick::test
