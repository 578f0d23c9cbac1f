#include "base/TagRow.h"
#include "base/TokenString.h"
#include "dialogbase/ToolTipDlg.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using namespace tarnwick::layout;

const DialogLayout sample = {7, "Sample", false,
                             column({edit(10, 20), checkBox(11, "Check"), edit(12, 20), label("", 13),
                                     button(IDOK_CONTROL, "OK"), button(IDCANCEL_CONTROL, "Cancel")}),
                             0};

class Sample : public ToolTipDlg {
 public:
  explicit Sample(Desktop& desktop) : ToolTipDlg(desktop, 7, 7) {
    bindings_ = {{10, &text}, {11, &check}, {12, &list}};
    toolTips_ = {{10, "first"}, {11, "check it"}, {10, "second"}};
  }
  void useRows(const TagRow* rows) { tags_ = rows; }

  std::string text = "before";
  bool check = true;
  TokenString list;
};

class ToolTipDlgTest : public testing::Test {
 protected:
  ScriptedDesktop desktop_;
  Sample dialog_{desktop_};
};

TEST_F(ToolTipDlgTest, ShowsBoundValuesWhenItOpens) {
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  EXPECT_EQ(window.text(10), "before");
  EXPECT_TRUE(window.checked(11));
  EXPECT_TRUE(dialog_.initialised());
}

TEST_F(ToolTipDlgTest, TheFirstToolTipOfAControlWins) {
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  EXPECT_EQ(window.toolTip(10), "first");
  EXPECT_EQ(window.toolTip(11), "check it");
}

TEST_F(ToolTipDlgTest, SetTextKeepsWhatTheUserTypedElsewhere) {
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  window.type(10, "typed");
  dialog_.setText(12, "a;b");
  EXPECT_EQ(dialog_.text, "typed");
  EXPECT_EQ(window.text(10), "typed");
  EXPECT_EQ(dialog_.list.count(), 2);
  EXPECT_EQ(window.text(12), "a;b");
}

TEST_F(ToolTipDlgTest, SetCheckStoresAndShows) {
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  dialog_.setCheck(11, 0);
  EXPECT_EQ(dialog_.check, 0);
  EXPECT_FALSE(window.checked(11));
}

TEST_F(ToolTipDlgTest, MalformedValuesAreDropped) {
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  dialog_.setText(12, "a;b");
  window.type(12, "a]");
  EXPECT_NO_THROW(dialog_.updateVariables());
  EXPECT_EQ(dialog_.list.toString(), "a;b") << "the value keeps what it had";
  EXPECT_NO_THROW(dialog_.setText(12, "]x"));
  EXPECT_EQ(dialog_.list.toString(), "a;b");
  EXPECT_EQ(window.text(12), "a;b") << "and shows it";
}

TEST_F(ToolTipDlgTest, ARowKeepsItsValueWhereThePageHoldsAMalformedOne) {
  TokenString list("x;y", ';', ']');
  std::string behind = "before";
  const TagRow rows[] = {{"A", &list, nullptr, 0, 7, 7, 12}, {"B", &behind, nullptr, 0, 7, 7, 10}, endOfRows};
  dialog_.useRows(rows);
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  window.type(12, "a]");
  window.type(10, "after");
  dialog_.storeToTags();
  EXPECT_EQ(list.toString(), "x;y");
  EXPECT_EQ(behind, "after") << "the rows behind it are stored all the same";
}

TEST_F(ToolTipDlgTest, ALongTextShowsItsEnd) {
  ScriptedWindow window(sample, dialog_);
  EXPECT_FALSE(window.showsEnd(10));
  dialog_.initialise(window);
  EXPECT_TRUE(window.showsEnd(10));
}

TEST_F(ToolTipDlgTest, ATextWithoutABindingGoesStraightToItsControl) {
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  dialog_.setText(13, "a label");
  EXPECT_EQ(window.text(13), "a label");
}

TEST_F(ToolTipDlgTest, WithoutAWindowNothingHappens) {
  EXPECT_FALSE(dialog_.initialised());
  dialog_.updateControls();
  dialog_.updateVariables();
  dialog_.storeToTags();
  EXPECT_EQ(dialog_.text, "before");
}

