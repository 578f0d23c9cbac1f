// The last files of a field of the panel, chosen by keyboard and mouse.
#include "ui/PanelsFixture.h"

#include <wx/dialog.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <map>
#include <utility>

namespace tarnwick::test {

namespace {

constexpr int SOURCE = 1009;

const char first[] = "/home/\xC3\xA4 b/First.java";
const char second[] = "/home/Second & third_.java";

class LastFilesWindowTest : public PanelsFixture, public testing::WithParamInterface<View> {
 protected:
  LastFilesWindowTest() : PanelsFixture(GetParam()) {}

  wxTextCtrl& field() const { return dynamic_cast<wxTextCtrl&>(*panel().windowOf(SOURCE)); }
  wxTextCtrl& pageField() const { return dynamic_cast<wxTextCtrl&>(*page(0).windowOf(PanelPage::FIELD)); }

  /// The settings bear the list, as those of an earlier run do.
  void offer() {
    settings_.lastSources = TokenString();
    settings_.lastClasses = TokenString();
    for (const auto* name : {first, second}) {
      settings_.lastSources.add(name);
      settings_.lastClasses.add(name);
    }
    settings_.saveDefaultConfiguration();
  }

  void focus(const std::function<wxWindow&()>& window) {
    steps.then("focus", [window] { window().SetFocus(); });
    steps.until("the focus", [window] { return wxWindow::FindFocus() == &window(); });
  }

  /// In one go: while a list is open, another program's window may wait with everything else.
  void chooseLast() {
    steps.then("the last entry", [] {
      key(WXK_DOWN, wxMOD_ALT);
      key(WXK_END);
      key(WXK_RETURN);
    });
  }

  /// Where everything stands.
  std::map<std::pair<int, int>, wxRect> places() const {
    std::map<std::pair<int, int>, wxRect> found;
    found[{-1, 0}] = wxRect(top().dialog().GetSize());
    const auto note = [&found](int window, const ui::WxDialogWindow& one) {
      for (const int control : one.controls()) found[{window, control}] = one.windowOf(control)->GetRect();
    };
    note(0, panel());
    note(1, page(0));
    note(2, bar());
    return found;
  }
};

}  // namespace

TEST_P(LastFilesWindowTest, WithAListEverythingStandsWhereItStoodWithout) {
  std::map<std::pair<int, int>, wxRect> before;
  wxSize least;
  waitForView();
  steps.then("without", [&] {
    before = places();
    least = wxSize(panel().leastWidth(SOURCE), page(0).leastWidth(PanelPage::FIELD));
    panel().setText(SOURCE, "/home/some/where/a/long/way/down/in/a/folder/that/nobody/knows/First.java");
    for (ui::WxDialogWindow* window : {&panel(), &page(0)})
      window->setEntries(window == &panel() ? SOURCE : PanelPage::FIELD, {first, second});
  });
  steps.settle(8);
  steps.then("with", [&] {
    shoot("last-" + nameOf(GetParam()));
    EXPECT_EQ(places(), before);
    EXPECT_EQ(wxSize(panel().leastWidth(SOURCE), page(0).leastWidth(PanelPage::FIELD)), least);
    expectGoodLooks(panel());
    EXPECT_EQ(panel().entries(SOURCE), (std::vector<std::string>{first, second}));
    panel().setEntries(SOURCE, {});
  });
  steps.settle(8);
  steps.then("without again", [&] { EXPECT_EQ(places(), before); });
  run();
}

TEST_P(LastFilesWindowTest, ThePanelOfAnEarlierRunsListIsTheSame) {
  std::map<std::pair<int, int>, wxRect> before;
  waitForView();
  steps.then("without", [&] { before = places(); });
  run();
  offer();
  waitForView();
  steps.then("with", [&] {
    EXPECT_EQ(panel().entries(SOURCE).size(), 2U);
    EXPECT_EQ(places(), before);
  });
  run();
}

TEST_P(LastFilesWindowTest, TheKeyboardOpensTheListAndTheFieldTakesWhatIsChosen) {
  offer();
  waitForView();
  focus([this]() -> wxWindow& { return field(); });
  chooseLast();
  steps.until("the field has it", [this] { return panel().text(SOURCE) == "\"" + std::string(second) + "\""; });
  steps.then("look", [this] {
    EXPECT_EQ(page(0).text(PanelPage::FIELD), "");
    EXPECT_EQ(panel().selection(SOURCE), 1);
  });
  steps.until("the focus is there again", [this] { return wxWindow::FindFocus() == &field(); });
  focus([this]() -> wxWindow& { return pageField(); });
  chooseLast();
  steps.until("the other field", [this] { return !page(0).text(PanelPage::FIELD).empty(); });
  steps.then("look", [this] { EXPECT_EQ(page(0).text(PanelPage::FIELD), "\"" + std::string(second) + "\""); });
  run();
}

TEST_P(LastFilesWindowTest, EscapeLeavesListFieldAndPanelAsTheyAre) {
  offer();
  waitForView();
  focus([this]() -> wxWindow& { return field(); });
  steps.then("open and leave", [] {
    key(WXK_DOWN, wxMOD_ALT);
    key(WXK_ESCAPE);
    key('X');
  });
  steps.until("what was typed then", [this] { return !panel().text(SOURCE).empty(); });
  steps.then("look", [this] {
    EXPECT_EQ(panel().text(SOURCE), "x");
    EXPECT_EQ(panel().selection(SOURCE), -1);
    EXPECT_FALSE(panel().entries(SOURCE).empty());
  });
  run();
}

TEST_P(LastFilesWindowTest, WithoutAListTheKeyIsTheFieldsOwn) {
  waitForView();
  focus([this]() -> wxWindow& { return field(); });
  steps.then("type", [] {
    key(WXK_DOWN, wxMOD_ALT);
    key('X');
  });
  steps.until("what was typed", [this] { return panel().text(SOURCE) == "x"; });
  run();
}

INSTANTIATE_TEST_SUITE_P(Views, LastFilesWindowTest,
                         testing::Values(View{LayoutValue::VERTICAL, false}, View{LayoutValue::HORIZONTAL, false},
                                         View{LayoutValue::FLAT, false}),
                         [](const auto& one) { return nameOf(one.param); });

}  // namespace tarnwick::test
