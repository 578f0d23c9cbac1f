#include "base/Tarnwickexception.h"
#include "ui/DialogFixture.h"
#include "ui/Text.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include <set>
#include <stdexcept>

namespace tarnwick::test {

TEST_F(DialogTest, EveryKindOfControlShowsWholeAndInItsPlace) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  waitForDialog();
  steps.settle();
  steps.then("look", [this] {
    shoot("sample");
    expectGoodLooks(top());
    EXPECT_EQ(top().children().size(), 3u);
  });
  thenClose();
  EXPECT_EQ(play(), IDCANCEL_CONTROL);
}

TEST_F(DialogTest, EveryPageShowsWholeWhenItsTabIsChosen) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  waitForDialog();
  steps.then("choose the second tab", [this] { choose(top(), SAMPLE_TABS, 1); });
  steps.until("the page shows", [this] { return top().children()[1]->surface().IsShownOnScreen(); });
  steps.settle();
  steps.then("look", [this] {
    expectGoodLooks(top());
    EXPECT_EQ(rules.heard, Heard{"selection 112"});
    EXPECT_EQ(top().selection(SAMPLE_TABS), 1);
    EXPECT_EQ(top().entries(SAMPLE_TABS), (std::vector<std::string>{" First page ", "  Second  "}));
  });
  thenClose();
  play();
}

TEST_F(DialogTest, FieldsBeginAtOneLineBelowEachOther) {
  waitForDialog();
  steps.then("look", [this] {
    EXPECT_EQ(top().rect(SAMPLE_EDIT).left, top().rect(SAMPLE_SHOWN).left);
    EXPECT_EQ(top().rect(IDOK_CONTROL).width(), top().rect(IDCANCEL_CONTROL).width());
    EXPECT_EQ(top().rect(IDOK_CONTROL).width(), top().rect(SAMPLE_BUTTON).width());
    EXPECT_LT(top().rect(SAMPLE_SMALL).width(), top().rect(SAMPLE_BUTTON).width());
  });
  thenClose();
  play();
}

TEST_F(DialogTest, AnOnlyControlKeepsItsMargins) {
  DialogLayout only;
  only.title = "Only a slot";
  only.content = layout::column({layout::slot(SAMPLE_SLOT)});
  rules.onInitialise = [this](DialogWindow& window) { window.addChild(SAMPLE_SLOT, samplePageLayout(), bar); };
  waitForDialog();
  steps.settle();
  steps.then("look", [this] {
    const Rect rect = top().rect(SAMPLE_SLOT);
    const wxSize room = top().dialog().GetClientSize();
    EXPECT_GE(rect.left, 8);
    EXPECT_GE(rect.top, 8);
    EXPECT_EQ(room.x - rect.right, rect.left);
    EXPECT_EQ(room.y - rect.bottom, rect.top);
    expectGoodLooks(top());
  });
  thenClose();
  desktop().runDialog(only, rules);
}

TEST_F(DialogTest, TheFirstFocusIsTheLayouts) {
  waitForDialog();
  steps.until("focus", [this] { return wxWindow::FindFocus() == top().windowOf(SAMPLE_EDIT); });
  thenClose();
  play();
}

TEST_F(DialogTest, TabReachesEveryControl) {
  rules.onInitialise = [this](DialogWindow& window) {
    fill(window);
    window.setEntries(SAMPLE_LIST, {"one", "two"});
    window.setChecked(SAMPLE_RADIO_A, true);
    window.setChecked(SAMPLE_OTHER_B, true);
  };
  std::set<wxWindow*> reached;
  waitForDialog();
  for (int i = 0; i < 26; ++i) {
    steps.then("Tab", [] { key(WXK_TAB); });
    steps.settle(3);
    steps.then("focus", [&reached] { reached.insert(wxWindow::FindFocus()); });
  }
  steps.then("look", [&] {
    for (const int control : {SAMPLE_EDIT, SAMPLE_SMALL, SAMPLE_SHOWN, SAMPLE_CHECK, SAMPLE_RADIO_A, SAMPLE_OTHER_B,
                              SAMPLE_COMBO, SAMPLE_LIST, SAMPLE_TABS, SAMPLE_BUTTON}) {
      EXPECT_TRUE(reached.count(top().windowOf(control))) << "control " << control;
    }
    EXPECT_TRUE(reached.count(top().windowOf(IDOK_CONTROL)));
    EXPECT_TRUE(reached.count(top().windowOf(IDCANCEL_CONTROL)));
    for (const int control : {1, 2, 3}) EXPECT_TRUE(reached.count(top().children()[0]->windowOf(control))) << control;
    for (const int control : {1, 2, 3, 4})
      EXPECT_TRUE(reached.count(top().children()[2]->windowOf(control))) << control;
  });
  thenClose();
  play();
}

