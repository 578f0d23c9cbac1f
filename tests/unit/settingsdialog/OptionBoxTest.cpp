#include "settingsdialog/OptionBox.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

struct NoRules : DialogHandler {
  void initialise(DialogWindow&) override {}
  void onCommand(int) override {}
  void onCloseRequest() override {}
};

TEST(OptionBox, DrivesItsComboBoxAndField) {
  using namespace tarnwick::layout;
  NoRules rules;
  const DialogLayout dialog = {
      1, "", false,
      column({comboBox(28, {"Default", "1.1", "1.2", "1.3", "1.4", "1.5", "User-defined"}), edit(22, 10)}), 0};
  ScriptedWindow window(dialog, rules);
  OptionBox list(javacTargetOptions, "1.9");
  EXPECT_EQ(list.shownOption(), "");
  list.attach(nullptr, 28, 22);
  list.attach(&window, 28, 22);
  EXPECT_EQ(window.selection(28), 6);
  EXPECT_TRUE(window.enabled(22));
  EXPECT_EQ(window.text(22), "1.9");
  EXPECT_EQ(list.shownOption(), "-target ");
  window.type(22, "1.8");
  EXPECT_EQ(list.toString(), "1.8");
  EXPECT_EQ(list.option(), "-target 1.8");
  list.selectIndex(2);
  EXPECT_EQ(list.toString(), "1.2");
  EXPECT_FALSE(window.enabled(22));
  EXPECT_EQ(window.text(22), "");
  EXPECT_EQ(list.shownOption(), "-target 1.2");
  list.selectIndex(0);
  EXPECT_EQ(list.toString(), "");
}

TEST(OptionBox, NoWindowIsIgnoredAlsoWhereOneIsAttached) {
  using namespace tarnwick::layout;
  NoRules rules;
  const DialogLayout dialog = {1, "", false, column({comboBox(28, {"Default", "1.1"}), edit(22, 10)}), 0};
  ScriptedWindow window(dialog, rules);
  OptionBox list(javacTargetOptions);
  list.attach(&window, 28, 22);
  EXPECT_EQ(window.selection(28), 0);
  list.attach(nullptr, 29, -1);
  list.selectIndex(1);
  EXPECT_EQ(window.selection(28), 1);
  EXPECT_EQ(list.shownOption(), "-target 1.1");
}

TEST(OptionBox, ATextThatTheListCannotHoldShowsNoOption) {
  using namespace tarnwick::layout;
  NoRules rules;
  const DialogLayout dialog = {1, "", false, column({comboBox(28, {"Pre-1.4", "1.4", "1.5"})}), 0};
  ScriptedWindow window(dialog, rules);
  OptionBox list(javacVersionOptions, "9");
  list.attach(&window, 28, -1);
  EXPECT_EQ(list.currentIndex(), -1);
  EXPECT_EQ(list.shownOption(), "");
  EXPECT_EQ(list.toString(), "9") << "there is no field that it could come from";
}

}  // namespace
}  // namespace tarnwick::test