TEST_F(ToolTipDlgTest, APageWithoutAWindowTakesEveryOperationForNothing) {
  dialog_.scrollFieldToEnd(10);
  dialog_.setFieldText(10, "x");
  dialog_.showControl(10, false);
  dialog_.enableControl(10, false);
  dialog_.moveControl(10, {1, 2, 3, 4});
  EXPECT_FALSE(dialog_.isControlVisible(10));
  EXPECT_EQ(dialog_.getControlRect(10), Rect());
  EXPECT_EQ(dialog_.getText(10), "");
  EXPECT_EQ(dialog_.getCheck(11), 0);
  // No dialog is expected, so one that opened would fail the test.
  dialog_.askPathEntry(10, "things");
  dialog_.addFolderToField(10);
  dialog_.appendPathEntry(10, "/x");
  EXPECT_EQ(dialog_.text, "before");
}

TEST_F(ToolTipDlgTest, AfterItsWindowHasGoneADialogIsAsIfItNeverHadOne) {
  {
    ScriptedWindow window(sample, dialog_);
    dialog_.initialise(window);
    window.type(10, "typed");
    dialog_.detached();
  }
  EXPECT_FALSE(dialog_.initialised());
  dialog_.updateVariables();
  dialog_.appendPathEntry(10, "/x");
  EXPECT_EQ(dialog_.text, "before") << "what was typed was never taken";
}

TEST_F(ToolTipDlgTest, MovesTheRowsOfItsPageAndNoOthers) {
  std::string shown = "shown", other = "other";
  bool flag = true;
  int number = 1;
  TokenString list("x;y", ';', ']');
  const TagRow rows[] = {{"A", &shown, nullptr, 0, 7, 7, 10},  {"B", &flag, nullptr, 0, 7, 7, 11},
                         {"C", &list, nullptr, 0, 7, 7, 12},   {"D", &other, nullptr, 0, 8, 7, 10},
                         {"E", &number, nullptr, 0, 8, 7, 11}, endOfRows};
  dialog_.useRows(rows);
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  EXPECT_EQ(window.text(10), "shown");
  EXPECT_TRUE(window.checked(11));
  EXPECT_EQ(window.text(12), "x;y");
  window.type(10, "new");
  window.press(11);
  window.type(12, "z");
  EXPECT_EQ(shown, "shown") << "rows change with storeToTags only";
  dialog_.storeToTags();
  EXPECT_EQ(shown, "new");
  EXPECT_EQ(flag, 0);
  EXPECT_EQ(list.toString(), "z");
  EXPECT_EQ(other, "other");
  EXPECT_EQ(number, 1);
}

TEST_F(ToolTipDlgTest, OkAndCancelCloseWithTheirNumbers) {
  desktop_.expectDialog("Sample", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  EXPECT_EQ(desktop_.runDialog(sample, dialog_), DIALOG_OK);
  desktop_.expectDialog("Sample", [](ScriptedWindow& window) { window.press(IDCANCEL_CONTROL); });
  EXPECT_EQ(desktop_.runDialog(sample, dialog_), DIALOG_CANCEL);
  desktop_.expectDialog("Sample", [](ScriptedWindow& window) { window.closeBox(); });
  EXPECT_EQ(desktop_.runDialog(sample, dialog_), DIALOG_CANCEL);
}

TEST_F(ToolTipDlgTest, WhatIsPastedWithLineEndsReachesTheValuesOnOneLine) {
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  window.type(10, "one\r\ntwo\nJAVA_PATH  /planted/");
  window.type(12, "a;\nb");
  EXPECT_EQ(dialog_.getText(10), "one two JAVA_PATH  /planted/");
  dialog_.updateVariables();
  EXPECT_EQ(dialog_.text, "one two JAVA_PATH  /planted/");
  EXPECT_EQ(dialog_.list.toString(), "a; b");
}

TEST_F(ToolTipDlgTest, LineEndsReachNoTaggedRow) {
  std::string text = "before";
  const TagRow rows[] = {{"TEXT", &text, nullptr, 0, 7, 7, 10}, endOfRows};
  dialog_.useRows(rows);
  ScriptedWindow window(sample, dialog_);
  dialog_.initialise(window);
  window.type(10, "one\ntwo");
  dialog_.storeToTags();
  EXPECT_EQ(text, "one two");
}

}  // namespace
}  // namespace tarnwick::test