TEST_F(DialogTest, OurOwnChangesSendNothing) {
  rules.onInitialise = [this](DialogWindow& window) { fill(window); };
  waitForDialog();
  steps.then("change", [this] {
    DialogWindow& window = top();
    window.setText(SAMPLE_EDIT, "a text");
    window.setText(SAMPLE_SHOWN, "shown");
    window.setText(SAMPLE_LABEL, "R&D");
    window.setChecked(SAMPLE_CHECK, true);
    window.setChecked(SAMPLE_RADIO_B, true);
    window.setEntries(SAMPLE_LIST, {"one", "two"});
    window.select(SAMPLE_LIST, 1);
    window.select(SAMPLE_COMBO, 2);
    window.select(SAMPLE_TABS, 1);
  });
  steps.settle();
  steps.then("look", [this] {
    const DialogWindow& window = top();
    EXPECT_EQ(window.text(SAMPLE_EDIT), "a text");
    EXPECT_EQ(window.text(SAMPLE_SHOWN), "shown");
    EXPECT_EQ(window.text(SAMPLE_LABEL), "R&D");
    EXPECT_EQ(window.text(IDOK_CONTROL), "OK");
    EXPECT_EQ(window.text(SAMPLE_GROUP), " A group with a title ");
    EXPECT_TRUE(window.checked(SAMPLE_CHECK));
    EXPECT_EQ(window.entries(SAMPLE_LIST), (std::vector<std::string>{"one", "two"}));
    EXPECT_EQ(window.selection(SAMPLE_LIST), 1);
    EXPECT_EQ(window.text(SAMPLE_COMBO), "third");
    EXPECT_EQ(window.selection(SAMPLE_COMBO), 2);
    EXPECT_EQ(window.selection(SAMPLE_TABS), 1);
    EXPECT_EQ(rules.heard, Heard{});
  });
  thenClose();
  play();
}

TEST_F(DialogTest, TheUsersChangesAreHeard) {
  rules.onInitialise = [](DialogWindow& window) { window.setEntries(SAMPLE_LIST, {"one", "two"}); };
  waitForDialog();
  steps.then("use", [this] {
    type(top(), SAMPLE_EDIT, "typed");
    press(top(), SAMPLE_CHECK);
    press(top(), SAMPLE_RADIO_C);
    press(top(), SAMPLE_BUTTON);
    choose(top(), SAMPLE_COMBO, 1);
    choose(top(), SAMPLE_LIST, 0);
    EXPECT_EQ(rules.heard,
              (Heard{"text 102", "command 104", "command 107", "command 114", "selection 110", "selection 111"}));
    EXPECT_TRUE(top().checked(SAMPLE_RADIO_C));
  });
  thenClose();
  play();
}

TEST_F(DialogTest, TypedKeysArriveInTheFieldAndAreHeard) {
  waitForDialog();
  steps.until("focus", [this] { return wxWindow::FindFocus() == top().windowOf(SAMPLE_EDIT); });
  steps.then("type", [] { key('x'); });
  steps.until("the text is there", [this] { return top().text(SAMPLE_EDIT) == "x"; });
  steps.then("look", [this] { EXPECT_EQ(rules.heard, Heard{"text 102"}); });
  thenClose();
  play();
}

/// A field in the innermost dialog.
wxTextCtrl& fieldIn(ui::WxDialogWindow& window, int control) {
  return *wxDynamicCast(window.windowOf(control), wxTextCtrl);
}

