#include "settings/OptionList.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(OptionList, ALabelGivesItsOption) {
  EXPECT_EQ(OptionList(javacTargetOptions, "1.1").option(), "-target 1.1");
  EXPECT_EQ(OptionList(javacTargetOptions, " 1.5 ").option(), "-target 1.5");
  EXPECT_EQ(OptionList(javacSourceOptions, "1.4").option(), "-source 1.4");
  EXPECT_EQ(OptionList(garbageCollectorOptions, "Disabled").option(), "-Xnoclassgc");
  EXPECT_EQ(OptionList(garbageCollectorOptions, "Incremental").option(), "-Xincgc");
  EXPECT_EQ(OptionList(garbageCollectorOptions, "Concurrent").option(), "-Xconcgc");
}

TEST(OptionList, NothingChosenGivesNothing) {
  EXPECT_EQ(OptionList(javacTargetOptions, "").option(), "");
  EXPECT_EQ(OptionList(javacSourceOptions, "  ").option(), "");
  EXPECT_EQ(OptionList(garbageCollectorOptions, "Default").option(), "");
}

TEST(OptionList, AUsersOwnTextIsAppended) {
  EXPECT_EQ(OptionList(javacTargetOptions, "1.6").option(), "-target 1.6");
  EXPECT_EQ(OptionList(javacSourceOptions, "17").option(), "-source 17");
}

TEST(OptionList, TheJdkVersionHasNoEntryOfItsOwnForTheDefault) {
  EXPECT_EQ(OptionList(javacVersionOptions, "").currentIndex(), 0);
  EXPECT_EQ(OptionList(javacVersionOptions, "Pre-1.4").currentIndex(), 0);
  EXPECT_EQ(OptionList(javacVersionOptions, "1.4").currentIndex(), 1);
  EXPECT_EQ(OptionList(javacVersionOptions, "1.5").currentIndex(), 2);
  EXPECT_EQ(OptionList(javacVersionOptions, "9").currentIndex(), -1);
}

TEST(OptionList, WindowTextNamesTheChoice) {
  EXPECT_EQ(OptionList(javacTargetOptions, "").windowText(), "Default");
  EXPECT_EQ(OptionList(javacTargetOptions, "1.7").windowText(), "User-defined");
  EXPECT_EQ(OptionList(javacTargetOptions, "1.3").windowText(), "1.3");
}

struct NoRules : DialogHandler {
  void initialise(DialogWindow&) override {}
  void onCommand(int) override {}
  void onCloseRequest() override {}
};

TEST(OptionList, DrivesItsComboBoxAndField) {
  using namespace tarnwick::layout;
  NoRules rules;
  const DialogLayout dialog = {
      1, "", false,
      column({comboBox(28, {"Default", "1.1", "1.2", "1.3", "1.4", "1.5", "User-defined"}), edit(22, 10)}), 0};
  ScriptedWindow window(dialog, rules);
  OptionList list(javacTargetOptions, "1.9");
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

}  // namespace
}  // namespace tarnwick::test
