// Where the focus is after a message box, and what the keyboard alone can do.
#include "app/TarnwickDlg.h"
#include "settingsdialog/SettingsDialog.h"
#include "ui/DialogFixture.h"
#include "ui/ProgramWorld.h"
#include "ui/Wine.h"

#include <wx/button.h>
#include <wx/dialog.h>

namespace tarnwick::test {

namespace {

constexpr int JAVAC_TAB = 1;
constexpr int EDITOR_TAB = 5;

class FocusTest : public WindowTest {
 protected:
  FocusTest() { world_.settings.javacDebug = true; }

  void waitForDialog() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    steps.settle(5);
  }

  ui::WxDialogWindow& child(std::size_t index) const { return *top().children().at(index); }

  void thenFocus(const std::function<wxWindow*()>& control) {
    steps.then("focus", [control] { control()->SetFocus(); });
    steps.until("focus", [control] { return wxWindow::FindFocus() == control(); });
  }

  /// A message box takes its time to show.
  void thenAnswer(int code) {
    steps.settle(40);
    steps.then("answer", [code] { key(code); });
    steps.settle(20);
  }

  void expectFocus(const std::function<wxWindow*()>& control) {
    steps.then("look", [control] { EXPECT_EQ(wxWindow::FindFocus(), control()); });
  }

  void thenClose() {
    steps.then("close", [this] { top().close(IDCANCEL_CONTROL); });
  }

  ProgramWorld world_;
};

}  // namespace

TEST_F(DialogTest, AfterAMessageTheFocusIsBackWhereItWas) {
  rules.onInitialise = [this](DialogWindow& window) {
    fill(window);
    window.setEntries(SAMPLE_LIST, {"one", "two"});
    window.setChecked(SAMPLE_RADIO_B, true);
  };
  bool told = false;
  waitForDialog();
  for (const int control : {SAMPLE_EDIT, SAMPLE_SHOWN, SAMPLE_CHECK, SAMPLE_RADIO_B, SAMPLE_COMBO, SAMPLE_LIST,
                            SAMPLE_TABS, SAMPLE_BUTTON}) {
    steps.then("focus", [this, control] { top().focus(control); });
    steps.until("focus", [this, control] { return wxWindow::FindFocus() == top().windowOf(control); });
    steps.then("tell", [&told] {
      told = false;
      desktop().message("Something to be told");
      told = true;
    });
    steps.settle(40);
    steps.then("Return", [] { key(WXK_RETURN); });
    steps.until("the message has gone", [&told] { return told; });
    steps.settle(20);
    steps.then("look",
               [this, control] { EXPECT_EQ(wxWindow::FindFocus(), top().windowOf(control)) << "control " << control; });
  }
  thenClose();
  play();
}

TEST_F(DialogTest, AFocusThatNobodySeesGoesOnToTheNextControlOfUse) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  const auto expectNext = [this](int next) {
    steps.until("the focus goes on", [this, next] { return wxWindow::FindFocus() == top().windowOf(next); });
  };
  waitForDialog();
  steps.then("focus", [this] { top().focus(SAMPLE_EDIT); });
  expectNext(SAMPLE_EDIT);
  steps.then("disable it", [this] { rules.window->enable(SAMPLE_EDIT, false); });
  expectNext(SAMPLE_SMALL);
  steps.then("hide it, and disable the one behind", [this] {
    rules.window->show(SAMPLE_SMALL, false);
    rules.window->enable(SAMPLE_SHOWN, false);
  });
  expectNext(SAMPLE_CHECK);
  steps.then("focus the last", [this] { top().focus(IDCANCEL_CONTROL); });
  expectNext(IDCANCEL_CONTROL);
  steps.then("disable it", [this] { rules.window->enable(IDCANCEL_CONTROL, false); });
  expectNext(SAMPLE_CHECK);  // round and round
  thenClose();
  play();
}

TEST_F(DialogTest, AFocusOnAPageThatGoesOutOfSightGoesOn) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  const auto onPage = [this](std::size_t page) { return top().children().at(page)->windowOf(3); };
  waitForDialog();
  steps.then("focus", [onPage] { onPage(0)->SetFocus(); });
  steps.until("focus", [onPage] { return wxWindow::FindFocus() == onPage(0); });
  steps.then("another tab by the rules", [this] { rules.window->select(SAMPLE_TABS, 1); });
  steps.until("the focus is seen", [] {
    const wxWindow* const focus = wxWindow::FindFocus();
    return focus && focus->IsShownOnScreen();
  });
  steps.settle(10);
  steps.then("look", [this] {
    const wxWindow* const focus = wxWindow::FindFocus();
    ASSERT_TRUE(focus);
    EXPECT_TRUE(focus->IsShownOnScreen() && focus->IsEnabled());
    EXPECT_EQ(wxGetTopLevelParent(const_cast<wxWindow*>(focus)), &top().dialog());
  });
  thenClose();
  play();
}