TEST_F(DialogTest, AFieldTakesPastedLineEndsAsBlanks) {
  waitForDialog();
  steps.until("focus", [this] { return wxWindow::FindFocus() == top().windowOf(SAMPLE_EDIT); });
  steps.then("paste over what is selected", [this] {
    ASSERT_TRUE(desktop().setClipboardText("two\r\nthree\nfour"));
    type(top(), SAMPLE_EDIT, "one ? five");
    fieldIn(top(), SAMPLE_EDIT).SetSelection(4, 5);
    rules.heard.clear();
    fieldIn(top(), SAMPLE_EDIT).Paste();
  });
  steps.until("the text is there", [this] { return top().text(SAMPLE_EDIT) == "one two three four five"; });
  steps.then("look", [this] { EXPECT_FALSE(rules.heard.empty()) << "the rules have heard of it"; });
  thenClose();
  play();
}

TEST_F(DialogTest, AListOfPathsTakesPastedLinesAsElements) {
  DialogLayout list;
  list.title = "A list of paths";
  list.content = layout::column({layout::edit(SAMPLE_EDIT, 40).listingPaths()});
  waitForDialog();
  steps.then("paste", [this] {
    ASSERT_TRUE(desktop().setClipboardText("/a.jar\n/my b.jar\n"));
    fieldIn(top(), SAMPLE_EDIT).Paste();
  });
  steps.until("the text is there", [this] { return top().text(SAMPLE_EDIT) == "/a.jar;/my b.jar"; });
  thenClose();
  desktop().runDialog(list, rules);
}

TEST_F(DialogTest, WhatComesIntoAFieldInAnotherWayStaysOnOneLineToo) {
  // As a drop or the middle mouse button brings it.
  waitForDialog();
  steps.then("set", [this] { fieldIn(top(), SAMPLE_EDIT).SetValue("one\ntwo"); });
  steps.until("the text is on one line", [this] { return top().text(SAMPLE_EDIT) == "one two"; });
  thenClose();
  play();
}

TEST_F(DialogTest, ATextOfOneLineIsPastedAsItIs) {
  waitForDialog();
  steps.then("paste", [this] {
    ASSERT_TRUE(desktop().setClipboardText(" one; two "));
    fieldIn(top(), SAMPLE_EDIT).SetValue("");
    fieldIn(top(), SAMPLE_EDIT).Paste();
  });
  steps.until("the text is there", [this] { return top().text(SAMPLE_EDIT) == " one; two "; });
  thenClose();
  play();
}

TEST_F(DialogTest, RadioNeighboursExcludeOneAnother) {
  waitForDialog();
  steps.then("look", [this] {
    DialogWindow& window = top();
    const auto marks = [&window] {
      std::string text;
      for (int control = SAMPLE_RADIO_A; control <= SAMPLE_OTHER_B; ++control)
        text += window.checked(control) ? 'x' : '.';
      return text;
    };
    EXPECT_EQ(marks(), ".....");  // nothing is chosen before the rules say so
    window.setChecked(SAMPLE_RADIO_B, true);
    EXPECT_EQ(marks(), ".x...");
    window.setChecked(SAMPLE_OTHER_A, true);
    EXPECT_EQ(marks(), ".x.x.");
    window.setChecked(SAMPLE_RADIO_A, true);
    EXPECT_EQ(marks(), "x..x.");
    window.setChecked(SAMPLE_RADIO_C, false);
    EXPECT_EQ(marks(), "x..x.");
    window.setChecked(SAMPLE_RADIO_A, false);
    EXPECT_EQ(marks(), "...x.");
    press(top(), SAMPLE_OTHER_B);
    EXPECT_EQ(marks(), "....x");
    EXPECT_EQ(rules.heard, Heard{"command 109"});
  });
  thenClose();
  play();
}

TEST_F(DialogTest, ReturnPressesTheDefaultButton) {
  waitForDialog();
  steps.until("focus", [this] { return wxWindow::FindFocus() == top().windowOf(SAMPLE_EDIT); });
  steps.then("Return", [] { key(WXK_RETURN); });
  EXPECT_EQ(play(), IDOK_CONTROL);
  EXPECT_EQ(rules.heard, (Heard{"command 1", "detached"}));
}

