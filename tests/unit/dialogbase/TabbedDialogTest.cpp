#include "dialogbase/TabbedDialog.h"
#include "support/QuietDesktop.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>
#include <iostream>

namespace tarnwick::test {
namespace {

using namespace tarnwick::layout;

constexpr int TABS = 30;

/// Shows its messages where a test of a dying process can see them.
struct PrintingDesktop : QuietDesktop {
  void message(const std::string& text) override { std::cerr << text << std::endl; }
};

class TwoTabs : public TabbedDialog {
 public:
  explicit TwoTabs(Desktop& desktop) : TabbedDialog(desktop, 7, TABS), page_(desktop, 8, 7, pageLayout_) {
    addTab("One", page_);
  }

 private:
  DialogLayout pageLayout_{8, "", false, column({edit(10, 20)}), 0};
  TabPage page_;
};

/// A tab control whose selection is none of the dialog's tabs.
class LostWindow : public ScriptedWindow {
 public:
  using ScriptedWindow::ScriptedWindow;
  int selection(int /*control*/) const override { return lost; }
  int lost = 0;
};

TEST(TabbedDialogDeathTest, ATabWithoutAPageIsToldAndEndsTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  PrintingDesktop desktop;
  TwoTabs dialog(desktop);
  const DialogLayout layout{7, "Dialog", false, column({tabs(TABS)}), 0};
  LostWindow window(layout, dialog);
  dialog.initialise(window);
  dialog.onSelectionChanged(TABS);
  EXPECT_EQ(dialog.currentPage(), 0);
  for (const int index : {1, -1, 17}) {
    window.lost = index;
    EXPECT_EXIT(
        dialog.onSelectionChanged(TABS), [](int code) { return code != 0; },
        "Fatal error: Can't find dialog page for index " + std::to_string(index));
  }
}

TEST(TabbedDialogTest, TheSelectionOfAnotherControlIsNoTabChange) {
  PrintingDesktop desktop;
  TwoTabs dialog(desktop);
  const DialogLayout layout{7, "Dialog", false, column({tabs(TABS)}), 0};
  LostWindow window(layout, dialog);
  dialog.initialise(window);
  window.lost = 17;
  dialog.onSelectionChanged(TABS + 1);
  EXPECT_EQ(dialog.currentPage(), 0);
}

/// Counts what it hears of its tabs.
class CountingTabs : public TabbedDialog {
 public:
  explicit CountingTabs(Desktop& desktop) : TabbedDialog(desktop, 7, TABS) {
    addTab("One", one_);
    addTab("Two", two_);
  }
  using TabbedDialog::openPage;
  int changes = 0;

 private:
  void onTabChanged() override { ++changes; }

  DialogLayout oneLayout_{8, "", false, column({edit(10, 20)}), 0};
  DialogLayout twoLayout_{9, "", false, column({edit(10, 20)}), 0};
  TabPage one_{desktop_, 8, 7, oneLayout_};
  TabPage two_{desktop_, 9, 7, twoLayout_};
};

TEST(TabbedDialogTest, APageIsOpenedWithoutATabChangeBeingTold) {
  ScriptedDesktop desktop;
  CountingTabs dialog(desktop);
  const DialogLayout layout{7, "Dialog", false, column({tabs(TABS)}), 0};
  ScriptedWindow window(layout, dialog);
  dialog.initialise(window);
  for (const int index : {1, 1, 0}) {
    dialog.openPage(index);
    EXPECT_EQ(window.selection(TABS), index);
    EXPECT_EQ(dialog.currentPage(), index);
  }
  EXPECT_EQ(dialog.changes, 0);
  window.choose(TABS, 1);
  EXPECT_EQ(dialog.changes, 1);
}

}  // namespace
}  // namespace tarnwick::test