TEST_F(DialogTest, WhatTheRulesDisableAndEnableAgainKeepsItsFocus) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  rules.onPress[SAMPLE_BUTTON] = [this] {
    rules.window->enable(SAMPLE_BUTTON, false);
    rules.window->enable(SAMPLE_BUTTON, true);
    rules.window->focus(SAMPLE_BUTTON);
  };
  waitForDialog();
  steps.then("press", [this] {
    top().focus(SAMPLE_BUTTON);
    press(top(), SAMPLE_BUTTON);
  });
  steps.settle(10);
  steps.then("look", [this] { EXPECT_EQ(wxWindow::FindFocus(), top().windowOf(SAMPLE_BUTTON)); });
  thenClose();
  play();
}

TEST_F(FocusTest, AWarningThatIsCancelledLeavesTheFieldItsFocus) {
  world_.settings.javacFastcode = true;
  const auto field = [this] { return child(JAVAC_TAB).windowOf(1117); };
  waitForDialog();
  thenFocus(field);
  steps.then("Return", [] { key(WXK_RETURN); });
  thenAnswer(WXK_ESCAPE);
  expectFocus(field);
  thenClose();
  EXPECT_EQ(SettingsDialog(world_.settings).runModal(JAVAC_TAB), DIALOG_CANCEL);
}

TEST_F(FocusTest, TheArrowsMoveAmongRadioButtonsAndTheirTipLeavesTheFocus) {
  world_.settings.editWithNotepad = false;
  world_.settings.editorTarget = "/usr/bin/gedit";
  waitForDialog();
  thenFocus([this] { return child(EDITOR_TAB).windowOf(1014); });
  steps.then("arrow", [] { key(WXK_LEFT); });
  // A radio button that gets the focus is chosen with it, but not under Wine.
  if (runsUnderWine()) {
    steps.settle(5);
    steps.then("Space", [] { key(WXK_SPACE); });
  }
  thenAnswer(WXK_RETURN);
  steps.then("look", [this] {
    EXPECT_TRUE(child(EDITOR_TAB).checked(1013));
    EXPECT_FALSE(child(EDITOR_TAB).enabled(1042)) << "the other editor's field";
  });
  expectFocus([this] { return child(EDITOR_TAB).windowOf(1013); });
  thenClose();
  SettingsDialog(world_.settings).runModal(EDITOR_TAB);
}

TEST_F(FocusTest, SpaceChecksABoxAndArrowsChooseInAComboBox) {
  waitForDialog();
  thenFocus([this] { return child(JAVAC_TAB).windowOf(1024); });
  steps.then("Space", [] { key(WXK_SPACE); });
  steps.until("checked", [this] { return child(JAVAC_TAB).checked(1024); });
  thenFocus([this] { return child(JAVAC_TAB).windowOf(1028); });
  steps.then("arrow", [] { key(WXK_DOWN); });
  steps.until("chosen", [this] { return child(JAVAC_TAB).text(1028) == "1.1"; });
  thenClose();
  SettingsDialog(world_.settings).runModal(JAVAC_TAB);
}

TEST_F(FocusTest, AFileDialogAndItsMessageLeaveTheButtonItsFocus) {
  world_.settings.saveDefaultConfiguration();
  // The panel is the first child of the main window, and the page " Main program " of the panel.
  const auto java = [this] { return child(0).children().at(0)->windowOf(PanelPage::RIGHT); };
  waitForDialog();
  thenFocus(java);
  steps.then("Space", [] { key(WXK_SPACE); });
  thenAnswer(WXK_ESCAPE);  // no file is chosen
  thenAnswer(WXK_RETURN);  // and that is told
  steps.then("look", [this] { EXPECT_TRUE(top().dialog().IsActive()); });
  expectFocus(java);
  thenClose();
  TarnwickDlg(world_.settings).runModal();
}

}  // namespace tarnwick::test