TEST_F(DialogTest, ReturnInAListPressesTheDefaultButtonToo) {
  rules.onInitialise = [](DialogWindow& window) {
    window.setEntries(SAMPLE_LIST, {"one", "two"});
    window.select(SAMPLE_LIST, 0);
  };
  waitForDialog();
  steps.then("focus", [this] { top().focus(SAMPLE_LIST); });
  steps.until("focus", [this] { return wxWindow::FindFocus() == top().windowOf(SAMPLE_LIST); });
  steps.then("Return", [] { key(WXK_RETURN); });
  EXPECT_EQ(play(), IDOK_CONTROL);
  EXPECT_EQ(rules.heard, (Heard{"command 1", "detached"}));
}

TEST_F(DialogTest, ReturnPressesAnotherButtonThatHasTheFocus) {
  waitForDialog();
  steps.then("focus", [this] { top().focus(SAMPLE_BUTTON); });
  steps.until("focus", [this] { return wxWindow::FindFocus() == top().windowOf(SAMPLE_BUTTON); });
  steps.then("Return", [] { key(WXK_RETURN); });
  steps.until("pressed", [this] { return !rules.heard.empty(); });
  steps.then("look", [this] { EXPECT_EQ(rules.heard, Heard{"command 114"}); });
  thenClose();
  play();
}

TEST_F(DialogTest, EscapePressesCancel) {
  waitForDialog();
  steps.settle(5);
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  EXPECT_EQ(play(), IDCANCEL_CONTROL);
  EXPECT_EQ(rules.heard, (Heard{"command 2", "detached"}));
}

TEST_F(DialogTest, EscapeIsACloseRequestWhereNoCancelStands) {
  DialogLayout only;
  only.title = "Only one button";
  only.content = layout::column({layout::button(7, "Go on").asDefault()});
  rules.onClose = [this] { rules.window->close(99); };
  waitForDialog();
  steps.settle(5);
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  EXPECT_EQ(desktop().runDialog(only, rules), 99);
  EXPECT_EQ(rules.heard, (Heard{"close", "detached"}));
}

TEST_F(DialogTest, ADisabledCancelTakesNoEscape) {
  rules.onInitialise = [](DialogWindow& window) { window.enable(IDCANCEL_CONTROL, false); };
  waitForDialog();
  steps.settle(5);
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  steps.settle(5);
  steps.then("look", [this] { EXPECT_EQ(rules.heard, Heard{}); });
  thenClose();
  play();
}

TEST_F(DialogTest, TheCloseBoxAsksTheRulesAndClosesNothingByItself) {
  waitForDialog();
  steps.then("close box", [this] { top().dialog().Close(); });
  steps.settle();
  steps.then("look", [this] {
    EXPECT_EQ(rules.heard, Heard{"close"});
    EXPECT_EQ(openDialogs(), 1u);
  });
  thenClose();
  play();
}

TEST_F(DialogTest, ADialogClosedWhileItIsSetUpDoesNotShow) {
  rules.onInitialise = [](DialogWindow& window) { window.close(42); };
  EXPECT_EQ(play(), 42);
  EXPECT_EQ(rules.heard, Heard{"detached"});
}

TEST_F(DialogTest, EnablingAndShowing) {
  waitForDialog();
  steps.then("change", [this] {
    DialogWindow& window = top();
    EXPECT_TRUE(window.enabled(SAMPLE_BUTTON));
    EXPECT_TRUE(window.visible(SAMPLE_BUTTON));
    window.enable(SAMPLE_BUTTON, false);
    EXPECT_FALSE(window.enabled(SAMPLE_BUTTON));
    window.show(SAMPLE_BUTTON, false);
    EXPECT_FALSE(window.visible(SAMPLE_BUTTON));
    window.show(SAMPLE_BUTTON, true);
    window.enable(SAMPLE_BUTTON, true);
    EXPECT_TRUE(window.enabled(SAMPLE_BUTTON));
    EXPECT_TRUE(window.visible(SAMPLE_BUTTON));
  });
  thenClose();
  play();
}

TEST_F(DialogTest, ANumberThatNoControlBearsIsAFaultOfTheProgram) {
  waitForDialog();
  steps.then("ask", [this] {
    EXPECT_THROW(static_cast<void>(top().text(4711)), std::out_of_range);
    EXPECT_THROW(top().setText(4711, "x"), std::out_of_range);
    EXPECT_THROW(top().addTabPage(SAMPLE_EDIT, "x", samplePageLayout(), firstPage), std::out_of_range);
  });
  thenClose();
  play();
}

TEST_F(DialogTest, ControlsStayWhereTheRulesPutThem) {
  const Rect target{300, 200, 420, 240};
  waitForDialog();
  steps.then("move", [&] { top().setRect(SAMPLE_BUTTON, target); });
  steps.settle();
  steps.then("look", [&] {
    EXPECT_EQ(top().rect(SAMPLE_BUTTON), target);
    EXPECT_EQ(top().windowOf(SAMPLE_BUTTON)->GetRect(), wxRect(300, 200, 120, 40));
  });
  thenClose();
  play();
}

TEST_F(DialogTest, RectanglesAreThereBeforeTheWindowShows) {
  Rect edit;
  rules.onInitialise = [&](DialogWindow& window) { edit = window.rect(SAMPLE_EDIT); };
  waitForDialog();
  thenClose();
  play();
  EXPECT_GT(edit.width(), 50);
  EXPECT_GT(edit.height(), 10);
  EXPECT_GT(edit.left, 0);
}

TEST_F(DialogTest, TheWindowGrowsWithWhatIsFilledInAtTheStart) {
  Rect before;
  rules.onInitialise = [&](DialogWindow& window) {
    before = window.rect(SAMPLE_LABEL);
    window.setText(SAMPLE_LABEL, "A long text that the rules fill in when the dialog opens, and that must show whole");
  };
  waitForDialog();
  steps.settle();
  steps.then("look", [&] {
    EXPECT_GT(top().rect(SAMPLE_LABEL).width(), before.width());
    expectGoodLooks(top());
  });
  thenClose();
  play();
}

TEST_F(DialogTest, ALongLabelBreaksAndKeepsItsText) {
  std::string text;
  for (int i = 0; i < 60; ++i) text += "word" + std::to_string(i) + ' ';
  rules.onInitialise = [&](DialogWindow& window) { window.setText(SAMPLE_LABEL, text); };
  waitForDialog();
  steps.settle();
  steps.then("look", [&] {
    EXPECT_EQ(top().text(SAMPLE_LABEL), text);
    EXPECT_LT(top().rect(SAMPLE_LABEL).width(), 1000);
    expectGoodLooks(top());
  });
  thenClose();
  play();
}

TEST_F(DialogTest, ALabelThatChangesLaterKeepsItsPlace) {
  Rect before;
  waitForDialog();
  steps.then("change", [&] {
    before = top().rect(SAMPLE_LABEL);
    top().setText(SAMPLE_LABEL, std::string(200, 'm'));
  });
  steps.settle();
  steps.then("look", [&] { EXPECT_EQ(top().rect(SAMPLE_LABEL), before); });
  thenClose();
  play();
}

TEST_F(DialogTest, ALongTextShowsItsEnd) {
  waitForDialog();
  steps.then("scroll", [this] {
    std::string text(300, 'a');
    text += "end";
    top().setText(SAMPLE_EDIT, text);
    top().scrollToEnd(SAMPLE_EDIT);
    EXPECT_EQ(dynamic_cast<wxTextCtrl*>(top().windowOf(SAMPLE_EDIT))->GetInsertionPoint(), 303);
  });
  thenClose();
  play();
}

TEST_F(DialogTest, ToolTipsAndTitles) {
  waitForDialog();
  steps.then("look", [this] {
    top().setToolTip(SAMPLE_BUTTON, "What the button does");
    EXPECT_EQ(ui::fromWx(top().windowOf(SAMPLE_BUTTON)->GetToolTipText()), "What the button does");
    EXPECT_EQ(top().title(), "A sample of all controls");
    top().setTitle("Another title");
    EXPECT_EQ(top().dialog().GetTitle(), "Another title");
  });
  thenClose();
  play();
}

}  // namespace tarnwick::test
